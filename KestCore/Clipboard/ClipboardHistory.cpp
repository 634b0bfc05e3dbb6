// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardHistory.h"

#include "Base/Text.h"
#include "Base/Uuid.h"
#include "KestCore/Clipboard/ClipboardPrivacy.h"
#include "KestCore/Clipboard/ClipboardRetention.h"
#include "KestCore/Models/RecordIds.h"
#include "KestCore/SearchForm.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace KestCore
{

namespace
{

constexpr const char *kDamagedImage = "This saved image is damaged.";
constexpr const char *kDamagedEntry = "This saved entry cannot be opened.";
constexpr const char *kNoWords = "Write the words to look for";

void addRemoval(std::string_view id, RecordChanges &changes)
{
    changes.removed.emplace_back(id);
    changes.removed.push_back(clipboardIndexId(id));
}

// Records keep their time in whole milliseconds.
Base::Instant toMilliseconds(Base::Instant instant)
{
    return Base::fromMilliseconds1970(std::floor(Base::milliseconds1970(instant)));
}

bool comesBefore(const ClipboardIndexRow &a, const ClipboardIndexRow &b)
{
    return ClipboardRetention::comesBefore(a.entry(), b.entry());
}

bool isTextual(ClipboardKind kind)
{
    return kind == ClipboardKind::text || kind == ClipboardKind::link;
}

// The line of content that cannot be read.
ClipboardIndexRow makeshiftRow(const LocalRecord &record)
{
    const ClipboardEntry entry = entryOf(record, {});
    return {.id = entry.id,
            .createdAt = entry.createdAt,
            .byteCount = static_cast<std::int64_t>(record.body.size()),
            .favourite = entry.favourite};
}

bool isMakeshift(const ClipboardIndexRow &row) { return row.display.empty(); }

bool contains(std::string_view text, std::string_view words)
{
    std::string form = normalizeForSearch(text);
    const Base::WipeAtEnd wiping{form};
    return form.contains(words);
}

} // namespace

// A row whose content is gone is removed. Content without a row (an older build wrote it) is
// opened once; if that fails, its line is made anew each time, since the right key, or a build
// that knows its form, may come back.
Result<ClipboardHistory::Rows> ClipboardHistory::rows()
{
    KEST_TRY(const auto ids, m_store.recordIdsOfKind(kClipboardRecordKind));
    KEST_TRY(const auto records, m_store.recordsWithIdPrefix(kClipboardIndexPrefix));
    std::unordered_set<std::string_view> contents;
    for (const std::string_view id : ids) {
        if (!id.starts_with(kClipboardIndexPrefix)) {
            contents.insert(id);
        }
    }
    Rows rows;
    RecordChanges repairs;
    for (const LocalRecord &record : records) {
        auto row = readIndexRecord(record);
        if (row && contents.contains(row->id)) {
            contents.erase(row->id);
            rows.push_back(*std::move(row));
        } else if (record.kind == kClipboardRecordKind) {
            repairs.removed.push_back(record.id);
        }
    }
    for (const std::string_view id : contents) {
        KEST_TRY(auto row, rebuildRow(id, repairs));
        if (row) {
            rows.push_back(*std::move(row));
        }
    }
    KEST_CHECK(commit(repairs));
    std::ranges::sort(rows, comesBefore);
    return rows;
}

Result<std::optional<ClipboardIndexRow>> ClipboardHistory::rebuildRow(std::string_view id,
                                                                      RecordChanges &repairs)
{
    std::optional<ClipboardIndexRow> row;
    KEST_TRY(const auto record, m_store.record(id));
    if (!record) {
        return row;
    }
    auto payload = isContentRecord(*record)
                       ? ClipboardCipher::open(record->body, m_key)
                       : std::unexpected(KestError::invalidData(kDamagedEntry));
    const Base::WipeAtEnd wiping{payload};
    if (!payload) {
        row = makeshiftRow(*record);
        return row;
    }
    KEST_TRY(row, makeIndexRow(entryOf(*record, *payload), *payload, m_key));
    KEST_TRY(auto written, indexRecord(*row));
    repairs.written.push_back(std::move(written));
    return row;
}

Result<std::optional<ClipboardIndexRow>> ClipboardHistory::rowOf(std::string_view id)
{
    KEST_TRY(auto all, rows());
    const auto found = std::ranges::find(all, id, &ClipboardIndexRow::id);
    return found == all.end() ? std::nullopt : std::optional{std::move(*found)};
}

ClipboardListing ClipboardHistory::lineOf(const ClipboardIndexRow &row) const
{
    auto display = ClipboardCipher::openLine(row.display, m_key);
    if (display) {
        return {.entry = row.entry(), .display = *std::move(display), .isReadable = true};
    }
    return {.entry = row.entry(),
            .display = row.kind == ClipboardKind::image ? kDamagedImage : kDamagedEntry};
}

Result<std::vector<ClipboardListing>> ClipboardHistory::list()
{
    KEST_TRY(const Rows all, rows());
    std::vector<ClipboardListing> listings;
    for (const ClipboardIndexRow &row : all) {
        listings.push_back(lineOf(row));
    }
    return listings;
}

Result<std::vector<ClipboardListing>> ClipboardHistory::search(std::string_view words)
{
    const std::string wanted = normalizeForSearch(words);
    if (Base::trimmed(wanted).empty()) {
        return std::unexpected(KestError::invalidData(kNoWords));
    }
    KEST_TRY(const Rows all, rows());
    std::vector<ClipboardListing> found;
    for (const ClipboardIndexRow &row : all) {
        if (!isTextual(row.kind)) {
            continue;
        }
        ClipboardListing line = lineOf(row);
        // A notice in the place of the content is none of the user's words.
        const bool isContent = line.isReadable && line.display != ClipboardPrivacy::kHidden;
        if (isContent && hasWords(row, line.display, wanted)) {
            found.push_back(std::move(line));
        } else {
            Base::wipe(line.display);
        }
    }
    return found;
}

// Most texts are short and stand in the index as a whole.
bool ClipboardHistory::hasWords(const ClipboardIndexRow &row, std::string_view display,
                                std::string_view words)
{
    if (contains(display, words)) {
        return true;
    }
    if (std::cmp_greater_equal(display.size(), row.byteCount)) {
        return false;
    }
    auto payload = openContent(row.id);
    const Base::WipeAtEnd wiping{payload};
    if (!payload) {
        return false;
    }
    const ClipboardPayload &opened = *payload;
    return opened.text && contains(*opened.text, words);
}

Result<ClipboardEntry> ClipboardHistory::find(std::string_view idOrBeginning)
{
    KEST_TRY(const Rows all, rows());
    KEST_TRY(const std::size_t at,
             findByIdPrefix(idsOf(all), idOrBeginning, "clipboard entry"));
    return all[at].entry();
}

Result<ClipboardListing> ClipboardHistory::listing(std::string_view id)
{
    KEST_TRY(const auto row, rowOf(id));
    if (!row) {
        return std::unexpected(removedItem());
    }
    return lineOf(*row);
}

Result<ClipboardPayload> ClipboardHistory::openContent(std::string_view id)
{
    KEST_TRY(const auto record, m_store.record(id));
    if (!record || record->kind != kClipboardRecordKind) {
        return std::unexpected(removedItem());
    }
    if (!isContentRecord(*record)) {
        return std::unexpected(KestError::invalidData(kDamagedEntry));
    }
    return ClipboardCipher::open(record->body, m_key);
}

Result<ClipboardPayload> ClipboardHistory::content(std::string_view id)
{
    auto payload = openContent(id);
    if (!payload) {
        KEST_TRY(const auto row, rowOf(id));
        if (row && row->kind == ClipboardKind::image) {
            payload = std::unexpected(KestError::invalidData(kDamagedImage));
        }
    }
    return payload;
}

Result<ClipboardEntry> ClipboardHistory::add(const ClipboardPayload &payload, Base::Instant now)
{
    KEST_TRY(std::string sealed, ClipboardCipher::seal(payload, m_key));
    KEST_TRY(Rows all, rows());
    ClipboardEntry entry{.id = Base::makeUuid(),
                         .kind = payload.kind,
                         .createdAt = toMilliseconds(now),
                         .byteCount = payload.byteCount()};
    const std::string print = fingerprint(payload);
    std::ranges::sort(all, std::ranges::greater{}, &ClipboardIndexRow::createdAt);
    const auto equal = std::ranges::find(all, print, &ClipboardIndexRow::fingerprint);
    if (equal != all.end()) {
        entry.id = equal->id;
        KEST_TRY(entry.favourite, isFavouriteByContent(entry.id));
        all.erase(equal);
    }
    KEST_TRY(ClipboardIndexRow row, makeIndexRow(entry, payload, m_key));
    KEST_TRY(LocalRecord index, indexRecord(row));
    // Judged as the newest, or an entry from a clock that ran ahead would keep all others out.
    if (!all.empty() && all.front().createdAt >= row.createdAt) {
        row.createdAt = all.front().createdAt + Base::Seconds{1};
    }
    all.push_back(std::move(row));
    RecordChanges changes;
    KEST_CHECK(removeUncovered(all, entry.createdAt, changes));
    if (std::ranges::find(changes.removed, entry.id) != changes.removed.end()) {
        return std::unexpected(
            KestError::invalidData("The clipboard history has no room for this."));
    }
    changes.written.push_back(contentRecord(entry, std::move(sealed)));
    changes.written.push_back(std::move(index));
    KEST_CHECK(m_store.changeRecords(changes));
    return entry;
}

// Only the mark changes. A makeshift row is not written: it would stand in the place of the
// content's own line when that can be read again.
Result<ClipboardEntry> ClipboardHistory::setFavourite(std::string_view id, bool favourite)
{
    KEST_TRY(auto row, rowOf(id));
    KEST_TRY(auto record, m_store.record(id));
    if (!row || !record) {
        return std::unexpected(removedItem());
    }
    row->favourite = favourite;
    KestCore::setFavourite(*record, favourite);
    RecordChanges changes;
    changes.written.push_back(*std::move(record));
    if (!isMakeshift(*row)) {
        KEST_TRY(changes.written.emplace_back(), indexRecord(*row));
    }
    KEST_CHECK(m_store.changeRecords(changes));
    return row->entry();
}

Result<void> ClipboardHistory::remove(std::string_view id)
{
    RecordChanges changes;
    addRemoval(id, changes);
    return m_store.changeRecords(changes);
}

Result<RecordChanges> ClipboardHistory::takeOut(std::string_view id)
{
    RecordChanges taken;
    for (const std::string &each : {std::string{id}, clipboardIndexId(id)}) {
        KEST_TRY(auto record, m_store.record(each));
        if (record) {
            taken.written.push_back(*std::move(record));
        }
    }
    KEST_CHECK(remove(id));
    return taken;
}

Result<void> ClipboardHistory::clear()
{
    KEST_TRY(const Rows all, rows());
    RecordChanges changes;
    for (const ClipboardIndexRow &row : all) {
        if (!row.favourite) {
            KEST_CHECK(removeUnlessFavourite(row, changes));
        }
    }
    return commit(changes);
}

Result<void> ClipboardHistory::applyRetention(Base::Instant now)
{
    KEST_TRY(const Rows all, rows());
    RecordChanges changes;
    KEST_CHECK(removeUncovered(all, now, changes));
    return commit(changes);
}

// Other builds mark a favourite in the record of the content alone.
Result<bool> ClipboardHistory::isFavouriteByContent(std::string_view id)
{
    const auto record = m_store.record(id);
    if (record) {
        const std::optional<LocalRecord> &found = *record;
        return found && isFavourite(*found);
    }
    if (record.error().kind == KestError::Kind::invalidData) {
        return false; // no build can read it
    }
    return std::unexpected(record.error());
}

// The last look before something is gone for good; what turns out to be a favourite is one in
// the index too from now on.
Result<void> ClipboardHistory::removeUnlessFavourite(ClipboardIndexRow row,
                                                     RecordChanges &changes)
{
    KEST_TRY(row.favourite, isFavouriteByContent(row.id));
    if (!row.favourite) {
        addRemoval(row.id, changes);
    } else if (!isMakeshift(row)) {
        KEST_TRY(changes.written.emplace_back(), indexRecord(row));
    }
    return {};
}

Result<void> ClipboardHistory::removeUncovered(const Rows &rows, Base::Instant now,
                                               RecordChanges &changes)
{
    std::vector<ClipboardEntry> passing;
    for (const ClipboardIndexRow &row : rows) {
        if (!row.favourite) {
            passing.push_back(row.entry());
        }
    }
    const auto limits = clipboardSettings(m_store.state().settings);
    const auto kept =
        ClipboardRetention::prune(passing, now, limits.maxCount, limits.days, limits.maxBytes);
    std::unordered_set<std::string_view> keptIds;
    for (const ClipboardEntry &entry : kept) {
        keptIds.insert(entry.id);
    }
    for (const ClipboardIndexRow &row : rows) {
        if (!row.favourite && !keptIds.contains(row.id)) {
            KEST_CHECK(removeUnlessFavourite(row, changes));
        }
    }
    return {};
}

Result<void> ClipboardHistory::commit(const RecordChanges &changes)
{
    return changes.written.empty() && changes.removed.empty() ? Result<void>{}
                                                              : m_store.changeRecords(changes);
}

} // namespace KestCore
