#include <array>
#include <cstddef>

#include "help/help_topics.h"

namespace
{
    using Kind = HelpParagraph::Kind;

    constexpr std::size_t guideColumns = 118;   // of the guide's lines

    struct Chapter
    {
        HelpTopicName topic;
        std::string_view picture;   // in docs/images; none where empty
        std::string_view shows;
    };

    /// In the order in which they are best read: the program, its entries and its table first.
    constexpr std::array<Chapter, helpTopicCount> chapters{{
        {HelpTopicName::programOverview, "main-window-light",
         "The main window with three races and the predicted table"},
        {HelpTopicName::mainEntryForm, "", ""},
        {HelpTopicName::predictedTable, "pace-graph", "The runner's pace against distance"},
        {HelpTopicName::performanceLevels, "", ""},
        {HelpTopicName::trainingAnalysis, "training-analysis", "The training analysis with its heart rate graph"},
        {HelpTopicName::workoutPlanner, "workout-planner", "Five times 800 m in the workout planner"},
        {HelpTopicName::splitsAnalysis, "splits-analysis", "Uneven splits in the grid"},
        {HelpTopicName::specialInformation, "special-information", "Hills, wind and uneven pacing"},
        {HelpTopicName::courseProfile, "course-profile", "A hilly course with its splits"},
        {HelpTopicName::heatAndHumidity, "heat-and-humidity", "What a warm day does to a runner's times"},
        {HelpTopicName::performanceTables, "performance-by-age", "Times over 5 km by age"},
        {HelpTopicName::savedFiles, "", ""},
    }};

    constexpr std::string_view beginning =
        "# Guide to Vantelos\n"
        "\n"
        "This is the help of the program as a text to read at leisure. In the program each chapter stands behind the\n"
        "Help button of the window that it tells about, behind F1, and in the index (\"Help\" in the menu \"Help\").\n"
        "\n"
        "Unless an example says otherwise its runner is the same throughout: a man of 40 who runs 30 miles (48 km) a\n"
        "week, weighs 160 lb (72.6 kg), is 70 in tall, has run 10 km in 40:00, and has a maximum heart rate of 185\n"
        "and a resting heart rate of 50; \"Use all data\", comparison level 100. Enter him yourself, and you can\n"
        "follow every number. The pictures show the runner of the starter settings.\n"
        "\n"
        "![The index of the help](images/help-index.png)\n";

    std::string contents()
    {
        std::string list;
        for (const Chapter& chapter : chapters)
        {
            const std::string title(helpTopic(chapter.topic).title);
            list += "- [" + title + "](#" + linkName(title) + ")\n";
        }
        return list + "\nFormulas and constants are in [model.md](model.md), the command line is in "
                      "[console.md](console.md), the\nfile formats are in [files.md](files.md).\n";
    }

    std::string broken(const std::string& first, std::string_view words)
    {
        std::string text;
        for (const std::string& line : brokenWords(first, words, guideColumns))
            text += line + '\n';
        return text;
    }

    std::string markdownOf(const HelpParagraph& paragraph)
    {
        switch (paragraph.kind)
        {
        case Kind::heading: return "### " + paragraph.lines.front() + '\n';
        case Kind::item: return broken("- ", paragraph.lines.front());
        case Kind::prose: return broken("", paragraph.lines.front());
        case Kind::table: break;
        }
        std::string block = "```\n";
        for (const std::string& line : paragraph.lines)
            block += line + '\n';
        return block + "```\n";
    }

    std::string textOf(const Chapter& chapter)
    {
        const HelpTopic& topic = helpTopic(chapter.topic);
        std::string text = "\n## " + std::string(topic.title) + '\n';
        Kind before = Kind::heading;
        for (const HelpParagraph& paragraph : paragraphsOf(topic.text))
        {
            const bool insideList = paragraph.kind == Kind::item && before == Kind::item;
            text += (insideList ? "" : "\n") + markdownOf(paragraph);
            before = paragraph.kind;
        }
        if (!chapter.picture.empty())
            text += "\n![" + std::string(chapter.shows) + "](images/" + std::string(chapter.picture) + ".png)\n";
        return text;
    }
}

std::string guideText()
{
    std::string guide = std::string(beginning) + '\n' + contents();
    for (const Chapter& chapter : chapters)
        guide += textOf(chapter);
    return guide;
}
