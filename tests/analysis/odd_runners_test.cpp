// Odd entries on the analysis form: each analysis ends or faults in plain words, and the form goes on.

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "console/runner_report.h"
#include "open_analysis.h"
#include "support/case_name.h"

namespace
{
    constexpr const char* noEnd =
        "The calculation stopped: a search that cannot end, because no speed reaches the heart "
        "rate while searching the fast end of the aerobic zone.";
    constexpr const char* noLevel =
        "The calculation stopped: a power without a real value while searching the distance "
        "at which the level peaks.";

    /// Entries in place of the usual ones, and what the analysis then says.
    struct OddRunner
    {
        std::string name;
        const char* age = "40";
        int miles = 30;
        const char *maxHr = "185", *restHr = "50";
        bool ageCompare = false;
        const char* fault = "";                           // of the analysis
        const char *pace = "", *rates = "", *peak = "";   // within the third, seventh and fourteenth line
    };

    std::ostream& operator<<(std::ostream& out, const OddRunner& row)
    {
        return out << row.name;
    }

    const std::vector<std::string>& usualLines()
    {
        static const std::vector<std::string> lines = [] {
            OpenAnalysis program;
            program.person.click("Command3");
            return program.lines();
        }();
        return lines;
    }

    class OddRunners : public testing::TestWithParam<OddRunner>
    {
    protected:
        OddRunners()
        {
            const OddRunner& odd = GetParam();
            program.person.type("txtage", odd.age);
            program.person.slide("HScroll1", odd.miles);
            program.person.type("actmhrtx", odd.maxHr);
            program.person.type("resthrtx", odd.restHr);
            if (odd.ageCompare)
                program.person.click("agecomp");
            program.person.click("Command1");
            program.outside.forget();
            program.person.click("Command3");
        }

        void makeUsual()
        {
            program.person.type("txtage", "40");
            program.person.slide("HScroll1", 30);
            program.person.type("actmhrtx", "185");
            program.person.type("resthrtx", "50");
            if (GetParam().ageCompare)
                program.person.click("agecomp");
            program.person.click("Command1");
            program.outside.forget();
            program.person.click("Command3");
        }

        OpenAnalysis program;
    };

    TEST_P(OddRunners, AreAnalysedOrFaultInPlainWords)
    {
        const OddRunner& odd = GetParam();
        if (std::string(odd.fault).empty())
        {
            EXPECT_TRUE(program.outside.events.empty());
            ASSERT_EQ(program.lines().size(), 22U);
            EXPECT_NE(program.lines()[2].find(odd.pace), std::string::npos) << program.lines()[2];
            EXPECT_NE(program.lines()[6].find(odd.rates), std::string::npos) << program.lines()[6];
            EXPECT_NE(program.lines()[13].find(odd.peak), std::string::npos) << program.lines()[13];
            EXPECT_FALSE(program.pic().primitives.empty());
            return;
        }
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.outside.faults[0].text, odd.fault);
        EXPECT_EQ(program.outside.faults[0].where, "vantstart.Command3");
        EXPECT_TRUE(program.lines().empty());
        EXPECT_TRUE(program.pic().primitives.empty());
    }

    TEST_P(OddRunners, LeaveTheFormUsable)
    {
        makeUsual();
        EXPECT_TRUE(program.outside.events.empty());
        EXPECT_EQ(program.lines(), usualLines());
        EXPECT_EQ(shapesOf<PointPrimitive>(program.pic()).size(), 2251U);
        program.person.click("pfull");
        EXPECT_EQ(program.outside.events, std::vector<std::string>{"print: 60 lines"});
    }

    // Without age comparison a man of 120 stops the calculation where it works out the level for his age, which leaves
    // that comparison on: the analysis stops by it.
    INSTANTIATE_TEST_SUITE_P(
        OfASecondComputation, OddRunners,
        testing::Values(OddRunner{.name = "maximum_1", .maxHr = "1", .fault = noEnd},
                        OddRunner{.name = "maximum_1000",
                                  .maxHr = "1000",
                                  .pace = "( range 8:26 to 7:37 )",
                                  .rates = "=  881  ( range  856 - 905 )",
                                  .peak = "(peak at  8.98  km)"},
                        OddRunner{.name = "rest_above_maximum",
                                  .maxHr = "150",
                                  .restHr = "170",
                                  .pace = "( range 8:47 to 7:27 )",
                                  .rates = "=  143  ( range  141 - 141 )",
                                  .peak = "(peak at  8.98  km)"},
                        OddRunner{.name = "rest_190",
                                  .restHr = "190",
                                  .pace = "( range 8:50 to 7:25 )",
                                  .rates = "=  171  ( range  167 - 174 )",
                                  .peak = "(peak at  8.98  km)"},
                        OddRunner{.name = "age_0",
                                  .age = "0",
                                  .pace = "( range 9:05 to 7:11 )",
                                  .rates = "=  166  ( range  161 - 170 )",
                                  .peak = "(peak at  9.06  km)"},
                        OddRunner{.name = "age_0_compared", .age = "0", .ageCompare = true, .fault = noLevel},
                        OddRunner{.name = "age_120", .age = "120", .fault = noLevel},
                        OddRunner{.name = "no_miles",
                                  .miles = 0,
                                  .pace = "( range 9:08 to 7:32 )",
                                  .rates = "=  163  ( range  158 - 167 )",
                                  .peak = "(peak at  .15  km)"},
                        OddRunner{.name = "most_miles",
                                  .miles = 150,
                                  .pace = "( range 8:24 to 7:15 )",
                                  .rates = "=  166  ( range  161 - 170 )",
                                  .peak = "(peak at  19.29  km)"}),
        byName);

    /// Above the record by far: the scale of the speeds holds more samples than are kept.
    TEST(TooFast, HasTextReadOutAndReportWithoutAWholeGraph)
    {
        constexpr const char* stopped =
            "The calculation stopped: an index out of range while drawing the heart rate graph.";
        OpenAnalysis program;
        program.run({"", "2", "30", "1500", 4});
        program.person.click("Command3");
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.outside.faults[0].text, stopped);
        ASSERT_EQ(program.lines().size(), 22U);
        EXPECT_NE(program.lines()[13].find("600 - 1500 m  (peak at  1.05  km)"), std::string::npos);
        const HeartRateSamples& samples = program.program.state.heartRateSamples;
        ASSERT_EQ(samples.curveX.size(), 4501U);
        const auto read = [&](double x, const char* label) {
            enter(program.program, "anaform.pic", false, [&] { program.pic().moved({x, 0}); });
            return program.control<Label>("anaform", label).caption;
        };
        EXPECT_EQ(read(samples.curveX[1000], "mpslbl"), "  3.50 m/s");
        EXPECT_EQ(read(samples.curveX[4500], "mpslbl"), " 10.50 m/s");
        EXPECT_EQ(read(8600, "mpslbl"), "  1.50 m/s") << "right of the plot";
        EXPECT_EQ(program.outside.faults.size(), 1U);
        program.outside.forget();
        program.person.click("pfull");
        EXPECT_EQ(program.outside.events,
                  (std::vector<std::string>{"print: 60 lines", "fault: " + std::string(stopped)}));
        program.run({"", "40", "", "10", 3});
        program.person.click("Command3");
        program.person.click("pfull");
        EXPECT_EQ(program.outside.events, std::vector<std::string>{"print: 60 lines"});
        EXPECT_EQ(program.lines(), usualLines());
    }

    /// A runner with age comparison.
    struct Veteran
    {
        std::string name;
        const char *sex, *age;
        int miles;
        Person::Race race;
        const char* peak;   // as it is printed; empty where the search faults
    };

    std::ostream& operator<<(std::ostream& out, const Veteran& row)
    {
        return out << row.name;
    }

    class Veterans : public testing::TestWithParam<Veteran>
    {};

    TEST_P(Veterans, ArePlacedAsFarAsTheAgeTablesGo)
    {
        const Veteran& veteran = GetParam();
        AnalysisProgram program;   // where no calculation has left an age-curve index
        program.person.type("actmhrtx", "150");
        program.person.type("resthrtx", "60");
        program.person.click("Option9");
        program.person.click("Option8");
        program.person.click(veteran.sex);
        program.person.type("txtage", veteran.age);
        program.person.slide("HScroll1", veteran.miles);
        program.person.click("agecomp");
        program.run(veteran.race);
        program.person.click("Command3");
        if (std::string(veteran.peak).empty())
        {
            ASSERT_EQ(program.outside.faults.size(), 1U);
            EXPECT_EQ(program.outside.faults[0].text, noLevel);
            return;
        }
        EXPECT_TRUE(program.outside.events.empty());
        ASSERT_EQ(program.lines().size(), 22U);
        EXPECT_NE(program.lines()[13].find("(peak at  " + std::string(veteran.peak) + "  km)"), std::string::npos)
            << program.lines()[13];
    }

    constexpr Person::Race hour{"", "60", "", "10", 3};   // 10 km
    constexpr Person::Race marathon{"4", "30", "", "", 5};

    // At high ages the age factor has no real value far beyond 30 km, and somewhat below that age the walk ends on its
    // first step beyond 250 km, which places the turn far off.
    INSTANTIATE_TEST_SUITE_P(OfASecondComputation, Veterans,
                             testing::Values(Veteran{"man_of_86", "optmale", "86", 30, hour, "16.3"},
                                             Veteran{"man_of_88", "optmale", "88", 30, hour, "-554.86"},
                                             Veteran{"man_of_89", "optmale", "89", 30, hour, ""},
                                             Veteran{"man_of_95", "optmale", "95", 30, hour, ""},
                                             Veteran{"woman_of_83", "optfemale", "83", 30, hour, "79.99"},
                                             Veteran{"woman_of_84", "optfemale", "84", 30, hour, ""},
                                             Veteran{"marathon_man_of_78", "optmale", "78", 100, marathon, "124.88"},
                                             Veteran{"marathon_man_of_79", "optmale", "79", 100, marathon, "-121.57"},
                                             Veteran{"marathon_man_of_80", "optmale", "80", 100, marathon, ""},
                                             Veteran{"marathon_man_of_89", "optmale", "89", 100, marathon, ""},
                                             Veteran{"marathon_woman_of_84", "optfemale", "84", 100, marathon, ""}),
                             byName);

    TEST(Anaform, WithEnglishOutputAndAgeComparisonSaysWhatTheConsoleSays)
    {
        AnalysisProgram program;
        program.person.type("txtage", "12");
        program.person.slide("HScroll1", 5);
        program.person.type("actmhrtx", "185");
        program.person.type("resthrtx", "50");
        program.person.click("agecomp");
        program.person.click("Option10");
        program.run({"", "1", "22.6", "400", 4});
        program.person.click("Command3");
        RunnerEntries entries;
        for (const auto& [key, text] : std::vector<std::pair<std::string, std::string>>{{"race", "400 m 1:22.6"},
                                                                                        {"age", "12"},
                                                                                        {"miles", "5"},
                                                                                        {"max-hr", "185"},
                                                                                        {"rest-hr", "50"},
                                                                                        {"age-compare", "yes"},
                                                                                        {"english", "yes"}})
            ASSERT_FALSE(setEntry(entries, key, text)) << key;
        const RunnerReport told = reportOn(entries, ReportKind::analysis, 10);
        EXPECT_EQ(told.lines, program.lines());
        EXPECT_NE(told.lines.at(13).find("(peak at  5.16  km)"), std::string::npos) << told.lines.at(13);
    }
}
