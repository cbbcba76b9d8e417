// The topics as records: their names and sizes, their lines, and the guide that is made of them.

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "example_runner.h"
#include "help/help_topics.h"
#include "help/references.h"

namespace
{
    using Lines = std::vector<std::string>;
    using Kind = HelpParagraph::Kind;

    struct Size
    {
        const char* title;
        double width, height;
    };

    TEST(Topics, HaveTheirTitlesAndSizesInTheOrderOfTheIndex)
    {
        const std::vector<Size> expected{
            {"Training analysis", 9300, 8750}, {"Performance levels", 9350, 7780}, {"Saved files", 8600, 6600},
            {"Main entry form", 9750, 8050},   {"Predicted table", 8400, 4400},    {"Special information", 9380, 6640},
            {"Program overview", 9640, 8200},  {"Performance tables", 8680, 6500}, {"Workout planner", 9300, 10700},
            {"Splits analysis", 9870, 9000},   {"Course profile", 9300, 7780},     {"Heat and humidity", 9300, 8220}};
        ASSERT_EQ(helpTopics().size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
        {
            const HelpTopic& topic = helpTopics()[i];
            EXPECT_EQ(topic.title, expected[i].title);
            EXPECT_EQ(topic.width, expected[i].width) << topic.title;
            EXPECT_EQ(topic.height, expected[i].height) << topic.title;
            EXPECT_EQ(static_cast<std::size_t>(topic.name), i) << topic.title;
            EXPECT_EQ(helpTopic(topic.name).title, topic.title);
        }
    }

    TEST(Topics, TellWhatTheyTellHowToUseItAnExampleAndTheirLimits)
    {
        for (const HelpTopic& topic : helpTopics())
        {
            std::multiset<std::string> headings;
            std::size_t words = 0;
            for (const HelpParagraph& paragraph : paragraphsOf(topic.text))
            {
                if (paragraph.kind == Kind::heading)
                    headings.insert(paragraph.lines.front());
                for (const std::string& line : paragraph.lines)
                    words += wordsOf(line).size();
            }
            EXPECT_EQ(headings.count("A worked example"), 1U) << topic.title;
            EXPECT_EQ(headings.count("Its limits"), 1U) << topic.title;
            EXPECT_GE(headings.size(), 3U) << topic.title;
            EXPECT_GE(words, 200U) << topic.title;
        }
    }

    TEST(Topics, FitTheWidthOfTheirForm)
    {
        for (const HelpTopic& topic : helpTopics())
            for (const std::string& line : linesOf(topic))
            {
                EXPECT_LE(line.size(), static_cast<std::size_t>(helpColumns(topic.width)))
                    << topic.title << ": " << line;
                for (const char character : line)
                    EXPECT_TRUE(character >= ' ' && character <= '~') << topic.title << ": " << line;
            }
    }

    TEST(Topics, LoseNoWordInTheirLines)
    {
        for (const HelpTopic& topic : helpTopics())
        {
            Lines inText;
            for (const HelpParagraph& paragraph : paragraphsOf(topic.text))
                if (paragraph.kind != Kind::heading)
                    for (const std::string& line : paragraph.lines)
                        for (const std::string& word : wordsOf(line))
                            inText.push_back(word);
            Lines printed;
            std::set<std::string> headings;
            for (const HelpParagraph& paragraph : paragraphsOf(topic.text))
                if (paragraph.kind == Kind::heading)
                    headings.insert(linkName(paragraph.lines.front()));
            for (const std::string& line : linesOf(topic))
                if (!headings.contains(linkName(trimmed(line))))
                    for (const std::string& word : wordsOf(line))
                        if (word != "-")
                            printed.push_back(word);
            std::erase(inText, "-");
            EXPECT_EQ(printed, inText) << topic.title;
        }
    }

    TEST(Paragraphs, AreTakenApart)
    {
        const auto paragraphs =
            paragraphsOf("One\ntwo.\n\n# A heading\n\n- an item\n  goes on\n- another\n\n    x  1\n      y\n");
        ASSERT_EQ(paragraphs.size(), 5U);
        EXPECT_EQ(paragraphs[0].lines, Lines{"One two."});
        EXPECT_EQ(paragraphs[1].kind, Kind::heading);
        EXPECT_EQ(paragraphs[1].lines, Lines{"A heading"});
        EXPECT_EQ(paragraphs[2].kind, Kind::item);
        EXPECT_EQ(paragraphs[2].lines, Lines{"an item goes on"});
        EXPECT_EQ(paragraphs[3].lines, Lines{"another"});
        EXPECT_EQ(paragraphs[4].kind, Kind::table);
        EXPECT_EQ(paragraphs[4].lines, (Lines{"x  1", "  y"}));
    }

    TEST(Lines, AreBrokenBetweenWords)
    {
        EXPECT_EQ(brokenWords(" ", "aa bb cc", 6), (Lines{" aa bb", " cc"}));
        EXPECT_EQ(brokenWords(" ", "aa bb cc", 5), (Lines{" aa", " bb", " cc"}));
        EXPECT_EQ(brokenWords(" - ", "aa bb", 5), (Lines{" - aa", "   bb"}));
        EXPECT_EQ(brokenWords(" ", "a longword b", 4), (Lines{" a", " longword", " b"}));
    }

    TEST(Lines, KeepNumbersWithTheirUnitsAndCaptionsTogether)
    {
        EXPECT_EQ(brokenWords(" ", "run 10 km now", 7), (Lines{" run", " 10 km", " now"}));
        EXPECT_EQ(brokenWords(" ", "(at 10 km, now)", 9), (Lines{" (at", " 10 km,", " now)"}));
        EXPECT_EQ(brokenWords(" ", "in 10. It", 7), (Lines{" in 10.", " It"})) << "a sentence ends there";
        EXPECT_EQ(brokenWords(" ", "age 40 and", 7), (Lines{" age 40", " and"}));
        EXPECT_EQ(brokenWords(" ", "aa \"bb cc\", dd", 16), (Lines{" aa \"bb cc\", dd"}));
        EXPECT_EQ(brokenWords(" ", "aaaaaaaaaa \"= L\" dd", 15), (Lines{" aaaaaaaaaa", " \"= L\" dd"}));
        EXPECT_EQ(brokenWords(" ", "\"bb cc dd ee\" ff", 10), (Lines{" \"bb cc dd", " ee\" ff"}))
            << "longer than half a line";
        EXPECT_EQ(brokenWords(" ", "a \"b c", 5), (Lines{" a \"b", " c"})) << "no second quote";
    }

    TEST(Lines, PartParagraphsAndKeepListsTogether)
    {
        const HelpTopic topic{HelpTopicName::savedFiles, "T", 8600, 6600,
                              "One.\n\n# Head\n\nTwo:\n\n- a\n- b\n\n    1  2\n    3  4\n\nEnd.\n"};
        EXPECT_EQ(linesOf(topic),
                  (Lines{" One.", "", " HEAD", " Two:", "", " - a", " - b", "", "   1  2", "   3  4", "", " End."}));
    }

    TEST(Columns, StandBesideTheMarginsAndTheScrollBar)
    {
        EXPECT_EQ(helpColumns(8400), 63);
        EXPECT_EQ(helpColumns(9870), 75);
    }

    TEST(References, FitTheirForm)
    {
        EXPECT_FALSE(referenceLines().empty());
        for (const std::string& line : referenceLines())
            EXPECT_LE(line.size(), 100U) << line;
    }

    // The guide is the topics; tests/accept takes over what is new.
    TEST(Guide, IsMadeOfTheTopics)
    {
        const std::filesystem::path path = std::filesystem::path(VANTELOS_SOURCE_DIR) / "docs" / "guide.md";
        const std::string received = path.string() + ".received";
        const std::string expected = std::filesystem::exists(path) ? readBytes(path) : "";
        if (guideText() == expected)
            std::filesystem::remove(received);
        else
            writeBytes(received, guideText());
        EXPECT_TRUE(guideText() == expected) << "read " << received << ", then tests/accept docs/guide.md";
    }

    TEST(Guide, LinksToWhatIsThere)
    {
        const std::string guide = guideText();
        for (const HelpTopic& topic : helpTopics())
        {
            EXPECT_NE(guide.find("](#" + linkName(topic.title) + ")"), std::string::npos) << topic.title;
            EXPECT_NE(guide.find("\n## " + std::string(topic.title) + "\n"), std::string::npos) << topic.title;
        }
        const std::string mark = "](images/";
        for (std::size_t at = guide.find(mark); at != std::string::npos; at = guide.find(mark, at + 1))
        {
            const std::size_t from = at + mark.size();
            const std::string picture = guide.substr(from, guide.find(')', from) - from);
            EXPECT_TRUE(std::filesystem::exists(std::string(VANTELOS_SOURCE_DIR "/docs/images/") + picture)) << picture;
        }
    }
}
