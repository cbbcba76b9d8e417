#include "program/analysis_forms.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "open_analysis.h"
#include "support/file_size_limit.h"

namespace
{
    namespace fs = std::filesystem;

    struct OpenReport : OpenAnalysis
    {
        fs::path file = folder.path / "fulltext.txt";
    };

    TEST(Report, GoesToThePrinter)
    {
        OpenReport program;
        program.person.click("pfull");
        EXPECT_EQ(program.outside.events, std::vector<std::string>{"print: 60 lines"});
        const std::vector<std::string>& lines = program.outside.printedTexts.at(0);
        EXPECT_EQ(lines[0], "VANTELOS full report on Joe Runner (40 year old male):");
        EXPECT_EQ(lines[1], "");
        EXPECT_EQ(lines.back(), "");
        EXPECT_FALSE(fs::exists(program.file));
    }

    TEST(Report, GoesToTheFileWithABlankOnItsBlankLines)
    {
        OpenReport program;
        program.person.click("pfull");
        const std::vector<std::string> lines = program.outside.printedTexts.at(0);
        program.person.click("Command1");
        program.outside.forget();
        program.person.click("tfile");
        std::string expected;
        for (const std::string& line : lines)
            expected += (line.empty() ? " " : line) + "\r\n";
        EXPECT_EQ(readBytes(program.file), expected);
        EXPECT_EQ(program.outside.messages,
                  (Messages{{"Analysis saved in " + program.folder.path.string() + "\\fulltext.txt", "Vantelos"}}));
        EXPECT_TRUE(program.outside.printedTexts.empty());
    }

    TEST(Report, PrintsTheAgeOnceAfterACalculation)
    {
        OpenReport program;
        program.person.click("pfull");
        program.person.click("pfull");
        EXPECT_EQ(program.outside.printedTexts.at(0)[8], "Comparing to performance level 100    Age =  40");
        EXPECT_EQ(program.outside.printedTexts.at(1)[8], "Comparing to performance level 100    Age = open class");
        program.person.click("Command1");
        program.person.click("pfull");
        EXPECT_EQ(program.outside.printedTexts.at(2)[8], "Comparing to performance level 100    Age =  40");
    }

    TEST(Report, ShowsTheEntriesAsTheyStand)
    {
        OpenReport program;
        program.person.type("txtname", "Jo \"J\" Doe");
        program.person.type("txtage", "41 or so");
        program.person.click("optfemale");
        program.person.type("txtmi", "many");
        program.person.type("Text5", "all");
        program.person.click("pfull");
        const std::vector<std::string>& lines = program.outside.printedTexts.at(0);
        EXPECT_EQ(lines[0], "VANTELOS full report on Jo \"J\" Doe (41 or so year old female):");
        EXPECT_EQ(lines[2], "Weekly training distance = many miles = 48 km.");
        EXPECT_EQ(lines[8], "Comparing to performance level all    Age =  40");
    }

    TEST(Report, DrawsTheGraphAlsoWhereItIsNotSeen)
    {
        OpenReport program;
        EXPECT_TRUE(program.program.state.heartRateSamples.curveX.empty());
        program.person.click("pfull");
        EXPECT_EQ(program.program.state.heartRateSamples.curveX.size(), 2251U);
        EXPECT_EQ(findForm(program.program, "anaform"), nullptr);
        program.person.click("Command3");
        program.run({"", "30", "", "10", 3});
        const std::size_t before = program.pic().primitives.size();
        const std::vector<std::string> text = program.lines();
        program.person.click("pfull");
        EXPECT_NE(program.pic().primitives.size(), before);
        EXPECT_EQ(program.lines(), text);
    }

    TEST(Report, GoesToTheFolderThatWasChosenButNamesTheFirst)
    {
        OpenReport program;
        program.program.currentFolder = program.folder.path / "other";
        fs::create_directory(program.program.currentFolder);
        program.person.click("tfile");
        EXPECT_TRUE(fs::exists(program.folder.path / "other" / "fulltext.txt"));
        EXPECT_FALSE(fs::exists(program.file));
        EXPECT_EQ(program.outside.messages.at(0).text,
                  "Analysis saved in " + program.folder.path.string() + "\\fulltext.txt");
    }

    TEST(Report, ThatFaultsLeavesTheOldFile)
    {
        OpenReport program;
        writeBytes(program.file, "old");
        for (const char* maximum : {"18", "59"})   // no end of a zone; for 59 with a resting rate of 10, no scale
        {
            program.person.type("actmhrtx", maximum);
            program.person.type("resthrtx", "10");
            program.person.click("tfile");
            ASSERT_EQ(program.outside.faults.size(), 1U) << maximum;
            EXPECT_TRUE(program.outside.messages.empty());
            EXPECT_EQ(readBytes(program.file), "old");
            EXPECT_EQ(program.folder.entryCount(), 1U);
            program.outside.forget();
        }
        program.person.type("actmhrtx", "185");
        program.person.type("resthrtx", "50");
        program.person.click("tfile");
        EXPECT_EQ(program.outside.messages.size(), 1U);
        EXPECT_TRUE(readBytes(program.file).starts_with("VANTELOS full report"));
    }

    TEST(Report, ThatCannotBeWrittenSaysSo)
    {
        OpenReport program;
        writeBytes(program.file, "old");
        {
            const FileSizeLimit full(100);
            program.person.click("tfile");
        }
        ASSERT_EQ(program.outside.messages.size(), 1U);
        EXPECT_EQ(program.outside.messages[0].title, "Report not saved");
        EXPECT_TRUE(program.outside.messages[0].text.starts_with("The report could not be saved to " +
                                                                 program.file.string() + ": "));
        EXPECT_EQ(readBytes(program.file), "old");
        program.program.currentFolder = program.folder.path / "nowhere";
        program.person.click("tfile");
        EXPECT_EQ(program.outside.messages.back().title, "Report not saved");
    }

    TEST(Report, OnASlowRunnerIsPrintedBeforeTheGraphFaults)
    {
        OpenReport program;
        program.run({"", "78", "", "5", 3});
        program.person.click("pfull");
        EXPECT_EQ(program.outside.printedTexts.size(), 1U);
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.outside.faults[0].where, "vantstart.pfull");
    }
}
