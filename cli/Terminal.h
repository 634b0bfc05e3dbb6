// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Cli
{

// The whole terminal as a page of centred lines, given back on destruction. One at a time.
class Terminal
{
public:
    enum class Ink : std::uint8_t { plain, strong, faint, accent, warning, selected };

    // Keys that have no character.
    static constexpr int kUp = 0x110000;
    static constexpr int kDown = kUp + 1;
    static constexpr int kPageUp = kUp + 2;
    static constexpr int kPageDown = kUp + 3;
    static constexpr int kGone = kUp + 4; // the terminal itself was closed
    static constexpr int kEscape = 27;

    // Whether this kind of terminal is known; making one of another kind ends the program.
    static bool isKnown();

    Terminal();
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    int width() const;
    int height() const;

    void clear() const;
    // Writes the text in the middle of a row, cut where the row ends. Rows outside the page
    // are left out.
    void centre(int row, std::string_view text, Ink ink) const;
    // The same from a column on.
    void write(int row, int column, std::string_view text, Ink ink) const;
    void show() const;

    // The next key, or nothing when none came in time (or the page was resized).
    std::optional<int> waitForKey(int milliseconds) const;
    // Digits typed behind the question on the last row; nothing when the user gave up (Esc).
    std::optional<std::string> readDigits(std::string_view question, std::size_t longest) const;
    // The same with any characters of ASCII.
    std::optional<std::string> readText(std::string_view question, std::size_t longest) const;

    static void ring();

private:
    std::optional<std::string> readAnswer(std::string_view question, std::size_t longest,
                                          int lowest, int highest) const;
};

} // namespace Cli
