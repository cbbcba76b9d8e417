// `predict --roster`: many runners in their order, and lines that are none.

#include "console/roster.h"

#include <filesystem>
#include <sstream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "console/predict_command.h"
#include "model/text.h"
#include "prediction/calculate.h"
#include "support/case_name.h"

namespace
{
    struct Outcome
    {
        int status = -1;
        std::string out, errors;
    };

    Outcome predictText(const std::string& roster, RunnerEntries defaults = {}, unsigned workers = 2)
    {
        std::istringstream in(roster);
        std::ostringstream out, errors;
        const RosterRun run{
            .name = "team.csv", .defaults = std::move(defaults), .limitSeconds = 10, .workers = workers};
        const int status = predictRoster(in, run, out, errors);
        return {status, out.str(), errors.str()};
    }

    constexpr const char* metricHeader = "name,400 m,800 m,1500 m,1600 m,3000 m,3200 m,5000 m,8000 m,10000 m\n";

    /// The times of a man of 40 with 30 miles a week and one race over 5000 m, computed without a roster.
    std::string timesOf(const std::string& minutes, const std::string& seconds)
    {
        CalculationInput input;
        input.rows[0].use = true;
        input.rows[0].minutes = minutes;
        input.rows[0].seconds = seconds;
        input.rows[0].number = "5000";
        input.rows[0].unit = RaceUnit::meters;
        input.age = "40";
        input.weeklyMiles = 30;
        input.fit = FitMode::allData;
        input.output = OutputMode::metric;
        ModelState state;
        CalculationResults results;
        Messages messages;
        recalculate(state, input, results, messages);
        std::string times;
        for (const PredictedRow& row : results.rows)
        {
            const std::string time = formatTime(double{row.time});
            const std::size_t begin = time.find_first_not_of(' ');
            times += "," + time.substr(begin, time.find_last_not_of(' ') + 1 - begin);
        }
        return times;
    }

    TEST(Roster, PredictsWhatOneRunnerGets)
    {
        const Outcome outcome = predictText("name,age,miles,race1\nAnn,40,30,5000 m 20:00\n");
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(outcome.out, metricHeader + std::string("Ann") + timesOf("20", "00") + "\n");
        EXPECT_TRUE(outcome.out.ends_with(",42:20\n"));
    }

    TEST(Roster, TakesItsColumnsInAnyOrder)
    {
        const Outcome outcome =
            predictText("race3, Miles ,height_cm,sex,name,best_two,AGE,level,weight_kg,age_compare\n"
                        "5000 m 20:00,30,,M,Bo,no,40,100,72.7,0\n");
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(outcome.out, metricHeader + std::string("Bo") + timesOf("20", "00") + "\n");
    }

    TEST(Roster, ReadsWhateverLineEndsAndMarks)
    {
        const std::string expected = metricHeader + std::string("Ann") + timesOf("20", "00") + "\n";
        EXPECT_EQ(predictText("\xEF\xBB\xBFname,age,miles,race1\r\nAnn,40,30,5000 m 20:00\r\n").out, expected);
        EXPECT_EQ(predictText("name,age,miles,race1\n\n  \nAnn,40,30,5000 m 20:00").out, expected);
        EXPECT_EQ(predictText("\"name\",\"age\",miles,race1,race2\nAnn,40,\"30\",\"5000 m 20:00\"\n").out, expected);
    }

    TEST(Roster, QuotesWhatNeedsIt)
    {
        const Outcome outcome = predictText("name,age,miles,race1\n\"Smith, \"\"Jo\"\"\",40,30,5000 m 20:00\n"
                                            "5'10\" Al,40,30,5000 m 20:00\n Tim ,40,30,5000 m 20:00\n");
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(outcome.out, metricHeader + ("\"Smith, \"\"Jo\"\"\"" + timesOf("20", "00")) + "\n\"5'10\"\" Al\"" +
                                   timesOf("20", "00") + "\n\" Tim \"" + timesOf("20", "00") + "\n");
    }

    TEST(Roster, FillsInTheOptionsForWhatALineLeavesOut)
    {
        RunnerEntries defaults;
        defaults.age = "40";
        defaults.miles = 30;
        const Outcome outcome = predictText("name,miles,race1\nAnn,,5000 m 20:00\nBea,70,5000 m 20:00\n", defaults);
        EXPECT_TRUE(outcome.out.starts_with(metricHeader + ("Ann" + timesOf("20", "00")) + "\n"));
        EXPECT_EQ(outcome.out.find("Bea" + timesOf("20", "00")), std::string::npos);
    }

    TEST(Roster, HasTheDistancesThatAreAskedFor)
    {
        RunnerEntries english;
        english.english = true;
        EXPECT_TRUE(predictText("race1\n", english)
                        .out.starts_with("name,440 yd,880 yd,1 mi,2 mi,3 mi,5 mi,10 mi,half mara.,marathon\n"));
        RunnerEntries all;
        all.allDistances = true;
        ASSERT_FALSE(setEntry(all, "distance", "15 km"));
        const Outcome outcome = predictText("name,age,miles,race1\nAnn,40,30,5000 m 20:00\n", all);
        EXPECT_TRUE(outcome.out.starts_with("name,400 m,440 yd,800 m,880 yd,1500 m,1600 m,1 mi,3000 m,3200 m,2 mi,3 mi,"
                                            "5000 m,8000 m,5 mi,10000 m,15 km,10 mi,half mara.,marathon\n"));
        EXPECT_TRUE(outcome.out.ends_with(",1:38:11,3:48:37\n")) << outcome.out;
    }

    TEST(Roster, KeepsTheOrderOverManyLinesAndThreads)
    {
        // Every seventh runner has five races and takes longer; each thousandth line is bad.
        constexpr int runners = 3000;
        std::string roster = "name,age,race1,race2,race3,race4,race5\n";
        std::vector<std::string> expected;
        std::string errors;
        for (int i = 1; i <= runners; ++i)
        {
            const std::string name = "R" + std::to_string(i);
            if (i % 1000 == 0)
            {
                roster += name + ",30,5 km fast\n";
                errors +=
                    "line " + std::to_string(i + 1) +
                    ": race1: in \"5 km fast\", \"fast\" is not a time (s, m:s or h:m:s, below 60 behind a colon)\n";
                continue;
            }
            roster += name + (i % 7 == 0 ? ",30,400 m 65,800 m 2:20,1500 m 4:50,5 km 18:30,10 km 38:40\n"
                                         : ",30,5 km 18:30\n");
            expected.push_back(name);
        }
        for (const unsigned workers : {1U, 5U})
        {
            const Outcome outcome = predictText(roster, {}, workers);
            EXPECT_EQ(outcome.status, 1);
            EXPECT_EQ(outcome.errors, errors);
            std::istringstream lines(outcome.out);
            std::string line;
            std::getline(lines, line);
            for (const std::string& name : expected)
            {
                ASSERT_TRUE(std::getline(lines, line));
                ASSERT_EQ(line.substr(0, line.find(',')), name);
            }
            EXPECT_FALSE(std::getline(lines, line));
        }
    }

    struct BadLine
    {
        const char* name;
        std::string line;   // below name,age,race1,race2,level,sex
        const char* said;
    };

    class BadRosterLine : public testing::TestWithParam<BadLine>
    {};

    TEST_P(BadRosterLine, IsToldAndTheRestGoesOn)
    {
        const Outcome outcome = predictText("name,age,race1,race2,level,sex\nAnn,40,5 km 20:00\n" + GetParam().line +
                                            "\nBea,40,5 km 20:00\n");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.errors, std::string("line 3: ") + GetParam().said + "\n");
        std::istringstream lines(outcome.out);
        std::string header, ann, bea, more;
        std::getline(lines, header);
        std::getline(lines, ann);
        std::getline(lines, bea);
        EXPECT_TRUE(ann.starts_with("Ann,")) << ann;
        EXPECT_EQ(bea, "Bea" + ann.substr(3));
        EXPECT_FALSE(std::getline(lines, more)) << more;
    }

    INSTANTIATE_TEST_SUITE_P(
        Lines, BadRosterLine,
        testing::Values(
            BadLine{"race", "Cy,40,5 furlongs 2:00",
                    "race1: in \"5 furlongs 2:00\", \"furlongs\" is not a unit (mi, yd, km, m, marathon or half)"},
            BadLine{"second_race", "Cy,40,5 km 20:00,half", "race2: in \"half\", the time is missing"},
            BadLine{"level", "Cy,40,5 km 20:00,,111", "level: \"111\" is not a number from 0 to 110"},
            BadLine{"sex", "Cy,40,5 km 20:00,,,u", "sex: \"u\" is neither m nor f"},
            BadLine{"too_many_fields", "Cy,40,5 km 20:00,,,f,", "7 fields, where the header names 6"},
            BadLine{"open_quote", "\"Cy,40,5 km 20:00", "a quotation mark has no partner"},
            BadLine{"text_behind_a_quote", "\"Cy\"x,40,5 km 20:00",
                    "behind the quoted field \"Cy\" a comma is missing"},
            BadLine{"no_race", "Cy,40", "No rows checked!"},
            BadLine{"time_zero_in_the_second_row", "Cy,40,,5 km 0:00", "Bad time entry in row # 2"},
            BadLine{"level_0", "Cy,40,5 km 20:00,,0",
                    "The calculation stopped: division by zero while rating the time over 400 m."},
            BadLine{"age_200", "Cy,200,5 km 20:00",
                    "The calculation stopped: a power without a real value while working out the level at 5000 m for "
                    "the runner's age."},
            BadLine{"binary_noise", std::string("\x00\x01\xff,\x80,\x02", 7),
                    "race1: in \"?\", \"?\" is not a number, nor marathon or half"},
            BadLine{"long_line", std::string(70'000, 'x') + ",40,5 km 20:00", "it is longer than 65536 bytes"},
            BadLine{"longer_line", std::string(5'000'000, ','), "it is longer than 65536 bytes"},
            BadLine{"many_fields", std::string(60'000, ','), "60001 fields, where the header names 6"}),
        byName);

    TEST(Roster, TellsWhatTheSystemSaysOfAGoodLine)
    {
        const Outcome outcome = predictText("name,age,race1\nAnn,abc,800 m 2:10\n");
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(
            outcome.errors,
            "line 2: warning: Non-numeric age entry\n"
            "line 2: warning: Questionable extrapolation: LONGEST RACE UNDER 1500 METERS - EXTRAPOLATION TO LONGER "
            "DISTANCES UNCERTAIN.\n");
        EXPECT_NE(outcome.out.find("\nAnn,"), std::string::npos);
    }

    TEST(Roster, OfAHeaderAloneIsAHeaderAlone)
    {
        const Outcome outcome = predictText("name,race1");
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.out, metricHeader);
    }

    struct BadHeader
    {
        const char* name;
        std::string text;
        const char* said;
    };

    class BadRosterHeader : public testing::TestWithParam<BadHeader>
    {};

    TEST_P(BadRosterHeader, EndsIt)
    {
        const Outcome outcome = predictText(GetParam().text);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.errors, std::string("The roster \"team.csv\"") + GetParam().said + ".\n");
    }

#define KNOWN_COLUMNS                                                                                            \
    "the columns are name, age, sex, miles, race1, race2, race3, race4, race5, weight_kg, height_cm, best_two, " \
    "level, age_compare"

    INSTANTIATE_TEST_SUITE_P(
        Headers, BadRosterHeader,
        testing::Values(
            BadHeader{"empty", "", " is empty"},
            BadHeader{"unknown_column", "name,race1,weight\nAnn,5 km 20:00,70\n",
                      ": line 1: the column \"weight\" is not known; " KNOWN_COLUMNS},
            BadHeader{"six_races", "name,race1,race6\n", ": line 1: the column \"race6\" is not known; " KNOWN_COLUMNS},
            BadHeader{"no_header", "Ann,40,5 km 20:00\n", ": line 1: the column \"Ann\" is not known; " KNOWN_COLUMNS},
            BadHeader{"blank", "\nname,race1\n", ": line 1: the column \"\" is not known; " KNOWN_COLUMNS},
            BadHeader{"column_twice", "race1,name,Name\n", ": line 1: the column \"Name\" stands there twice"},
            BadHeader{"no_race", "name,age\n", ": line 1: the header names no race; " KNOWN_COLUMNS},
            BadHeader{"open_quote", "\"name,race1\n", ": line 1: a quotation mark has no partner"},
            BadHeader{"too_long", std::string(70'000, 'n'), ": line 1: the header line is longer than 65536 bytes"}),
        byName);

    /// Bytes that end in a reading error, as those of a failing disk do.
    class BreakingBytes : public std::streambuf
    {
    public:
        explicit BreakingBytes(std::string text) : bytes(std::move(text))
        {
            setg(bytes.data(), bytes.data(), bytes.data() + bytes.size());
        }

    private:
        int_type underflow() override { throw std::ios_base::failure("broken"); }

        std::string bytes;
    };

    TEST(Roster, ThatBreaksOffIsTold)
    {
        BreakingBytes bytes("name,age,race1\nAnn,40,5 km 20:00\n");
        std::istream in(&bytes);
        std::ostringstream out, errors;
        EXPECT_EQ(predictRoster(in, RosterRun{.name = "team.csv", .defaults = {}}, out, errors), 1);
        EXPECT_NE(out.str().find("\nAnn,"), std::string::npos);
        EXPECT_EQ(errors.str(), "The roster \"team.csv\" can't be read beyond line 2.\n");

        BreakingBytes nothing("");
        std::istream none(&nothing);
        std::ostringstream said;
        EXPECT_EQ(predictRoster(none, RosterRun{.name = "team.csv", .defaults = {}}, out, said), 2);
        EXPECT_EQ(said.str(), "The roster \"team.csv\" can't be read.\n");
    }

    TEST(Roster, StopsWhereTheOutputTakesNothing)
    {
        std::string roster = "name,age,race1\n";
        for (int i = 0; i < 5000; ++i)
            roster += "Ann,40,5 km 20:00\n";
        std::istringstream in(roster);
        std::ostream out(nullptr);
        std::ostringstream errors;
        EXPECT_EQ(predictRoster(in, RosterRun{.name = "team.csv", .defaults = {}}, out, errors), 0);
        EXPECT_LT(in.tellg(), 200) << "the header is enough to see that";
    }

    TEST(PredictRoster, ReadsStandardInput)
    {
        PredictOptions options;
        options.roster = "-";
        options.entries = {{"miles", "30"}};
        std::istringstream in("name,age,race1\nAnn,40,5000 m 20:00\n");
        std::ostringstream out, errors;
        EXPECT_EQ(predict(options, in, out, errors), 0);
        EXPECT_EQ(out.str(), metricHeader + ("Ann" + timesOf("20", "00")) + "\n");
    }

    TEST(PredictRoster, ThatIsMissingOrAFolderIsWrongUsage)
    {
        for (const std::string& name :
             {std::string("/nowhere/team.csv"), std::filesystem::temp_directory_path().string()})
        {
            PredictOptions options;
            options.roster = name;
            std::ostringstream out, errors;
            EXPECT_EQ(predict(options, out, errors), 2);
            EXPECT_EQ(out.str(), "");
            EXPECT_EQ(errors.str(), "The roster \"" + name + "\" can't be read.\n");
        }
    }

    TEST(PredictRoster, GoesWithoutRacesAndFormats)
    {
        PredictOptions races;
        races.entries = {{"race", "5 km 20:00"}};
        PredictOptions format;
        format.format = PredictFormat::json;
        for (PredictOptions options : {races, format})
        {
            options.roster = "-";
            std::ostringstream out, errors;
            EXPECT_EQ(predict(options, out, errors), 2);
            EXPECT_EQ(errors.str(), "--roster goes without --race, --from and --format.\n");
        }
    }

    TEST(CsvFields, AreWhatStandsBetweenCommas)
    {
        std::string wrong;
        using Fields = std::vector<std::string>;
        EXPECT_EQ(csvFields("", wrong), Fields{""});
        EXPECT_EQ(csvFields("a,,b", wrong), (Fields{"a", "", "b"}));
        EXPECT_EQ(csvFields("a,", wrong), (Fields{"a", ""}));
        EXPECT_EQ(csvFields("\"\",\"\"\"\",\"a,b\"", wrong), (Fields{"", "\"", "a,b"}));
        EXPECT_EQ(csvFields("\"a\",", wrong), (Fields{"a", ""}));
        EXPECT_EQ(csvFields("a\"b\"", wrong), Fields{"a\"b\""});
    }
}
