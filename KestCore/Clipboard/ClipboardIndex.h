// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardCipher.h"
#include "KestCore/Models/LocalRecord.h"

// The two records of an entry. The large one is its sealed content, in the form that every
// build reads. Beside it stands a small one, so that a list reads megabytes of content neither
// from the disk nor through the cipher.
namespace KestCore
{

inline constexpr std::string_view kClipboardRecordKind = "clipboard";
inline constexpr std::string_view kClipboardIndexPrefix = "clipboard-index:";

// The body of the small record: the entry in the clear, which tells nothing of the content,
// and what is told of the content only under the key.
struct ClipboardIndexRow {
    std::string id{};
    ClipboardKind kind{};
    Base::Instant createdAt{};
    std::int64_t byteCount{};
    bool favourite{};
    std::string display{};     // sealed: what a list shows
    std::string fingerprint{}; // see ClipboardCipher::fingerprint

    bool operator==(const ClipboardIndexRow &) const = default;

    ClipboardEntry entry() const;
};
consteval auto jsonFields(Of<ClipboardIndexRow>)
{
    using R = ClipboardIndexRow;
    return std::tuple{json::Field{"id", &R::id},
                      json::Field{"kind", &R::kind},
                      json::Field{"createdAt", &R::createdAt},
                      json::Field{"byteCount", &R::byteCount},
                      json::Field{"favourite", &R::favourite},
                      json::Field{"display", &R::display},
                      json::Field{"fingerprint", &R::fingerprint}};
}
static_assert(json::coversAllMembers<ClipboardIndexRow>());

std::string clipboardIndexId(std::string_view entryId);

// What a list shows of the content: the beginning of a text, a notice in the place of a
// credential, "Copied image", the names of files. The caller wipes it.
std::string clipboardDisplay(const ClipboardPayload &payload);

[[nodiscard]] Result<ClipboardIndexRow> makeIndexRow(const ClipboardEntry &entry,
                                                     const ClipboardPayload &payload,
                                                     const Base::AesKey &key);
[[nodiscard]] Result<LocalRecord> indexRecord(const ClipboardIndexRow &row);
// Fails with invalidData for a record that is no index row of the entry that its id names, or
// one that shows nothing.
[[nodiscard]] Result<ClipboardIndexRow> readIndexRecord(const LocalRecord &record);

LocalRecord contentRecord(const ClipboardEntry &entry, std::string sealed);
// Whether the record is an entry's content in the form that this build reads.
bool isContentRecord(const LocalRecord &record);
// What every build goes by, whatever the form of the content.
bool isFavourite(const LocalRecord &content);
void setFavourite(LocalRecord &content, bool favourite);
// The entry that a content record is of, from the record and its opened content.
ClipboardEntry entryOf(const LocalRecord &record, const ClipboardPayload &payload);

} // namespace KestCore
