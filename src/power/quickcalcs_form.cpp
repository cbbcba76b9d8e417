#include "power/quickcalcs_form.h"

#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"
#include "power/incline.h"
#include "power/pace_and_weight_text.h"
#include "power/running_power.h"

namespace
{
    constexpr double degreePi = 3.1415926;   // the figure of pi that degrees are shown with

    /// Shows a speed of h miles per hour in its four fields.
    void showSpeed(SpeedFields& fields, double h)
    {
        setText(fields.mph, formatNumber(h, 5, 2));
        setText(fields.kph, formatNumber(h * kilometresPerMile, 5, 2));
        setText(fields.mpm, paceText(quotient(secondsPerHour, h)));
        setText(fields.mpk, paceText(quotient(secondsPerHour, h) / kilometresPerMile));
    }

    double milesPerHour(double v)
    {
        return (v * secondsPerHour) / metresPerMile;
    }

    /// Power and energy of running on the level outdoors at the selected speed.
    void showEffort(QuickcalcsForm& form)
    {
        form.state.activity = "working out power and energy";
        const double v = form.state.slopeTools.curSpeed;
        const double w = val(form.wtkg.text);
        const double gross = grossPower(form.state, v, w, 0, 1);
        const double net = netPower(form.state, v, w, 0, 1, 0);
        const double mph = (v * 3.6) / kilometresPerMile;
        const double kph = v * 3.6;
        setText(form.netpowout, formatNumber(powerOutput(form.state, v, w, 0, 1), 5, 0));
        setText(form.grosspowwatts, formatNumber(gross, 5, 0));
        setText(form.netpowwatts, formatNumber(net, 5, 0));
        setText(form.grosspowkchr, formatNumber((3600 / joulesPerKcal) * gross, 5, 0));
        setText(form.netpowkchr, formatNumber((3600 / joulesPerKcal) * net, 5, 0));
        setText(form.mets, formatNumber(quotient((3600 / joulesPerKcal) * gross, w), 5, 1));
        setText(form.vo2, formatNumber(quotient((12600 / joulesPerKcal) * gross, w), 5, 1));
        setText(form.grosscostkcmi, formatNumber(quotient((3600 / joulesPerKcal) * gross, mph), 4, 0));
        setText(form.grosscostkjkm, formatNumber(quotient((15062.4 / joulesPerKcal) * gross, kph), 4, 0));
        setText(form.netcostkcmi, formatNumber(quotient((3600 / joulesPerKcal) * net, mph), 4, 0));
        setText(form.netcostkjkm, formatNumber(quotient((15062.4 / joulesPerKcal) * net, kph), 4, 0));
    }

    /// Speeds of the same effort. The slope is passed as it stands, as rise over horizontal distance.
    void showEqualSpeeds(QuickcalcsForm& form)
    {
        ModelState& state = form.state;
        const SlopeTools& tools = state.slopeTools;
        state.activity = "working out speeds of equal effort";
        {
            const IndoorComparison indoors(state, 1);
            showSpeed(form.levin, milesPerHour(slopeSpeedForLevel(state, 0, tools.curSpeed)));
            showSpeed(form.slopein, milesPerHour(slopeSpeedForLevel(state, tools.slopeValue, tools.curSpeed)));
        }
        showSpeed(form.slopeout, milesPerHour(slopeSpeedForLevel(state, tools.slopeValue, tools.curSpeed)));
    }

    void recalculate(QuickcalcsForm& form)
    {
        showEffort(form);
        showEqualSpeeds(form);
    }

    void takeSpeed(QuickcalcsForm& form)
    {
        const double s = form.speedscrl.value / 100.0;
        form.state.slopeTools.curSpeed = s * metresPerMile / secondsPerHour;
        showSpeed(form.levout, s);
        recalculate(form);
    }

    void takeSlope(QuickcalcsForm& form)
    {
        const double slope = form.slopescrl.value / 1000.0;
        form.state.slopeTools.slopeValue = slope;
        setText(form.tantheta, formatNumber(100 * slope, 5, 1));
        setText(form.sintheta, formatNumber(sine(arctangent(slope)) * 100, 5, 1));
        setText(form.theta, formatNumber(arctangent(slope) * 180 / degreePi, 5, 1));
        recalculate(form);
    }

    void takeWeight(QuickcalcsForm& form)
    {
        setText(form.wtlb, plainText(form.weightscrl.value));
        setText(form.wtkg, formatNumber(form.weightscrl.value * kilogramsPerPound, 5, 1));
        recalculate(form);
    }

    /// The passing values make sure that each bar's event runs, whatever stood there.
    void load(QuickcalcsForm& form)
    {
        setValue(form.speedscrl, 400);
        setValue(form.speedscrl, 750);
        setValue(form.weightscrl, 50);
        setValue(form.weightscrl, 300);
        setValue(form.weightscrl, wholePounds(form.state.runner.weightKg));
        setValue(form.slopescrl, 30);
        setValue(form.slopescrl, 0);
    }

    void nameSpeed(SpeedFields& fields, const std::string& prefix, const std::string& what)
    {
        fields.mph = {{.name = prefix + "mph", .caption = "mph", .tip = what + ": miles per hour"}};
        fields.kph = {{.name = prefix + "kph", .caption = "km/h", .tip = what + ": kilometers per hour"}};
        fields.mpm = {{.name = prefix + "mpm", .caption = "per mile", .tip = what + ": pace per mile"}};
        fields.mpk = {{.name = prefix + "mpk", .caption = "per km", .tip = what + ": pace per kilometer"}};
    }
}

QuickcalcsForm::QuickcalcsForm(ModelState& modelState, Outside& formOutside) : state(modelState), outside(formOutside)
{
    nameSpeed(levout, "levout", "Level, outdoors");
    nameSpeed(levin, "levin", "Level indoors");
    nameSpeed(slopeout, "slopeout", "With slope, outdoors");
    nameSpeed(slopein, "slopein", "With slope, indoors");
    speedscrl.changed = [this] { takeSpeed(*this); };
    slopescrl.changed = [this] { takeSlope(*this); };
    weightscrl.changed = [this] { takeWeight(*this); };
    Command1.clicked = [this] { outside.closeForm(form.name); };
    form.load = [this] { load(*this); };
    form.controls = {&Label1,      &speedscrl,    &Label6,       &slopescrl,    &tantheta,      &sintheta,
                     &theta,       &Label25,      &weightscrl,   &wtlb,         &wtkg,          &levout.mph,
                     &levout.kph,  &levout.mpm,   &levout.mpk,   &levin.mph,    &levin.kph,     &levin.mpm,
                     &levin.mpk,   &slopeout.mph, &slopeout.kph, &slopeout.mpm, &slopeout.mpk,  &slopein.mph,
                     &slopein.kph, &slopein.mpm,  &slopein.mpk,  &netpowout,    &grosspowwatts, &grosspowkchr,
                     &netpowwatts, &netpowkchr,   &mets,         &vo2,          &grosscostkcmi, &grosscostkjkm,
                     &netcostkcmi, &netcostkjkm,  &Command1};
}
