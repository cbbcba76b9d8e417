#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>

#include "analysed_runner.h"
#include "model/text.h"
#include "support/draws.h"

namespace
{
    Analysis drawnAnalysis(const std::string& mode, double slope, double wind)
    {
        Analysis analysis;
        int questions = 0;
        analysis.state.goOn = [questions]() mutable { return ++questions < 500; };
        analysis.entries.unit = SpecialUnit::meters;
        analysis.entries.number = exactText(*drawnInLogSteps(100, 500000));
        analysis.state.special.windBase = wind;
        analysis.run(mode, exactText(slope));
        return analysis;
    }

    RC_GTEST_PROP(Analysis, WithoutWindIsTheOneOfNoWind, ())
    {
        Analysis analysis = drawnAnalysis("r", 0, 0);
        RC_ASSERT(analysis.fault.empty());
        const std::vector<std::string> table = analysis.results.table.lines;
        analysis.run("n");
        RC_ASSERT(analysis.fault.empty());
        const std::vector<std::string>& uneven = analysis.results.table.lines;
        RC_ASSERT(uneven.size() == table.size());
        for (std::size_t i = 2; i < table.size(); ++i)   // total and difference end both lines
            RC_ASSERT(uneven[i].substr(uneven[i].size() - 20) == table[i].substr(table[i].size() - 20));
    }

    RC_GTEST_PROP(Analysis, OfAConstantSlopeGrowsWithSlopeAndHeadWind, ())
    {
        ModelState state = runnerOf40Minutes();
        const double d = *drawnInLogSteps(400, 100000);
        const double slope = *rc::gen::inRange(-50, 200) / 1000.0;
        const double wind = *rc::gen::inRange(-40, 60) / 10.0;
        state.incline.windSpeed = wind;
        const double time = constantSlopeTime(state, d, slope);
        RC_ASSERT(constantSlopeTime(state, d, slope + 0.01) > time);
        state.incline.windSpeed = wind + 1;
        RC_ASSERT(constantSlopeTime(state, d, slope) > time);
    }

    RC_GTEST_PROP(Analysis, LeavesNoNumberThatIsNone, ())
    {
        const std::string mode = *rc::gen::element<std::string>("n", "c", "r", "");
        const double slope = *rc::gen::element(-1.0, -0.5, -0.1, -0.02, 0.0, 0.02, 0.3, 0.9, 1.0);
        const double wind = *rc::gen::inRange(-200, 201) / 10.0;
        const Analysis analysis = drawnAnalysis(mode, slope, wind);
        const Special& special = analysis.state.special;
        for (const double number :
             {special.evenPace, special.fastHalfPace, special.aerobicHalfPace, special.pacingCentre, special.pacingArea,
              analysis.state.incline.windSpeed, analysis.state.results.curDistance, analysis.state.results.level})
            RC_ASSERT(std::isfinite(number));
        for (const std::string& line : analysis.results.table.lines)
            RC_ASSERT((line.find("nan") == std::string::npos && line.find("inf") == std::string::npos));
    }

    RC_GTEST_PROP(Analysis, IsTheSameOnARerun, ())
    {
        const double slope = *rc::gen::inRange(-20, 100) / 1000.0;
        Analysis analysis = drawnAnalysis("r", slope, 2);
        const SpecialResults first = analysis.results;
        const std::string fault = analysis.fault;
        analysis.run("r", exactText(slope));
        RC_ASSERT(analysis.fault == fault);
        RC_ASSERT(analysis.results.table == first.table);
        RC_ASSERT(analysis.results.winds == first.winds);
    }
}
