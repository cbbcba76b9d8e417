#include "splits/split_analysis.h"

#include <cmath>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>

#include "model/race_time.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/draws.h"
#include "support/faults.h"
#include "support/planning.h"

namespace
{
    using nlohmann::json;

    /// Entries, and the result that was worked out a second time, apart from the program.
    struct AnalysisCase
    {
        std::string name;
        json data;

        friend std::ostream& operator<<(std::ostream& out, const AnalysisCase& row) { return out << row.name; }
    };

    std::vector<AnalysisCase> readCases()
    {
        std::ifstream file(VANTELOS_SOURCE_DIR "/tests/splits/data/analyses.json");
        std::vector<AnalysisCase> cases;
        for (const json& entry : json::parse(file))
            cases.push_back({entry.at("name"), entry});
        return cases;
    }

    SplitEntries entriesOf(const json& rows)
    {
        SplitEntries entries;
        for (std::size_t i = 0; i < rows.size(); ++i)
            entries.at(i) = {rows[i][0], rows[i][1], rows[i][2]};
        return entries;
    }

    SplitMethod methodOf(const std::string& word)
    {
        if (word == "1")
            return SplitMethod::method1;
        return word == "2" ? SplitMethod::method2 : SplitMethod::mix;
    }

    void takeCurve(ModelState& state, const json& curve)
    {
        state.curve.aerobicPower = curve.at("aerobicPower");
        state.curve.anaerobicEnergy = curve.at("anaerobicEnergy");
        state.curve.refDistance = curve.at("refDistance");
        state.curve.fatigueCoef = curve.at("fatigueCoef");
        state.runner.sex = curve.at("sex").get<std::string>().front();
    }

    void expectResult(const SplitAnalysis& analysis, const json& expected)
    {
        EXPECT_TRUE(closeTo(analysis.potentialTime, expected.at("potentialTime")));
        EXPECT_TRUE(closeTo(analysis.curveRatio, expected.at("curveRatio")));
        EXPECT_TRUE(closeTo(analysis.totalDistance, expected.at("totalDistance")));
        EXPECT_TRUE(closeTo(analysis.totalTime, expected.at("totalTime")));
        ASSERT_EQ(analysis.pieces.size(), expected.at("pieces").size());
        for (std::size_t i = 0; i < analysis.pieces.size(); ++i)
        {
            EXPECT_EQ(analysis.pieces[i].row, expected.at("pieces")[i][0].get<int>());
            EXPECT_TRUE(closeTo(analysis.pieces[i].metres, expected.at("pieces")[i][1]));
        }
    }

    class Analysis : public testing::TestWithParam<AnalysisCase>
    {};

    TEST_P(Analysis, LeavesItsNumbers)
    {
        const json& data = GetParam().data;
        ModelState state;
        takeCurve(state, data.at("curve"));
        Messages messages;
        std::optional<SplitAnalysis> analysis;
        const std::string fault = faultOf([&] {
            analysis = analyseSplits(state, entriesOf(data.at("rows")), data.at("unit"), methodOf(data.at("method")),
                                     messages);
        });
        EXPECT_EQ(!fault.empty(), data.contains("fault")) << fault;
        const Messages expected = data.contains("message") ? Messages{{data.at("message")}} : Messages{};
        EXPECT_EQ(messages, expected);
        ASSERT_EQ(analysis.has_value(), data.contains("potentialTime"));
        if (analysis)
            expectResult(*analysis, data);
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Analysis, testing::ValuesIn(readCases()), byName);

    /// Time and ratio of rows of a usual runner.
    SplitAnalysis analysed(const SplitEntries& entries, double unit = 1, SplitMethod method = SplitMethod::mix)
    {
        ModelState state;
        setUsualCurve(state);
        Messages messages;
        const auto analysis = analyseSplits(state, entries, unit, method, messages);
        EXPECT_TRUE(analysis.has_value());
        return analysis.value_or(SplitAnalysis{});
    }

    TEST(EvenSplits, LeaveTheTimeAsItIsByMethod1)
    {
        const SplitAnalysis analysis = analysed({{{"400", "1", "15"}, {"400", "1", "15"}}}, 1, SplitMethod::method1);
        EXPECT_TRUE(closeTo(analysis.potentialTime, 150));
    }

    TEST(OneRow, IsItsOwnBestStretch)
    {
        ModelState state;
        setUsualCurve(state);
        const SplitAnalysis analysis = analysed({{{"3000", "12", "0"}}});
        EXPECT_TRUE(closeTo(analysis.curveRatio, 720 / raceTimeAt(state, 3000)));
    }

    TEST(Trimming, TakesOnlyFilledRowsOff)
    {
        const SplitAnalysis close = analysed({{{"900", "4", "0"}, {"400", "1", "15"}, {"400", "1", "16"}}});
        const SplitAnalysis apart =
            analysed({{{}, {"900", "4", "0"}, {}, {}, {"400", "1", "15"}, {}, {"400", "1", "16"}, {}}});
        EXPECT_EQ(apart.potentialTime, close.potentialTime);
        EXPECT_EQ(apart.curveRatio, close.curveRatio);
        EXPECT_EQ(apart.pieces.back().row, 6);
    }

    TEST(AnalysisOfSplits, LeavesTheScratchDistance)
    {
        ModelState state;
        setUsualCurve(state);
        state.results.curDistance = 77;
        Messages messages;
        EXPECT_TRUE(analyseSplits(state, {{{"400", "1", "15"}}}, 1, SplitMethod::mix, messages));
        EXPECT_EQ(state.results.curDistance, 77);
    }

    SplitEntries drawnEntries(int count)
    {
        SplitEntries entries;
        for (int i = 0; i < count; ++i)
        {
            const double metres = std::round(*drawnInLogSteps(50, 5000));
            const double seconds = std::round(10 * metres / *drawnInLogSteps(2, 7)) / 10;
            entries.at(static_cast<std::size_t>(i)) = {std::to_string(metres), "", std::to_string(seconds)};
        }
        return entries;
    }

    RC_GTEST_PROP(AnalysisOfSplits, NeverComparesBetterThanTheBestRow, ())
    {
        const SplitEntries entries = drawnEntries(*rc::gen::inRange(1, 28));
        ModelState state;
        setUsualCurve(state);
        Messages messages;
        const auto analysis = analyseSplits(state, entries, 1, SplitMethod::mix, messages);
        RC_ASSERT(analysis.has_value());
        RC_ASSERT(std::isfinite(analysis->potentialTime) && analysis->potentialTime > 0);
        double best = 999;
        for (const SplitEntry& entry : entries)
            if (!entry.distance.empty())
                best = std::min(best, std::stod(entry.seconds) / raceTimeAt(state, std::stod(entry.distance)));
        RC_ASSERT(analysis->curveRatio <= best * (1 + 1e-12));
    }

    RC_GTEST_PROP(AnalysisOfSplits, DoesNotDependOnTheUnit, ())
    {
        const SplitEntries inMetres = drawnEntries(*rc::gen::inRange(1, 10));
        SplitEntries inKilometres = inMetres;
        for (SplitEntry& entry : inKilometres)
            if (!entry.distance.empty())
                entry.distance = std::to_string(std::stod(entry.distance) / 1000);
        const SplitAnalysis a = analysed(inMetres);
        const SplitAnalysis b = analysed(inKilometres, 1000);
        RC_ASSERT(std::abs(a.potentialTime - b.potentialTime) < 1e-6 * a.potentialTime);
    }
}
