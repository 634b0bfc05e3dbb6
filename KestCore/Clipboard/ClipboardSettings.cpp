// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardSettings.h"

#include "Base/Text.h"

namespace KestCore
{

namespace
{

std::string_view valueOf(const Settings &settings, const std::string &key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? std::string_view{} : found->second;
}

void readNumber(std::string_view text, std::int64_t &number)
{
    number = Base::numberFrom<std::int64_t>(text).value_or(number);
}

} // namespace

ClipboardSettings clipboardSettings(const Settings &settings)
{
    ClipboardSettings read;
    read.enabled = settingIsTrue(settings, "clipboard.enabled");
    read.paused = settingIsTrue(settings, "clipboard.paused");
    for (const auto piece : Base::split(valueOf(settings, "clipboard.exclusions"), ',')) {
        if (const auto application = Base::trimmed(piece); !application.empty()) {
            read.exclusions.emplace_back(application);
        }
    }
    readNumber(valueOf(settings, "clipboard.maxCount"), read.maxCount);
    readNumber(valueOf(settings, "clipboard.days"), read.days);
    readNumber(valueOf(settings, "clipboard.maxBytes"), read.maxBytes);
    return read;
}

} // namespace KestCore
