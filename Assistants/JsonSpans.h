// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Assistants
{

// Where each value of a JSON document stands in its text, for a change that leaves every other
// byte as it is.
struct JsonSpan {
    enum class Kind : std::uint8_t { object, array, text, other };

    Kind kind{};
    std::size_t begin{}; // of the key, where the value has one
    std::size_t value{}; // where the value itself begins
    std::size_t end{};   // behind it
    std::string key{};   // unescaped
    std::string text{};  // unescaped, of a text
    std::vector<JsonSpan> children{};

    // Null when there is none of that name.
    const JsonSpan *member(std::string_view name) const;
};

// Fails with invalidData for what is not strictly one JSON document, for a key that is given
// twice and for more than 64 levels.
[[nodiscard]] Base::Result<JsonSpan> spansOf(std::string_view document);

// The text as JSON, in quotes. It is UTF-8.
std::string quotedJson(const std::string &text);

} // namespace Assistants
