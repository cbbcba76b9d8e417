#include "case_file.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "model/messages.h"
#include "prediction/calculate.h"
#include "program/state_names.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/runners.h"

namespace
{
    Messages messagesOf(const nlohmann::json& step)
    {
        Messages messages;
        for (const nlohmann::json& texts : step.at("messages"))
        {
            Message message{texts.at(0)};
            if (texts.size() > 1)
                message.title = texts.at(1);
            messages.push_back(message);
        }
        return messages;
    }

    nlohmann::json wordOf(FitMode fit)
    {
        if (fit == FitMode::none)
            return nullptr;
        return fit == FitMode::bestTwo ? "best" : "all";
    }

    nlohmann::json wordOf(OutputMode output)
    {
        if (output == OutputMode::none)
            return nullptr;
        return output == OutputMode::english ? "english" : "metric";
    }

    void expectValue(const StateValue& got, const nlohmann::json& expected)
    {
        if (const auto* text = std::get_if<std::string>(&got))
            EXPECT_EQ(*text, expected.get<std::string>());
        else if (const auto* whole = std::get_if<int>(&got))
            EXPECT_EQ(*whole, expected.get<int>());
        else if (const auto* number = std::get_if<double>(&got))
            EXPECT_TRUE(closeTo(*number, expected.get<double>()));
        else
        {
            const auto& numbers = std::get<std::vector<double>>(got);
            ASSERT_EQ(numbers.size(), expected.size());
            for (std::size_t i = 0; i < numbers.size(); ++i)
                EXPECT_TRUE(closeTo(numbers[i], expected.at(i).get<double>())) << "at " << i + 1;
        }
    }

    void expectState(const ModelState& state, const nlohmann::json& expected)
    {
        for (const auto& [name, value] : expected.items())
        {
            SCOPED_TRACE(name);
            const StateName* entry = findStateName(name);
            ASSERT_NE(entry, nullptr);
            expectValue(entry->get(state), value);
        }
        EXPECT_EQ(state.curve.startDelay, 3);
        EXPECT_EQ(state.curve.piValue, 3.1415926);
        EXPECT_EQ(state.curve.humpCentre, 360);
        EXPECT_EQ(state.curve.humpDepth, -0.02);
        EXPECT_EQ(state.curve.humpWidth, 1.15);
    }

    /// Each row of the case: distance, time, record, % Spd, level, P.Level, Top_%.
    void expectTable(const std::vector<PredictedRow>& rows, const nlohmann::json& expected)
    {
        ASSERT_EQ(rows.size(), expected.size());
        for (std::size_t i = 0; i < rows.size(); ++i)
        {
            const PredictedRow& row = rows[i];
            SCOPED_TRACE(row.label);
            const std::vector<double> numbers = expected.at(i);
            EXPECT_EQ(row.distance, numbers[0]);
            EXPECT_TRUE(closeTo(row.time, numbers[1]));
            EXPECT_TRUE(closeTo(row.perMile, numbers[1] * 1609.344 / numbers[0]));
            EXPECT_TRUE(closeTo(row.perKilometre, numbers[1] * 1000 / numbers[0]));
            EXPECT_TRUE(closeTo(row.per400, numbers[1] * 400 / numbers[0]));
            EXPECT_TRUE(closeTo(row.record, numbers[2]));
            EXPECT_EQ(row.percentSpeed, numbers[3]);
            EXPECT_TRUE(closeTo(row.level, numbers[4]));
            EXPECT_EQ(row.percentLevel, numbers[5]);
            EXPECT_TRUE(closeTo(row.topPercent, numbers[6]));
        }
    }

    void expectShown(const Prediction& prediction, const nlohmann::json& shown)
    {
        EXPECT_EQ(prediction.results.picture.lines.size(), shown.at("lines").get<std::size_t>());
        EXPECT_EQ(wordOf(prediction.input.fit), shown.at("fit"));
        EXPECT_EQ(wordOf(prediction.input.output), shown.at("output"));
        EXPECT_EQ(prediction.results.bestTwoEnabled, shown.at("bestTwoEnabled").get<bool>());
        EXPECT_EQ(prediction.results.reportsEnabled, shown.at("reportsEnabled").get<bool>());
        EXPECT_EQ(prediction.results.toolsEnabled, shown.at("toolsEnabled").get<bool>());
    }

    void expectTableColumn(const ModelState& state, const nlohmann::json& step)
    {
        if (!step.contains("tableTimes"))
            return;
        const auto& times = state.table.tableTimes.at(step.at("tableRow").get<std::size_t>());
        for (int c = 1; c <= tableDistances; ++c)
            EXPECT_TRUE(closeTo(times[c], step.at("tableTimes").at(static_cast<std::size_t>(c - 1)).get<double>()))
                << "column " << c;
    }

    void expectStep(const Prediction& prediction, const nlohmann::json& step)
    {
        EXPECT_EQ(textsOf(prediction.messages), textsOf(messagesOf(step)));
        EXPECT_EQ(prediction.messages, messagesOf(step));
        EXPECT_EQ(prediction.fault.empty(), step.at("fault").get<std::string>().empty());
        EXPECT_THAT(prediction.fault, testing::StartsWith(step.at("fault").get<std::string>()));
        expectShown(prediction, step.at("shown"));
        expectState(prediction.state, step.at("state"));
        expectTable(prediction.results.rows, step.at("table"));
        expectTableColumn(prediction.state, step);
    }

    class WholeCase : public testing::TestWithParam<RunCase>
    {};

    TEST_P(WholeCase, LeavesItsNumbers)
    {
        Prediction prediction;
        for (std::size_t i = 0; i < GetParam().steps.size(); ++i)
        {
            SCOPED_TRACE("step " + std::to_string(i + 1));
            const nlohmann::json& step = GetParam().steps.at(i);
            runStep(prediction, step);
            expectStep(prediction, step);
        }
    }

    INSTANTIATE_TEST_SUITE_P(InFiles, WholeCase, testing::ValuesIn(readCases()), byName);
}
