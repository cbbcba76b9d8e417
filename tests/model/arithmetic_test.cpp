#include "model/arithmetic.h"

#include <cmath>
#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "model/long_loop.h"
#include "model/one_based.h"
#include "support/case_name.h"
#include "support/faults.h"

namespace
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    constexpr double largest = std::numeric_limits<double>::max();

    struct OperationCase
    {
        std::string name;
        std::function<double()> operation;
        double expected;     // to the last bit
        std::string fault;   // empty for a result

        friend std::ostream& operator<<(std::ostream& out, const OperationCase& row) { return out << row.name; }
    };

    class CheckedOperation : public testing::TestWithParam<OperationCase>
    {};

    TEST_P(CheckedOperation, GivesItsResultOrItsFault)
    {
        double result = 0;
        EXPECT_EQ(faultOf([&] { result = GetParam().operation(); }), GetParam().fault);
        EXPECT_EQ(result, GetParam().expected);
    }

    const std::string division = "division by zero";
    const std::string overflow = "an overflow";
    const std::string noNumber = "a result that is no number";
    const std::string root = "the square root of a negative number";
    const std::string logarithm = "the logarithm of zero or of a negative number";
    const std::string noPower = "a power without a real value";

    INSTANTIATE_TEST_SUITE_P(
        ByHand, CheckedOperation,
        testing::Values(OperationCase{"checked", [] { return checked(-4.5); }, -4.5, ""},
                        OperationCase{"checked_largest", [] { return checked(largest); }, largest, ""},
                        OperationCase{"checked_infinity", [] { return checked(infinity); }, 0, overflow},
                        OperationCase{"checked_minus_infinity", [] { return checked(-infinity); }, 0, overflow},
                        OperationCase{"checked_nan", [] { return checked(notANumber); }, 0, noNumber},
                        OperationCase{"quotient", [] { return quotient(7, -2); }, -3.5, ""},
                        OperationCase{"quotient_of_zero", [] { return quotient(0, 3); }, 0, ""},
                        OperationCase{"quotient_by_zero", [] { return quotient(7, 0); }, 0, division},
                        OperationCase{"quotient_by_minus_zero", [] { return quotient(7, -0.0); }, 0, division},
                        OperationCase{"quotient_zero_by_zero", [] { return quotient(0, 0); }, 0, division},
                        OperationCase{"quotient_too_large", [] { return quotient(largest, 0.5); }, 0, overflow},
                        OperationCase{"square", [] { return square(-1.5); }, 2.25, ""},
                        OperationCase{"square_root", [] { return squareRoot(2.25); }, 1.5, ""},
                        OperationCase{"square_root_of_zero", [] { return squareRoot(0); }, 0, ""},
                        OperationCase{"square_root_of_minus_zero", [] { return squareRoot(-0.0); }, 0, ""},
                        OperationCase{"square_root_below_zero", [] { return squareRoot(-1e-300); }, 0, root},
                        OperationCase{"square_root_of_infinity", [] { return squareRoot(infinity); }, 0, overflow},
                        OperationCase{"square_root_of_nan", [] { return squareRoot(notANumber); }, 0, noNumber},
                        OperationCase{"logarithm_of_one", [] { return naturalLog(1); }, 0, ""},
                        OperationCase{"logarithm", [] { return naturalLog(2); }, 0.69314718055994530942, ""},
                        OperationCase{"logarithm_of_zero", [] { return naturalLog(0); }, 0, logarithm},
                        OperationCase{"logarithm_below_zero", [] { return naturalLog(-2); }, 0, logarithm},
                        OperationCase{"logarithm_of_infinity", [] { return naturalLog(infinity); }, 0, overflow},
                        OperationCase{"logarithm_of_nan", [] { return naturalLog(notANumber); }, 0, noNumber},
                        OperationCase{"decimal_logarithm", [] { return decimalLog(1000); }, 3, ""},
                        OperationCase{"decimal_logarithm_of_zero", [] { return decimalLog(0); }, 0, logarithm},
                        OperationCase{"decimal_logarithm_of_infinity", [] { return decimalLog(infinity); }, 0,
                                      overflow},
                        OperationCase{"exponential", [] { return exponential(0); }, 1, ""},
                        OperationCase{"exponential_far_below", [] { return exponential(-1000); }, 0, ""},
                        OperationCase{"exponential_too_large", [] { return exponential(710); }, 0, overflow},
                        OperationCase{"power", [] { return power(2, 10); }, 1024, ""},
                        OperationCase{"power_negative_base", [] { return power(-2, 3); }, -8, ""},
                        OperationCase{"power_negative_base_and_exponent", [] { return power(-2, -2); }, 0.25, ""},
                        OperationCase{"power_zero_to_zero", [] { return power(0, 0); }, 1, ""},
                        OperationCase{"power_of_zero", [] { return power(0, 0.5); }, 0, ""},
                        OperationCase{"power_no_real_value", [] { return power(-2, 0.5); }, 0, noPower},
                        OperationCase{"power_tiny_negative_base", [] { return power(-1e-300, 1.7); }, 0, noPower},
                        OperationCase{"power_of_zero_to_negative", [] { return power(0, -1); }, 0, division},
                        OperationCase{"power_too_large", [] { return power(10, 309); }, 0, overflow},
                        OperationCase{"power_of_nan", [] { return power(notANumber, 2); }, 0, noNumber},
                        OperationCase{"cosine", [] { return cosine(0); }, 1, ""},
                        OperationCase{"cosine_of_infinity", [] { return cosine(infinity); }, 0, overflow},
                        OperationCase{"sine", [] { return sine(0); }, 0, ""},
                        OperationCase{"sine_of_infinity", [] { return sine(-infinity); }, 0, overflow},
                        OperationCase{"arctangent", [] { return arctangent(1); }, 0.78539816339744830962, ""},
                        OperationCase{"arctangent_of_nan", [] { return arctangent(notANumber); }, 0, noNumber},
                        OperationCase{"round_half_down_to_even", [] { return roundHalfEven(2.5); }, 2, ""},
                        OperationCase{"round_half_up_to_even", [] { return roundHalfEven(3.5); }, 4, ""},
                        OperationCase{"round_negative_half", [] { return roundHalfEven(-2.5); }, -2, ""},
                        OperationCase{"round_above_half", [] { return roundHalfEven(2.5000000000000004); }, 3, ""},
                        OperationCase{"sign_above_zero", [] { return signOf(1e-300); }, 1, ""},
                        OperationCase{"sign_of_zero", [] { return signOf(-0.0); }, 0, ""},
                        OperationCase{"sign_below_zero", [] { return signOf(-7); }, -1, ""}),
        byName);

    TEST(OneBased, CountsFromOne)
    {
        OneBased<double, 5> numbers;
        numbers[1] = 10;
        numbers[5] = 50;
        EXPECT_EQ(numbers.items.front(), 10);
        EXPECT_EQ(numbers.items.back(), 50);
        EXPECT_EQ(std::as_const(numbers)[5], 50);
    }

    TEST(OneBased, FaultsOutsideItsRange)
    {
        OneBased<double, 5> numbers;
        for (const int index : {-1, 0, 6, std::numeric_limits<int>::max()})
        {
            EXPECT_EQ(faultOf([&] { numbers[index] = 1; }), "an index out of range") << index;
            EXPECT_EQ(faultOf([&] { (void)std::as_const(numbers)[index]; }), "an index out of range") << index;
        }
    }

    TEST(LongLoop, AsksEvery4096Rounds)
    {
        int questions = 0;
        const GoOn yes = [&] {
            ++questions;
            return true;
        };
        LongLoop loop(yes);
        for (int round = 1; round < 4096; ++round)
            loop.nextRound();
        EXPECT_EQ(questions, 0);
        loop.nextRound();
        EXPECT_EQ(questions, 1);
        for (int round = 0; round < 4096; ++round)
            loop.nextRound();
        EXPECT_EQ(questions, 2);
    }

    TEST(LongLoop, StopsAtANo)
    {
        const GoOn no = [] { return false; };
        LongLoop loop(no);
        int rounds = 0;
        const std::string fault = faultOf([&] {
            for (;; ++rounds)
                loop.nextRound();
        });
        EXPECT_EQ(rounds, 4095);
        EXPECT_EQ(fault, "a search that was stopped because it took too long");
    }

    TEST(LongLoop, GoesOnWithNobodyToAsk)
    {
        const GoOn nobody;
        LongLoop loop(nobody);
        for (int round = 0; round < 10000; ++round)
            loop.nextRound();
    }
}
