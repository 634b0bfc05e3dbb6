// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include <fmt/format.h>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>

namespace Cli
{

namespace
{

std::string_view escapeOf(Style style)
{
    switch (style) {
    case Style::strong:
        return "\x1b[1m";
    case Style::faint:
        return "\x1b[2m";
    case Style::good:
        return "\x1b[32m";
    case Style::warning:
        return "\x1b[33m";
    case Style::plain:
        break;
    }
    return "";
}

// Escape sequences take no room on the screen.
std::size_t displayWidth(std::string_view cell)
{
    std::size_t width = 0;
    while (!cell.empty()) {
        const std::size_t escape = std::min(cell.find('\x1b'), cell.size());
        width += Base::countCells(cell.substr(0, escape));
        cell.remove_prefix(escape);
        cell.remove_prefix(cell.empty() ? 0 : std::min(cell.find('m'), cell.size() - 1) + 1);
    }
    return width;
}

} // namespace

std::string Console::styled(std::string_view text, Style style) const
{
    if (isJson || !mayColour() || style == Style::plain) {
        return std::string{text};
    }
    return fmt::format("{}{}\x1b[0m", escapeOf(style), text);
}

void Console::table(const std::vector<std::vector<std::string>> &rows) const
{
    std::vector<std::size_t> widths;
    for (const auto &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], displayWidth(row[column]));
        }
    }
    for (const auto &row : rows) {
        std::string text;
        for (std::size_t column = 0; column < row.size(); ++column) {
            text += row[column];
            if (column + 1 < row.size()) {
                text.append(widths[column] - displayWidth(row[column]) + 2, ' ');
            }
        }
        line(text);
    }
}

void Console::line(std::string_view content) const
{
    text(content);
    text("\n");
}

void Console::text(std::string_view content) const
{
    std::fwrite(content.data(), 1, content.size(), stdout);
}

bool Console::mayColour()
{
    const char *noColour = std::getenv("NO_COLOR");
    return isatty(STDOUT_FILENO) != 0 && (noColour == nullptr || *noColour == '\0');
}

bool Console::isInteractive()
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

bool Console::confirms(std::string_view question)
{
    std::fprintf(stderr, "%.*s [y/N] ", static_cast<int>(question.size()), question.data());
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "Y" || answer == "yes";
}

Result<void> Console::flush()
{
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        return std::unexpected(KestError::unavailable(
            std::string{"Standard output cannot be written: "} + std::strerror(errno)));
    }
    return {};
}

std::string localTime(double milliseconds)
{
    constexpr double kYear10000 = 253'402'300'800'000.0;
    if (!(std::abs(milliseconds) < kYear10000)) {
        return "?";
    }
    const auto seconds = static_cast<std::time_t>(milliseconds / 1000.0);
    std::tm fields{};
    char text[64] = {};
    if (localtime_r(&seconds, &fields) == nullptr) {
        return "?";
    }
    const std::size_t size = std::strftime(text, sizeof text, "%e %b %Y, %H:%M", &fields);
    return {text, size};
}

} // namespace Cli
