#include <cmath>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "model/age_table.h"
#include "model/record_curve.h"
#include "outcome.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/table_file.h"

namespace
{
    class AgeFactor : public testing::TestWithParam<TableRow>
    {};

    TEST_P(AgeFactor, GivesItsFactor)
    {
        const TableRow& row = GetParam();
        ModelState state;
        state.results.levelIndex = row.number("levelIndex");
        expectOutcome(row, "factor", [&] {
            return ageFactor(state, row.number("age"), row.number("distance"), 1, row.letter("sex"));
        });
    }

    INSTANTIATE_TEST_SUITE_P(InFile, AgeFactor, testing::ValuesIn(readTable("model/data/age_factor.csv")), byName);

    double factorAt(double age, double distance, char sex, double levelIndex = 0)
    {
        ModelState state;
        state.results.levelIndex = levelIndex;
        return ageFactor(state, age, distance, 1, sex);
    }

    double parabola(double age, double linear, double quadratic, double constant)
    {
        return linear * age + quadratic * age * age + constant;
    }

    struct RowCase
    {
        std::string name;
        char sex;
        double age;
        AgeParabola at5, at30;

        friend std::ostream& operator<<(std::ostream& out, const RowCase& row) { return out << row.name; }
    };

    class AgeTable : public testing::TestWithParam<RowCase>
    {};

    TEST_P(AgeTable, ServesAWholeNumberedAgeByOneRow)
    {
        const auto& [name, sex, age, at5, at30] = GetParam();
        const double fiveKilometres = parabola(age, at5.linear, at5.quadratic, at5.constant);
        const double thirtyKilometres = parabola(age, at30.linear, at30.quadratic, at30.constant);
        EXPECT_TRUE(closeTo(factorAt(age, 5000, sex), 1 / std::pow(fiveKilometres, sex == 'f' ? 0.985 : 0.95)));
        EXPECT_TRUE(closeTo(factorAt(age, 30000, sex), 1 / thirtyKilometres));
    }

    // The first, a middle and the last row of each table, and the rows at whose bounds a slip would show.
    INSTANTIATE_TEST_SUITE_P(
        ByHand, AgeTable,
        testing::Values(RowCase{"man_8", 'm', 8, {0.0644, -0.00136, 0.262}, {0.0815, -0.0017, 0.045}},
                        RowCase{"man_10", 'm', 10, {0.0644, -0.00136, 0.262}, {0.0815, -0.0017, 0.045}},
                        RowCase{"man_14", 'm', 14, {0.0644, -0.00136, 0.262}, {0.0815, -0.0017, 0.045}},
                        RowCase{"man_15", 'm', 15, {0.0719, -0.00166, 0.217}, {0.084, -0.0018, 0.03}},
                        RowCase{"man_40", 'm', 40, {0.0173, -0.0003, 0.744}, {0.0143, -0.00026, 0.811}},
                        RowCase{"man_44", 'm', 44, {0.0173, -0.0003, 0.744}, {0.0143, -0.00026, 0.811}},
                        RowCase{"man_45", 'm', 45, {-0.0133, 6e-05, 1.392}, {-0.0061, -2e-05, 1.243}},
                        RowCase{"man_84", 'm', 84, {0.08, -0.0006, -1.95}, {0.0945, -0.0007, -2.475}},
                        RowCase{"man_85", 'm', 85, {0.047, -0.0004, -0.59}, {0.045, -0.0004, -0.425}},
                        RowCase{"man_95", 'm', 95, {0.047, -0.0004, -0.59}, {0.045, -0.0004, -0.425}},
                        RowCase{"woman_8", 'f', 8, {0.0765, -0.0021, 0.27}, {0.073, -0.0018, 0.23}},
                        RowCase{"woman_15", 'f', 15, {0.0567, -0.001308, 0.3888}, {0.0655, -0.0015, 0.275}},
                        RowCase{"woman_20", 'f', 20, {0.04886, -0.001084, 0.456}, {0.048, -0.001, 0.425}},
                        RowCase{"woman_25", 'f', 25, {0.00224, -4.8e-05, 0.974}, {0.0165, -0.0003, 0.775}},
                        RowCase{"woman_49", 'f', 49, {0.0015, -0.0001, 1.05}, {0.017, -0.00028, 0.735}},
                        RowCase{"woman_50", 'f', 50, {0.0015, -0.0001, 1.05}, {0.0037, -0.00014, 1.05}},
                        RowCase{"woman_85", 'f', 85, {0.0285, -0.0003, 0.185}, {0.044, -0.0004, -0.425}}),
        byName);

    TEST(AgeFactor, IsAboutOneAtTwentySeven)
    {
        EXPECT_TRUE(closeTo(factorAt(27, 5000, 'm'), 1 / std::pow(0.99968, 0.95)));
        EXPECT_GE(factorAt(27, 5000, 'm'), 1);
        EXPECT_LT(factorAt(27, 30000, 'f'), 1.01);
    }

    TEST(AgeFactor, LeansOnTheNextRowByAFifthOfTheYearsFraction)
    {
        const double own = parabola(44.5, 0.0173, -0.0003, 0.744);
        const double next = parabola(44.5, -0.0133, 6e-05, 1.392);
        EXPECT_TRUE(closeTo(factorAt(44.5, 5000, 'm'), 1 / std::pow(0.9 * own + 0.1 * next, 0.95)));
    }

    // Neighbouring parabolas meet at the bounds, all but those of men at 85 over 30 km: 0.5 before and 0.51 from there.
    TEST(AgeFactor, IsNotSmoothedAtABoundOfTheTable)
    {
        EXPECT_TRUE(closeTo(1 / factorAt(84.9999999999, 30000, 'm'), 0.8 * 0.5 + 0.2 * 0.51));
        EXPECT_TRUE(closeTo(1 / factorAt(85, 30000, 'm'), 0.51));
    }

    TEST(AgeFactor, GoesOnInAStraightLineOutsideFiveToThirtyKilometres)
    {
        for (const char sex : {'m', 'f'})
        {
            const double at5 = 1 / factorAt(70, 5000, sex);
            const double at30 = 1 / factorAt(70, 30000, sex);
            EXPECT_TRUE(closeTo(1 / factorAt(70, 17500, sex), (at5 + at30) / 2));
            EXPECT_TRUE(closeTo(1 / factorAt(70, 80000, sex), at30 + 2 * (at30 - at5)));
            EXPECT_TRUE(closeTo(1 / factorAt(70, 0, sex), at5 - (at30 - at5) / 5));
        }
    }

    TEST(AgeFactor, IsBentByTheLevelIndex)
    {
        EXPECT_TRUE(closeTo(factorAt(70, 5000, 'm', 60), std::pow(factorAt(70, 5000, 'm'), 1.5)));
        EXPECT_TRUE(closeTo(factorAt(70, 5000, 'f', 60), std::pow(factorAt(70, 5000, 'f'), 1.125)));
    }

    TEST(AgeFactor, TakesNoNoticeOfTheRatio)
    {
        const ModelState state;
        EXPECT_EQ(ageFactor(state, 55, 10000, 0, 'f'), ageFactor(state, 55, 10000, 7, 'f'));
    }
}
