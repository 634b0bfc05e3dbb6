// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Messages.h"

#include "Base/Text.h"
#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>

namespace KestCore
{

Result<LocalRecord> makeMessage(const MessageChange &given)
{
    LocalRecord message;
    KEST_TRY(message.body, json::encode(StripMessage{}));
    KEST_CHECK(changeMessage(message, given));
    return message;
}

Result<void> changeMessage(LocalRecord &message, const MessageChange &change)
{
    KEST_TRY(StripMessage shown, json::decode<StripMessage>(std::string_view{message.body}));
    shown.text = Base::trimmed(change.text.value_or(shown.text));
    shown.animation = change.animation.value_or(shown.animation);
    if (!keepsRules(shown) || hasControls(shown.text) || !isVisible(shown.text)) {
        return std::unexpected(KestError::invalidData(
            fmt::format("A message is one line of 1 to {} characters", kLongestStripMessage)));
    }
    KEST_TRY(message.body, json::encode(shown));
    message.title = shown.text;
    return {};
}

} // namespace KestCore
