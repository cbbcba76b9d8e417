#include "analysis/anaform_form.h"

#include "analysis/training_analysis.h"
#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

AnaformForm::AnaformForm(ModelState& modelState, Outside& formOutside) : state(modelState), outside(formOutside)
{
    form.opened = [this] { showAnalysis(*this); };
    pic.moved = [this](Point at) { readCurve(*this, at.x); };
    Command1.clicked = [this] { outside.openForm(Command1.opens); };
    Command2.clicked = [this] { outside.openForm(Command2.opens); };
    Command3.clicked = [this] { outside.closeForm(form.name); };
    form.controls = {&Surface, &pic,    &falbl,  &ltlbl,  &vomlbl, &frlbl,  &trackerTitle, &trackerHint, &hrlbl,
                     &mpslbl,  &kphlbl, &mphlbl, &mpklbl, &mpmlbl, &mpllbl, &Command1,     &Command2,    &Command3};
}

void showAnalysis(AnaformForm& form)
{
    clear(form.Surface.page);
    form.pic.primitives.clear();
    const OnLeaving showThem([&form] {
        notifyShown(form.Surface);
        notifyShown(form.pic);
    });
    const Specialty specialty = trainingAnalysis(form.state);
    form.state.activity = "printing the training analysis";
    printAnalysis(form.state, specialty, ReportMode::screen, form.Surface.page);
    drawHeartRateGraph(form.state, form.pic);
}

void readCurve(AnaformForm& form, double x)
{
    const HeartRateSamples& samples = form.state.heartRateSamples;
    std::size_t i = 1;
    while (i < samples.curveX.size() && !(samples.curveX[i] >= x || x > heartRatePlotRight))
        ++i;
    if (i >= samples.curveX.size())
        return;
    form.state.activity = "reading the heart rate graph";
    const double speed = samples.curveSpeed[i];
    setCaption(form.hrlbl, "HR =" + formatNumber(samples.curveHr[i], 5, 0));
    setCaption(form.mpslbl, formatNumber(speed, 6, 2) + " m/s");
    setCaption(form.kphlbl, formatNumber(3.6 * speed, 6, 2) + " kph");
    setCaption(form.mphlbl, formatNumber(3600 / metresPerMile * speed, 6, 2) + " mph");
    setCaption(form.mpklbl, formatTime(quotient(metresPerKilometre, speed)) + "/km");
    setCaption(form.mpmlbl, formatTime(quotient(metresPerMile, speed)) + "/mi");
    setCaption(form.mpllbl, formatTime(quotient(metresPerTrackLap, speed)) + "/400");
}
