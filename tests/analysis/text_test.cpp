// The analysis text and the full report. Each file of tests/analysis/golden holds what is said of a runner, a line an
// entry, an empty line, and the analysis and the report as they are printed.

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "analysed_runner.h"
#include "analysis/full_report.h"
#include "console/runner_report.h"
#include "support/comma_locale.h"
#include "support/faults.h"
#include "support/scratch_folder.h"

namespace
{
    namespace fs = std::filesystem;

    const fs::path folder = fs::path(VANTELOS_SOURCE_DIR) / "tests" / "analysis" / "golden";

    std::vector<std::string> goldenNames()
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".txt")
                names.push_back(entry.path().stem().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    void append(std::string& text, const RunnerReport& report)
    {
        for (const std::string& line : report.lines)
            text += line + '\n';
        if (!report.fault.empty())
            text += report.fault + '\n';
    }

    /// What stands above the empty line, and what is printed for it.
    std::string received(const std::string& golden)
    {
        std::istringstream lines(golden);
        std::string text;
        RunnerEntries entries;
        for (std::string line; std::getline(lines, line);)
        {
            text += line + '\n';
            if (line.empty())
                break;
            const std::size_t blank = line.find(' ');
            if (const auto wrong = setEntry(entries, line.substr(0, blank), line.substr(blank + 1)))
                throw std::runtime_error(*wrong);
        }
        append(text, reportOn(entries, ReportKind::analysis, 10));
        append(text, reportOn(entries, ReportKind::full, 10));
        return text;
    }

    class GoldenReport : public testing::TestWithParam<std::string>
    {};

    TEST_P(GoldenReport, IsPrinted)
    {
        const fs::path path = folder / (GetParam() + ".txt");
        const fs::path receivedPath = path.string() + ".received";
        const std::string expected = readBytes(path);
        const std::string got = received(expected);
        if (got == expected)
            fs::remove(receivedPath);
        else
            writeBytes(receivedPath, got);
        EXPECT_EQ(got, expected);
    }

    TEST_P(GoldenReport, IsPrintedTheSameInACommaLocale)
    {
        const std::string expected = readBytes(folder / (GetParam() + ".txt"));
        const CommaLocale commas;
        EXPECT_EQ(received(expected), expected);
    }

    INSTANTIATE_TEST_SUITE_P(InFiles, GoldenReport, testing::ValuesIn(goldenNames()),
                             [](const auto& name) { return name.param; });

    /// The analysis text of round numbers.
    ModelState roundNumbers()
    {
        ModelState state;
        state.runner.weeklyMiles = 30;
        Training& t = state.training;
        t.aerobicTrainSpeed = 4;
        t.aerobicSpeedLow = 2.5;
        t.aerobicSpeedHigh = 5;
        t.thresholdSpeed = 5;
        t.thresholdSpeedLow = 4;
        t.thresholdSpeedHigh = 6.25;
        t.vo2maxSpeed = 4;
        t.intervalSpeed = 5;
        t.aerobicHr = 135.5;   // a tie, to even
        t.aerobicHrLow = 124.5;
        t.aerobicHrHigh = 147.4;
        t.thresholdHr = 163.6;
        t.thresholdHrLow = 160;
        t.thresholdHrHigh = 169;
        t.vo2max = -3.2;
        t.repFastTime = 70;
        t.repSlowTime = 74.5;
        return state;
    }

    std::vector<std::string> linesOf(const ModelState& state, ReportMode mode,
                                     Specialty specialty = {0.4249, "a band", -0.3, " is near"})
    {
        TextPage page;
        printAnalysis(state, specialty, mode, page);
        return page.lines;
    }

    TEST(AnalysisText, OfRoundNumbers)
    {
        const std::vector<std::string> lines = linesOf(roundNumbers(), ReportMode::screen);
        ASSERT_EQ(lines.size(), 22U);
        EXPECT_EQ(lines[0], " TRAINING AND SPECIALIZATION ANALYSIS:");
        EXPECT_EQ(lines[1], "");
        EXPECT_EQ(lines[2],
                  " Fully aerobic training pace =  6:42  ( range 10:44 to 5:22 ) min/mi =  4:10  ( range 6:40 to "
                  "3:20 ) min/km.");
        EXPECT_EQ(lines[3], " Associated heart rate =  136  ( range 124 - 147 )");
        EXPECT_EQ(lines[5],
                  " Anaerobic threshhold pace =  5:22  ( range 6:42 to 4:17 ) min/mi =  3:20  ( range 4:10 to "
                  "2:40 ) min/km.");
        EXPECT_EQ(lines[6], " Associated heart rate =  164  ( range  160 - 169 )");
        EXPECT_EQ(lines[8], " Estimated VO2 max =  -3  ml/kg/min, with VO2 max pace =  6:42  min/mi =  4:10  min/km =  "
                            "1:40 min/400 m.");
        EXPECT_EQ(lines[9],
                  " Pace for efforts of 3-5 minutes should be between this and  5:22  min/mi =  3:20  min/km =  "
                  "80 sec/400 m.");
        EXPECT_EQ(lines[11], " 400 meter repetitions with good recovery should be 70 to 74 seconds each.");
        EXPECT_EQ(lines[13],
                  " Best performances likely with race distances a band  (peak at  .42  km).  Performance level "
                  "and specialty");
        EXPECT_EQ(lines[14],
                  " typically associated with training level of about 0 miles ( 0 km) per week.  Considering "
                  "input training volume");
        EXPECT_EQ(lines[15],
                  " of  30  miles per week, this suggests that this runner's potentially best distance is near "
                  "this value.");
        EXPECT_EQ(lines[16], "");
        EXPECT_EQ(lines[21], " red line.  Appropriate paces for 400 meter repeats (with ample rest) are between the "
                             "purple lines.");
    }

    TEST(AnalysisText, OfTheReportBeginsWithABlankLineAndSaysAbout)
    {
        const std::vector<std::string> lines = linesOf(roundNumbers(), ReportMode::fullReport);
        ASSERT_EQ(lines.size(), 18U);
        EXPECT_EQ(lines.front(), "");
        EXPECT_EQ(lines[1], " TRAINING AND SPECIALIZATION ANALYSIS:");
        EXPECT_EQ(lines[12], " 400 meter repetitions with good recovery should be about 70 to 74 seconds each.");
        EXPECT_EQ(lines.back(), "");
    }

    TEST(AnalysisText, TurnsToMinutesAt99AndAHalfSeconds)
    {
        ModelState state = roundNumbers();
        state.training.vo2maxSpeed = std::nextafter(400 / 99.5, 0);
        ASSERT_NEAR(400 / state.training.vo2maxSpeed, 99.5, 1e-12);
        ASSERT_GE(400 / state.training.vo2maxSpeed, 99.5);
        EXPECT_NE(linesOf(state, ReportMode::screen)[8].find(" min/km =  1:40 min/400 m."), std::string::npos);
        state.training.vo2maxSpeed = 400 / 99.49;
        EXPECT_NE(linesOf(state, ReportMode::screen)[8].find(" min/km =  99 sec/400 m."), std::string::npos);
    }

    TEST(AnalysisText, ShowsASpeedAHairBelowZeroAsNoTime)
    {
        ModelState state = roundNumbers();
        state.training.aerobicSpeedLow = -0.0004;
        EXPECT_NE(linesOf(state, ReportMode::screen)[2].find(" ( range 0.0 to 5:22 ) min/mi"), std::string::npos);
        state.training.aerobicSpeedLow = 0;
        TextPage page;
        EXPECT_EQ(faultOf([&] { printAnalysis(state, {}, ReportMode::screen, page); }), "division by zero");
        EXPECT_EQ(page.lines.size(), 3U) << "what was printed before stays";
    }

    struct UnitCase
    {
        RaceUnit unit;
        const char* words;
    };

    TEST(FullReport, NamesEachRaceByItsUnit)
    {
        const UnitCase units[] = {{RaceUnit::miles, "3 x mi"},       {RaceUnit::yards, "3 x yd"},
                                  {RaceUnit::kilometers, "3 x km"},  {RaceUnit::meters, "3 x m"},
                                  {RaceUnit::marathon, " marathon"}, {RaceUnit::halfMarathon, " half marathon"}};
        for (const UnitCase& row : units)
        {
            ModelState state = stateOfRunner("tenK");
            ReportEntries entries;
            entries.input.rows[3] = {true, "1h", "2", "3.4", "3 x", row.unit};
            TextPage page;
            (void)printFullReport(state, entries, page);
            EXPECT_EQ(page.lines[5], std::string("      1:02:03   for ") + row.words);
            EXPECT_EQ(page.lines[6], "");
        }
    }

    TEST(FullReport, SaysWhomItComparesWith)
    {
        ModelState state = stateOfRunner("tenK");
        state.flags.ageCompareOn = 1;   // as a calculation leaves it
        state.runner.age = 40.5;
        ReportEntries entries{"Jo", "forty", "30", "48", "99.9", {}};
        entries.input.sex = SexChoice::female;   // by the option at report time, not by the curve
        entries.input.fit = FitMode::bestTwo;
        TextPage first;
        (void)printFullReport(state, entries, first);
        EXPECT_EQ(first.lines[0], "VANTELOS full report on Jo (forty year old female):");
        EXPECT_EQ(first.lines[2], "Weekly training distance = 30 miles = 48 km.");
        EXPECT_EQ(first.lines[6], "Fitting best two races.");
        EXPECT_EQ(first.lines[7], "Comparing to performance level 99.9    Age =  40.5");
        TextPage second;   // the first report has compared with open records
        entries.input.fit = FitMode::allData;
        entries.input.sex = SexChoice::male;
        (void)printFullReport(state, entries, second);
        EXPECT_EQ(second.lines[0], "VANTELOS full report on Jo (forty year old male):");
        EXPECT_EQ(second.lines[6], "Using age, sex, and training data in addition to races.");
        EXPECT_EQ(second.lines[7], "Comparing to performance level 99.9    Age = open class");
    }

    TEST(FullReport, KeepsItsRowsUpToAFault)
    {
        ModelState state = stateOfRunner("tenK");
        ReportEntries entries;
        entries.input.comparisonLevel = 0;
        TextPage page;
        EXPECT_EQ(faultOf([&] { (void)printFullReport(state, entries, page); }), "division by zero");
        EXPECT_EQ(page.lines.back(), "");
        EXPECT_EQ(page.lines[page.lines.size() - 2],
                  "   Distance       Time    Per mile   Per km    Per 400   Record   % Spd  P.Level");
        EXPECT_EQ(state.activity, "rating the time over 91.44 m");
    }

    TEST(FullReport, LeavesTheSpeedRatioOfItsRows)
    {
        ModelState state = stateOfRunner("tenK");
        const double ratio = state.results.speedRatio;
        state.results.speedRatio = 0;
        TextPage page;
        (void)printFullReport(state, {}, page);
        EXPECT_EQ(state.results.speedRatio, ratio);
    }
}
