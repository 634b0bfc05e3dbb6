// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>

namespace MonitorLinux
{

// Walks through a text by words or lines without copying. At the end it gives empty texts.
class TextCursor
{
public:
    explicit TextCursor(std::string_view text) : m_rest(text) {}

    bool atEnd() const { return m_rest.empty(); }

    std::string_view line()
    {
        const std::size_t end = std::min(m_rest.find('\n'), m_rest.size());
        const std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        return line;
    }

    std::string_view word()
    {
        m_rest.remove_prefix(lengthWhile(isBlank));
        const std::string_view word =
            m_rest.substr(0, lengthWhile([](char letter) { return !isBlank(letter); }));
        m_rest.remove_prefix(word.size());
        return word;
    }

    void skip(int words)
    {
        for (int at = 0; at < words; ++at) {
            (void)word();
        }
    }

    // The next word as a number that it is entirely.
    template <class T>
    std::optional<T> number(int base = 10)
    {
        const std::string_view digits = word();
        T value{};
        const char *const begin = digits.data();
        const char *const end = begin + digits.size();
        const auto [stop, error] = [&] {
            if constexpr (std::integral<T>) {
                return std::from_chars(begin, end, value, base);
            } else {
                return std::from_chars(begin, end, value);
            }
        }();
        if (error != std::errc{} || stop != end) {
            return std::nullopt;
        }
        return value;
    }

private:
    static bool isBlank(char letter)
    {
        return letter == ' ' || letter == '\t' || letter == '\n';
    }

    // Several times as fast as searching for sets of letters, and this is all that parsing
    // does.
    std::size_t lengthWhile(auto holds) const
    {
        return static_cast<std::size_t>(std::ranges::find_if_not(m_rest, holds) -
                                        m_rest.begin());
    }

    std::string_view m_rest;
};

} // namespace MonitorLinux
