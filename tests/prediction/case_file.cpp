#include "case_file.h"

#include <array>
#include <cstddef>
#include <fstream>
#include <string_view>

#include "prediction/calculate.h"

namespace
{
    constexpr std::array caseFiles{"one_race", "two_races", "more_races", "refused_rows",
                                   "faults",   "sequences", "table_mode"};

    RaceUnit unitOf(std::string_view word)
    {
        if (word == "none")
            return RaceUnit::none;
        if (word == "marathon" || word == "half")
            return raceRow(std::string(word) + " 1").unit;
        return raceRow("1 " + std::string(word) + " 1").unit;
    }

    FitMode fitOf(const nlohmann::json& word)
    {
        if (word.is_null())
            return FitMode::none;
        return word == "best" ? FitMode::bestTwo : FitMode::allData;
    }

    OutputMode outputOf(const nlohmann::json& word)
    {
        if (word.is_null())
            return OutputMode::none;
        return word == "english" ? OutputMode::english : OutputMode::metric;
    }

    SexChoice sexOf(const nlohmann::json& word)
    {
        if (word.is_null())
            return SexChoice::none;
        return word == "f" ? SexChoice::female : SexChoice::male;
    }

    void runTableColumn(Prediction& prediction, const nlohmann::json& step)
    {
        ModelState& state = prediction.state;
        state.table.tableTime800 = step.at("tableTime800");
        state.table.tableTime5000 = step.at("tableTime5000");
        state.table.tableRow = step.at("tableRow");
        for (int c = 1; c <= tableDistances; ++c)
            state.table.tableDist[c] = step.at("tableDist").at(static_cast<std::size_t>(c - 1));
        state.flags.tableMode = 1;
        prediction.start(calculate, entriesOf(step));
        state.flags.tableMode = 0;
    }
}

std::vector<RunCase> readCases()
{
    std::vector<RunCase> cases;
    for (const std::string file : caseFiles)
    {
        std::ifstream stream(std::string(VANTELOS_SOURCE_DIR) + "/tests/prediction/data/" + file + ".json");
        for (const nlohmann::json& entry : nlohmann::json::parse(stream))
            cases.push_back({file + " " + entry.at("name").get<std::string>(), entry.at("steps")});
    }
    return cases;
}

CalculationInput entriesOf(const nlohmann::json& step)
{
    CalculationInput input;
    for (std::size_t i = 0; i < step.at("rows").size(); ++i)
    {
        const nlohmann::json& texts = step.at("rows").at(i);
        if (texts.is_null())
            continue;
        RaceRow& row = input.rows.at(i);
        row.use = texts.size() == 5;
        row.hours = texts.at(0);
        row.minutes = texts.at(1);
        row.seconds = texts.at(2);
        row.number = texts.at(3);
        row.unit = unitOf(texts.at(4).get<std::string>());
    }
    input.age = step.at("age");
    input.weeklyMiles = step.at("miles");
    input.sex = sexOf(step.at("sex"));
    input.fit = fitOf(step.at("fit"));
    input.output = outputOf(step.at("output"));
    input.comparisonLevel = step.at("level");
    return input;
}

void runStep(Prediction& prediction, const nlohmann::json& step)
{
    prediction.messages.clear();
    prediction.state.flags.agecomp = step.at("agecomp");
    const std::string does = step.at("does");
    if (does == "table")
        runTableColumn(prediction, step);
    else if (does == "calculate")
        prediction.start(calculate, entriesOf(step));
    else
        prediction.start(recalculate, entriesOf(step));
}
