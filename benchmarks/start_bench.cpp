#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include "program/program.h"
#include "timings.h"

namespace
{
    constexpr double startTargetMilliseconds = 100;
    constexpr double memoryTargetMegabytes = 60;

    /// A program beside this one.
    std::string neighbour(const char* name)
    {
        return std::filesystem::read_symlink("/proc/self/exe").parent_path() / name;
    }

    /// Runs a program to its end, with its output in a file and its messages dropped; returns its exit status.
    int runInProcess(std::vector<std::string> words, const std::string& output)
    {
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        pid_t child = 0;
        int status = -1;
        if (posix_spawn(&child, words.front().c_str(), &actions, nullptr, arguments.data(), environ) == 0)
            waitpid(child, &status, 0);
        posix_spawn_file_actions_destroy(&actions);
        return status;
    }

    void timeConsole(benchmark::State& timing)
    {
        const std::vector<std::string> words{
            neighbour("vantelos-console"), "predict", "--race", "5 km 19:20", "--age", "40", "--miles", "30"};
        for (auto _ : timing)
            if (runInProcess(words, "/dev/null") != 0)
                timing.SkipWithError("vantelos-console could not predict");
    }

    /// A folder with the settings of a program that was left with a race entered. It goes with this record.
    struct SettingsFolder
    {
        std::string name = std::filesystem::temp_directory_path() / "vantelos-bench.XXXXXX";
        const std::filesystem::path path = mkdtemp(name.data());

        explicit SettingsFolder(const Dialogs& dialogs)
        {
            Program program(dialogs, {}, path);
            RaceControls& race = program.vantstart->races[0];
            setTicked(race.Check1, true);
            setText(race.Text2, "20");
            setText(race.Text4, "5");
            setChosen(race.Option3, true);
            setText(program.vantstart->txtage, "40");
            stop(program);
        }
        SettingsFolder(const SettingsFolder&) = delete;
        SettingsFolder& operator=(const SettingsFolder&) = delete;
        ~SettingsFolder() { std::filesystem::remove_all(path); }
    };

    Dialogs dialogsFor(benchmark::State& timing)
    {
        Dialogs dialogs;
        dialogs.message = [](const Message&) {};
        dialogs.ask = [](const Message&) { return false; };
        dialogs.fault = [&timing](const FaultReport& fault) { timing.SkipWithError(fault.text.c_str()); };
        return dialogs;
    }

    void timeStart(benchmark::State& timing)
    {
        const Dialogs dialogs = dialogsFor(timing);
        const SettingsFolder folder(dialogs);
        for (auto _ : timing)
        {
            Program program(dialogs, {}, folder.path);
            start(program);
            benchmark::DoNotOptimize(program.state.curve.aerobicPower);
        }
    }

    /// Brings the window up on a screen in memory; returns how many bytes it then holds.
    double showWindow(benchmark::State& timing, const SettingsFolder& folder)
    {
        const std::filesystem::path output = folder.path / "output";
        if (runInProcess(
                {"/usr/bin/env", "-C", folder.path, "QT_QPA_PLATFORM=offscreen", neighbour("vantelos-window-start")},
                output) != 0)
            timing.SkipWithError("the window did not come up");
        double bytes = 0;
        std::ifstream(output) >> bytes;
        return bytes;
    }

    void timeWindow(benchmark::State& timing)
    {
        const SettingsFolder folder(dialogsFor(timing));
        for (auto _ : timing)
            showWindow(timing, folder);
    }

    /// In a table of milliseconds a megabyte takes the place of one.
    void weighWindow(benchmark::State& timing)
    {
        const SettingsFolder folder(dialogsFor(timing));
        for (auto _ : timing)
            timing.SetIterationTime(showWindow(timing, folder) / 1e6 / 1e3);
    }
}

void registerStarts()
{
    const std::string process = "Console from start to first table";
    setTarget(process, startTargetMilliseconds);
    benchmark::RegisterBenchmark(process.c_str(), timeConsole)->UseRealTime();
    const std::string program = "Program from settings to first table";
    setTarget(program, startTargetMilliseconds);
    benchmark::RegisterBenchmark(program.c_str(), timeStart);
    if (!std::filesystem::exists(neighbour("vantelos-window-start")))
        return;
    const std::string window = "Window with the first table, offscreen";
    setTarget(window, startTargetMilliseconds);
    benchmark::RegisterBenchmark(window.c_str(), timeWindow)->UseRealTime();
    const std::string memory = "Memory of that window at rest (MB, not ms)";
    setTarget(memory, memoryTargetMegabytes);
    benchmark::RegisterBenchmark(memory.c_str(), weighWindow)->UseManualTime()->Iterations(3);
}
