#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

#include "support/planning.h"

/// A program in a folder of its own with the file access form open, and a person who uses it.
struct OpenFiles : PlanningProgram
{
    OpenFiles() : PlanningProgram("fileacc") { open(); }

    /// Clicks an item of a list, counted from 0.
    void pick(const std::string& list, int index)
    {
        ListBox& record = usable<ListBox>(list);
        if (index < 0 || index >= static_cast<int>(record.items.size()))
            throw std::logic_error(list + " has no such item");
        enter(program, formName + "." + list, false, [&] { select(record, index); });
    }
    void pickNamed(const std::string& list, const std::string& item)
    {
        const std::vector<std::string>& items = get<ListBox>(list).items;
        pick(list, static_cast<int>(std::find(items.begin(), items.end(), item) - items.begin()));
    }
    [[nodiscard]] const std::vector<std::string>& items(const std::string& list) { return get<ListBox>(list).items; }
    [[nodiscard]] bool isEnabled(const std::string& button) { return get<Button>(button).enabled; }
    [[nodiscard]] bool isMarkedOpen() { return get<CheckBox>("Check1").ticked; }
    [[nodiscard]] RaceFileState& races() { return program.state.raceFile; }
    [[nodiscard]] RaceControls& row(std::size_t i) { return program.vantstart->races.at(i); }
    [[nodiscard]] std::filesystem::path at(const std::string& name) const { return folder.path / name; }

    /// Whether this process has a file of the folder open.
    [[nodiscard]] bool holdsOpen(const std::string& name) const
    {
        const std::filesystem::path path = std::filesystem::weakly_canonical(at(name));
        std::error_code ignored;
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
            if (std::filesystem::read_symlink(entry.path(), ignored) == path)
                return true;
        return false;
    }

    /// Opens a race file of those bytes as "races.vtc".
    void openRaces(const std::string& bytes)
    {
        writeBytes(at("races.vtc"), bytes);
        type("Text6", "races.vtc");
        click("Command4");
    }

    void enterRace(const std::string& hours, const std::string& minutes, const std::string& seconds,
                   const std::string& number, const std::string& unit, const std::string& comment)
    {
        type("Text1", hours);
        type("Text2", minutes);
        type("Text3", seconds);
        type("Text4", number);
        if (!isOn(unit))
            choose(unit);
        type("Text5", comment);
    }

    /// What was said since the last time.
    [[nodiscard]] std::vector<std::string> events()
    {
        std::vector<std::string> heard = outside.events;
        outside.forget();
        return heard;
    }
};

/// Takes the rights away that a test's user may have over all files, while it lives.
class WithoutRights
{
public:
    WithoutRights()
    {
        if (geteuid() == 0 && seteuid(nobody) != 0)
            throw std::runtime_error("a test can't give its rights up");
    }
    WithoutRights(const WithoutRights&) = delete;
    WithoutRights& operator=(const WithoutRights&) = delete;
    ~WithoutRights()
    {
        if (getuid() == 0)
            (void)!seteuid(0);
    }

private:
    static constexpr uid_t nobody = 65534;
};
