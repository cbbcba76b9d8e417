#include "console/effort_command.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    struct Ran
    {
        int status;
        std::string out, errors;

        [[nodiscard]] double number(const char* key) const { return nlohmann::json::parse(out).at(key).get<double>(); }
    };

    template <class Command>
    Ran ran(Command command, const EffortOptions& options)
    {
        std::ostringstream out;
        std::ostringstream errors;
        const int status = command(options, out, errors);
        return {status, out.str(), errors.str()};
    }

    TEST(Incline, OnATreadmillSaysWhatItsTableSays)
    {
        const Ran text = ran(convertIncline, {.grade = "3%", .pace = "6:40/mi", .treadmill = "outdoors"});
        EXPECT_EQ(text.status, 0);
        EXPECT_EQ(text.out, "                                              mph    km/h   per mile     per km\n"
                            "The speed as given                           9.00   14.48    6:40       4:09  \n"
                            "On the level, as hard as it on the grade     9.79   15.76    6:08       3:48  \n"
                            "On the grade, as hard as it on the level     8.19   13.18    7:20       4:33  \n");
        const Ran indoors =
            ran(convertIncline, {.grade = "0.03", .speed = "9mph", .treadmill = "indoors", .json = true});
        EXPECT_TRUE(closeTo(indoors.number("levelSpeed"), 4.5269294709854275));
        EXPECT_TRUE(closeTo(indoors.number("slopeSpeed"), 3.548315273904662));
        EXPECT_TRUE(closeTo(indoors.number("speed"), 4.02336));
        EXPECT_EQ(indoors.number("grade"), 0.03);
    }

    TEST(Incline, OutdoorsTakesTheGradeAlongTheSurface)
    {
        EffortOptions options{.grade = "6%", .pace = "7:00/mi", .json = true};
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("slopeSpeed"), 2.9804168142139402));
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("levelSpeed"), 4.775152866448541));
        options.grade = "-6%";
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("slopeSpeed"), 4.575785810239228));
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("levelSpeed"), 3.0992864372041002));
    }

    TEST(Incline, MarchesTheWayThatAWindPushes)
    {
        EffortOptions options{.speed = "4m/s", .wind = 6, .json = true};
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("levelSpeed"), 4.549964785173841));
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("slopeSpeed"), 3.519387687587733));
        options.wind = -6;
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("levelSpeed"), 3.8634506661289905));
        EXPECT_TRUE(closeTo(ran(convertIncline, options).number("slopeSpeed"), 4.14425879396843));
        options.treadmill = "outdoors";
        const double without =
            ran(convertIncline, {.speed = "4m/s", .treadmill = "outdoors", .json = true}).number("levelSpeed");
        EXPECT_EQ(ran(convertIncline, options).number("levelSpeed"), without) << "not felt on a treadmill";
    }

    /// Net power at 72.7 kg and a height of 178 cm, worked out by the test itself.
    double effortOf(double v, double g, double air, double wind)
    {
        if (v <= 0)
            return 0;
        const double efficiency = g > 0
                                      ? 0.21 + 0.46 * std::pow(g, 0.88) - 0.51 * std::pow(std::max(g - 0.106, 0.0), 0.8)
                                      : 0.21 * std::exp(4 * g);
        const double past = v + wind;
        return 72.7 / 68.2 *
               (35 * std::pow(v, 1.36) / efficiency + 668.36 * air * past * std::abs(past) / 3600 * v / 0.27 +
                668.36 * v * g / 0.275);
    }

    struct Marched
    {
        const char* name;
        const char* grade;
        const char* treadmill;
        double wind, surfaceGrade;
        double levelSpeed;   // for 4 m/s, shown to three decimals

        friend std::ostream& operator<<(std::ostream& out, const Marched& row) { return out << row.name; }
    };

    class MarchedLevelSpeed : public testing::TestWithParam<Marched>
    {};

    /// The level speed of equal effort by halving an interval; then the chord between the march's points about it.
    TEST_P(MarchedLevelSpeed, LiesOnTheChordAboutTheLevelSpeed)
    {
        const Marched& row = GetParam();
        const std::string place = row.treadmill;
        const double levelAir = place == "indoors" ? 0 : 1;
        const double target = effortOf(4, row.surfaceGrade, place.empty() ? 1 : 0, place.empty() ? row.wind : 0);
        double low = 0;
        double high = 20;
        for (int i = 0; i < 100; ++i)
            (effortOf((low + high) / 2, 0, levelAir, 0) < target ? low : high) = (low + high) / 2;
        const double start = place.empty() ? 4 : 3.5;
        const double before = start + 0.05 * std::floor((low - start) / 0.05);
        const double p0 = effortOf(before, 0, levelAir, 0);
        const double p1 = effortOf(before + 0.05, 0, levelAir, 0);
        const double expected = before + 0.05 * (target - p0) / (p1 - p0);
        EXPECT_NEAR(expected, row.levelSpeed, 0.0005);
        EXPECT_NEAR(expected, low, 1e-4) << "a chord of one step hardly leaves its curve";
        const Ran run =
            ran(convertIncline,
                {.grade = row.grade, .speed = "4m/s", .treadmill = row.treadmill, .wind = row.wind, .json = true});
        EXPECT_TRUE(closeTo(run.number("levelSpeed"), expected));
    }

    // Downhill can be harder than level: where it is very steep, in a head wind, and indoors as seen from the start of
    // the march, which is 3.5 m/s.
    INSTANTIATE_TEST_SUITE_P(
        BothWays, MarchedLevelSpeed,
        testing::Values(Marched{"cliff", "-40%", "", 0, -0.4, 5.046},
                        Marched{"against_a_gale", "-2%", "", 8, -0.02, 4.591},
                        Marched{"against_the_wind", "-1%", "", 6, -0.01, 4.428},
                        Marched{"treadmill_a_hair_down", "-0.1%", "outdoors", 0, std::sin(std::atan(-0.001)), 3.878},
                        Marched{"treadmill_down", "-1%", "indoors", 0, std::sin(std::atan(-0.01)), 3.859},
                        Marched{"downhill", "-6%", "", 0, -0.06, 3.264}, Marched{"uphill", "1%", "", 0, 0.01, 4.139},
                        Marched{"treadmill_steeply_down", "-20%", "outdoors", 0, std::sin(std::atan(-0.2)), 2.217},
                        Marched{"treadmill_very_steeply_down", "-30%", "indoors", 0, std::sin(std::atan(-0.3)), 2.789}),
        byName);

    TEST(Power, TellsWhatTheTableTells)
    {
        const Ran text = ran(tellPower, {.pace = "6:40/mi"});
        EXPECT_EQ(text.status, 0);
        EXPECT_EQ(text.out, "Net power output, W                261\n"
                            "Gross power used, W               1313\n"
                            "Net power used, W                 1228\n"
                            "Gross power used, kcal/hour       1130\n"
                            "Net power used, kcal/hour         1056\n"
                            "Gross power used, kJ/hour         4726\n"
                            "Net power used, kJ/hour           4419\n"
                            "Metabolic equivalent, MET         15.5\n"
                            "Oxygen, ml/kg/min                 54.4\n"
                            "Gross energy cost, kcal/mile       126\n"
                            "Net energy cost, kcal/mile         117\n"
                            "Gross energy cost, kJ/km           326\n"
                            "Net energy cost, kJ/km             305\n");
    }

    TEST(Power, TellsTheSameInJson)
    {
        const Ran json = ran(tellPower, {.grade = "0", .speed = "5m/s", .kgWeight = 68.2, .json = true});
        // a lighter body of the same height feels more air
        EXPECT_NEAR(json.number("grossPower"), 1653, 5);
        EXPECT_TRUE(closeTo(json.number("grossPower") - json.number("netPower"), 80));
        EXPECT_TRUE(closeTo(json.number("oxygen"), 3.5 * json.number("mets")));
        EXPECT_TRUE(closeTo(json.number("grossKjPerHour"), 4.184 * json.number("grossKcalPerHour")));
        EXPECT_TRUE(closeTo(json.number("netKjPerKm"), 4.184 * json.number("netKcalPerMile") / 1.609344));
        const Ran indoors = ran(tellPower, {.speed = "5m/s", .indoors = true, .kgWeight = 68.2, .json = true});
        EXPECT_NEAR(indoors.number("netPower"), 1487, 0.5);
    }

    TEST(Effort, RefusesWhatItCannotRead)
    {
        struct Case
        {
            EffortOptions options;
            const char* error;
        };
        for (const Case& row :
             {Case{{}, "Give either --pace or --speed.\n"},
              Case{{.pace = "6:40/mi", .speed = "9mph"}, "Give either --pace or --speed.\n"},
              Case{{.grade = "up", .speed = "9mph"}, "\"up\" is not a grade (3% or 0.03)\n"},
              Case{{.speed = "9"}, "\"9\" is not a speed (a number above 0 and mph, km/h or m/s)\n"},
              Case{{.pace = "9"}, "\"9\" is not a pace (a time above 0, such as 6:40, and /mi or /km)\n"}})
        {
            for (const auto command : {convertIncline, tellPower})
            {
                const Ran run = ran(command, row.options);
                EXPECT_EQ(run.status, 2);
                EXPECT_EQ(run.out, "");
                EXPECT_EQ(run.errors, row.error);
            }
        }
    }

    TEST(Effort, TellsWhereThereIsNone)
    {
        const Ran power = ran(tellPower, {.grade = "-1000", .speed = "9mph"});
        EXPECT_EQ(power.status, 1);
        EXPECT_EQ(power.out, "");
        EXPECT_EQ(power.errors, "The calculation stopped: division by zero while working out power and energy.\n");
        const Ran endless = ran(convertIncline, {.grade = "1e15", .speed = "1000m/s", .limitSeconds = 0.001});
        EXPECT_EQ(endless.status, 1);
        EXPECT_NE(endless.errors.find("took too long"), std::string::npos) << endless.errors;
    }
}
