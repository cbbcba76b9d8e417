// The commands `report` and `analysis`: what they print, what they say and how they end.

#include "console/report_command.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "console/predict_command.h"
#include "support/case_name.h"
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

    Outcome run(const Entries& entries, ReportKind kind, bool asJson = false, const std::string& from = "")
    {
        ReportOptions options;
        options.entries = entries;
        options.from = from;
        options.json = asJson;
        std::ostringstream out, errors;
        const int status = report(options, kind, out, errors);
        return {status, out.str(), errors.str()};
    }

    const Entries runner{{"race", "10 km 40:00"}, {"age", "40"},     {"miles", "30"},
                         {"name", "Ann"},         {"max-hr", "185"}, {"rest-hr", "50"}};

    Entries with(Entries entries, const Entries& more)
    {
        entries.insert(entries.end(), more.begin(), more.end());
        return entries;
    }

    TEST(ReportCommand, PrintsTheFullReport)
    {
        const Outcome outcome = run(runner, ReportKind::full);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors, "");
        EXPECT_TRUE(
            outcome.out.starts_with("VANTELOS full report on Ann (40 year old male):\n\nWeekly training distance "
                                    "= 30 miles = 48 km.\n"));
        EXPECT_NE(outcome.out.find("\n   marathon "), std::string::npos);
        EXPECT_NE(outcome.out.find("should be about 74 to 79 seconds each.\n"), std::string::npos);
    }

    TEST(ReportCommand, PrintsTheAnalysis)
    {
        const Outcome outcome = run(runner, ReportKind::analysis);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(outcome.out.starts_with(" TRAINING AND SPECIALIZATION ANALYSIS:\n\n Fully aerobic training pace =  "
                                            "8:00  ( range 8:52 to 7:19 )"));
        EXPECT_NE(outcome.out.find("should be 74 to 79 seconds each.\n"), std::string::npos);
        EXPECT_NE(outcome.out.find("between the purple lines.\n"), std::string::npos);
    }

    TEST(ReportCommand, TakesHeartRatesAsTheWindowsDoWhereNoneAreGiven)
    {
        const Entries none{{"race", "10 km 40:00"}, {"age", "40"}, {"miles", "30"}};
        EXPECT_EQ(run(none, ReportKind::analysis).out,
                  run(with(none, {{"max-hr", "180"}, {"rest-hr", "60"}}), ReportKind::analysis).out);
        EXPECT_TRUE(run(none, ReportKind::full).out.starts_with("VANTELOS full report on Joe Runner (40 "));
    }

    TEST(ReportCommand, DoesNotMindTheTableThatIsAskedFor)
    {
        const std::string out = run(runner, ReportKind::full).out;
        EXPECT_EQ(run(with(runner, {{"english", "yes"}}), ReportKind::full).out, out);
        EXPECT_EQ(run(with(runner, {{"all-distances", "yes"}, {"distance", "15 km"}}), ReportKind::full).out, out);
    }

    TEST(ReportCommand, GivesJson)
    {
        const Outcome outcome = run(runner, ReportKind::analysis, true);
        const json object = json::parse(outcome.out);
        EXPECT_EQ(object.at("fault"), nullptr);
        EXPECT_EQ(object.at("runner").at("name"), "Ann");
        EXPECT_EQ(object.at("runner").at("max-hr"), 185);
        EXPECT_EQ(object.at("messages"), json::array());
        EXPECT_EQ(object.at("lines").size(), 22U);
        EXPECT_NEAR(object.at("training").at("aerobicTrainSpeed").get<double>(), 3.3501612325483725, 1e-9);
        EXPECT_NEAR(object.at("training").at("peakDistance").get<double>(), 8.981996493241727, 1e-8);
        EXPECT_EQ(object.at("training").at("band"), "5 - 10 k");
        const json report = json::parse(run(runner, ReportKind::full, true).out);
        EXPECT_EQ(report.at("lines").size(), 60U);
        EXPECT_EQ(report.at("training"), object.at("training"));
    }

    TEST(ReportCommand, ReadsARunnerFile)
    {
        const ScratchFolder folder;
        const auto path = folder.path / "runner.json";
        writeBytes(path, R"({"races": ["10 km 40:00"], "age": 40, "miles": 30, "name": "Bo", "max-hr": 185,
                             "rest-hr": 50})");
        const Outcome outcome = run({{"name", "Ann"}}, ReportKind::full, false, path.string());
        EXPECT_EQ(outcome.out, run(runner, ReportKind::full).out);
        EXPECT_EQ(outcome.status, 0);
        PredictOptions predicted;
        predicted.from = path.string();
        std::ostringstream out, errors;
        EXPECT_EQ(predict(predicted, out, errors), 0) << errors.str();
    }

    TEST(ReportCommand, EndsWithAFaultBehindItsRows)
    {
        const Outcome outcome = run(with(runner, {{"max-hr", "18"}}), ReportKind::full);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.out.find("\n   marathon "), std::string::npos);
        EXPECT_EQ(outcome.out.find("TRAINING"), std::string::npos);
        EXPECT_EQ(outcome.errors,
                  "The calculation stopped: a search that cannot end, because no speed reaches the heart "
                  "rate while searching the fast end of the aerobic zone.\n");
        const json object = json::parse(run(with(runner, {{"max-hr", "18"}}), ReportKind::full, true).out);
        EXPECT_EQ(object.at("training"), nullptr);
        EXPECT_NE(object.at("fault"), nullptr);
    }

    TEST(ReportCommand, PrintsNothingWhereThePredictionStops)
    {
        const Outcome refused = run({{"age", "40"}}, ReportKind::full);
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.out, "");
        EXPECT_EQ(refused.errors, "No rows checked!\n");
        const Outcome stopped = run(with(runner, {{"level", "0"}}), ReportKind::analysis);
        EXPECT_EQ(stopped.status, 1);
        EXPECT_EQ(stopped.out, "");
        EXPECT_EQ(stopped.errors, "The calculation stopped: division by zero while rating the time over 400 m.\n");
    }

    TEST(ReportCommand, PassesWarningsOn)
    {
        const Outcome outcome = run({{"race", "800 m 2:10"}, {"age", "17"}}, ReportKind::analysis);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(outcome.errors.starts_with("Questionable extrapolation: LONGEST RACE UNDER 1500"));
    }

    TEST(ReportCommand, CountsTheMilesThatAnAgeStandsFor)
    {
        // two races fitted as the best two: the age is read nowhere else
        const Entries two{{"race", "5 km 21:00"}, {"race", "10 km 44:00"}, {"best-two", "yes"}, {"miles", "30"}};
        const auto milesAt = [&](const char* age) {
            const json object = json::parse(run(with(two, {{"age", age}}), ReportKind::analysis, true).out);
            return object.at("training").at("typicalMiles").get<double>();
        };
        EXPECT_NEAR(milesAt("18") - milesAt("54"), 9, 1e-9);   // 36 ^ 1.5 / 24
    }

    struct UsageCase
    {
        std::string name;
        Entries entries;
        const char* errors;
    };

    std::ostream& operator<<(std::ostream& out, const UsageCase& row)
    {
        return out << row.name;
    }

    class ReportUsage : public testing::TestWithParam<UsageCase>
    {};

    TEST_P(ReportUsage, IsWrong)
    {
        const Outcome outcome = run(GetParam().entries, ReportKind::full);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.errors, GetParam().errors);
    }

    INSTANTIATE_TEST_SUITE_P(
        Entries, ReportUsage,
        testing::Values(UsageCase{"maximum", {{"max-hr", "0"}}, "--max-hr: \"0\" is not a number above 0\n"},
                        UsageCase{"rest", {{"rest-hr", "low"}}, "--rest-hr: \"low\" is not a number above 0\n"},
                        UsageCase{"both_tables",
                                  {{"english", "yes"}, {"all-distances", "yes"}},
                                  "english and all-distances exclude each other\n"}),
        byName);

    TEST(ReportUsage, OfAFileThatIsNotThere)
    {
        EXPECT_EQ(run({}, ReportKind::full, false, "/nowhere/runner.json").status, 2);
    }
}
