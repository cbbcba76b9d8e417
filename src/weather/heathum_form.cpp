#include "weather/heathum_form.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"
#include "model/units.h"
#include "weather/humidity.h"

namespace
{
    constexpr std::array sunshine{"night",
                                  "dark overcast",
                                  "overcast",
                                  "cloudy or very low sun",
                                  "mostly cloudy or low sun",
                                  "partly to mostly cloudy",
                                  "partly cloudy, sun not too high",
                                  "partly cloudy",
                                  "mostly sunny",
                                  "mostly sunny, sun nearly overhead",
                                  "clear, sun nearly overhead"};

    void showTemperature(TextBox& fahrenheit, TextBox& celsius, double kelvin)
    {
        setText(fahrenheit, formatNumber(fahrenheitOf(kelvin), 5, 1));
        setText(celsius, formatNumber(celsiusOf(kelvin), 5, 1));
    }

    void showHumidity(HeathumForm& form)
    {
        form.state.activity = "working out dew point and wet bulb temperature";
        const double T = form.state.heat.airTempK;
        const double h = form.rhscrl.value;
        showTemperature(form.dpf, form.dpc, dewPoint(T, h));
        showTemperature(form.wbf, form.wbc, wetBulb(T, h));
    }

    void showWbgt(HeathumForm& form)
    {
        form.state.activity = "working out the wet bulb globe temperature";
        double& wbgtC = form.state.heat.wbgtC;
        wbgtC = approximateWbgt(val(form.suntx.text), val(form.tcel.text), val(form.wbc.text));
        setText(form.wbgtf, formatNumber(wbgtC * 1.8 + 32, 5, 0));
        setText(form.wbgtc, formatNumber(wbgtC, 5, 1));
    }

    void showHeatIndices(HeathumForm& form)
    {
        form.state.activity = "working out heat index and humidex";
        const double T = form.state.heat.airTempK;
        const double h = val(form.rhtx.text);
        setText(form.hind, formatNumber(heatIndex(T, h), 5, 0));
        setText(form.humidex, formatNumber(humidexOf(T, h), 5, 1));
    }

    void showWeather(HeathumForm& form)
    {
        showHumidity(form);
        showWbgt(form);
        showHeatIndices(form);
    }

    void takeTemperature(HeathumForm& form)
    {
        const double v = form.tscrl.value;
        setText(form.tfar, formatNumber(v, 5, 0));
        setText(form.tcel, formatNumber((v - 32) / 1.8, 5, 1));
        form.state.heat.airTempK = (v - 32) / 1.8 + freezingPointK;
        showWeather(form);
    }

    void takeHumidity(HeathumForm& form)
    {
        setText(form.rhtx, formatNumber(form.rhscrl.value, 5, 0));
        showWeather(form);
    }

    void takeSunshine(HeathumForm& form)
    {
        setText(form.sundesc, sunshine[static_cast<std::size_t>(form.sunscrl.value)]);
        setText(form.suntx, plainText(form.sunscrl.value));
        showWbgt(form);
        showHeatIndices(form);
    }

    void takeHeight(HeathumForm& form)
    {
        setText(form.htin, plainText(form.htscrl2.value));
        setText(form.htcm, formatNumber(form.htscrl2.value * centimetresPerInch, 5, 0));
    }

    void takeWeight(HeathumForm& form)
    {
        setText(form.wtlb, plainText(form.wtscrl2.value));
        setText(form.wtkg, formatNumber(form.wtscrl2.value * kilogramsPerPound, 5, 1));
    }

    void takeWeeklyMiles(HeathumForm& form)
    {
        const double w = form.weekmi.value;
        setText(form.wmi, plainText(w));
        setText(form.wkm, plainText(roundHalfEven(w * kilometresPerMile)));
        form.state.heat.heatFatigueCoef = heatFatigueCoefOf(w, form.fop.chosen);
    }

    void showMiles(HeathumForm& form, const TextBox& metres, TextBox& miles)
    {
        form.state.activity = "converting a distance to miles";
        setText(miles, formatNumber(val(metres.text) / metresPerMile, 7, 3));
    }

    HeatRace readRace(const HeatRaceControls& race)
    {
        HeatRace read;
        read.use = race.use.ticked;
        read.seconds = checked(3600 * val(race.hours.text) + 60 * val(race.minutes.text) + val(race.seconds.text));
        read.metres = val(race.meters.text);
        return read;
    }

    void readDistanceToPredict(HeathumForm& form, HeatEntries& entries)
    {
        entries.dispred = val(form.dispred.text);
        setCaption(form.dtopred, form.dispred.text + " m");
    }

    void readRaces(const HeathumForm& form, HeatEntries& entries)
    {
        entries.race1 = readRace(form.race1);
        entries.race2 = readRace(form.race2);
    }

    void readRunner(const HeathumForm& form, HeatEntries& entries)
    {
        entries.wtkg = form.wtkg.text;
        entries.htcm = form.htcm.text;
        entries.agetx = form.agetx.text;
        entries.weekmi = form.weekmi.value;
        entries.fop = form.fop.chosen;
    }

    void showTable(HeathumForm& form)
    {
        for (std::size_t row = 0; row < heatRows; ++row)
        {
            setCaption(form.idealt[row], form.table[row].idealt);
            setCaption(form.givent[row], form.table[row].givent);
            setCaption(form.pdec[row], form.table[row].pdec);
        }
    }

    /// A value of the main form for a bar, which holds it within its range.
    void takeOver(ScrollBar& bar, double value)
    {
        setValue(bar, static_cast<long long>(std::clamp<double>(roundHalfEven(value), bar.min, bar.max)));
    }

    /// The runner's own time over a distance, seconds rounded up from a half: 59.5 s show as 60, without a carry.
    void takeRace(HeathumForm& form, HeatRaceControls& race, double distance)
    {
        setText(race.meters, plainText(distance));
        form.state.activity = "predicting the runner's time over " + plainText(distance) + " m";
        const double time = raceTimeAt(form.state, distance);
        const double hours = std::floor(time / 3600);
        const double minutes = std::floor((time - 3600 * hours) / 60);
        setText(race.hours, plainText(hours));
        setText(race.minutes, plainText(minutes));
        setText(race.seconds, plainText(std::floor(time - 3600 * hours - 60 * minutes + 0.5)));
    }

    /// Each bar goes to a passing value first, so that its change is told of whatever its value is.
    void load(HeathumForm& form)
    {
        const Runner& runner = form.state.runner;
        setValue(form.tscrl, 40);
        setValue(form.tscrl, 85);
        setValue(form.rhscrl, 30);
        setValue(form.rhscrl, 65);
        setValue(form.sunscrl, 4);
        setValue(form.sunscrl, 5);
        setValue(form.htscrl2, 37);
        takeOver(form.htscrl2, runner.heightCm / centimetresPerInch);
        setValue(form.wtscrl2, 38);
        takeOver(form.wtscrl2, runner.weightKg / kilogramsPerPound);
        setChosen(form.mop, true);
        if (runner.sex == 'f')
            setChosen(form.fop, true);
        setValue(form.weekmi, 10);
        takeOver(form.weekmi, runner.weeklyMiles);
        setText(form.agetx, plainText(runner.age));
        takeRace(form, form.race1, 1500);
        takeRace(form, form.race2, halfMarathonMetres);
        setText(form.dispred, "10000");
        setCaption(form.dtopred, "10000 m");
        calculateHeat(form);
    }

    void nameRace(HeatRaceControls& race, const std::string& n)
    {
        race.use = {{.name = "r" + n + "use", .caption = "Race " + n, .tip = "Use race " + n}, true};
        race.hours = {{.name = "rhr" + n, .caption = "Hours", .tip = "Hours of the time of race " + n}};
        race.minutes = {{.name = "rmin" + n, .caption = "Min", .tip = "Minutes of the time of race " + n}};
        race.seconds = {
            {.name = "rsec" + n, .caption = "Sec", .tip = "Seconds of the time of race " + n + "; decimals allowed"}};
        race.meters = {{.name = "rmeters" + n,
                        .caption = "Meters",
                        .tip = "Distance of race " + n + " in meters, 400 or more, used or not"}};
        race.miles = {{.name = "rmi" + n, .caption = "Miles", .tip = "Distance of race " + n + " in miles"}};
    }

    void nameRows(HeathumForm& form)
    {
        for (std::size_t row = 0; row < heatRows; ++row)
        {
            const int i = static_cast<int>(row);
            const std::string over = row == 0 ? "the distance to predict" : heatRowNames[row];
            form.rowNames[row] = {{.name = arrayName("rowName", i), .caption = heatRowNames[row]}};
            form.idealt[row] = {{.name = arrayName("idealt", i), .tip = "Time over " + over + " in ideal weather"}};
            form.givent[row] = {{.name = arrayName("givent", i), .tip = "Time over " + over + " in this weather"}};
            form.pdec[row] = {
                {.name = arrayName("pdec", i), .tip = "Percent by which this weather lengthens it over " + over}};
        }
    }

    void wire(HeathumForm& form)
    {
        form.tscrl.changed = [&form] { takeTemperature(form); };
        form.rhscrl.changed = [&form] { takeHumidity(form); };
        form.sunscrl.changed = [&form] { takeSunshine(form); };
        form.htscrl2.changed = [&form] { takeHeight(form); };
        form.wtscrl2.changed = [&form] { takeWeight(form); };
        form.weekmi.changed = [&form] { takeWeeklyMiles(form); };
        for (HeatRaceControls* race : {&form.race1, &form.race2})
            race->meters.changed = [&form, race] { showMiles(form, race->meters, race->miles); };
        form.dispred.changed = [&form] { showMiles(form, form.dispred, form.dispredmi); };
        form.Command1.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.Command2.clicked = [&form] { calculateHeat(form); };
        form.Command3.clicked = [&form] { form.outside.openForm(form.Command3.opens); };
        form.form.load = [&form] { load(form); };
    }

    /// Every control once, in reading order.
    std::vector<ControlRef> controlsOf(HeathumForm& f)
    {
        std::vector<ControlRef> list{
            &f.Label53, &f.Label52, &f.tscrl, &f.tfar, &f.tcel,    &f.rhscrl,     &f.rhtx,  &f.sunscrl, &f.suntx,
            &f.sundesc, &f.dpf,     &f.dpc,   &f.wbf,  &f.wbc,     &f.wbgtf,      &f.wbgtc, &f.hind,    &f.humidex,
            &f.Label51, &f.htscrl2, &f.htin,  &f.htcm, &f.wtscrl2, &f.wtlb,       &f.wtkg,  &f.mop,     &f.fop,
            &f.agetx,   &f.weekmi,  &f.wmi,   &f.wkm,  &f.Label50, &f.raceHeading};
        for (HeatRaceControls* race : {&f.race1, &f.race2})
        {
            const std::vector<ControlRef> entries{&race->use,     &race->hours,  &race->minutes,
                                                  &race->seconds, &race->meters, &race->miles};
            list.insert(list.end(), entries.begin(), entries.end());
        }
        const std::vector<ControlRef> rest{&f.Label49,      &f.dispred,         &f.dispredmi, &f.Command2,
                                           &f.Label54,      &f.Command3,        &f.Command1,  &f.idealHeading,
                                           &f.givenHeading, &f.decrementHeading};
        list.insert(list.end(), rest.begin(), rest.end());
        for (std::size_t row = 0; row < heatRows; ++row)
        {
            list.emplace_back(row == 0 ? &f.dtopred : &f.rowNames[row]);
            for (auto* column : {&f.idealt, &f.givent, &f.pdec})
                list.emplace_back(&(*column)[row]);
        }
        return list;
    }
}

HeathumForm::HeathumForm(ModelState& modelState, Outside& formOutside) : state(modelState), outside(formOutside)
{
    for (OptionButton* option : sexes.members)
        option->group = &sexes;
    nameRace(race1, "1");
    nameRace(race2, "2");
    nameRows(*this);
    wire(*this);
    form.controls = controlsOf(*this);
}

void calculateHeat(HeathumForm& form)
{
    form.state.activity = "reading the races in near-ideal weather";
    HeatEntries entries;
    readDistanceToPredict(form, entries);
    readRaces(form, entries);
    readRunner(form, entries);
    const OnLeaving showIt([&form] { showTable(form); });
    calculateHeatTable(form.state, entries, form.table, form.outside.said);
}
