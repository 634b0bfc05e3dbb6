// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/UtilityPayloads.h"

#include "Base/Instant.h"
#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"
#include "KestCore/Prayer/PrayerFocusPlan.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Tools/TimerState.h"

#include <cmath>

namespace Base::json
{

using namespace KestCore;
template Result<SavedLink> decode(const PaddedText &);
template Result<Note> decode(const PaddedText &);
template Result<Scratchpad> decode(const PaddedText &);
template Result<EmojiUse> decode(const PaddedText &);
template Result<QuickShortcut> decode(const PaddedText &);
template Result<StripMessage> decode(const PaddedText &);
template Result<Completion> decode(const PaddedText &);
template Result<ApplicationUsage> decode(const PaddedText &);
template Result<ShelfItem> decode(const PaddedText &);
template Result<FileItem> decode(const PaddedText &);
template Result<TimerState> decode(const PaddedText &);
template Result<PrayerFocusPlan> decode(const PaddedText &);
template Result<std::string> encode(const SavedLink &);
template Result<std::string> encode(const Note &);
template Result<std::string> encode(const Scratchpad &);
template Result<std::string> encode(const EmojiUse &);
template Result<std::string> encode(const QuickShortcut &);
template Result<std::string> encode(const StripMessage &);
template Result<std::string> encode(const Completion &);
template Result<std::string> encode(const ApplicationUsage &);
template Result<std::string> encode(const ShelfItem &);
template Result<std::string> encode(const FileItem &);
template Result<std::string> encode(const TimerState &);
template Result<std::string> encode(const PrayerFocusPlan &);

} // namespace Base::json

namespace KestCore
{

namespace
{

bool isAbsolutePath(std::string_view path)
{
    return path.starts_with('/') && path.size() <= kLongestAddress && !path.contains('\0');
}

bool isDay(std::string_view text)
{
    constexpr std::size_t kDateSize = 10;
    return text.size() == kDateSize &&
           Base::fromIso8601(std::string{text} + "T00:00:00Z").has_value();
}

} // namespace

bool isWebAddress(std::string_view text)
{
    for (const std::string_view scheme : {"https://", "http://"}) {
        if (text.starts_with(scheme)) {
            return text.size() > scheme.size() && text.size() <= kLongestAddress &&
                   text.find_first_of(" \t\r\n") == std::string_view::npos;
        }
    }
    return false;
}

bool keepsRules(const SavedLink &link)
{
    return isWebAddress(link.url) && (!link.note || link.note->size() <= kLongestText);
}

bool keepsRules(const Note &note) { return note.text.size() <= kLongestText; }

bool keepsRules(const Scratchpad &scratchpad) { return scratchpad.text.size() <= kLongestText; }

bool keepsRules(const EmojiUse &use)
{
    return !use.emoji.empty() && Base::countCodePoints(use.emoji) <= 32 && use.uses >= 1;
}

bool keepsRules(const QuickShortcut &shortcut)
{
    switch (shortcut.opens) {
    case QuickShortcut::Opens::app:
        return !shortcut.target.empty() && shortcut.target.size() <= kLongestAddress;
    case QuickShortcut::Opens::link:
        return isWebAddress(shortcut.target);
    case QuickShortcut::Opens::file:
        return isAbsolutePath(shortcut.target);
    case QuickShortcut::Opens::tool:
        break;
    }
    return ToolRegistry::knows(shortcut.target);
}

bool keepsRules(const StripMessage &message)
{
    return !message.text.empty() && Base::countCodePoints(message.text) <= kLongestStripMessage;
}

bool keepsRules(const Completion &completion)
{
    return ToolRegistry::knows(completion.tool) && completion.amount >= 0;
}

bool keepsRules(const ApplicationUsage &usage)
{
    constexpr double kLongestDay = 25.0 * 3600.0;
    return !usage.application.empty() && isDay(usage.day) && usage.seconds >= 0 &&
           usage.seconds <= kLongestDay;
}

bool keepsRules(const ShelfItem &item)
{
    if (item.path.has_value() == item.text.has_value()) {
        return false;
    }
    return item.path ? isAbsolutePath(*item.path) : item.text->size() <= kLongestText;
}

bool keepsRules(const FileItem &item) { return isAbsolutePath(item.path); }

} // namespace KestCore
