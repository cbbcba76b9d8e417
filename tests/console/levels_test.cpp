#include "console/levels_command.h"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/close_to.h"
#include "support/golden.h"

namespace
{
    using Entries = std::vector<std::pair<std::string, std::string>>;

    struct Ran
    {
        int status;
        std::string out, errors;
    };

    Ran ran(const LevelsOptions& options)
    {
        std::ostringstream out;
        std::ostringstream errors;
        const int status = tellLevels(options, out, errors);
        return {status, out.str(), errors.str()};
    }

    LevelsOptions table(TableKind kind, const Entries& entries = {})
    {
        LevelsOptions options;
        options.kind = kind;
        options.entries = entries;
        return options;
    }

    void expectTable(const LevelsOptions& options, const char* golden)
    {
        const Ran told = ran(options);
        EXPECT_EQ(told.status, 0);
        EXPECT_EQ(told.errors, "");
        EXPECT_EQ(told.out, GoldenFile("tables/golden", golden).expected);
    }

    TEST(Levels, ArePrintedAsInTheWindow)
    {
        expectTable(table(TableKind::levels), "levels_men");
        expectTable(table(TableKind::levels, {{"sex", "f"}}), "levels_women");
        LevelsOptions further = table(TableKind::levels, {{"sex", "f"}});
        further.minimum = "70";
        further.interval = "7.5";
        expectTable(further, "levels_women_beyond_the_record");
    }

    TEST(Levels, ByAgeArePrintedAsInTheWindow)
    {
        expectTable(table(TableKind::agesAtLevel), "ages_men");
        LevelsOptions women = table(TableKind::agesAtLevel, {{"sex", "f"}, {"age", "40"}});
        women.minimum = "10";
        women.interval = "10";
        women.lev = "80";
        expectTable(women, "ages_women_80");
    }

    TEST(Levels, OfARunnerMeetTheRunnersOwnTimes)
    {
        LevelsOptions options =
            table(TableKind::runnerByAge, {{"race", "10 km 40:00"}, {"age", "40"}, {"miles", "30"}});
        options.json = true;
        const Ran told = ran(options);
        EXPECT_EQ(told.status, 0);
        const nlohmann::json json = nlohmann::json::parse(told.out);
        EXPECT_EQ(json.at("title"), "Predicted Performances at Various Ages");
        EXPECT_EQ(json.at("columns").size(), 9U);
        EXPECT_EQ(json.at("columns").at(3), 40);
        const nlohmann::json& row = json.at("rows").at(17);
        EXPECT_EQ(row.at("label"), "10 km");
        EXPECT_EQ(row.at("distance"), 10000);
        EXPECT_TRUE(closeTo(row.at("times").at(3).get<double>(), 2397.1, 1e-4)) << "by a second way";
    }

    TEST(Levels, OfARunnerNeedARace)
    {
        const Ran told = ran(table(TableKind::runnerByAge, {{"age", "40"}}));
        EXPECT_EQ(told.status, 1);
        EXPECT_EQ(told.out, "");
        EXPECT_EQ(told.errors, "Must calculate current performances first\n");
        const Ran refused = ran(table(TableKind::runnerByAge, {{"race", "10 km 0:00"}, {"age", "40"}}));
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.errors, "Bad time entry in row # 1\n");
    }

    TEST(Levels, StopWhereThereIsNone)
    {
        LevelsOptions options = table(TableKind::levels);
        options.minimum = "0";
        const Ran told = ran(options);
        EXPECT_EQ(told.status, 1);
        EXPECT_EQ(told.out.substr(0, 31), "Performance Levels (Open Male)\n");
        EXPECT_EQ(told.errors,
                  "The calculation stopped: division by zero while working out the time of 0 % over 100 m.\n");
        options.json = true;
        EXPECT_EQ(ran(options).out, "");
    }

    TEST(Levels, SayWhatIsWrongWithARunner)
    {
        const Ran told = ran(table(TableKind::levels, {{"sex", "x"}}));
        EXPECT_EQ(told.status, 2);
        EXPECT_EQ(told.errors, "--sex: \"x\" is neither m nor f\n");
    }
}
