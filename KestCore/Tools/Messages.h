// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/RecordList.h"

#include <optional>

namespace KestCore
{

inline constexpr const char *kMessageKind = "message";

// What is new of a message for the strip, each part as far as it is given.
struct MessageChange {
    std::optional<std::string> text{};
    std::optional<MessageAnimation> animation{};
};

// A message to be added; it scrolls unless another animation is given. Fails for a text that
// is not one line of 1 to 200 characters.
[[nodiscard]] Result<LocalRecord> makeMessage(const MessageChange &given);
[[nodiscard]] Result<void> changeMessage(LocalRecord &message, const MessageChange &change);

} // namespace KestCore
