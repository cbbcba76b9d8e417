#include "console/course_command.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>

#include <CLI/CLI.hpp>

#include "console/json_text.h"
#include "console/prediction_text.h"
#include "console/runner_prediction.h"
#include "console/time_limit.h"
#include "console/words.h"
#include "course/course_file.h"
#include "course/course_profile.h"
#include "course/course_solver.h"
#include "course/course_splits.h"
#include "course/recorded_course.h"
#include "course/track_points_form.h"
#include "forms/files.h"
#include "forms/track_file.h"
#include "model/text.h"
#include "model/units.h"
#include "program/program.h"

namespace
{
    using Json = nlohmann::ordered_json;

    /// A course file that has been read, of either kind.
    struct ReadCourse
    {
        CourseEntries entries;
        std::optional<CourseFile> file;
        std::optional<RecordedCourse> recording;
    };

    bool isXml(const std::string& bytes)
    {
        if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
            return true;   // wide characters: no course file has them
        const std::size_t mark = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
        const std::size_t first = bytes.find_first_not_of(" \t\r\n", mark);
        return first != std::string::npos && bytes[first] == '<';
    }

    std::optional<ReadCourse> readRecording(const std::string& bytes, double smoothing, Messages& said)
    {
        const std::optional<Track> track = readTrack(bytes, said);
        if (!track)
            return std::nullopt;
        ReadCourse course;
        course.recording = courseOfRecording(recordedPoints(*track), smoothing, said);
        if (!course.recording)
            return std::nullopt;
        course.entries = entriesOf(*course.recording, {});
        return course;
    }

    std::optional<ReadCourse> readCourse(const CourseOptions& options, Messages& said)
    {
        const std::optional<std::string> bytes = readFile(options.file, longestTrackFile + 1);
        if (!bytes)
        {
            said.push_back({"The course " + inQuotes(options.file) + " can't be read."});
            return std::nullopt;
        }
        if (isXml(*bytes))
            return readRecording(*bytes, options.smoothing, said);
        ReadCourse course;
        course.file = readCourseFile(*bytes, said);
        if (!course.file)
            return std::nullopt;
        course.entries = entriesOf(*course.file, {});
        return course;
    }

    /// Takes the course as the form does after a retrieve or an import. Returns whether its distance is within bounds.
    bool takeCourse(ModelState& state, const ReadCourse& read, Messages& said)
    {
        (void)readCourseDistance(state, read.entries, said);
        (void)readCourseElevations(state, read.entries, said);
        state.course.origElev = read.entries.origElev;
        if (read.file)
            takePoints(*read.file, state.course);
        else
            takePoints(*read.recording, state.course);
        return state.course.distanceValid == 1;
    }

    /// What comes of a course.
    struct CourseRun
    {
        ModelState state;
        std::vector<CourseSplit> splits;
        std::string fault;
    };

    /// Returns whether the course is one.
    bool solve(CourseRun& run, const ReadCourse& read, const CourseOptions& options, Messages& said)
    {
        const TimeLimit limit(options.limitSeconds);
        run.state.goOn = [limit] { return !limit.reached(); };
        run.state.course.scur = options.smooth ? 1 : 0;
        try
        {
            if (!takeCourse(run.state, read, said))
                return false;
            solveAndSplit(run.state, {});
            run.state.activity = "listing the splits";
            run.splits = courseSplits(run.state.course, options.miles ? metresPerMile : metresPerKilometre);
        }
        catch (const ArithmeticFault& fault)
        {
            run.fault = faultText(fault, run.state.activity);
        }
        run.state.goOn = {};
        return true;
    }

    std::string padded(std::string text, std::size_t width)
    {
        text.resize(std::max(text.size(), width), ' ');
        return text;
    }

    /// A time as wide as the tables have it.
    std::string column(double seconds)
    {
        return formatTime(seconds);
    }

    std::string textOf(const CourseRun& run, const CourseOptions& options)
    {
        const Course& course = run.state.course;
        constexpr std::size_t width = 24;
        std::string text = padded("Horizontal, m", width) + formatNumber(course.courseDist, 9, 1) + '\n' +
                           padded("Along slope, m", width) + formatNumber(course.slopeDist, 9, 1) + '\n' +
                           padded("Rise, m", width) + formatNumber(course.totalRise, 9, 0) + '\n' +
                           padded("Drop, m", width) + formatNumber(course.totalDrop, 9, 0) + '\n' +
                           padded("Flat equivalent", width) + column(course.flatTime) + '\n' +
                           padded("Even effort", width) + column(course.evenTime) + '\n' + padded("Strategic", width) +
                           column(course.timeAt.back()) + "\n\n" + (options.miles ? "    Mile" : "      km") +
                           "       Time      Split     Per mile    Per km   Elev, m  Grade, %\n";
        for (const CourseSplit& split : run.splits)
        {
            const bool whole = split.number == roundHalfEven(split.number);
            text += formatNumber(split.number, 8, whole ? 0 : 2) + "  " + column(split.time) + " " +
                    column(split.split) + "  " + column(split.perMile) + column(split.perKilometer) +
                    formatNumber(split.elevation, 10, 0) + formatNumber(100 * split.grade, 10, 1) + '\n';
        }
        return text;
    }

    std::string csvOf(const CourseRun& run, const CourseOptions& options)
    {
        std::string text = std::string(options.miles ? "mile" : "km") +
                           ",meters,elevation,grade,seconds,time,splitSeconds,split,perMile,perKm\n";
        for (const CourseSplit& split : run.splits)
            text += exactText(split.number) + ',' + exactText(split.place) + ',' + exactText(split.elevation) + ',' +
                    exactText(split.grade) + ',' + exactText(split.time) + ',' + timeCell(split.time) + ',' +
                    exactText(split.split) + ',' + timeCell(split.split) + ',' + timeCell(split.perMile) + ',' +
                    timeCell(split.perKilometer) + '\n';
        return text;
    }

    Json recordingJson(const RecordedCourse& recording)
    {
        return {{"points", recording.recorded},
                {"rise", recording.recordedRise},
                {"smoothedRise", recording.rise},
                {"smoothedDrop", recording.drop},
                {"largestError", recording.largestError}};
    }

    Json courseJson(const Course& course)
    {
        const auto count = static_cast<std::size_t>(course.pointCount);
        Json points = Json::array();
        for (std::size_t i = 0; i < count; ++i)
            points.push_back({course.pointX[i], course.pointY[i]});
        return {{"courseDist", course.courseDist},
                {"origElev", course.origElev},
                {"smooth", course.scur == 1},
                {"points", points}};
    }

    Json resultsJson(const Course& course)
    {
        return {{"slopeDist", course.slopeDist},
                {"totalRise", course.totalRise},
                {"totalDrop", course.totalDrop},
                {"flatTime", course.flatTime},
                {"evenTime", course.evenTime},
                {"strategicTime", course.timeAt.back()},
                {"courseLevelSpeed", course.courseLevelSpeed},
                {"evenFlatSpeed", course.evenFlatSpeed}};
    }

    Json splitsJson(const std::vector<CourseSplit>& splits)
    {
        Json list = Json::array();
        for (const CourseSplit& split : splits)
            list.push_back({{"number", split.number},
                            {"meters", split.place},
                            {"elevation", split.elevation},
                            {"grade", split.grade},
                            {"time", split.time},
                            {"split", split.split},
                            {"perMile", split.perMile},
                            {"perKm", split.perKilometer}});
        return list;
    }

    /// What is told of a course that is not worked out.
    Json jsonWithoutResults(const Messages& messages, const std::string& fault, const CourseOptions& options)
    {
        return {{"course", nullptr},
                {"recording", nullptr},
                {"messages", messagesJson(messages)},
                {"fault", fault.empty() ? Json(nullptr) : Json(fault)},
                {"results", nullptr},
                {"splitUnit", options.miles ? "mi" : "km"},
                {"splits", Json::array()}};
    }

    Json jsonOf(const CourseRun& run, const ReadCourse& read, const Messages& messages, const CourseOptions& options)
    {
        Json json = jsonWithoutResults(messages, run.fault, options);
        json["course"] = courseJson(run.state.course);
        if (read.recording)
            json["recording"] = recordingJson(*read.recording);
        if (run.fault.empty())
            json["results"] = resultsJson(run.state.course);
        json["splits"] = splitsJson(run.splits);
        return json;
    }

    void setFormat(CourseOptions& options, const std::string& text)
    {
        if (text != "text" && text != "csv" && text != "json")
            throw CLI::ValidationError("--format", inQuotes(text) + " is neither text nor csv nor json");
        options.format = text == "text" ? CourseFormat::text : (text == "csv" ? CourseFormat::csv : CourseFormat::json);
    }

    void setSplits(CourseOptions& options, const std::string& text)
    {
        if (text != "km" && text != "mi")
            throw CLI::ValidationError("--splits", inQuotes(text) + " is neither km nor mi");
        options.miles = text == "mi";
    }

    void setSmoothing(CourseOptions& options, const std::string& text)
    {
        const auto metres = numberOf(text);
        if (!metres || !(*metres >= 0 && *metres <= longestSmoothing))
            throw CLI::ValidationError("--smoothing", inQuotes(text) + " is not a number from 0 to 5000");
        options.smoothing = *metres;
    }

    void tell(const Messages& messages, const std::string& fault, std::ostream& errors)
    {
        for (const Message& message : messages)
            errors << messageLine(message) << '\n';
        if (!fault.empty())
            errors << fault << '\n';
    }

    int refuse(const CourseOptions& options, const Messages& messages, const std::string& fault, std::ostream& out,
               std::ostream& errors)
    {
        if (options.format == CourseFormat::json)
            out << jsonText(jsonWithoutResults(messages, fault, options)) << '\n';
        tell(messages, fault, errors);
        return exitRefused;
    }

    /// Reads the course for a runner who has a curve, solves it and prints it.
    int solveAndPrint(const CourseOptions& options, CourseRun& run, Messages& messages, std::ostream& out,
                      std::ostream& errors)
    {
        const std::optional<ReadCourse> read = readCourse(options, messages);
        if (!read || !solve(run, *read, options, messages))
            return refuse(options, messages, {}, out, errors);
        if (options.format == CourseFormat::json)
            out << jsonText(jsonOf(run, *read, messages, options)) << '\n';
        else if (run.fault.empty())
            out << (options.format == CourseFormat::csv ? csvOf(run, options) : textOf(run, options));
        tell(messages, run.fault, errors);
        if (read->recording && options.format != CourseFormat::json)
            errors << noteOf(*read->recording) << '\n';
        return run.fault.empty() ? 0 : exitRefused;
    }
}

int runCourse(const CourseOptions& options, std::ostream& out, std::ostream& errors)
{
    std::string wrong;
    auto entries = entriesOf(options, wrong);
    if (!entries)
    {
        errors << wrong << '\n';
        return exitWrongUsage;
    }
    entries->allDistances.reset();   // the curve is wanted, not a table
    entries->distances.clear();
    Prediction prediction = predictRunner(*entries, options.limitSeconds);
    if (isRefused(prediction) || !prediction.fault.empty())
        return written(refuse(options, prediction.messages, prediction.fault, out, errors), out, errors);
    CourseRun run;
    run.state = prediction.runs.front().state;
    return written(solveAndPrint(options, run, prediction.messages, out, errors), out, errors);
}

void addCourse(CLI::App& app, int& status)
{
    const auto options = std::make_shared<CourseOptions>();
    CLI::App* command = app.add_subcommand("course", "Work out a runner's times and splits over a course with hills");
    command
        ->add_option("FILE", options->file, "The course: a saved profile (.cpf), or a GPX or TCX file with elevations")
        ->required();
    addRunnerOptions(*command, *options);
    command->add_flag("--smooth", options->smooth, "Run a smooth curve through the points, not straight lines");
    command
        ->add_option_function<std::string>(
            "--splits", [options](const std::string& text) { setSplits(*options, text); }, "km (the default) or mi")
        ->type_name("UNIT");
    command
        ->add_option_function<std::string>(
            "--smoothing", [options](const std::string& text) { setSmoothing(*options, text); },
            "Meters on either side over which a recording's elevations are smoothed, 0 to 5000; 100 unless given")
        ->type_name("METERS");
    command
        ->add_option_function<std::string>(
            "--format", [options](const std::string& text) { setFormat(*options, text); },
            "text (the default), csv or json")
        ->type_name("FORMAT");
    command->footer("Example: vantelos-console course hills.gpx --race \"10 km 40:00\" --age 40 --splits mi");
    command->callback([options, &status] { status = runCourse(*options, std::cout, std::cerr); });
}
