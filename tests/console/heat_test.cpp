#include "console/heat_command.h"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    using Entries = std::vector<std::pair<std::string, std::string>>;

    struct Ran
    {
        int status;
        std::string out, errors;

        [[nodiscard]] nlohmann::json json() const { return nlohmann::json::parse(out); }
    };

    Ran ran(const HeatOptions& options)
    {
        std::ostringstream out;
        std::ostringstream errors;
        const int status = tellHeat(options, out, errors);
        return {status, out.str(), errors.str()};
    }

    HeatOptions weather(const char* temperature, double humidity, const Entries& entries = {})
    {
        HeatOptions options;
        options.temperature = temperature;
        options.humidity = humidity;
        options.entries = entries;
        return options;
    }

    // By a program of its own in another language.
    TEST(Heat, TellsTheWeatherAlone)
    {
        const Ran told = ran(weather("85F", 65));
        EXPECT_EQ(told.status, 0);
        EXPECT_EQ(told.errors, "");
        EXPECT_EQ(told.out, "Temperature                         85.0 F   29.4 C\n"
                            "Dew point                           71.9 F   22.2 C\n"
                            "Wet bulb                            75.6 F   24.2 C\n"
                            "Wet bulb globe, approximate         82.5 F   28.1 C\n"
                            "U.S. heat index                     92.1 F\n"
                            "Canadian humidex                             39.0 C\n");
    }

    TEST(Heat, TellsWhatTheFormTells)
    {
        const Ran told = ran(weather("85F", 65,
                                     {{"race", "1500 m 4:39"},
                                      {"race", "half 1:36:02"},
                                      {"age", "40"},
                                      {"miles", "20"},
                                      {"kg-weight", "72.6"},
                                      {"cm-height", "178"}}));
        EXPECT_EQ(told.status, 0);
        EXPECT_EQ(told.out.substr(told.out.find("\n\n") + 2),
                  "             In ideal weather  In this weather   Percent longer\n"
                  "10000 m          39:59             41:50           4.63\n"
                  "400 m               59.7              59.7         0.03\n"
                  "800 m             2:14              2:14           0.22\n"
                  "1500 m            4:39              4:41           0.64\n"
                  "1 mile            5:03              5:05           0.71\n"
                  "3000 m           10:21             10:31           1.52\n"
                  "5000 m           18:27             18:55           2.53\n"
                  "10000 m          39:59             41:50           4.63\n"
                  "half mara      1:36:02           1:44:40           8.99\n"
                  "marathon       3:56:35           4:43:45          19.94\n");
    }

    TEST(Heat, TellsAllNumbersInJson)
    {
        HeatOptions options = weather("29.444444444444443c", 65,
                                      {{"race", "5 km 20:00"},
                                       {"age", "40"},
                                       {"miles", "30"},
                                       {"kg-weight", "72.6"},
                                       {"cm-height", "178"},
                                       {"distance", "15 km"}});
        options.json = true;
        const nlohmann::json json = ran(options).json();
        EXPECT_TRUE(closeTo(json.at("wbgtC").get<double>(), 28.06));
        EXPECT_TRUE(closeTo(json.at("rows").at(6).at("ideal").get<double>(), 1200)) << "the race itself";
        EXPECT_EQ(json.at("rows").at(0).at("distance"), 15000);
        EXPECT_EQ(json.at("rows").size(), 10U);
        options.entries.clear();
        EXPECT_FALSE(ran(options).json().contains("rows"));
    }

    struct Wrong
    {
        std::string name;
        const char* temperature;
        Entries entries;
        int status;
        const char* said;
    };

    class WrongHeat : public testing::TestWithParam<Wrong>
    {};

    TEST_P(WrongHeat, IsSaid)
    {
        const Ran told = ran(weather(GetParam().temperature, 65, GetParam().entries));
        EXPECT_EQ(told.status, GetParam().status);
        EXPECT_EQ(told.out, "");
        EXPECT_EQ(told.errors, std::string(GetParam().said) + "\n");
    }

    INSTANTIATE_TEST_SUITE_P(
        Heat, WrongHeat,
        testing::Values(
            Wrong{"no_unit", "85", {}, 2, "--temperature: \"85\" is not a temperature such as 85F or 29C"},
            Wrong{"no_number", "F", {}, 2, "--temperature: \"F\" is not a temperature such as 85F or 29C"},
            Wrong{"nothing", "", {}, 2, "--temperature: \"\" is not a temperature such as 85F or 29C"},
            Wrong{"too_hot", "131F", {}, 2, "--temperature: \"131F\" is not between -20F and 130F"},
            Wrong{"too_cold", "-29C", {}, 2, "--temperature: \"-29C\" is not between -20F and 130F"},
            Wrong{"three_races",
                  "85F",
                  {{"race", "5 km 20:00"}, {"race", "10 km 42:00"}, {"race", "half 1:36:02"}},
                  2,
                  "heat takes one or two races."},
            Wrong{"bad_race",
                  "85F",
                  {{"race", "5 20:00"}},
                  2,
                  "--race: in \"5 20:00\", \"20:00\" is not a unit (mi, yd, km, m, marathon or half)"},
            Wrong{"useless_option",
                  "85F",
                  {{"race", "5 km 20:00"}, {"level", "80"}},
                  2,
                  "--level: heat has no use for it"},
            Wrong{"short_race",
                  "85F",
                  {{"race", "200 m 25"}},
                  1,
                  "This form does not use or predict races shorter than 400 meters, which are hardly affected by "
                  "temperature or humidity anyway."},
            Wrong{"one_distance",
                  "85F",
                  {{"race", "5 km 20:00"}, {"race", "5000 m 21:00"}},
                  1,
                  "The calculation stopped: division by zero while fitting the pace to the races in near-ideal "
                  "weather."}),
        byName);
}
