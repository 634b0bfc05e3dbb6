// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/EndToEnd/Program.h"

#include "Base/File.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace
{

struct Streams {
    std::filesystem::path in, out, err;
};

pid_t start(const std::filesystem::path &folder, std::vector<std::string> arguments,
            const Streams &streams)
{
    arguments.insert(arguments.begin(), {KEST_PROGRAM, "--data-dir", folder.string()});
    std::vector<char *> argv;
    for (std::string &argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, streams.in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, streams.out.c_str(), kFlags,
                                     0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, streams.err.c_str(), kFlags,
                                     0600);
    pid_t process = 0;
    const int code = posix_spawn(&process, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (code != 0) {
        throw std::runtime_error("kest did not start");
    }
    return process;
}

} // namespace

pid_t startKest(const std::filesystem::path &folder, std::vector<std::string> arguments)
{
    return start(folder, std::move(arguments), {"/dev/null", "/dev/null", "/dev/null"});
}

Outcome runKest(const std::filesystem::path &folder, std::vector<std::string> arguments,
                const std::filesystem::path &input)
{
    // Outputs go through files, so that neither can fill up while the other is read.
    const auto out = folder / ("out-" + std::to_string(gettid()));
    const auto err = folder / ("err-" + std::to_string(gettid()));
    const pid_t process = start(folder, std::move(arguments), {input, out, err});
    int status = 0;
    if (waitpid(process, &status, 0) != process) {
        throw std::runtime_error("kest did not end");
    }
    Outcome outcome{.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
                    .out = Base::readFile(out).value_or(""),
                    .err = Base::readFile(err).value_or("")};
    std::filesystem::remove(out);
    std::filesystem::remove(err);
    return outcome;
}
