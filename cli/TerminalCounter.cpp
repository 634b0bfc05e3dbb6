// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/CounterSteps.h"
#include "cli/Session.h"
#include "cli/Terminal.h"

#include <fmt/format.h>

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <optional>

// The counter on the whole terminal.
namespace Cli
{

namespace
{

using KestCore::CountAction;
using KestCore::StateStore;

// While keys come quickly the store stays open; left alone for this long it is given back, so
// that other commands need not wait for a counter that nobody is touching.
constexpr int kHoldMs = 300;
// How often a resting counter looks whether another command has counted.
constexpr int kLookMs = 1000;

// A digit in five rows of three cells.
constexpr std::array<std::array<std::string_view, 5>, 10> kDigits{{
    {"###", "# #", "# #", "# #", "###"},
    {"  #", "  #", "  #", "  #", "  #"},
    {"###", "  #", "###", "#  ", "###"},
    {"###", "  #", "###", "  #", "###"},
    {"# #", "# #", "###", "  #", "  #"},
    {"###", "#  ", "###", "  #", "###"},
    {"###", "#  ", "###", "# #", "###"},
    {"###", "  #", "  #", "  #", "  #"},
    {"###", "# #", "###", "# #", "###"},
    {"###", "# #", "###", "  #", "###"},
}};

std::string bigRow(std::string_view number, std::size_t row)
{
    std::string text;
    for (const char digit : number) {
        if (digit < '0' || digit > '9') {
            text += row == 2 ? "▀▀▀▀  " : "      ";
            continue;
        }
        for (const char cell : kDigits[static_cast<std::size_t>(digit - '0')][row]) {
            text += cell == '#' ? "██" : "  ";
        }
        text += "  ";
    }
    return text;
}

std::string bar(std::int64_t count, std::int64_t target, int width)
{
    const auto cells = static_cast<std::int64_t>(std::max(width, 0));
    const std::int64_t done = std::clamp<std::int64_t>(count, 0, target) * cells / target;
    std::string text;
    for (std::int64_t cell = 0; cell < cells; ++cell) {
        text += cell < done ? "━" : "─";
    }
    return text;
}

class TerminalCounter
{
public:
    explicit TerminalCounter(Session &session) : m_session(session) {}

    Result<void> run()
    {
        KEST_CHECK(takeStore());
        const Terminal terminal;
        while (!m_isLeaving) {
            draw(terminal);
            const auto key = terminal.waitForKey(m_store ? kHoldMs : kLookMs);
            if (key) {
                press(terminal, *key);
            } else if (m_store) {
                m_store.reset(); // closing it changes the files too
                m_seen = stamp();
            } else if (stamp() != m_seen) {
                look();
            }
        }
        return {};
    }

private:
    // Changes whenever somebody writes to the database.
    std::array<std::int64_t, 4> stamp() const
    {
        std::array<std::int64_t, 4> values{};
        std::size_t at = 0;
        for (const char *suffix : {"", "-wal"}) {
            struct stat info{};
            const std::string file = m_session.databaseFile().string() + suffix;
            if (::stat(file.c_str(), &info) == 0) {
                values[at] = info.st_size;
                values[at + 1] = info.st_mtim.tv_sec * 1'000'000'000 + info.st_mtim.tv_nsec;
            }
            at += 2;
        }
        return values;
    }

    Result<StateStore *> takeStore()
    {
        if (!m_store) {
            KEST_TRY(StateStore opened, m_session.openStore());
            m_state = opened.state();
            m_store = std::move(opened);
        }
        return &*m_store;
    }

    void look()
    {
        if (const auto taken = takeStore(); !taken) {
            m_message = taken.error().message;
        }
    }

    void act(const CountAction &action)
    {
        const auto store = takeStore();
        if (!store) {
            m_message = store.error().message;
            return;
        }
        const auto outcome = step(**store, action);
        if (!outcome) {
            m_message = outcome.error().message;
            return;
        }
        m_state = (*store)->state();
        m_message = outcome->targetReached ? "Target reached" : "";
        const auto &preferences = m_state.devotional.preferences;
        if (outcome->targetReached && preferences.soundEnabled && preferences.completionSound) {
            Terminal::ring();
        }
    }

    void press(const Terminal &terminal, int key)
    {
        m_message.clear();
        switch (key) {
        case ' ':
        case '\n':
            return act(KestCore::Increment{});
        case 'u':
            return act(KestCore::Undo{});
        case 'p':
            return act(KestCore::TogglePause{});
        case 'f':
            return act(KestCore::Finish{});
        case 't':
            return askTarget(terminal);
        case 'q':
        case Terminal::kGone:
            m_isLeaving = true;
            return;
        default:
            return;
        }
    }

    void askTarget(const Terminal &terminal)
    {
        const auto digits = terminal.readDigits("Target (empty for an open count): ", 8);
        if (digits) {
            act(digits->empty() ? KestCore::SetTarget{}
                                : KestCore::SetTarget{std::stoll(*digits)});
        }
    }

    void draw(const Terminal &terminal) const
    {
        const auto &counting = m_state.devotional.session;
        const auto &phrase = selectedPhrase(m_state);
        terminal.clear();
        int row = std::max(0, terminal.height() / 2 - 7);
        terminal.centre(row++, phrase.arabic, Terminal::Ink::plain);
        terminal.centre(row++, phrase.transliteration, Terminal::Ink::strong);
        terminal.centre(row++, phrase.translation.value_or(""), Terminal::Ink::faint);
        ++row;
        const std::string number = std::to_string(counting.count);
        for (std::size_t line = 0; line < 5; ++line) {
            terminal.centre(row++, bigRow(number, line), Terminal::Ink::accent);
        }
        ++row;
        if (counting.target) {
            terminal.centre(
                row++,
                bar(counting.count, *counting.target, std::min(40, terminal.width() - 4)),
                Terminal::Ink::accent);
        }
        terminal.centre(row++, progressText(counting), Terminal::Ink::plain);
        terminal.centre(++row, m_message, Terminal::Ink::strong);
        terminal.centre(terminal.height() - 1,
                        "space counts · u undo · t target · p pause · f finish · q leave",
                        Terminal::Ink::faint);
        terminal.show();
    }

    Session &m_session;
    std::optional<StateStore> m_store;
    KestCore::NativeState m_state{};
    std::array<std::int64_t, 4> m_seen{};
    std::string m_message;
    bool m_isLeaving = false;
};

} // namespace

Result<void> runTerminalCounter(Session &session)
{
    if (!Console::isInteractive()) {
        return std::unexpected(KestError::unavailable(
            "The counter needs a terminal; kest count works without one"));
    }
    if (!Terminal::isKnown()) {
        return std::unexpected(
            KestError::unavailable("This kind of terminal (TERM) is not known here"));
    }
    return TerminalCounter{session}.run();
}

} // namespace Cli
