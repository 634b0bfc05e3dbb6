// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Text.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Cli
{

using Base::KestError;
using Base::Result;

enum class Style : std::uint8_t { plain, strong, faint, good, warning };

// Standard output for people and for scripts.
class Console
{
public:
    bool isJson = false;

    // The text in this style when standard output is a terminal that may be coloured.
    std::string styled(std::string_view text, Style style) const;
    // Rows under each other, each column as wide as its widest cell; the last is left ragged.
    void table(const std::vector<std::vector<std::string>> &rows) const;
    void line(std::string_view content) const;
    // Without a line's end: a document that has its own.
    void text(std::string_view content) const;

    // Prints the JSON of an answer, or lets `text` print it for people.
    template <class Answer, class Text>
    [[nodiscard]] Result<void> answer(const Answer &value, const Text &text) const
    {
        if (!isJson) {
            text();
            return {};
        }
        KEST_TRY(const std::string document, Base::json::encode(value));
        line(document);
        return {};
    }

    // Whether standard output is a terminal and NO_COLOR does not forbid colours.
    static bool mayColour();
    // Whether a person sits at both ends.
    static bool isInteractive();
    // Asks a yes-or-no question on the terminal; anything but a yes is a no.
    static bool confirms(std::string_view question);
    // Fails when what was printed could not be written, as on a full disk or a closed pipe.
    [[nodiscard]] static Result<void> flush();
};

// For every text that was stored or typed, wherever it is shown.
using Base::Layout;
using Base::printable;

// "12 Nov 2026, 08:30" in the user's time zone, from milliseconds since 1970.
std::string localTime(double milliseconds);

} // namespace Cli
