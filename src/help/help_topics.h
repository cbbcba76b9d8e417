#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The twelve help topics: what each tells, and how its lines are broken for the form that prints it.

enum class HelpTopicName {
    trainingAnalysis,
    performanceLevels,
    savedFiles,
    mainEntryForm,
    predictedTable,
    specialInformation,
    programOverview,
    performanceTables,
    workoutPlanner,
    splitsAnalysis,
    courseProfile,
    heatAndHumidity,
};

inline constexpr int helpTopicCount = 12;

/// A topic as it is written: paragraphs parted by empty lines. One that begins with "# " is a heading, with "- " an
/// item of a list, with four blanks a table whose lines stay as they are; all others are prose, broken anywhere.
struct HelpTopic
{
    HelpTopicName name;
    std::string_view title;
    double width, height;   // of the form that prints it at its opening, in picture units
    std::string_view text;
};

/// All topics, in the order of the index.
[[nodiscard]] const std::array<HelpTopic, helpTopicCount>& helpTopics();

[[nodiscard]] const HelpTopic& helpTopic(HelpTopicName name);

struct HelpParagraph
{
    enum class Kind {
        heading,
        prose,
        item,
        table,
    };
    Kind kind;
    std::vector<std::string> lines;   // of a table; all others are one line, without the mark of their kind
};

/// The paragraphs of a topic's text.
[[nodiscard]] std::vector<HelpParagraph> paragraphsOf(std::string_view text);

/// How many characters of the tables' font stand beside each other on a form that is so many picture units wide, beside
/// its margins and a scroll bar.
[[nodiscard]] int helpColumns(double width);

/// Words as lines of at most so many characters. A number and its unit stay together, and so do the words of a caption in
/// quotes that is not longer than half a line. What is longer than a line has one of its own.
///   first  what the first line begins with; the others begin with as many blanks
[[nodiscard]] std::vector<std::string> brokenWords(const std::string& first, std::string_view words,
                                                   std::size_t columns);

/// The topic's lines, broken between words so that they fit its width. Headings are in capitals.
[[nodiscard]] std::vector<std::string> linesOf(const HelpTopic& topic);

/// "Main entry form" becomes "main-entry-form": what a link to its heading is called.
[[nodiscard]] std::string linkName(std::string_view title);

/// The guide: what the program is, a table of contents, and all topics in the order in which they are best read, with
/// pictures. In Markdown; a table is a block of code.
[[nodiscard]] std::string guideText();
