#pragma once

#include <string>

#include <gtest/gtest.h>

#include "support/close_to.h"
#include "support/faults.h"
#include "support/table_file.h"

/// Holds what `computation` gives against a column that tells a number, or "fault: " and the words of the fault.
template <class Computation>
void expectOutcome(const TableRow& row, const std::string& column, const Computation& computation)
{
    double result = 0;
    const std::string fault = faultOf([&] { result = computation(); });
    if (row.text(column).starts_with("fault: "))
        EXPECT_EQ("fault: " + fault, row.text(column));
    else
    {
        EXPECT_EQ(fault, "");
        EXPECT_TRUE(closeTo(result, row.number(column)));
    }
}
