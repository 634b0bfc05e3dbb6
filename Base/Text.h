// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace Base
{

// Unicode code points of a valid UTF-8 text.
std::size_t countCodePoints(std::string_view text);

// The code points of a text, U+FFFD for what is no UTF-8.
std::u32string codePoints(std::string_view text);

// The cells of a terminal that a valid UTF-8 text takes: none for a mark above or below its
// letter, two for a wide letter of East Asia.
std::size_t countCells(std::string_view text);

// The beginning of a valid UTF-8 text that fits into so many cells.
std::string_view firstCells(std::string_view text, std::size_t most);

// The first characters of a valid UTF-8 text, `most` of them where there are more.
std::string_view firstCharacters(std::string_view text, std::size_t most);

// Makes the Unicode library overwrite its memory before it gives it back, as texts that are
// secret pass through it. For the beginning of a program, before there are other threads.
void wipeUnicodeMemory();

// The text without differences of case and of diacritics, by the rules of the user's
// language (LC_ALL, LC_MESSAGES, LANG): a Turkish dotless i stays itself there.
std::string foldCaseAndDiacritics(std::string_view text);

// Splits at each separator. "a,,b" gives "a", "", "b"; an empty text gives one empty piece.
std::vector<std::string_view> split(std::string_view text, char separator);

// Puts `to` in the place of every `from`, which must not be empty.
void replaceAll(std::string &text, std::string_view from, std::string_view to);

// The text with the letters A to Z as a to z; others stay as they are.
std::string lowerAscii(std::string_view text);

// The text without the white space and the line breaks at its ends, by Unicode's own list.
std::string_view trimmed(std::string_view text);

// What becomes of the tabs and the ends of lines in a text that is made printable.
enum class Layout : std::uint8_t { flat, kept };

// The text for a terminal. What could move the cursor, fake a line or turn the order of the
// letters around shows as a dot: controls, separators of lines, and the characters that embed,
// override or isolate a direction. The marks of direction stay, as Arabic is written with
// them. Bytes that are no UTF-8 show as U+FFFD.
std::string printable(std::string_view text, Layout layout = Layout::flat);

// A number that fills the whole text: no blanks, no words, an optional sign, a point whatever
// the language. A double may be infinite or not a number where the text says so.
template <class Number>
std::optional<Number> numberFrom(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.remove_prefix(1);
    }
    Number value{};
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), value);
    return code == std::errc{} && end == text.data() + text.size() ? std::optional{value}
                                                                   : std::nullopt;
}

} // namespace Base
