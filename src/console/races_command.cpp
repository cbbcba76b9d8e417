#include "console/races_command.h"

#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

#include <CLI/CLI.hpp>

#include "console/json_text.h"
#include "console/race_csv.h"
#include "console/runner_options.h"
#include "console/words.h"
#include "datafiles/race_list.h"
#include "forms/files.h"
#include "model/arithmetic.h"

namespace
{
    using Json = nlohmann::ordered_json;

    constexpr std::size_t longestRaceFile =
        static_cast<std::size_t>(highestRaceNumber) * static_cast<std::size_t>(raceRecordLength);

    struct ReadRaces
    {
        std::vector<RaceRecord> records;
        std::size_t leftOver = 0;   // bytes behind the last whole record
    };

    std::optional<ReadRaces> readRaces(const std::string& file, std::ostream& errors)
    {
        const std::optional<std::string> bytes = readFile(file, longestRaceFile + 1);
        if (!bytes)
        {
            errors << "The race file " << inQuotes(file) << " can't be read.\n";
            return std::nullopt;
        }
        if (bytes->size() > longestRaceFile)
        {
            errors << "The race file " << inQuotes(file) << " is longer than 32767 races.\n";
            return std::nullopt;
        }
        ReadRaces races;
        constexpr auto length = static_cast<std::size_t>(raceRecordLength);
        for (std::size_t at = 0; at + length <= bytes->size(); at += length)
            races.records.push_back(recordOfBytes(std::string_view(*bytes).substr(at, length)));
        races.leftOver = bytes->size() % length;
        if (races.leftOver > 0)
            errors << inQuotes(file) << ": warning: the last " << races.leftOver
                   << " bytes are no whole record and are left out.\n";
        return races;
    }

    /// Takes the races away that have a number which is none, and tells of each. Returns whether there was one.
    bool leaveOutDamaged(ReadRaces& races, std::ostream& errors)
    {
        std::vector<RaceRecord> good;
        int place = 0;
        for (const RaceRecord& record : races.records)
        {
            ++place;
            try
            {
                (void)rowOf(record);
                good.push_back(record);
            }
            catch (const ArithmeticFault& fault)
            {
                errors << "Race " << place << " can't be read: " << fault.what() << ".\n";
            }
        }
        const bool damaged = good.size() < races.records.size();
        races.records = std::move(good);
        return damaged;
    }

    std::string withoutBlanksBehind(std::string line)
    {
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
    }

    /// The list of the window; its column of picks is blank.
    std::string textOf(const std::vector<RaceRecord>& records)
    {
        const RaceTableRow headings{
            {{}, "#", "Hrs", "Min", "Sec", "Number", "mi", "yd", "km", "m", "mar", "hm", "Comments"}};
        std::string text = withoutBlanksBehind(raceListLine(headings, 0)) + '\n';
        for (const RaceRecord& record : records)
            text += withoutBlanksBehind(raceListLine(rowOf(record), 0)) + '\n';
        return text;
    }

    std::string jsonOf(const ReadRaces& races)
    {
        Json list = Json::array();
        for (const RaceRecord& record : races.records)
        {
            const RaceTableRow row = rowOf(record);
            // the shortest number that gives the same float again
            const auto number = [&row](std::size_t field) { return numberOf(cellText(row[field])).value_or(0); };
            list.push_back({{"number", record.number},
                            {"hours", number(2)},
                            {"minutes", number(3)},
                            {"seconds", number(4)},
                            {"distance", number(5)},
                            {"unit", unitWords(record)},
                            {"comment", commentText(record)}});
        }
        return jsonText(Json{{"races", list}, {"leftOver", races.leftOver}}) + '\n';
    }

    int list(const RacesOptions& options, std::ostream& out, std::ostream& errors)
    {
        std::optional<ReadRaces> races = readRaces(options.files[0], errors);
        if (!races)
            return exitRefused;
        const bool damaged = leaveOutDamaged(*races, errors);
        const RacesFormat format = options.format.value_or(RacesFormat::text);
        if (format == RacesFormat::json)
            out << jsonOf(*races);
        else
            out << (format == RacesFormat::csv ? csvOf(races->records) : textOf(races->records));
        return written(damaged ? exitRefused : 0, out, errors);
    }

    /// Whether a file may be written: it is not the one that is read, and there is none yet, or it may be replaced.
    bool mayWrite(const RacesOptions& options, std::ostream& errors)
    {
        std::error_code ignored;
        if (std::filesystem::equivalent(options.files[0], options.files[1], ignored))
        {
            errors << inQuotes(options.files[1]) << " is the file that is to be read.\n";
            return false;
        }
        if (options.force || !std::filesystem::exists(std::filesystem::symlink_status(options.files[1], ignored)))
            return true;
        errors << inQuotes(options.files[1]) << " is there already; --force replaces it.\n";
        return false;
    }

    int save(const RacesOptions& options, const std::string& bytes, std::ostream& errors)
    {
        const std::optional<std::string> failure = replaceFile(options.files[1], bytes);
        if (failure)
            errors << inQuotes(options.files[1]) << " could not be written: " << *failure << ".\n";
        return failure ? exitRefused : 0;
    }

    int importRaces(const RacesOptions& options, std::ostream& errors)
    {
        const std::optional<std::string> bytes = readFile(options.files[0], longestRaceCsv + 1);
        if (!bytes || bytes->size() > longestRaceCsv)
        {
            errors << inQuotes(options.files[0])
                   << (bytes ? " is larger than any list of races.\n" : " can't be read.\n");
            return exitRefused;
        }
        const RaceCsv csv = racesOfCsv(*bytes);
        for (const CsvRemark& error : csv.errors)
            errors << "line " << error.line << ": " << error.text << ".\n";
        if (csv.isCutShort)
            errors << "There are " << csv.errors.size() << " errors up to here; the lines behind have not been read.\n";
        if (!csv.errors.empty())
        {
            errors << "Nothing has been written.\n";
            return exitRefused;
        }
        for (const CsvRemark& warning : csv.warnings)
            errors << "line " << warning.line << ": warning: " << warning.text << ".\n";
        std::string file;
        for (const RaceRecord& record : csv.records)
            file += bytesOf(record);
        return save(options, file, errors);
    }

    int exportRaces(const RacesOptions& options, std::ostream& errors)
    {
        std::optional<ReadRaces> races = readRaces(options.files[0], errors);
        if (!races)
            return exitRefused;
        const bool damaged = leaveOutDamaged(*races, errors);
        if (damaged && !options.force)
        {
            errors << "Nothing has been written; --force leaves such races out.\n";
            return exitRefused;
        }
        const int status = save(options, csvOf(races->records), errors);
        return damaged || races->leftOver > 0 ? exitRefused : status;
    }

    void setFormat(RacesOptions& options, const std::string& text)
    {
        if (text != "text" && text != "csv" && text != "json")
            throw CLI::ValidationError("--format", inQuotes(text) + " is neither text nor csv nor json");
        options.format = text == "text" ? RacesFormat::text : (text == "csv" ? RacesFormat::csv : RacesFormat::json);
    }
}

int runRaces(const RacesOptions& options, std::ostream& out, std::ostream& errors)
{
    const bool moving = options.importing || options.exporting;
    if (options.importing && options.exporting)
    {
        errors << "--import and --export don't go together.\n";
        return exitWrongUsage;
    }
    if (options.files.size() != (moving ? 2U : 1U))
    {
        errors << (moving ? "--import and --export take two files: from where, and to where.\n"
                          : "races lists one file; --import and --export take two.\n");
        return exitWrongUsage;
    }
    if (moving && options.format)
    {
        errors << "--format is of the list; --import and --export write CSV and race files.\n";
        return exitWrongUsage;
    }
    if (!moving && options.force)
    {
        errors << "--force goes with --import or --export.\n";
        return exitWrongUsage;
    }
    if (!moving)
        return list(options, out, errors);
    if (!mayWrite(options, errors))
        return exitRefused;
    return options.importing ? importRaces(options, errors) : exportRaces(options, errors);
}

void addRaces(CLI::App& app, int& status)
{
    const auto options = std::make_shared<RacesOptions>();
    CLI::App* command = app.add_subcommand("races", "List a race file (.vtc), or move races from and to CSV");
    command->add_option("FILE", options->files, "The race file; with --import or --export from where and to where")
        ->required()
        ->expected(1, 2);
    command->add_flag("--import", options->importing, "Write a race file of the races of a CSV file");
    command->add_flag("--export", options->exporting, "Write a CSV file of the races of a race file");
    command->add_flag(
        "--force", options->force,
        "Replace the file that is to be written, if it is there, and export a damaged file without the races that "
        "can't be read");
    command
        ->add_option_function<std::string>(
            "--format", [options](const std::string& text) { setFormat(*options, text); },
            "text (the default), csv or json, of the list")
        ->type_name("FORMAT");
    command->footer("Examples: vantelos-console races ann.vtc --format json\n"
                    "          vantelos-console races --export ann.vtc ann.csv");
    command->callback([options, &status] { status = runRaces(*options, std::cout, std::cerr); });
}
