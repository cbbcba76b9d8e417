#include <cstdlib>
#include <filesystem>
#include <string>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include "program/program.h"
#include "timings.h"

namespace
{
    constexpr double startTargetMilliseconds = 100;

    /// The console beside this program, with a race to predict; returns its exit status.
    int predictInProcess(const std::string& console)
    {
        std::string words[] = {console, "predict", "--race", "5 km 19:20", "--age", "40", "--miles", "30"};
        char* arguments[std::size(words) + 1] = {};
        for (std::size_t i = 0; i < std::size(words); ++i)
            arguments[i] = words[i].data();
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", 1, 0);
        pid_t child = 0;
        int status = -1;
        if (posix_spawn(&child, console.c_str(), &actions, nullptr, arguments, environ) == 0)
            waitpid(child, &status, 0);
        posix_spawn_file_actions_destroy(&actions);
        return status;
    }

    void timeConsole(benchmark::State& timing)
    {
        const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe");
        const std::string console = self.parent_path() / "vantelos-console";
        for (auto _ : timing)
            if (predictInProcess(console) != 0)
                timing.SkipWithError("vantelos-console could not predict");
    }

    /// A program that was left with a race entered, ready to start again from its settings.
    void timeStart(benchmark::State& timing)
    {
        std::string name = std::filesystem::temp_directory_path() / "vantelos-bench.XXXXXX";
        const std::filesystem::path folder = mkdtemp(name.data());
        Dialogs dialogs;
        dialogs.message = [](const Message&) {};
        dialogs.ask = [](const Message&) { return false; };
        dialogs.fault = [&](const FaultReport& fault) { timing.SkipWithError(fault.text.c_str()); };
        {
            Program program(dialogs, {}, folder);
            RaceControls& race = program.vantstart->races[0];
            setTicked(race.Check1, true);
            setText(race.Text2, "20");
            setText(race.Text4, "5");
            setChosen(race.Option3, true);
            setText(program.vantstart->txtage, "40");
            stop(program);
        }
        for (auto _ : timing)
        {
            Program program(dialogs, {}, folder);
            start(program);
            benchmark::DoNotOptimize(program.state.curve.aerobicPower);
        }
        std::filesystem::remove_all(folder);
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
}
