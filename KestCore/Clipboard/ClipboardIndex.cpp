// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardIndex.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"
#include "KestCore/Clipboard/ClipboardPrivacy.h"

#include <algorithm>

template Base::Result<KestCore::ClipboardIndexRow>
Base::json::decode<KestCore::ClipboardIndexRow>(const Base::json::PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::ClipboardIndexRow &);

namespace KestCore
{

namespace
{

constexpr std::size_t kLongestDisplay = 200; // characters

// The key of an attribute whose spelling differs from the entry's own word.
constexpr const char *kFavoriteAttribute = "favorite";
constexpr const char *kFormatAttribute = "format";
constexpr const char *kContentFormat = "rich-v1";
constexpr const char *kIndexFormat = "index-v1";

std::string attribute(const LocalRecord &record, const char *name)
{
    const auto found = record.extra.find(name);
    return found == record.extra.end() ? std::string{} : found->second;
}

// Grows in memory that is there from the start, as the caller can wipe only that.
std::string namesOf(const std::vector<ClipboardFileReference> &files)
{
    std::size_t size = 0;
    for (const ClipboardFileReference &file : files) {
        size += file.name.size() + 2;
    }
    std::string names;
    names.reserve(size);
    for (const ClipboardFileReference &file : files) {
        names += names.empty() ? "" : ", ";
        names += file.name;
    }
    names.resize(Base::firstCharacters(names, kLongestDisplay).size());
    return names;
}

KestError noIndexRow() { return KestError::invalidData("Invalid clipboard index"); }

} // namespace

ClipboardEntry ClipboardIndexRow::entry() const
{
    return {.id = id,
            .kind = kind,
            .createdAt = createdAt,
            .byteCount = byteCount,
            .favourite = favourite};
}

std::string clipboardIndexId(std::string_view entryId)
{
    return std::string{kClipboardIndexPrefix} + std::string{entryId};
}

std::string clipboardDisplay(const ClipboardPayload &payload)
{
    if (payload.kind == ClipboardKind::image) {
        return "Copied image";
    }
    if (payload.kind == ClipboardKind::files) {
        return namesOf(payload.files);
    }
    // The whole text is searched, so that a cut cannot part a credential.
    const std::string_view text = payload.text ? std::string_view{*payload.text} : "";
    return std::string{
        Base::firstCharacters(ClipboardPrivacy::displayText(text), kLongestDisplay)};
}

Result<ClipboardIndexRow> makeIndexRow(const ClipboardEntry &entry,
                                       const ClipboardPayload &payload, const Base::AesKey &key)
{
    std::string shown = clipboardDisplay(payload);
    const Base::WipeAtEnd wiping{shown};
    KEST_TRY(std::string display, ClipboardCipher::sealLine(shown, key));
    return ClipboardIndexRow{.id = entry.id,
                             .kind = entry.kind,
                             .createdAt = entry.createdAt,
                             .byteCount = entry.byteCount,
                             .favourite = entry.favourite,
                             .display = std::move(display),
                             .fingerprint = ClipboardCipher::fingerprint(payload, key)};
}

Result<LocalRecord> indexRecord(const ClipboardIndexRow &row)
{
    KEST_TRY(std::string body, json::encode(row));
    return LocalRecord{.id = clipboardIndexId(row.id),
                       .kind = std::string{kClipboardRecordKind},
                       .body = std::move(body),
                       .updated = Base::milliseconds1970(row.createdAt),
                       .extra = {{kFormatAttribute, kIndexFormat}}};
}

Result<ClipboardIndexRow> readIndexRecord(const LocalRecord &record)
{
    if (attribute(record, kFormatAttribute) != kIndexFormat) {
        return std::unexpected(noIndexRow());
    }
    KEST_TRY(auto row, json::decode<ClipboardIndexRow>(std::string_view{record.body}));
    if (record.id != clipboardIndexId(row.id) || row.display.empty()) {
        return std::unexpected(noIndexRow());
    }
    return row;
}

LocalRecord contentRecord(const ClipboardEntry &entry, std::string sealed)
{
    LocalRecord record{.id = entry.id,
                       .kind = std::string{kClipboardRecordKind},
                       .body = std::move(sealed),
                       .updated = Base::milliseconds1970(entry.createdAt),
                       .extra = {{kFormatAttribute, kContentFormat}}};
    setFavourite(record, entry.favourite);
    return record;
}

bool isFavourite(const LocalRecord &content)
{
    return attribute(content, kFavoriteAttribute) == "true";
}

void setFavourite(LocalRecord &content, bool favourite)
{
    content.extra.erase(kFavoriteAttribute);
    if (favourite) {
        content.extra.emplace(kFavoriteAttribute, "true");
    }
}

bool isContentRecord(const LocalRecord &record)
{
    return record.kind == kClipboardRecordKind &&
           attribute(record, kFormatAttribute) == kContentFormat;
}

ClipboardEntry entryOf(const LocalRecord &record, const ClipboardPayload &payload)
{
    return {.id = record.id,
            .kind = payload.kind,
            .createdAt = Base::fromMilliseconds1970(record.updated),
            .byteCount = payload.byteCount(),
            .favourite = isFavourite(record)};
}

} // namespace KestCore
