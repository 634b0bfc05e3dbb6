// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/LocalRecord.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Prayer/PrayerFocusPlan.h"
#include "KestCore/Tools/TimerState.h"

#include <algorithm>

template Base::Result<KestCore::LocalRecord>
Base::json::decode<KestCore::LocalRecord>(const Base::json::PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::LocalRecord &);
template Base::Result<std::string>
Base::json::encode(const std::vector<KestCore::LocalRecord> &);

namespace KestCore
{

namespace
{

constexpr std::string_view kInvalidUtilityRecord = "Invalid utility record";

bool isKindText(std::string_view kind)
{
    return !kind.empty() &&
           std::ranges::all_of(kind, [](char c) { return (c >= 'a' && c <= 'z') || c == '-'; });
}

template <class Payload>
bool hasPayload(const LocalRecord &record)
{
    const auto payload = json::decode<Payload>(std::string_view{record.body});
    return payload && keepsRules(*payload);
}

// A record that waits in the bin: its body is the record that was removed.
bool holdsRecord(const LocalRecord &record)
{
    const auto held = json::decode<LocalRecord>(std::string_view{record.body});
    return held && held->kind != record.kind && validate(*held);
}

struct KindRule {
    std::string_view kind;
    bool (*accepts)(const LocalRecord &);
    std::string_view message;
};

// Kinds that are not listed have no payload to check here; a clipboard body is sealed.
constexpr KindRule kKindRules[] = {
    {"link", hasPayload<SavedLink>, "Invalid saved link"},
    {"timer", hasPayload<TimerState>, "Invalid timer"},
    {"note", hasPayload<Note>, kInvalidUtilityRecord},
    {"scratchpad", hasPayload<Scratchpad>, kInvalidUtilityRecord},
    {"emoji", hasPayload<EmojiUse>, kInvalidUtilityRecord},
    {"shortcut", hasPayload<QuickShortcut>, kInvalidUtilityRecord},
    {"message", hasPayload<StripMessage>, kInvalidUtilityRecord},
    {"prayer", hasPayload<PrayerFocusPlan>, kInvalidUtilityRecord},
    {"completion", hasPayload<Completion>, kInvalidUtilityRecord},
    {"usage", hasPayload<ApplicationUsage>, kInvalidUtilityRecord},
    {"shelf", hasPayload<ShelfItem>, kInvalidUtilityRecord},
    {"file", hasPayload<FileItem>, kInvalidUtilityRecord},
    {"trash", holdsRecord, kInvalidUtilityRecord},
};

} // namespace

Result<void> validate(const LocalRecord &record)
{
    if (!isKindText(record.kind)) {
        return std::unexpected(KestError::invalidData(std::string{kInvalidUtilityRecord}));
    }
    for (const auto &[kind, accepts, message] : kKindRules) {
        if (kind == record.kind && !accepts(record)) {
            return std::unexpected(KestError::invalidData(std::string{message}));
        }
    }
    return {};
}

KestError removedItem() { return KestError::invalidData("This item was removed."); }

Result<LocalRecord> decodeLocalRecord(const json::PaddedText &text)
{
    auto record = json::decode<LocalRecord>(text);
    if (!record) {
        return std::unexpected(KestError::invalidData(std::string{kInvalidUtilityRecord}));
    }
    return record;
}

} // namespace KestCore
