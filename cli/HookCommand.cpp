// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookEvent.h"
#include "cli/Application.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>

// hook: what a coding assistant runs at its events. It must never hold one up or fail it, so it
// has little time, prints nothing and always ends well; only wrong usage is told.
namespace Cli
{

namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kTimeToRead = 1000ms;
constexpr auto kPatience = 300ms; // for each step with the application

// Standard input to its end; nothing where that is too long or comes too late.
std::optional<std::string> readInput()
{
    const auto deadline = Clock::now() + kTimeToRead;
    std::string text;
    std::array<char, 65'536> buffer; // NOLINT(*-member-init): it is read into
    while (text.size() <= Assistants::kLongestHook) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
        const int ready = left > 0ms ? ::poll(&input, 1, static_cast<int>(left.count())) : 0;
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        const ssize_t got =
            ready > 0 ? ::read(STDIN_FILENO, buffer.data(), buffer.size()) : ssize_t{-1};
        if (got < 0) {
            return std::nullopt;
        }
        if (got == 0) {
            return text;
        }
        text.append(buffer.data(), static_cast<std::size_t>(got));
    }
    return std::nullopt;
}

void runHook(const Session &session, const std::vector<std::string> &words)
{
    if (words.size() != 1 || !KestCore::isAssistantTool(words.front()) ||
        isatty(STDIN_FILENO) != 0) {
        std::fputs("kest: usage: kest hook TOOL, with a hook's JSON on standard input\n",
                   stderr);
        return;
    }
    const auto text = readInput();
    if (!text) {
        return;
    }
    const auto event = Assistants::readHookEvent(words.front(), *text);
    if (!event || !*event) {
        return;
    }
    if (auto application = Application::find(session.databaseFile(), kPatience)) {
        (void)application->ask(
            {.request = KestCore::ApplicationRequest::hook, .event = *event});
    }
}

} // namespace

void addHookCommand(CLI::App &program, Session &session)
{
    CLI::App *hook =
        program.add_subcommand("hook", "Hands on an event of a coding assistant's hook");
    hook->footer("TOOL is claude-code, cursor or another in small letters; its JSON comes on "
                 "standard input.");
    // Not even a wrong option may end in a status that the tool would heed.
    hook->fallthrough(false);
    hook->prefix_command();
    hook->callback([=, &session] {
        session.command = [=, &session]() -> Result<void> {
            runHook(session, hook->remaining());
            return {};
        };
    });
}

} // namespace Cli
