// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "bench/Bench.h"
#include "bench/Samples.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace Bench
{

namespace
{

rusage runAndMeasure(std::vector<std::string> arguments)
{
    std::vector<char *> argv;
    for (std::string &argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    if (posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ) != 0) {
        giveUp(std::string{"cannot start "} + argv[0]);
    }
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child || status != 0) {
        giveUp(std::string{argv[0]} + " failed");
    }
    return usage;
}

} // namespace

void runProgram(const std::vector<std::string> &arguments) { runAndMeasure(arguments); }

Row memoryRow(std::string name, double value, double floor, double most)
{
    return {.name = std::move(name),
            .value = value / 1e6,
            .unit = "MB",
            .floor = floor / 1e6,
            .ratio = value / floor,
            .goal = fmt::format("< {} MB", most / 1e6),
            .met = value < most};
}

int printPeakMemory(char **arguments)
{
    std::vector<std::string> words;
    for (; *arguments != nullptr; ++arguments) {
        words.emplace_back(*arguments);
    }
    std::printf("%ld\n", runAndMeasure(std::move(words)).ru_maxrss * 1024);
    return 0;
}

double peakMemory(const std::vector<std::string> &arguments)
{
    std::string command = "/proc/self/exe";
    command = std::filesystem::read_symlink(command).string() + " --peak-memory";
    for (const std::string &argument : arguments) {
        command += " '" + argument + "'";
    }
    FILE *pipe = popen(command.c_str(), "r");
    double bytes = 0;
    if (pipe == nullptr || std::fscanf(pipe, "%lf", &bytes) != 1 || pclose(pipe) != 0) {
        giveUp("cannot measure " + arguments[0]);
    }
    return bytes;
}

// The floor of a program that starts, answers and ends is one that does nothing.
std::vector<Row> programSuite()
{
    const auto folder = freshFolder("program");
    {
        auto store = must(KestCore::StateStore::open(folder / "kest.sqlite"));
        must(store.update([](KestCore::NativeState &state) -> Base::Result<void> {
            state = stateWithSessions(1'000); // a year of an ordinary user
            state.settings = {{"prayer.latitude", "30.06"},
                              {"prayer.longitude", "31.25"},
                              {"prayer.timezone", "Africa/Cairo"},
                              {"prayer.country", "EG"}};
            return {};
        }));
    }
    const std::vector<std::string> show{KEST_PROGRAM, "--data-dir", folder.string(), "show"};
    const std::vector<std::string> prayer{KEST_PROGRAM, "--data-dir", folder.string(),
                                          "prayer"};
    const std::vector<std::string> convert{KEST_PROGRAM, "convert", "5 km to mi"};
    const std::vector<std::string> emoji{KEST_PROGRAM, "--data-dir", folder.string(), "emoji",
                                         "heart"};
    const std::vector<std::string> nothing{"/bin/true"};
    const Pair seconds =
        measureByTurns(60, [&] { runProgram(show); }, [&] { runProgram(nothing); });
    const Pair prayerSeconds =
        measureByTurns(60, [&] { runProgram(prayer); }, [&] { runProgram(nothing); });
    const Pair convertSeconds =
        measureByTurns(60, [&] { runProgram(convert); }, [&] { runProgram(nothing); });
    const Pair emojiSeconds =
        measureByTurns(60, [&] { runProgram(emoji); }, [&] { runProgram(nothing); });
    return {durationRow("kest emoji as a whole process", emojiSeconds, 0.010),
            durationRow("kest convert as a whole process", convertSeconds, 0.010),
            durationRow("kest prayer as a whole process", prayerSeconds, 0.010),
            durationRow("kest show as a whole process, 1,000 sessions", seconds, 0.010),
            memoryRow("memory of kest show, 1,000 sessions", peakMemory(show),
                      peakMemory(nothing), 20e6)};
}

} // namespace Bench
