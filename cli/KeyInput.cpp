// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/KeyInput.h"

#include "Base/Secret.h"

#include <sys/prctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <optional>

namespace Cli
{

namespace
{

// A terminal that shows nothing of what is typed and hands over each key, those too that
// would end the program and leave it so. Set back on destruction.
class SilentTerminal
{
public:
    SilentTerminal() : m_isChanged(tcgetattr(STDIN_FILENO, &m_before) == 0)
    {
        termios silent = m_before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | ISIG);
        silent.c_cc[VMIN] = 1;
        silent.c_cc[VTIME] = 0;
        m_isChanged = m_isChanged && tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent) == 0;
    }
    ~SilentTerminal()
    {
        if (m_isChanged) {
            tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before);
        }
        std::fputs("\n", stderr);
    }
    SilentTerminal(const SilentTerminal &) = delete;
    SilentTerminal &operator=(const SilentTerminal &) = delete;

    bool isSilent() const { return m_isChanged; }

private:
    termios m_before{};
    bool m_isChanged;
};

// The next byte; nothing at the end. Read without the library, whose buffer would keep it.
Result<std::optional<char>> nextByte()
{
    char byte = '\0';
    while (true) {
        const ssize_t got = read(STDIN_FILENO, &byte, 1);
        if (got == 1) {
            return byte;
        }
        if (got == 0) {
            return std::nullopt;
        }
        if (errno != EINTR) {
            return std::unexpected(KestError::unavailable("Standard input cannot be read"));
        }
    }
}

constexpr char kEndOfInput = 4; // Ctrl-D
constexpr char kClear = 21;     // Ctrl-U
constexpr char kBackspace = 8;
constexpr char kDelete = 127;

// Any other key that is no character: Ctrl-C, Escape, an arrow.
bool givesUp(char key) { return key >= 0 && key < ' ' && key != '\t'; }

// Takes one typed key that edits the line; false for one that belongs to it.
bool edits(char key, std::string &line)
{
    if (key == kBackspace || key == kDelete) {
        line.resize(line.empty() ? 0 : line.size() - 1);
    } else if (key == kClear) {
        line.clear();
    } else {
        return false;
    }
    return true;
}

// Appends to `line`, which has room for one byte more than the longest.
Result<void> readLine(std::string &line, std::size_t longest, bool isTyped)
{
    while (true) {
        KEST_TRY(const auto byte, nextByte());
        if (!byte || *byte == '\n' || *byte == '\r' || (isTyped && *byte == kEndOfInput)) {
            return {};
        }
        if (isTyped && edits(*byte, line)) {
            continue;
        }
        if (isTyped && givesUp(*byte)) {
            return std::unexpected(
                KestError::invalidData("No key was entered; nothing changed"));
        }
        if (line.size() == longest) {
            return std::unexpected(KestError::invalidData("The key is too long"));
        }
        line += *byte;
    }
}

void trimBlanks(std::string &line)
{
    line.resize(line.find_last_not_of(" \t") + 1);
    line.erase(0, std::min(line.find_first_not_of(" \t"), line.size()));
}

} // namespace

void forbidCoreDumps() { prctl(PR_SET_DUMPABLE, 0); }

Result<std::string> readKey(std::string_view question, std::size_t longest)
{
    std::optional<SilentTerminal> terminal;
    if (isatty(STDIN_FILENO) != 0) {
        // Before the question: what is typed at once must not show either.
        if (!terminal.emplace().isSilent()) {
            return std::unexpected(
                KestError::unavailable("The terminal would show the key; nothing was read"));
        }
        std::fprintf(stderr, "%.*s ", static_cast<int>(question.size()), question.data());
    }
    // Built where it is returned, as moving a short text leaves a copy behind.
    Result<std::string> line;
    line->reserve(longest + 1);
    auto outcome = readLine(*line, longest, terminal.has_value());
    trimBlanks(*line);
    if (outcome && line->empty()) {
        outcome = std::unexpected(KestError::invalidData(
            "No key on standard input; pipe it in, or type it on a terminal"));
    }
    if (!outcome) {
        Base::wipe(*line);
        line = std::unexpected(std::move(outcome).error());
    }
    return line;
}

} // namespace Cli
