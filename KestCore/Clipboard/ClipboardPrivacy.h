// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace KestCore
{

// Keeps what looks like a password out of lists.
class ClipboardPrivacy
{
public:
    ClipboardPrivacy() = delete;

    static constexpr std::string_view kHidden = "Credential hidden · remove this saved entry";

    // In the regular-expression engine's steps, about a millisecond each.
    static constexpr std::int32_t kPatience = 200;

    // Whether a key, a token or a private key stands in the text. A search that takes longer
    // than `patience` says yes: to hide too much harms nobody.
    static bool isCredential(std::string_view text, std::int32_t patience = kPatience);

    // The text itself, or kHidden.
    static std::string_view displayText(std::string_view text);
};

} // namespace KestCore
