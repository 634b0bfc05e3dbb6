// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#include "Base/Text.h"
#include "cli/Console.h"

#include <curses.h>

#include <poll.h>
#include <term.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <cwchar>

namespace Cli
{

namespace
{

constexpr short kAccentPair = 1;
constexpr short kWarningPair = 2;

// What stands for the drawing characters where the language has none.
constexpr std::pair<char32_t, char> kPlainer[] = {
    {U'━', '#'}, {U'─', '-'}, {U'▁', '_'}, {U'▂', '_'}, {U'▃', '-'}, {U'▄', '-'},
    {U'▅', '='}, {U'▆', '='}, {U'▇', '#'}, {U'█', '#'}, {U'▾', 'v'}, {U'▏', '|'},
    {U'·', '-'}, {U'…', '.'}, {U'↑', '^'}, {U'↓', 'v'}};

wchar_t shown(char32_t letter)
{
    const auto wanted = static_cast<wchar_t>(letter); // both are code points on this platform
    std::array<char, MB_LEN_MAX> bytes{};
    std::mbstate_t state{};
    if (std::wcrtomb(bytes.data(), wanted, &state) != static_cast<std::size_t>(-1)) {
        return wanted;
    }
    const auto *const plainer =
        std::ranges::find(kPlainer, letter, &std::pair<char32_t, char>::first);
    return plainer == std::end(kPlainer) ? L'?' : static_cast<wchar_t>(plainer->second);
}

std::wstring wide(std::string_view text)
{
    std::wstring out;
    for (const char32_t letter : Base::codePoints(text)) {
        out += shown(letter);
    }
    return out;
}

int cellsOf(const std::wstring &text)
{
    return std::max(0, wcswidth(text.c_str(), text.size()));
}

attr_t attributesOf(Terminal::Ink ink)
{
    switch (ink) {
    case Terminal::Ink::strong:
        return A_BOLD;
    case Terminal::Ink::faint:
        return A_DIM;
    case Terminal::Ink::accent:
        return has_colors() ? static_cast<attr_t>(COLOR_PAIR(kAccentPair)) : A_BOLD;
    case Terminal::Ink::warning:
        return has_colors() ? static_cast<attr_t>(COLOR_PAIR(kWarningPair)) : A_BOLD;
    case Terminal::Ink::selected:
        return A_REVERSE;
    case Terminal::Ink::plain:
        break;
    }
    return A_NORMAL;
}

// Whether the terminal was closed; then it never waits for a key again.
bool isGone()
{
    pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    return ::poll(&input, 1, 0) > 0 && (input.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

int ownKey(int key)
{
    switch (key) {
    case '\r':
    case KEY_ENTER:
        return '\n';
    case KEY_UP:
        return Terminal::kUp;
    case KEY_DOWN:
        return Terminal::kDown;
    case KEY_PPAGE:
        return Terminal::kPageUp;
    case KEY_NPAGE:
        return Terminal::kPageDown;
    default:
        return key;
    }
}

} // namespace

bool Terminal::isKnown()
{
    int found = 0;
    if (setupterm(nullptr, STDOUT_FILENO, &found) != OK) {
        return false;
    }
    del_curterm(cur_term); // initscr makes its own
    return true;
}

Terminal::Terminal()
{
    setenv("ESCDELAY", "25", 0); // a lone Esc must not feel slow
    initscr();
    cbreak();
    noecho();
    nonl();
    keypad(stdscr, TRUE);
    curs_set(0);
    if (has_colors() && Console::mayColour()) {
        start_color();
        use_default_colors();
        init_pair(kAccentPair, COLOR_GREEN, -1);
        init_pair(kWarningPair, COLOR_YELLOW, -1);
    }
}

Terminal::~Terminal() { endwin(); }

int Terminal::width() const { return COLS; }

int Terminal::height() const { return LINES; }

void Terminal::clear() const { erase(); }

void Terminal::centre(int row, std::string_view text, Ink ink) const
{
    write(row, std::max(0, (COLS - cellsOf(wide(text))) / 2), text, ink);
}

void Terminal::write(int row, int column, std::string_view text, Ink ink) const
{
    std::wstring line = wide(text);
    while (!line.empty() && cellsOf(line) > COLS - column) {
        line.pop_back();
    }
    if (row < 0 || row >= LINES || column < 0 || line.empty()) {
        return;
    }
    attrset(static_cast<int>(attributesOf(ink)));
    mvaddwstr(row, column, line.c_str());
    attrset(A_NORMAL);
}

void Terminal::show() const { refresh(); }

std::optional<int> Terminal::waitForKey(int milliseconds) const
{
    timeout(milliseconds);
    const int key = getch();
    if (key == ERR && isGone()) {
        return kGone;
    }
    return key == ERR || key == KEY_RESIZE ? std::nullopt : std::optional{ownKey(key)};
}

std::optional<std::string> Terminal::readDigits(std::string_view question,
                                                std::size_t longest) const
{
    return readAnswer(question, longest, '0', '9');
}

std::optional<std::string> Terminal::readText(std::string_view question,
                                              std::size_t longest) const
{
    return readAnswer(question, longest, ' ', '~');
}

std::optional<std::string> Terminal::readAnswer(std::string_view question, std::size_t longest,
                                                int lowest, int highest) const
{
    std::string answer;
    while (true) {
        move(LINES - 1, 0);
        clrtoeol();
        centre(LINES - 1, std::string{question} + answer + "▏", Ink::plain);
        show();
        const auto key = waitForKey(-1);
        if (!key) {
            continue;
        }
        if (*key == '\n') {
            return answer;
        }
        if (*key == kEscape || *key == kGone) {
            return std::nullopt;
        }
        const bool isErase = *key == KEY_BACKSPACE || *key == 127 || *key == '\b';
        if (isErase && !answer.empty()) {
            answer.pop_back();
        } else if (*key >= lowest && *key <= highest && answer.size() < longest) {
            answer += static_cast<char>(*key);
        }
    }
}

void Terminal::ring() { beep(); }

} // namespace Cli
