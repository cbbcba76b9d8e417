#include "help/help_topics.h"

#include <algorithm>
#include <cctype>

#include "help/topic_texts.h"

namespace
{
    using Kind = HelpParagraph::Kind;

    constexpr double unitsPerColumn = 120;   // 8 pixels, as wide as a character of the tables' font
    constexpr double unitsBeside = 780;      // margins, frame and scroll bar

    constexpr std::string_view itemMark = "- ";
    constexpr std::string_view headingMark = "# ";
    constexpr std::string_view tableMark = "    ";

    /// The lines of a text, without line ends.
    std::vector<std::string_view> splitLines(std::string_view text)
    {
        std::vector<std::string_view> lines;
        while (!text.empty())
        {
            const std::size_t end = std::min(text.find('\n'), text.size());
            lines.push_back(text.substr(0, end));
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        return lines;
    }

    HelpParagraph begun(std::string_view line)
    {
        if (line.starts_with(headingMark))
            return {Kind::heading, {std::string(line.substr(headingMark.size()))}};
        if (line.starts_with(itemMark))
            return {Kind::item, {std::string(line.substr(itemMark.size()))}};
        if (line.starts_with(tableMark))
            return {Kind::table, {std::string(line.substr(tableMark.size()))}};
        return {Kind::prose, {std::string(line)}};
    }

    void goOn(HelpParagraph& paragraph, std::string_view line)
    {
        if (paragraph.kind == Kind::table)
            paragraph.lines.emplace_back(line.substr(tableMark.size()));
        else
            paragraph.lines.back() += ' ' + std::string(line.substr(line.find_first_not_of(' ')));
    }

    constexpr std::array<std::string_view, 21> unitNames{
        "m",     "km",   "km/h", "m/s", "miles",  "mph",       "minutes", "seconds", "percent", "%",  "beats",
        "watts", "kcal", "kg",   "lb",  "pounds", "ml/kg/min", "F",       "C",       "a",       "per"};

    bool isDigit(char letter)
    {
        return letter >= '0' && letter <= '9';
    }

    std::string_view withoutPunctuation(std::string_view word)
    {
        word.remove_prefix(std::min(word.find_first_not_of("(\"-"), word.size()));
        return word.substr(0, word.find_last_not_of(".,;:?!)\"") + 1);
    }

    /// Whether a line must not end between two words: a number and its unit.
    bool isNumberWithUnit(std::string_view word, std::string_view next)
    {
        const std::string_view number = withoutPunctuation(word);
        return !number.empty() && isDigit(number.front()) && isDigit(word.back()) &&
               std::find(unitNames.begin(), unitNames.end(), withoutPunctuation(next)) != unitNames.end();
    }

    /// How many characters of the text belong to the quote that its first word begins; 0 where it begins none.
    std::size_t quoteLength(std::string_view text)
    {
        const std::size_t open = text.find('"');
        if (open > text.find(' '))
            return 0;
        const std::size_t close = text.find('"', open + 1);
        return close == std::string_view::npos ? 0 : std::min(text.find(' ', close), text.size());
    }

    /// How many characters of the text a line takes or leaves as a whole.
    std::size_t unbrokenLength(std::string_view text, std::size_t columns)
    {
        if (const std::size_t quote = quoteLength(text); quote > 0 && quote <= columns / 2)
            return quote;
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::string_view rest = text.substr(std::min(end + 1, text.size()));
        const std::string_view next = rest.substr(0, rest.find(' '));
        return !next.empty() && isNumberWithUnit(text.substr(0, end), next) ? end + 1 + next.size() : end;
    }

    std::string inCapitals(std::string words)
    {
        std::transform(words.begin(), words.end(), words.begin(),
                       [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
        return words;
    }

    void addParagraph(std::vector<std::string>& lines, const HelpParagraph& paragraph, std::size_t columns)
    {
        if (paragraph.kind == Kind::table)
            for (const std::string& line : paragraph.lines)
                lines.push_back("   " + line);
        else if (paragraph.kind == Kind::heading)
            lines.push_back(" " + inCapitals(paragraph.lines.front()));
        else
            for (const std::string& line :
                 brokenWords(paragraph.kind == Kind::item ? " - " : " ", paragraph.lines.front(), columns))
                lines.push_back(line);
    }
}

const std::array<HelpTopic, helpTopicCount>& helpTopics()
{
    using enum HelpTopicName;
    static const std::array<HelpTopic, helpTopicCount> topics{{
        {trainingAnalysis, "Training analysis", 9300, 8750, trainingAnalysisText()},
        {performanceLevels, "Performance levels", 9350, 7780, performanceLevelsText()},
        {savedFiles, "Saved files", 8600, 6600, savedFilesText()},
        {mainEntryForm, "Main entry form", 9750, 8050, mainEntryFormText()},
        {predictedTable, "Predicted table", 8400, 4400, predictedTableText()},
        {specialInformation, "Special information", 9380, 6640, specialInformationText()},
        {programOverview, "Program overview", 9640, 8200, programOverviewText()},
        {performanceTables, "Performance tables", 8680, 6500, performanceTablesText()},
        {workoutPlanner, "Workout planner", 9300, 10700, workoutPlannerText()},
        {splitsAnalysis, "Splits analysis", 9870, 9000, splitsAnalysisText()},
        {courseProfile, "Course profile", 9300, 7780, courseProfileText()},
        {heatAndHumidity, "Heat and humidity", 9300, 8220, heatAndHumidityText()},
    }};
    return topics;
}

const HelpTopic& helpTopic(HelpTopicName name)
{
    return helpTopics().at(static_cast<std::size_t>(name));
}

std::vector<HelpParagraph> paragraphsOf(std::string_view text)
{
    std::vector<HelpParagraph> paragraphs;
    bool open = false;
    for (const std::string_view line : splitLines(text))
    {
        if (line.empty())
            open = false;
        else if (open && !line.starts_with(itemMark))
            goOn(paragraphs.back(), line);
        else
        {
            paragraphs.push_back(begun(line));
            open = true;
        }
    }
    return paragraphs;
}

int helpColumns(double width)
{
    return static_cast<int>((width - unitsBeside) / unitsPerColumn);
}

std::vector<std::string> brokenWords(const std::string& first, std::string_view words, std::size_t columns)
{
    std::vector<std::string> lines;
    std::string line = first;
    bool empty = true;   // of words
    while (!words.empty())
    {
        const std::size_t end = unbrokenLength(words, columns);
        if (!empty && line.size() + 1 + end > columns)
        {
            lines.push_back(line);
            line.assign(first.size(), ' ');
            empty = true;
        }
        line += (empty ? "" : " ") + std::string(words.substr(0, end));
        empty = false;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    lines.push_back(line);
    return lines;
}

std::vector<std::string> linesOf(const HelpTopic& topic)
{
    const auto columns = static_cast<std::size_t>(helpColumns(topic.width));
    std::vector<std::string> lines;
    Kind before = Kind::item;
    for (const HelpParagraph& paragraph : paragraphsOf(topic.text))
    {
        const bool insideList = paragraph.kind == Kind::item && before == Kind::item;
        if (!lines.empty() && !insideList && before != Kind::heading)
            lines.emplace_back();
        addParagraph(lines, paragraph, columns);
        before = paragraph.kind;
    }
    return lines;
}

std::string linkName(std::string_view title)
{
    std::string name(title);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return letter == ' ' ? '-' : static_cast<char>(std::tolower(letter)); });
    return name;
}
