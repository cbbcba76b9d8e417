#include "course/profile_form.h"

#include <chrono>
#include <utility>
#include <vector>

#include "course/course_file.h"
#include "course/course_profile.h"
#include "course/course_solver.h"
#include "course/course_splits.h"
#include "course/profile_files_form.h"
#include "course/working_form.h"
#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr const char* workingForm = "working";

    constexpr std::chrono::milliseconds patience{300};

    /// Shows the form `working` where a solve takes long, and takes it away at the end.
    class WorkingWindow
    {
    public:
        explicit WorkingWindow(ProfileForm& solvedForm) : form(solvedForm), goOn(solvedForm.state.goOn)
        {
            form.state.goOn = [this] {
                if (!open && std::chrono::steady_clock::now() - begin >= patience)
                    show();
                return !goOn || goOn();
            };
        }
        WorkingWindow(const WorkingWindow&) = delete;
        WorkingWindow& operator=(const WorkingWindow&) = delete;
        ~WorkingWindow()
        {
            form.state.goOn = goOn;
            if (open && form.outside.closeForm)
                form.outside.closeForm(workingForm);
        }

    private:
        void show()
        {
            open = true;
            if (form.outside.openForm)
                form.outside.openForm(workingForm);
        }

        ProfileForm& form;
        GoOn goOn;
        std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
        bool open = false;
    };

    std::string elevationText(const ProfileForm& form, double metres)
    {
        return plainText(roundHalfEven(form.elft.chosen ? metres * feetPerMetre : metres));
    }

    void showResult(ProfileForm& form, CourseResult result)
    {
        const Course& course = form.state.course;
        const auto timeText = [&course](double seconds) { return formatTime(checked(course.perfScale * seconds)); };
        switch (result)
        {
        case CourseResult::slopeDist: setText(form.Text3, formatNumber(course.slopeDist, 7, 1)); break;
        case CourseResult::climbs:
            setText(form.risetx, elevationText(form, course.totalRise));
            setText(form.falltx, elevationText(form, course.totalDrop));
            break;
        case CourseResult::flatTime: setText(form.Text4, timeText(course.flatTime)); break;
        case CourseResult::evenTime: setText(form.Text5, timeText(course.evenTime)); break;
        case CourseResult::strategicTime: setText(form.Text6, timeText(course.strategicTime)); break;
        case CourseResult::pacedTime: setText(form.Text6, timeText(course.timeAt.back())); break;
        }
    }

    void showTotals(ProfileForm& form)
    {
        setCaption(form.Label32, form.elft.chosen ? "Total (feet)" : "Total (meters)");
    }

    /// Takes the distance of the entries, and shows it where it is within bounds. Returns whether it counts.
    bool takeDistance(ProfileForm& form)
    {
        const bool taken = readCourseDistance(form.state, entriesOf(form), form.outside.said);
        if (form.state.course.distanceValid == 1)
            setText(form.Text2, plainText(form.state.course.courseDist));
        return taken;
    }

    /// A change of the distance or its unit.
    void changeDistance(ProfileForm& form)
    {
        if (!form.restoring && takeDistance(form))
            redraw(form);
    }

    void takeElevations(ProfileForm& form)
    {
        if (readCourseElevations(form.state, entriesOf(form), form.outside.said))
            redraw(form);
    }

    /// A change of an elevation: with a message, it is not taken.
    void changeElevation(ProfileForm& form, const char* refusal)
    {
        if (form.restoring)
            return;
        if (refusal)
            form.outside.said.push_back({refusal});
        else
            takeElevations(form);
    }

    // The four elevations are compared as texts, byte by byte, on purpose: "1000" is below "600".

    void changeMax(ProfileForm& form)
    {
        const std::string& text = form.maxel.text;
        const char* refusal = nullptr;
        if (text < form.endel.text || text < form.startel.text)
            refusal = "Max elevation shown on graph must be greater than both start and end elevations.";
        else if (text < form.minel.text)
            refusal = "Max elevation shown on graph must be greater than min elevation.";
        changeElevation(form, refusal);
    }

    void changeMin(ProfileForm& form)
    {
        const std::string& text = form.minel.text;
        const char* refusal = nullptr;
        if (text > form.endel.text || text > form.startel.text)
            refusal = "Min elevation shown on graph must be less than both start and end elevations.";
        else if (text > form.maxel.text)
            refusal = "Min elevation shown on graph must be less than max elevation.";
        changeElevation(form, refusal);
    }

    void changeEnd(ProfileForm& form, const TextBox& end, const char* refusal)
    {
        const bool outside = end.text > form.maxel.text || end.text < form.minel.text;
        changeElevation(form, outside ? refusal : nullptr);
    }

    void chooseElevationUnit(ProfileForm& form)
    {
        if (!form.restoring)
            takeElevations(form);
        showTotals(form);
    }

    void changeOrigin(ProfileForm& form)
    {
        const int value = form.origel.value;
        setText(form.origelft, plainText(roundHalfEven(value * feetPerMetre)));
        setText(form.origelm, plainText(value));
        form.state.course.origElev = value;
        if (!form.restoring)
            redraw(form);
    }

    void changeMultiplier(ProfileForm& form)
    {
        Course& course = form.state.course;
        form.state.activity = "multiplying the times";
        setText(form.perfmulttx, formatNumber(form.perfmult.value / 10.0, 5, 1));
        course.perfScale = 1000.0 / form.perfmult.value;
        for (const CourseResult time : {CourseResult::flatTime, CourseResult::evenTime, CourseResult::strategicTime})
            showResult(form, time);
    }

    void chooseLines(ProfileForm& form)
    {
        form.state.course.scur = form.scur.chosen ? 1 : 0;
        redraw(form);
    }

    void enterPoint(ProfileForm& form)
    {
        form.state.activity = "reading the point";
        const CourseEntries entries = entriesOf(form);
        const double x = courseDistanceOf(form.distx.text, entries.unit);
        if (x > longestCourse)
        {
            form.outside.said.push_back({distanceTooLong});
            return;
        }
        const double y = courseElevationOf(form.eletx.text, entries.feet);
        if (addCoursePoint(form.state, x, y, form.outside.said))
            redraw(form);
    }

    void clearCourse(ProfileForm& form)
    {
        Course& course = form.state.course;
        course.pointCount = 2;
        takeElevations(form);
        (void)takeDistance(form);
        drawGrid(form.p1);
        clearCoursePlaces(course);
        course.pointCount = 2;
        redraw(form);
    }

    void load(ProfileForm& form)
    {
        Course& course = form.state.course;
        course.marks = {};
        course.origElev = form.origel.value;
        course.perfScale = 1;
        course.scur = 0;
        course.courseLoading = 1;
        const OnLeaving loaded([&course] { course.courseLoading = 0; });
        listCourses(form);
        if (course.courseSaved == 0)
        {
            drawGrid(form.p1);
            course.pointCount = 2;
            clearCoursePlaces(course);
        }
        else
            showEntries(form, course.entries);
        readEntries(form);
        redraw(form);
    }

    /// Keeps the entries, whatever closes the form. The points stay where they are.
    void store(const ProfileForm& form)
    {
        form.state.course.entries = entriesOf(form);
        form.state.course.courseSaved = 1;
    }

    void printBand(ProfileForm& form)
    {
        form.state.activity = "printing the pace band";
        const std::vector<std::string> band = paceBand(solvedCourse(form), form.minpmi.chosen);
        if (band.size() < 2)
            form.outside.said.push_back({"There are no splits: the course has not been worked out yet."});
        else if (form.outside.printer.printText)
            form.outside.printer.printText(band);
    }

    /// The pace of a speed, in the unit chosen and with the multiplier.
    std::string paceText(const ProfileForm& form, double speed)
    {
        const double u = form.minpmi.chosen ? kilometresPerMile : 1;
        return formatTime(quotient(u * form.state.course.perfScale * metresPerKilometre, speed));
    }

    void wireEntries(ProfileForm& f)
    {
        f.Text1.changed = [&f] { changeDistance(f); };
        for (OptionButton* unit : f.distanceUnits.members)
        {
            unit->group = &f.distanceUnits;
            unit->clicked = [&f] { changeDistance(f); };
        }
        f.maxel.changed = [&f] { changeMax(f); };
        f.minel.changed = [&f] { changeMin(f); };
        f.startel.changed = [&f] {
            changeEnd(f, f.startel, "Start elevation must be between max and min elevations for display on graph.");
        };
        f.endel.changed = [&f] {
            changeEnd(f, f.endel, "End elevation must be between max and min elevations for display on graph.");
        };
        for (OptionButton* unit : f.elevationUnits.members)
        {
            unit->group = &f.elevationUnits;
            unit->clicked = [&f] { chooseElevationUnit(f); };
        }
        for (OptionButton* line : f.lines.members)
        {
            line->group = &f.lines;
            line->clicked = [&f] { chooseLines(f); };
        }
        for (OptionButton* unit : f.paceUnits.members)
            unit->group = &f.paceUnits;
        f.update.clicked = [&f] {
            if (f.update.ticked)
                redraw(f);
        };
        f.perfmult.changed = [&f] { changeMultiplier(f); };
        f.origel.changed = [&f] { changeOrigin(f); };
        f.cpflist.clicked = [&f] { pickCourse(f); };
    }

    void wireActions(ProfileForm& f)
    {
        f.p1.pressed = [&f](Point at) { pressGraph(f, at); };
        f.p1.moved = [&f](Point at) { readGraph(f, at); };
        f.Command1.clicked = [&f] { f.outside.closeForm(f.form.name); };
        f.Command2.clicked = [&f] { saveCourse(f); };
        f.Command3.clicked = [&f] { clearCourse(f); };
        f.Command4.clicked = [&f] { enterPoint(f); };
        f.Command5.clicked = [&f] { retrieveCourse(f); };
        f.Command6.clicked = [&f] { drawSplits(f.state, f.minpmi.chosen, f.p1); };
        f.Command7.clicked = [&f] { f.outside.openForm(f.Command7.opens); };
        f.Command8.clicked = [&f] { f.outside.openForm(f.Command8.opens); };
        f.importtrack.clicked = [&f] { askForTrack(f); };
        f.paceband.clicked = [&f] { printBand(f); };
        f.form.load = [&f] { load(f); };
        f.form.unloaded = [&f] { store(f); };
        f.form.table = [&f] { return splitTable(f); };
    }

    std::vector<ControlRef> controlsOf(ProfileForm& f)
    {
        return {&f.Text1,        &f.pmi,         &f.pyd,          &f.pkm,
                &f.pme,          &f.pma,         &f.phm,          &f.maxel,
                &f.minel,        &f.startel,     &f.endel,        &f.elft,
                &f.elm,          &f.p1,          &f.mouseHeading, &f.mousexmi,
                &f.mousexm,      &f.mouseyft,    &f.mouseym,      &f.mousegrade,
                &f.pointHeading, &f.distx,       &f.eletx,        &f.Command4,
                &f.cdots,        &f.scur,        &f.update,       &f.distanceHeading,
                &f.Text2,        &f.Text3,       &f.Label32,      &f.risetx,
                &f.falltx,       &f.timeHeading, &f.Text4,        &f.Text5,
                &f.Text6,        &f.perfmult,    &f.perfmulttx,   &f.origel,
                &f.origelft,     &f.origelm,     &f.Text11,       &f.Text12,
                &f.Text13,       &f.Text7,       &f.Text9,        &f.Text8,
                &f.Text10,       &f.minpmi,      &f.minpkm,       &f.savname,
                &f.savending,    &f.Command2,    &f.retname,      &f.cpflist,
                &f.Command5,     &f.importtrack, &f.importnote,   &f.paceband,
                &f.Command3,     &f.Command6,    &f.Command7,     &f.Command8,
                &f.Command1};
    }
}

ProfileForm::ProfileForm(ModelState& modelState, Outside& formOutside, const std::filesystem::path& currentFolder)
    : state(modelState), outside(formOutside), folder(currentFolder)
{
    wireEntries(*this);
    wireActions(*this);
    form.controls = controlsOf(*this);
}

void readEntries(ProfileForm& form)
{
    (void)takeDistance(form);
    (void)readCourseElevations(form.state, entriesOf(form), form.outside.said);
}

void redraw(ProfileForm& form, int solves)
{
    drawCourse(form.state, form.p1);
    if (!form.update.ticked)
        return;
    const WorkingWindow working(form);
    for (int i = 0; i < solves; ++i)
        solveAndSplit(form.state, [&form](CourseResult result) { showResult(form, result); });
    form.solved = form.state.course;
}

void pressGraph(ProfileForm& form, Point at)
{
    if (form.state.course.distanceValid != 1)
        return;
    if (!isOnGraph(at))
    {
        form.outside.said.push_back({"Mouse out of range"});
        return;
    }
    form.state.activity = "adding a point to the course";
    const Point point = courseAt(form.state.course, at);
    if (!addCoursePoint(form.state, point.x, roundHalfEven(point.y), form.outside.said))
        return;
    redraw(form);
    if (form.update.ticked && form.state.incline.zeroPowerFlag == 1)
        form.outside.said.push_back({"Speed to slow for reliable calculations"});
}

void readGraph(ProfileForm& form, Point at)
{
    const Course& course = form.state.course;
    if (course.distanceValid != 1 || !isOnGraph(at))
        return;
    form.state.activity = "reading the course at the mouse";
    const auto [x, e] = courseAt(course, at);
    setText(form.mousexm, formatNumber(x, 6, 0));
    setText(form.mousexmi, formatNumber(x / metresPerMile, 6, 2));
    setText(form.mouseym, formatNumber(e, 6, 0));
    setText(form.mouseyft, formatNumber(e * feetPerMetre, 6, 0));
    const CoursePassage passage = coursePassageAt(course, x);
    setText(form.Text11, formatTime(checked(course.perfScale * passage.seconds)));
    setText(form.Text12, formatNumber(passage.metres / metresPerMile, 6, 3));
    setText(form.Text13, formatNumber(passage.metres, 6, 0));
    form.lastSlope = courseSlopeAt(course, x, form.lastSlope);
    const CoursePaces paces = coursePacesAt(form.state, x, form.lastSlope);
    setText(form.Text7, paceText(form, paces.shownEven));
    setText(form.Text8, paceText(form, paces.strategic));
    setText(form.Text9, paceText(form, course.evenFlatSpeed));
    setText(form.Text10, paceText(form, paces.flatEquivalent));
    setText(form.mousegrade, formatNumber(form.lastSlope.grade, 6, 4));
}
