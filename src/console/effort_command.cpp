#include "console/effort_command.h"

#include <array>
#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "console/json_text.h"
#include "console/speed_text.h"
#include "console/time_limit.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"
#include "power/incline.h"
#include "power/running_power.h"
#include "program/program.h"

namespace
{
    using Json = nlohmann::ordered_json;

    constexpr int refused = 1;
    constexpr int wrongUsage = 2;

    /// What both commands go by.
    struct Effort
    {
        double grade = 0;   // fraction
        double speed = 0;   // m/s
    };

    std::optional<Effort> readEffort(const EffortOptions& options, std::string& wrong)
    {
        if (options.pace.empty() == options.speed.empty())
        {
            wrong = "Give either --pace or --speed.";
            return std::nullopt;
        }
        const std::optional<double> grade = readGrade(options.grade, wrong);
        if (!grade)
            return std::nullopt;
        const std::optional<double> speed =
            options.pace.empty() ? readSpeed(options.speed, wrong) : readPace(options.pace, wrong);
        if (!speed)
            return std::nullopt;
        return Effort{*grade, *speed};
    }

    /// Runs a command on a runner's state. Returns the exit status.
    template <class Command>
    int run(const EffortOptions& options, const char* activity, std::ostream& errors, Command command)
    {
        std::string wrong;
        const std::optional<Effort> effort = readEffort(options, wrong);
        if (!effort)
        {
            errors << wrong << '\n';
            return wrongUsage;
        }
        ModelState state;
        TimeLimit limit(options.limitSeconds);
        state.goOn = [&limit] { return !limit.reached(); };
        try
        {
            state.runner.bodyDrag = bodyDragOf(options.kgWeight, options.cmHeight);
            command(state, *effort);
            return 0;
        }
        catch (const ArithmeticFault& fault)
        {
            errors << faultText(fault, activity) << '\n';
            return refused;
        }
    }

    struct Figure
    {
        const char* key;    // in JSON
        const char* line;   // in the text
        double value;
        int decimals;
    };

    std::array<Figure, 13> figuresOf(ModelState& state, const Effort& effort, double weight, double airFactor)
    {
        const double v = effort.speed;
        const double output = powerOutput(state, v, weight, effort.grade, airFactor);
        const double gross = grossPower(state, v, weight, effort.grade, airFactor);
        const double net = netPower(state, v, weight, effort.grade, airFactor, 0);
        const double kph = v * 3.6;
        const double mph = kph / kilometresPerMile;
        const double grossKcal = gross * 3600 / joulesPerKcal;
        const double netKcal = net * 3600 / joulesPerKcal;
        return {{{"powerOutput", "Net power output, W", output, 0},
                 {"grossPower", "Gross power used, W", gross, 0},
                 {"netPower", "Net power used, W", net, 0},
                 {"grossKcalPerHour", "Gross power used, kcal/hour", grossKcal, 0},
                 {"netKcalPerHour", "Net power used, kcal/hour", netKcal, 0},
                 {"grossKjPerHour", "Gross power used, kJ/hour", gross * 3.6, 0},
                 {"netKjPerHour", "Net power used, kJ/hour", net * 3.6, 0},
                 {"mets", "Metabolic equivalent, MET", quotient(grossKcal, weight), 1},
                 {"oxygen", "Oxygen, ml/kg/min", quotient(gross * 12600 / joulesPerKcal, weight), 1},
                 {"grossKcalPerMile", "Gross energy cost, kcal/mile", quotient(grossKcal, mph), 0},
                 {"netKcalPerMile", "Net energy cost, kcal/mile", quotient(netKcal, mph), 0},
                 {"grossKjPerKm", "Gross energy cost, kJ/km", quotient(gross * 3.6, kph), 0},
                 {"netKjPerKm", "Net energy cost, kJ/km", quotient(net * 3.6, kph), 0}}};
    }

    /// Whether the level speed of equal effort lies below the speed from which the march to it starts.
    bool liesBelow(ModelState& state, double grade, double speed)
    {
        const int mode = state.incline.indoorMode;
        if (mode > 0)
            return netPower(state, speed, standardWeightKg, grade, 0, 0) <
                   netPower(state, speed - indoorHeadStart, standardWeightKg, 0, mode == 2 ? 0 : 1, 0);
        return netPower(state, speed, standardWeightKg, grade, 1, state.incline.windSpeed) <
               netPower(state, speed, standardWeightKg, 0, 1, 0);
    }

    std::string padded(std::string text, std::size_t width)
    {
        text.resize(std::max(text.size(), width), ' ');
        return text;
    }

    CLI::App* addCommon(CLI::App& app, const char* name, const char* what, EffortOptions& options)
    {
        CLI::App* command = app.add_subcommand(name, what);
        command->add_option("--pace", options.pace, "Pace, such as 6:40/mi or 4:09/km")->type_name("PACE");
        command->add_option("--speed", options.speed, "Speed, such as 9mph, 14.5km/h or 4m/s")->type_name("SPEED");
        command->add_option("--kg-weight", options.kgWeight, "Weight in kilograms")
            ->check(CLI::Range(1.0, 1000.0))
            ->type_name("KG")
            ->capture_default_str();
        command->add_option("--cm-height", options.cmHeight, "Height in centimeters")
            ->check(CLI::Range(10.0, 1000.0))
            ->type_name("CM")
            ->capture_default_str();
        command->add_flag("--json", options.json, "Print one JSON object, speeds in m/s");
        return command;
    }
}

int convertIncline(const EffortOptions& options, std::ostream& out, std::ostream& errors)
{
    return run(options, "converting the speed", errors, [&](ModelState& state, const Effort& effort) {
        const bool onTreadmill = !options.treadmill.empty();
        const double grade = onTreadmill ? gradeAlongSurface(effort.grade) : effort.grade;
        state.incline.indoorMode = options.treadmill == "indoors" ? 2 : (onTreadmill ? 1 : 0);
        state.incline.windSpeed = options.wind;
        state.incline.slopeDirection = liesBelow(state, grade, effort.speed) ? -1 : 0;
        const double level = levelSpeedForSlope(state, grade, effort.speed);
        const double slope = slopeSpeedForLevel(state, grade, effort.speed);
        if (options.json)
        {
            out << jsonText(Json{
                       {"grade", effort.grade}, {"speed", effort.speed}, {"levelSpeed", level}, {"slopeSpeed", slope}})
                << '\n';
            return;
        }
        constexpr std::size_t width = 42;
        const std::string lines =
            padded("", width) + speedHeads + '\n' + padded("The speed as given", width) + speedColumns(effort.speed) +
            '\n' + padded("On the level, as hard as it on the grade", width) + speedColumns(level) + '\n' +
            padded("On the grade, as hard as it on the level", width) + speedColumns(slope) + '\n';
        out << lines;
    });
}

int tellPower(const EffortOptions& options, std::ostream& out, std::ostream& errors)
{
    return run(options, "working out power and energy", errors, [&](ModelState& state, const Effort& effort) {
        const auto figures = figuresOf(state, effort, options.kgWeight, options.indoors ? 0 : 1);
        Json json{{"speed", effort.speed}, {"grade", effort.grade}};
        std::string lines;
        for (const Figure& figure : figures)
        {
            json[figure.key] = figure.value;
            lines += padded(figure.line, 30) + formatNumber(figure.value, 8, figure.decimals) + '\n';
        }
        out << (options.json ? jsonText(json) + '\n' : lines);
    });
}

void addEffort(CLI::App& app, int& status)
{
    const auto incline = std::make_shared<EffortOptions>();
    CLI::App* command = addCommon(
        app, "incline", "Convert a speed or pace on a grade to the level of the same effort, and back", *incline);
    command->add_option("--grade", incline->grade, "Grade, 3% or 0.03, negative is downhill")
        ->required()
        ->type_name("GRADE");
    command->add_option("--treadmill", incline->treadmill, "The grade is a treadmill's; level is outdoors or indoors")
        ->check(CLI::IsMember({"outdoors", "indoors"}))
        ->type_name("PLACE");
    command
        ->add_option("--wind", incline->wind, "Wind on the grade in m/s, a tail wind negative; not felt on a treadmill")
        ->check(CLI::Range(-100.0, 100.0))
        ->type_name("M/S")
        ->capture_default_str();
    command->add_option("--limit", incline->limitSeconds, "Seconds after which a search is stopped")
        ->check(CLI::Range(0.001, 1e6))
        ->capture_default_str();
    command->footer("Example: vantelos-console incline --grade 3% --pace 6:40/mi --treadmill outdoors");
    command->callback([incline, &status] { status = convertIncline(*incline, std::cout, std::cerr); });

    const auto power = std::make_shared<EffortOptions>();
    command = addCommon(app, "power", "Tell the power and energy of running at a speed or pace", *power);
    command->add_option("--grade", power->grade, "Grade, 3% or 0.03, negative is downhill")
        ->type_name("GRADE")
        ->capture_default_str();
    command->add_flag("--indoors", power->indoors, "On a treadmill, without air resistance");
    command->footer("Example: vantelos-console power --speed 9mph --kg-weight 65");
    command->callback([power, &status] { status = tellPower(*power, std::cout, std::cerr); });
}
