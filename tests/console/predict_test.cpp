// The command `predict` for one runner: what it prints, what it says and how it ends.

#include "console/predict_command.h"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "console/runner_prediction.h"
#include "model/text.h"
#include "prediction/calculate.h"
#include "prediction/predicted_table.h"
#include "support/case_name.h"
#include "support/console_program.h"
#include "support/scratch_folder.h"

namespace
{
    using Entries = std::vector<std::pair<std::string, std::string>>;
    using nlohmann::json;

    struct Outcome
    {
        int status = -1;
        std::string out, errors;
    };

    Outcome run(const PredictOptions& options)
    {
        std::ostringstream out, errors;
        const int status = predict(options, out, errors);
        return {status, out.str(), errors.str()};
    }

    Outcome run(Entries entries, PredictFormat format = PredictFormat::text)
    {
        PredictOptions options;
        options.entries = std::move(entries);
        options.format = format;
        return run(options);
    }

    std::vector<std::string> linesIn(const std::string& text)
    {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
        return lines;
    }

    std::string linesFor(const TextPage& picture)
    {
        std::string text;
        for (const std::string& line : picture.lines)
            text += line + "\n";
        return text;
    }

    /// The line of a table whose label, blanks apart, is `label`.
    std::string lineOf(const std::string& table, const std::string& label)
    {
        for (const std::string& line : linesIn(table))
            if (const auto begin = line.find_first_not_of(' ');
                begin != std::string::npos && line.substr(begin, label.size() + 1) == label + " ")
                return line;
        return "no line " + label;
    }

    std::vector<std::string> wordsIn(const std::string& line)
    {
        std::istringstream stream(line);
        std::vector<std::string> words;
        for (std::string word; stream >> word;)
            words.push_back(word);
        return words;
    }

    RaceRow metres(const char* number, const char* minutes, const char* seconds)
    {
        RaceRow row;
        row.use = true;
        row.number = number;
        row.minutes = minutes;
        row.seconds = seconds;
        row.unit = RaceUnit::meters;
        return row;
    }

    /// A Re-Calculate of its own, past the command.
    CalculationResults recalculated(CalculationInput input, int agecomp = 0)
    {
        ModelState state;
        state.flags.agecomp = agecomp;
        CalculationResults results;
        Messages messages;
        recalculate(state, input, results, messages);
        return results;
    }

    CalculationInput workedExample()
    {
        CalculationInput input;
        input.rows[0] = metres("5000", "20", "00");
        input.age = "40";
        input.weeklyMiles = 30;
        input.fit = FitMode::allData;
        input.output = OutputMode::metric;
        return input;
    }

    const Entries workedEntries{{"race", "5000 m 20:00"}, {"age", "40"}, {"miles", "30"}};

    Entries with(Entries entries, const Entries& more)
    {
        entries.insert(entries.end(), more.begin(), more.end());
        return entries;
    }

    TEST(PredictText, IsThePictureLineByLine)
    {
        const Outcome outcome = run(workedEntries);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(outcome.out, linesFor(recalculated(workedExample()).picture));
        EXPECT_EQ(linesIn(outcome.out).size(), 11U);
    }

    TEST(PredictText, IsTheEnglishPicture)
    {
        CalculationInput input = workedExample();
        input.output = OutputMode::english;
        EXPECT_EQ(run(with(workedEntries, {{"english", "yes"}})).out, linesFor(recalculated(input).picture));
    }

    TEST(PredictText, HoldsTheWorkedTimes)
    {
        const Outcome outcome = run(with(workedEntries, {{"all-distances", "yes"}}));
        EXPECT_EQ(wordsIn(lineOf(outcome.out, "5000 m"))[2], "20:00");
        EXPECT_EQ(wordsIn(lineOf(outcome.out, "10000 m"))[2], "42:20");
        EXPECT_EQ(wordsIn(lineOf(outcome.out, "half mara."))[2], "1:38:11");
        EXPECT_EQ(wordsIn(lineOf(outcome.out, "marathon"))[1], "3:48:37");
    }

    TEST(PredictText, TakesEveryEntryToTheSystem)
    {
        CalculationInput input = workedExample();
        input.rows[1] = metres("1500", "5", "10");
        input.rows[2] = metres("10000", "43", "30.5");
        input.age = "52.5";
        input.sex = SexChoice::female;
        input.weeklyMiles = 44;
        input.fit = FitMode::bestTwo;
        input.comparisonLevel = 875;
        const Outcome outcome = run({{"race", "5000 m 20:00"},
                                     {"race", "1500 m 5:10"},
                                     {"race", "10 km 43:30.5"},
                                     {"age", "52.5"},
                                     {"sex", "f"},
                                     {"miles", "44"},
                                     {"best-two", "yes"},
                                     {"level", "87.5"},
                                     {"age-compare", "yes"}});
        EXPECT_EQ(outcome.out, linesFor(recalculated(input, 1).picture));
        EXPECT_NE(outcome.out, linesFor(recalculated(input, 0).picture)) << "age comparison makes no difference here";
    }

    TEST(PredictText, MergesBothTablesByDistance)
    {
        CalculationInput english = workedExample();
        english.output = OutputMode::english;
        const CalculationResults metricTable = recalculated(workedExample());
        const CalculationResults englishTable = recalculated(english);
        const std::vector<std::string> lines = linesIn(run(with(workedEntries, {{"all-distances", "yes"}})).out);
        ASSERT_EQ(lines.size(), 20U);
        EXPECT_EQ(lines[0], predictedHeading);
        EXPECT_EQ(lines[1], "");
        // 400 m, 440 yd, 800 m, 880 yd, 1500 m, 1600 m, 1 mi, 3000 m, 3200 m, 2 mi, 3 mi, 5000 m, 8000 m, 5 mi,
        // 10000 m, 10 mi, half, marathon: m for a metric line, e for an English one.
        const std::string order = "mememmemmeemmemeee";
        std::size_t m = 2, e = 2;
        for (std::size_t i = 0; i < order.size(); ++i)
            EXPECT_EQ(lines[i + 2], order[i] == 'm' ? metricTable.picture.lines[m++] : englishTable.picture.lines[e++]);
    }

    TEST(PredictText, PutsAddedDistancesInTheirPlace)
    {
        const Outcome outcome =
            run(with(workedEntries, {{"distance", "half"}, {"distance", "600 m"}, {"distance", "4 km"}}));
        const std::vector<std::string> lines = linesIn(outcome.out);
        ASSERT_EQ(lines.size(), 14U);
        EXPECT_EQ(lines[3].substr(0, 12), "     600 m  ");
        EXPECT_EQ(lines[9].substr(0, 12), "       4 km ");
        EXPECT_EQ(lines[13].substr(0, 12), " half mara. ");
        EXPECT_EQ(wordsIn(lines[13])[2], "1:38:11");
        EXPECT_EQ(lines[4], recalculated(workedExample()).picture.lines[3]);
    }

    TEST(PredictText, RatesAnAddedDistanceAsTheTableDoes)
    {
        const Outcome outcome =
            run(with(workedEntries, {{"distance", "8 km"}, {"age-compare", "yes"}}), PredictFormat::json);
        json rows = json::parse(outcome.out)["rows"];
        ASSERT_EQ(rows.size(), 10U);
        EXPECT_EQ(rows[8]["label"], "8 km");
        rows[8]["label"] = "8000 m";
        EXPECT_EQ(rows[8], rows[7]) << "equal to the last bit, though the calculation's end moves the index";
    }

    TEST(Predict, StopsSearchesAtItsTimeLimit)
    {
        RunnerEntries entries;
        ASSERT_FALSE(setEntry(entries, "race", "10 km 40:00"));
        const Prediction longer = predictRunner(entries, 1000);
        EXPECT_TRUE(longer.runs.front().state.goOn());
        const Prediction shorter = predictRunner(entries, 1e-9);
        EXPECT_FALSE(shorter.runs.front().state.goOn());
    }

    TEST(PredictText, HasNoLineTwice)
    {
        const Outcome outcome =
            run(with(workedEntries, {{"distance", "400 m"}, {"distance", "15 km"}, {"distance", "15.0 km"}}));
        EXPECT_EQ(linesIn(outcome.out).size(), 12U);
    }

    struct SaidCase
    {
        const char* name;
        Entries entries;
        int status;
        std::size_t lines;   // on the output
        const char* errors;
    };

    class PredictSays : public testing::TestWithParam<SaidCase>
    {};

    TEST_P(PredictSays, EachMessageOnce)
    {
        const Outcome outcome = run(GetParam().entries);
        EXPECT_EQ(outcome.status, GetParam().status);
        EXPECT_EQ(linesIn(outcome.out).size(), GetParam().lines) << outcome.out;
        EXPECT_EQ(outcome.errors, GetParam().errors);
    }

    const Entries fiveThatDoNotFit{{"age", "30"},           {"race", "20 m 2"},       {"race", "400 m 1:00"},
                                   {"race", "1500 m 4:30"}, {"race", "5000 m 17:00"}, {"race", "10 km 36:00"}};

    INSTANTIATE_TEST_SUITE_P(
        Refused, PredictSays,
        testing::Values(
            SaidCase{"no_race", {{"age", "40"}}, 1, 0, "No rows checked!\n"},
            SaidCase{"time_zero", {{"age", "40"}, {"race", "10 km 0:00"}}, 1, 0, "Bad time entry in row # 1\n"},
            SaidCase{"distance_zero",
                     {{"age", "40"}, {"race", "5 km 20:00"}, {"race", "0 km 40:00"}},
                     1,
                     0,
                     "Bad distance entry in row # 2\n"},
            SaidCase{"too_fast_in_english",
                     {{"age", "40"}, {"race", "100 m 8"}, {"english", "yes"}},
                     1,
                     0,
                     "Way too fast in row # 1\n"},
            SaidCase{"too_slow_in_both_tables",
                     {{"age", "40"}, {"race", "100 m 3:30"}, {"all-distances", "yes"}, {"distance", "1 km"}},
                     1,
                     0,
                     "Way too slow in row # 1\n"}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        GoesOn, PredictSays,
        testing::Values(
            SaidCase{"age_abc", {{"age", "abc"}, {"race", "10 km 40:00"}}, 0, 11, "Non-numeric age entry\n"},
            SaidCase{"age_0", {{"age", "0"}, {"race", "10 km 40:00"}}, 0, 11, "Non-numeric age entry\n"},
            SaidCase{"no_age", {{"race", "10 km 40:00"}}, 0, 11, "Non-numeric age entry\n"},
            SaidCase{"extrapolation_in_english",
                     {{"age", "40"}, {"race", "800 m 2:10"}, {"english", "yes"}},
                     0,
                     11,
                     "Questionable extrapolation: LONGEST RACE UNDER 1500 METERS - EXTRAPOLATION TO LONGER "
                     "DISTANCES UNCERTAIN.\n"},
            SaidCase{"two_different",
                     {{"race", "half 1:40:00"}, {"all-distances", "yes"}},
                     0,
                     20,
                     "Non-numeric age entry\n"
                     "Questionable extrapolation: SHORTEST RACE OVER 10 KM - EXTRAPOLATION TO SHORTER DISTANCES "
                     "UNCERTAIN.\n"},
            SaidCase{"omitted_race",
                     {{"age", "40"}, {"race", "10 km 40:00"}, {"race", "5 km 21:00"}},
                     0,
                     11,
                     "Omitting   21:00   5 km because it is slower paced than a longer race.\n"}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Stopped, PredictSays,
        testing::Values(
            SaidCase{"age_200",
                     {{"age", "200"}, {"race", "10 km 40:00"}},
                     1,
                     11,
                     "The calculation stopped: a power without a real value while working out the level at 5000 m for "
                     "the runner's age.\n"},
            SaidCase{"level_0",
                     {{"age", "40"}, {"race", "10 km 40:00"}, {"level", "0"}},
                     1,
                     2,
                     "The calculation stopped: division by zero while rating the time over 400 m.\n"},
            SaidCase{"five_races_that_do_not_fit", fiveThatDoNotFit, 1, 0,
                     "The calculation stopped: division by zero while putting the curve together from the races.\n"},
            SaidCase{"weight_and_height_out_of_reach",
                     {{"age", "40"}, {"race", "10 km 40:00"}, {"kg-weight", "1e300"}, {"cm-height", "1e-300"}},
                     1,
                     0,
                     "The calculation stopped: an overflow while taking in the runner's weight and height.\n"}),
        byName);

    struct UsageCase
    {
        const char* name;
        Entries entries;
        const char* said;
    };

    class PredictRefuses : public testing::TestWithParam<UsageCase>
    {};

    TEST_P(PredictRefuses, WrongUsage)
    {
        const Outcome outcome = run(GetParam().entries);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.errors, GetParam().said);
    }

    INSTANTIATE_TEST_SUITE_P(
        Entries, PredictRefuses,
        testing::Values(
            UsageCase{
                "race",
                {{"race", "10 km 4o:00"}},
                "--race: in \"10 km 4o:00\", \"4o:00\" is not a time (s, m:s or h:m:s, below 60 behind a colon)\n"},
            UsageCase{"six_races",
                      {{"race", "1 km 3:00"},
                       {"race", "2 km 6:10"},
                       {"race", "3 km 9:40"},
                       {"race", "5 km 17:00"},
                       {"race", "10 km 36:00"},
                       {"race", "half 1:20:00"}},
                      "--race: \"half 1:20:00\" is one race too many: five can be entered\n"},
            UsageCase{"sex", {{"sex", "woman"}}, "--sex: \"woman\" is neither m nor f\n"},
            UsageCase{"miles", {{"miles", "150.5"}}, "--miles: \"150.5\" is not a whole number from 0 to 150\n"},
            UsageCase{"level", {{"level", "-0.1"}}, "--level: \"-0.1\" is not a number from 0 to 110\n"},
            UsageCase{"weight", {{"kg-weight", "72,7"}}, "--kg-weight: \"72,7\" is not a number above 0\n"},
            UsageCase{"height", {{"cm-height", "-178"}}, "--cm-height: \"-178\" is not a number above 0\n"},
            UsageCase{"height_nan", {{"cm-height", "nan"}}, "--cm-height: \"nan\" is not a number above 0\n"},
            UsageCase{"both_tables",
                      {{"english", "yes"}, {"all-distances", "yes"}},
                      "english and all-distances exclude each other\n"}),
        byName);

    TEST(PredictCsv, HasFullNumbersAndShownTimes)
    {
        const Outcome outcome = run(workedEntries, PredictFormat::csv);
        const CalculationResults results = recalculated(workedExample());
        const std::vector<std::string> lines = linesIn(outcome.out);
        ASSERT_EQ(lines.size(), 10U);
        EXPECT_EQ(lines[0], "label,distance_m,time_s,time,per_mile_s,per_mile,per_km_s,per_km,per_400_s,per_400,"
                            "record_s,record,percent_speed,level,percent_level,top_percent");
        std::vector<std::string> fields;
        std::istringstream line(lines[9]);
        for (std::string field; std::getline(line, field, ',');)
            fields.push_back(field);
        ASSERT_EQ(fields.size(), 16U);
        const PredictedRow& row = results.rows[8];
        EXPECT_EQ(fields[0], "10000 m");
        EXPECT_EQ(fields[1], "10000");
        EXPECT_EQ(val(fields[2]), row.time);
        EXPECT_EQ(fields[3], "42:20");
        EXPECT_EQ(val(fields[4]), row.perMile);
        EXPECT_EQ(val(fields[6]), row.perKilometre);
        EXPECT_EQ(val(fields[8]), row.per400);
        EXPECT_EQ(val(fields[10]), row.record);
        EXPECT_EQ(val(fields[12]), row.percentSpeed);
        EXPECT_EQ(val(fields[13]), row.level);
        EXPECT_EQ(val(fields[14]), row.percentLevel);
        EXPECT_EQ(val(fields[15]), row.topPercent);
    }

    TEST(PredictCsv, HasItsHeaderEvenWhenRefused)
    {
        const Outcome outcome = run({{"age", "40"}}, PredictFormat::csv);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(linesIn(outcome.out).size(), 1U);
    }

    TEST(PredictJson, HoldsTheRowsToTheLastBit)
    {
        const Outcome outcome = run(workedEntries, PredictFormat::json);
        const json parsed = json::parse(outcome.out);
        const CalculationResults results = recalculated(workedExample());
        EXPECT_EQ(linesIn(outcome.out).size(), 1U);
        EXPECT_EQ(parsed["messages"], json::array());
        EXPECT_EQ(parsed["fault"], nullptr);
        EXPECT_EQ(parsed["curve"]["refDistance"], 5000);
        ASSERT_EQ(parsed["rows"].size(), 9U);
        for (std::size_t i = 0; i < 9; ++i)
        {
            const json& row = parsed["rows"][i];
            EXPECT_EQ(row["distance"], results.rows[i].distance);
            EXPECT_EQ(row["time"].get<double>(), results.rows[i].time);
            EXPECT_EQ(row["perMile"].get<double>(), results.rows[i].perMile);
            EXPECT_EQ(row["perKilometre"].get<double>(), results.rows[i].perKilometre);
            EXPECT_EQ(row["per400"].get<double>(), results.rows[i].per400);
            EXPECT_EQ(row["record"].get<double>(), results.rows[i].record);
            EXPECT_EQ(row["percentSpeed"], results.rows[i].percentSpeed);
            EXPECT_EQ(row["level"].get<double>(), results.rows[i].level);
            EXPECT_EQ(row["percentLevel"], results.rows[i].percentLevel);
            EXPECT_EQ(row["topPercent"].get<double>(), results.rows[i].topPercent);
        }
        EXPECT_EQ(parsed["rows"][8]["label"], "10000 m");
    }

    TEST(PredictJson, HoldsMessagesAndFault)
    {
        const Outcome outcome =
            run({{"race", "800 m 2:10"}, {"age", "200"}, {"distance", "1 km"}}, PredictFormat::json);
        const json parsed = json::parse(outcome.out);
        EXPECT_EQ(outcome.status, 1);
        ASSERT_EQ(parsed["messages"].size(), 1U);
        EXPECT_EQ(parsed["messages"][0]["title"], "Questionable extrapolation");
        EXPECT_TRUE(parsed["messages"][0]["text"].get<std::string>().starts_with("LONGEST RACE UNDER 1500"));
        EXPECT_TRUE(parsed["fault"].get<std::string>().starts_with("The calculation stopped: a power without"));
        EXPECT_EQ(parsed["rows"].size(), 9U);
    }

    TEST(PredictJson, HasNoCurveWhereNoneWasFitted)
    {
        for (const Entries& entries : {Entries{{"age", "40"}}, fiveThatDoNotFit})
        {
            const json parsed = json::parse(run(entries, PredictFormat::json).out);
            EXPECT_EQ(parsed["curve"], nullptr);
            EXPECT_EQ(parsed["rows"], json::array());
        }
    }

    TEST(PredictJson, StaysJsonWithAnAgeThatIsNoText)
    {
        const json parsed = json::parse(run({{"race", "10 km 40:00"}, {"age", "4\xff\x01"}}, PredictFormat::json).out);
        EXPECT_EQ(parsed["runner"]["age"], "4??");
    }

    std::string fileIn(const ScratchFolder& folder, const std::string& name, const std::string& bytes)
    {
        writeBytes(folder.path / name, bytes);
        return (folder.path / name).string();
    }

    TEST(PredictFrom, TheEchoOfARunnerGivesTheSameAgain)
    {
        const ScratchFolder folder;
        const Entries entries = with(workedEntries, {{"race", "half 1:36:30"},
                                                     {"kg-weight", "61.3"},
                                                     {"level", "99.9"},
                                                     {"sex", "f"},
                                                     {"distance", "15 km"},
                                                     {"age-compare", "yes"}});
        const std::string first = run(entries, PredictFormat::json).out;
        PredictOptions again;
        again.format = PredictFormat::json;
        again.from = fileIn(folder, "runner.json", json::parse(first)["runner"].dump());
        EXPECT_EQ(run(again).out, first);
    }

    TEST(PredictFrom, OptionsOverrideTheFile)
    {
        const ScratchFolder folder;
        PredictOptions options;
        options.from = fileIn(folder, "runner.json", R"({"races": ["10 km 50:00", "5 km 20:00"], "age": 40, "miles": 60,
                                                      "english": true, "level": 50})");
        options.entries = {{"race", "5000 m 20:00"}, {"miles", "30"}, {"english", "no"}, {"level", "100"}};
        EXPECT_EQ(run(options).out, run(workedEntries).out);
    }

    TEST(PredictFrom, AskingForOneTableTakesBackTheOther)
    {
        const ScratchFolder folder;
        PredictOptions options;
        options.from = fileIn(folder, "runner.json", R"({"races": ["5000 m 20:00"], "age": 40, "miles": 30,
                                                      "all-distances": true})");
        options.entries = {{"english", "yes"}};
        EXPECT_EQ(run(options).out, run(with(workedEntries, {{"english", "yes"}})).out);
    }

    TEST(PredictFrom, ABadFileEndsItWithNothingPrinted)
    {
        const ScratchFolder folder;
        for (const std::string& name : {fileIn(folder, "bad.json", R"({"miles": "many"})"),
                                        (folder.path / "none.json").string(), folder.path.string()})
        {
            PredictOptions options;
            options.entries = workedEntries;
            options.from = name;
            const Outcome outcome = run(options);
            EXPECT_EQ(outcome.status, 2);
            EXPECT_EQ(outcome.out, "");
            EXPECT_NE(outcome.errors.find(name), std::string::npos) << outcome.errors;
        }
    }

    TEST(Predict, ToAnOutputThatTakesNothingIsAnError)
    {
        std::ostringstream errors;
        std::ostream out(nullptr);
        PredictOptions options;
        options.entries = workedEntries;
        EXPECT_EQ(predict(options, out, errors), 1);
        EXPECT_EQ(errors.str(), "The output can't be written.\n");
    }

#ifdef VANTELOS_CONSOLE
    TEST(ConsoleProgram, PredictsWithEveryOption)
    {
        const ConsoleRun outcome =
            console("predict --race '5000 m 20:00' --race='10 km 43:00' --age 40 --sex f --miles 30 "
                    "--name 'Jo Doe' --max-hr 185 --rest-hr 50 "
                    "--kg-weight 60 --cm-height 170 --best-two --english --level 90.5 --age-compare "
                    "--format json --distance '15 km' --distance half --limit 5");
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        const json expected = json::parse(R"({"races": ["5000 m 20:00", "10 km 43:00"], "age": "40", "sex": "f",
            "miles": 30, "name": "Jo Doe", "max-hr": 185, "rest-hr": 50, "kg-weight": 60, "cm-height": 170, "best-two": true, "english": true,
            "all-distances": false, "level": 90.5, "age-compare": true, "distances": ["15 km", "half"]})");
        EXPECT_EQ(json::parse(outcome.out)["runner"], expected);
    }

    TEST(ConsoleProgram, ReportsAndAnalyses)
    {
        const std::string runner = " --race '10 km 40:00' --age 40 --miles 30 --max-hr 185 --rest-hr 50 --limit 5";
        const ConsoleRun report = console("report" + runner);
        EXPECT_EQ(report.status, 0) << report.errors;
        EXPECT_EQ(linesIn(report.out).size(), 60U);
        const ConsoleRun analysis = console("analysis --format json" + runner);
        EXPECT_EQ(analysis.status, 0) << analysis.errors;
        EXPECT_EQ(json::parse(analysis.out)["lines"].size(), 22U);
        EXPECT_EQ(console("report --format csv" + runner).status, 2);
        EXPECT_EQ(console("analysis --roster team.csv").status, 2);
    }

    TEST(ConsoleProgram, TakesANegativeAgeAndAFlagTakenBack)
    {
        EXPECT_EQ(console("predict --race '10 km 40:00' --age -3 --best-two=false").status, 0);
        EXPECT_EQ(console("predict --race '10 km 40:00' --age -5").status, 1);
    }

    TEST(ConsoleProgram, EndsWithTheStatusThatItPromises)
    {
        EXPECT_EQ(console("--version").out, "Vantelos 9.3\n");
        EXPECT_EQ(console("--version").status, 0);
        EXPECT_EQ(console("--help").status, 0);
        EXPECT_EQ(console("predict --help").status, 0);
        EXPECT_EQ(console("predict").status, 1);
        for (const char* wrong : {"", "foretell", "predict --rac '10 km 40:00'", "predict '10 km 40:00'",
                                  "predict --race", "predict --age 40 --age 41", "predict --format xml",
                                  "predict --limit 0", "predict --limit soon", "predict --race '10 km'"})
        {
            const ConsoleRun outcome = console(wrong);
            EXPECT_EQ(outcome.status, 2) << wrong;
            EXPECT_EQ(outcome.out, "") << wrong;
            EXPECT_NE(outcome.errors, "") << wrong;
        }
    }
#endif
}
