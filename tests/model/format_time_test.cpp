#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "model/text.h"
#include "support/case_name.h"

namespace
{
    struct TimeCase
    {
        std::string name;
        double seconds;
        std::string text;
        double after = -1;   // what the caller's variable holds then; -1: as before

        friend std::ostream& operator<<(std::ostream& out, const TimeCase& row) { return out << row.seconds; }
    };

    class FormatTime : public testing::TestWithParam<TimeCase>
    {};

    TEST_P(FormatTime, GivesItsText)
    {
        double seconds = GetParam().seconds;
        EXPECT_EQ(formatTime(seconds), GetParam().text);
        EXPECT_EQ(seconds, GetParam().after == -1 ? GetParam().seconds : GetParam().after);
    }

    TEST_P(FormatTime, OfATemporaryIsTheSame)
    {
        EXPECT_EQ(formatTime(GetParam().seconds + 0.0), GetParam().text);
    }

    INSTANTIATE_TEST_SUITE_P(
        Snaps, FormatTime,
        testing::Values(
            TimeCase{"negative", -5, "       0.0", 0}, TimeCase{"zero", 0, "       0.0", 0},
            TimeCase{"four_thousandths", 0.004, "       0.0", 0}, TimeCase{"below_0_005", 0.00499, "       0.0", 0},
            TimeCase{"at_0_005", 0.005, "       0.0", 0.01}, TimeCase{"below_0_015", 0.0149, "       0.0", 0.01},
            TimeCase{"at_0_015", 0.015, "       0.0", 0.02}, TimeCase{"below_0_025", 0.0249, "       0.0", 0.02},
            TimeCase{"above_0_025", 0.0251, "       0.0", 0.03}, TimeCase{"below_0_035", 0.0349, "       0.0", 0.03},
            TimeCase{"above_0_035", 0.0351, "       0.0", 0.04}, TimeCase{"below_0_045", 0.0449, "       0.0", 0.04},
            TimeCase{"at_0_045", 0.045, "       0.1", 0.05}, TimeCase{"below_0_055", 0.0549, "       0.1", 0.05},
            TimeCase{"above_0_055", 0.0551, "       0.1", 0.06}, TimeCase{"below_0_065", 0.0649, "       0.1", 0.06},
            TimeCase{"above_0_065", 0.0651, "       0.1", 0.07}, TimeCase{"seven_hundredths", 0.07, "       0.1", 0.07},
            TimeCase{"below_0_075", 0.0749, "       0.1", 0.07}, TimeCase{"above_0_075", 0.0751, "       0.1", 0.08},
            TimeCase{"below_0_085", 0.0849, "       0.1", 0.08}, TimeCase{"above_0_085", 0.0851, "       0.1", 0.09},
            TimeCase{"below_0_095", 0.0949, "       0.1", 0.09}, TimeCase{"above_0_095", 0.0951, "       0.1", 0.1},
            TimeCase{"below_0_105", 0.10499, "       0.1", 0.1}, TimeCase{"at_0_105", 0.105, "       0.1"}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Tenths, FormatTime,
        testing::Values(TimeCase{"0_12", 0.12, "       0.1"}, TimeCase{"half", 0.5, "       0.5"},
                        TimeCase{"below_a_tie", 0.5499, "       0.5"}, TimeCase{"tie_goes_up", 0.55, "       0.6"},
                        TimeCase{"below_0_95", 0.949, "       0.9"}, TimeCase{"bare_one", 0.9499989, "       0 1"},
                        TimeCase{"bare_point_at_one", 0.9499995, "       01."}, TimeCase{"at_0_95", 0.95, "       1.0"},
                        TimeCase{"1_05", 1.05, "       1.1"}, TimeCase{"8_7", 8.7, "       8.7"},
                        TimeCase{"9_94", 9.94, "       9.9"}, TimeCase{"bare_ten", 9.9499989, "       10"},
                        TimeCase{"bare_point_at_ten", 9.9499995, "       10."}, TimeCase{"at_9_95", 9.95, "      10.0"},
                        TimeCase{"10_05", 10.05, "      10.1"}, TimeCase{"43_2", 43.18, "      43.2"},
                        TimeCase{"bare_two", 1.9499989, "       2"}, TimeCase{"bare_fifteen", 14.9499989, "      15"},
                        TimeCase{"59_9", 59.9, "      59.9"}, TimeCase{"59_94", 59.94, "      59.9"},
                        TimeCase{"just_below_a_minute", 59.9499999, "      60.0"}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Clock, FormatTime,
        testing::Values(
            TimeCase{"at_59_95", 59.95, "    1:00  "}, TimeCase{"60_4", 60.4, "    1:00  "},
            TimeCase{"60_5_to_even", 60.5, "    1:00  "}, TimeCase{"99", 99, "    1:39  "},
            TimeCase{"119_4999", 119.4999, "    1:59  "}, TimeCase{"119_5", 119.5, "    2:00  "},
            TimeCase{"ten_minutes", 600, "   10:00  "}, TimeCase{"600_5", 600.5, "   10:01  "},
            TimeCase{"18_07", 1087, "   18:07  "}, TimeCase{"3599_4", 3599.4, "   59:59  "},
            TimeCase{"3599_5", 3599.5, " 1:00:00  "}, TimeCase{"3599_6", 3599.6, " 1:00:00  "},
            TimeCase{"hour", 3600, " 1:00:00  "}, TimeCase{"hour_and_a_second", 3601, " 1:00:01  "},
            TimeCase{"minute_carried", 3659.6, " 1:01:00  "}, TimeCase{"2_05_46", 7546, " 2:05:46  "},
            TimeCase{"2_18_23", 8303, " 2:18:23  "}, TimeCase{"last_of_ten_characters", 35999.4, " 9:59:59  "},
            TimeCase{"hour_carried_to_ten", 35999.7, " 10:00:00  "}, TimeCase{"ten_hours", 36000, " 10:00:00  "},
            TimeCase{"day", 86400, " 24:00:00  "}, TimeCase{"99_59_59", 359999.4, " 99:59:59  "},
            TimeCase{"hour_carried_to_hundred", 359999.6, "100:00:00  "},
            TimeCase{"hundred_hours", 360000, "100:00:00  "}, TimeCase{"999_59_59", 3599999, "999:59:59  "},
            TimeCase{"thousand_hours", 3600000, "000:00:00  "}, TimeCase{"1001_02_03", 3603723, "001:02:03  "},
            TimeCase{"two_thousand_hours", 7200000, "000:00:00  "}),
        byName);
}
