#include "model/model_state.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "model/arithmetic.h"
#include "model/units.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"

namespace
{
    TEST(ModelState, HasItsDefaults)
    {
        const ModelState state;
        EXPECT_EQ(state.runner.runnerName, "Joe Runner");
        EXPECT_EQ(state.runner.sex, 'm');
        EXPECT_EQ(state.runner.weeklyMiles, 20);
        EXPECT_EQ(state.runner.weightKg, 72.7);
        EXPECT_EQ(state.runner.heightCm, 178);
        EXPECT_EQ(state.runner.bodyDrag, 60);
        EXPECT_EQ(state.curve.aerobicPower, 0);
        EXPECT_EQ(state.curve.startDelay, 3);
        EXPECT_EQ(state.curve.piValue, 3.1415926);
        EXPECT_EQ(state.results.levelIndex, 0);
        EXPECT_EQ(state.flags.graphScale, 4);
        EXPECT_EQ(state.flags.unitsMode, 'm');
        EXPECT_EQ(state.flags.tableMode, 0);
        EXPECT_EQ(state.races.rowTime.size, 5);
        EXPECT_EQ(state.table.tableDist.size, 24);
    }

    TEST(ModelState, ResetsItsCurveConstants)
    {
        ModelState state;
        state.curve = {.aerobicPower = 800,
                       .startDelay = 4,
                       .anaerobicExp = 0.5,
                       .humpCentre = 1,
                       .humpDepth = 2,
                       .humpWidth = 3,
                       .piValue = 3};
        resetCurveConstants(state);
        EXPECT_EQ(state.curve.anaerobicExp, 0.65);
        EXPECT_EQ(state.curve.humpCentre, 360);
        EXPECT_EQ(state.curve.humpDepth, -0.02);
        EXPECT_EQ(state.curve.humpWidth, 1.15);
        EXPECT_EQ(state.curve.aerobicPower, 800);
        EXPECT_EQ(state.curve.startDelay, 4);
        EXPECT_EQ(state.curve.piValue, 3);
    }

    TEST(Units, AreThoseOfTheSystem)
    {
        EXPECT_EQ(metresPerMile, 5280 * 0.3048);
        EXPECT_EQ(1760 * metresPerYard, 1609.344);
        EXPECT_EQ(kilogramsPerPound, 0.45359237);
        EXPECT_EQ(centimetresPerInch, 2.54);
        EXPECT_EQ(marathonMetres, 42195);
        EXPECT_EQ(2 * halfMarathonMetres, marathonMetres);
        EXPECT_EQ(roundHalfEven(20 * displayKilometresPerMile), 32);
    }

    struct DragCase
    {
        std::string name;
        double weightKg, heightCm, bodyDrag;

        friend std::ostream& operator<<(std::ostream& out, const DragCase& row) { return out << row.name; }
    };

    class BodyDrag : public testing::TestWithParam<DragCase>
    {};

    TEST_P(BodyDrag, FollowsWeightAndHeight)
    {
        EXPECT_TRUE(closeTo(bodyDragOf(GetParam().weightKg, GetParam().heightCm), GetParam().bodyDrag));
    }

    // Sixteen times the weight doubles the figure, a sixteenth of the height does so too.
    INSTANTIATE_TEST_SUITE_P(ByHand, BodyDrag,
                             testing::Values(DragCase{"standard", 72.7, 178, 60},
                                             DragCase{"sixteen_times_as_heavy", 72.7 * 16, 178, 120},
                                             DragCase{"a_sixteenth_as_tall", 72.7, 178 / 16.0, 120},
                                             DragCase{"both_alike", 72.7 / 2, 89, 60},
                                             DragCase{"light", 50, 165, 55.685761536399234}),
                             byName);

    TEST(BodyDrag, OfTheStandardRunnerIsExactlySixty)
    {
        EXPECT_EQ(bodyDragOf(72.7, 178), 60);
    }

    TEST(BodyDrag, FaultsWithoutAHeight)
    {
        EXPECT_EQ(faultOf([] { (void)bodyDragOf(72.7, 0); }), "division by zero");
        EXPECT_EQ(faultOf([] { (void)bodyDragOf(-1, 178); }), "a power without a real value");
    }

    struct MilesCase
    {
        double miles, man;

        friend std::ostream& operator<<(std::ostream& out, const MilesCase& row) { return out << row.miles; }
    };

    class FatigueCoef : public testing::TestWithParam<MilesCase>
    {};

    TEST_P(FatigueCoef, FollowsTheMiles)
    {
        EXPECT_TRUE(closeTo(fatigueCoefOf(GetParam().miles, false), GetParam().man));
        EXPECT_TRUE(closeTo(fatigueCoefOf(GetParam().miles, true), GetParam().man - 0.022));
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, FatigueCoef,
                             testing::Values(MilesCase{0, 0.40108842979943704}, MilesCase{1, 0.3714913837529944},
                                             MilesCase{20, 0.14564314245873303}, MilesCase{30, 0.10917293463433267},
                                             MilesCase{50, 0.07346481728057509}, MilesCase{150, 0.029461174217531833}));

    TEST(AgeDistanceTerm, CountsFromEighteen)
    {
        EXPECT_EQ(ageDistanceTermOf(18), 0);
        EXPECT_TRUE(closeTo(ageDistanceTermOf(40), 22 * 4.69041575982343 / 24));
        EXPECT_TRUE(closeTo(ageDistanceTermOf(34), 64 / 24.0));
        EXPECT_TRUE(closeTo(ageDistanceTermOf(2), 64 / 24.0));
        EXPECT_TRUE(closeTo(ageDistanceTermOf(0), 18 * 4.242640687119285 / 24));
    }

    struct HeartCase
    {
        double age, man;

        friend std::ostream& operator<<(std::ostream& out, const HeartCase& row) { return out << row.age; }
    };

    class EstimateMaxHr : public testing::TestWithParam<HeartCase>
    {};

    TEST_P(EstimateMaxHr, FollowsAge)
    {
        EXPECT_TRUE(closeTo(estimateMaxHr(GetParam().age, 0), GetParam().man));
        EXPECT_TRUE(closeTo(estimateMaxHr(GetParam().age, 1), GetParam().man - 3));
        EXPECT_EQ(estimateMaxHr(GetParam().age, 2), estimateMaxHr(GetParam().age, 0));
    }

    // 1 + 0.6 * (191.5 - 0.007 * age ^ 2) + 0.4 * (208 - 0.7 * age)
    INSTANTIATE_TEST_SUITE_P(ByHand, EstimateMaxHr,
                             testing::Values(HeartCase{0, 199.1}, HeartCase{20, 191.82}, HeartCase{40, 181.18},
                                             HeartCase{75.5, 154.01895}, HeartCase{-10, 201.48}));
}
