// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardSettings.h"

#include "Base/Text.h"

#include <charconv>

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
    std::int64_t read = 0;
    const char *const begin = text.data();
    const char *const end = begin + text.size();
    const auto [stop, error] = std::from_chars(begin, end, read);
    if (error == std::errc{} && stop == end) {
        number = read;
    }
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(" \t");
    const std::size_t end = text.find_last_not_of(" \t") + 1;
    return begin == std::string_view::npos ? std::string_view{}
                                           : text.substr(begin, end - begin);
}

} // namespace

ClipboardSettings clipboardSettings(const Settings &settings)
{
    ClipboardSettings read;
    read.enabled = settingIsTrue(settings, "clipboard.enabled");
    read.paused = settingIsTrue(settings, "clipboard.paused");
    for (const auto piece : Base::split(valueOf(settings, "clipboard.exclusions"), ',')) {
        if (const auto application = trimmed(piece); !application.empty()) {
            read.exclusions.emplace_back(application);
        }
    }
    readNumber(valueOf(settings, "clipboard.maxCount"), read.maxCount);
    readNumber(valueOf(settings, "clipboard.days"), read.days);
    readNumber(valueOf(settings, "clipboard.maxBytes"), read.maxBytes);
    return read;
}

} // namespace KestCore
