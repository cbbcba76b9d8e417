#include "course/profile_files_form.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "course/course_file.h"
#include "course/course_profile.h"
#include "course/course_splits.h"
#include "course/recorded_course.h"
#include "course/track_points_form.h"
#include "forms/files.h"
#include "forms/on_leaving.h"
#include "forms/track_file.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr const char* ending = ".cpf";
    constexpr std::size_t mostFilesListed = 10000;

    bool isCourseName(std::string name)
    {
        std::transform(name.begin(), name.end(), name.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        return name.find(ending) != std::string::npos;
    }

    const std::filesystem::path& orHere(const std::filesystem::path& folder)
    {
        static const std::filesystem::path here = ".";
        return folder.empty() ? here : folder;
    }

    void addSplits(const Course& course, bool miles, TextTable& table)
    {
        table.rows.push_back({miles ? "Mile" : "Kilometer", "Meters into course", "Elevation (m)", "Time", "Split",
                              "min/mi", "min/km", "Grade (%)"});
        for (const CourseSplit& split : courseSplits(course, miles ? metresPerMile : metresPerKilometre))
            table.rows.push_back({plainText(roundHalfEven(split.number * 1000) / 1000), formatNumber(split.place, 0, 0),
                                  formatNumber(split.elevation, 0, 0), timeCell(split.time), timeCell(split.split),
                                  timeCell(split.perMile), timeCell(split.perKilometer),
                                  formatNumber(100 * split.grade, 0, 1)});
    }
}

CourseEntries entriesOf(const ProfileForm& form)
{
    CourseEntries entries;
    entries.distance = form.Text1.text;
    const auto& units = form.distanceUnits.members;
    const auto unit =
        std::find_if(units.begin(), units.end(), [](const OptionButton* option) { return option->chosen; });
    if (unit != units.end())
        entries.unit = static_cast<CourseUnit>(unit - units.begin() + 1);
    entries.maxElev = form.maxel.text;
    entries.minElev = form.minel.text;
    entries.startElev = form.startel.text;
    entries.endElev = form.endel.text;
    entries.feet = form.elft.chosen;
    entries.perKilometer = form.minpkm.chosen;
    entries.origElev = form.origel.value;
    return entries;
}

void showEntries(ProfileForm& form, const CourseEntries& entries)
{
    form.restoring = true;
    const OnLeaving restored([&form] { form.restoring = false; });
    setText(form.Text1, entries.distance);
    setChosen(*form.distanceUnits.members[static_cast<std::size_t>(entries.unit) - 1], true);
    setText(form.maxel, entries.maxElev);
    setText(form.minel, entries.minElev);
    setText(form.startel, entries.startElev);
    setText(form.endel, entries.endElev);
    setChosen(entries.feet ? form.elft : form.elm, true);
    setChosen(entries.perKilometer ? form.minpkm : form.minpmi, true);
    setValue(form.origel, entries.origElev);
}

void listCourses(ProfileForm& form)
{
    form.cpflist.items.clear();
    std::error_code error;
    std::filesystem::directory_iterator entry(orHere(form.folder), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
    {
        std::error_code ignored;
        const std::string name = entry->path().filename().string();
        if (isCourseName(name) && entry->is_regular_file(ignored) && form.cpflist.items.size() < mostFilesListed)
            form.cpflist.items.push_back(name);
    }
    std::sort(form.cpflist.items.begin(), form.cpflist.items.end());
    notifyShown(form.cpflist);
}

void pickCourse(ProfileForm& form)
{
    setText(form.retname, form.cpflist.items[static_cast<std::size_t>(form.cpflist.selected)]);
}

void saveCourse(ProfileForm& form)
{
    const std::filesystem::path path = form.folder / (form.savname.text + ending);
    const std::string bytes = bytesOf(courseFileOf(entriesOf(form), form.state.course));
    Messages unreadable;
    if (!readCourseFile(bytes, unreadable))
    {
        form.outside.said.push_back({"The course has not been saved, for it could not be retrieved: " +
                                         unreadable.front().text + "\nPlease mend the entry and save again.",
                                     "Course not saved"});
        return;
    }
    if (const auto failure = replaceFile(path, bytes))
        form.outside.said.push_back(
            {"The course could not be saved to " + path.string() + ": " + *failure + ".", "Course not saved"});
}

void retrieveCourse(ProfileForm& form)
{
    Course& course = form.state.course;
    form.state.activity = "retrieving the course";
    const int loadingBefore = course.courseLoading;
    course.courseLoading = 1;
    if (form.retname.text.empty())
    {
        form.outside.said.push_back({"Choose or enter a file name to retrieve."});
        return;
    }
    const std::filesystem::path path = form.folder / form.retname.text;
    const std::optional<std::string> bytes = readFile(path, longestCourseFile + 1);
    if (!bytes)
        form.outside.said.push_back({"The course file " + path.string() + " can't be opened."});
    const std::optional<CourseFile> file = bytes ? readCourseFile(*bytes, form.outside.said) : std::nullopt;
    if (!file)
    {
        course.courseLoading = loadingBefore;
        return;
    }
    showEntries(form, entriesOf(*file, entriesOf(form)));
    readEntries(form);
    takePoints(*file, course);
    redraw(form, 2);
    if (form.update.ticked)
        course.courseLoading = 0;
}

void importTrack(ProfileForm& form, const std::string& bytes)
{
    Course& course = form.state.course;
    form.state.activity = "importing the course";
    const std::optional<Track> track = readTrack(bytes, form.outside.said);
    std::optional<RecordedCourse> recorded;
    if (track)
        recorded = courseOfRecording(recordedPoints(*track), usualSmoothing, form.outside.said);
    if (!recorded)
        return;
    showEntries(form, entriesOf(*recorded, entriesOf(form)));
    course.marks = {};
    course.pointCount = 2;
    readEntries(form);
    takePoints(*recorded, course);
    setCaption(form.importnote, noteOf(*recorded));
    redraw(form);
}

void askForTrack(ProfileForm& form)
{
    const FileQuestion question{"Import course", "Tracks and routes", {"*.gpx", "*.tcx"}};
    const std::optional<std::string> path = chooseFile(form.outside, question);
    if (!path)
        return;
    if (const std::optional<std::string> bytes = readFile(*path, longestTrackFile + 1))
        importTrack(form, *bytes);
    else
        form.outside.said.push_back({"The file " + *path + " can't be opened."});
}

Course solvedCourse(const ProfileForm& form)
{
    Course course = form.solved;
    course.perfScale = form.state.course.perfScale;
    return course;
}

TextTable splitTable(const ProfileForm& form)
{
    TextTable table;
    const Course course = solvedCourse(form);
    if (!(course.distAt.back() > 0))
        return table;
    addSplits(course, false, table);
    table.rows.emplace_back();
    addSplits(course, true, table);
    return table;
}
