// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardHistory.h"

#include "Base/Text.h"
#include "Base/Uuid.h"
#include "KestCore/Clipboard/ClipboardPrivacy.h"
#include "KestCore/Clipboard/ClipboardRetention.h"
#include "KestCore/Models/RecordIds.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace KestCore
{

namespace
{

constexpr const char *kDamagedImage = "This saved image is damaged.";
constexpr const char *kDamagedEntry = "This saved entry cannot be opened.";

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

} // namespace

// A row whose content is gone is removed. Content without a row (an older build wrote it, or a
// backup brought it) is opened once; if that fails, its line is made anew each time, since the
// right key may come back.
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
    if (!repairs.written.empty() || !repairs.removed.empty()) {
        KEST_CHECK(m_store.changeRecords(repairs));
    }
    std::ranges::sort(rows, comesBefore);
    return rows;
}

Result<std::optional<ClipboardIndexRow>> ClipboardHistory::rebuildRow(std::string_view id,
                                                                      RecordChanges &repairs)
{
    std::optional<ClipboardIndexRow> row;
    KEST_TRY(const auto record, m_store.record(id));
    if (!record || !isContentRecord(*record)) {
        return row;
    }
    const auto payload = ClipboardCipher::open(record->body, m_key);
    if (!payload) {
        const ClipboardEntry entry = entryOf(*record, {});
        row = {.id = entry.id,
               .createdAt = entry.createdAt,
               .byteCount = static_cast<std::int64_t>(record->body.size()),
               .favourite = entry.favourite};
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

std::string ClipboardHistory::displayOf(const ClipboardIndexRow &row) const
{
    auto display = ClipboardCipher::openLine(row.display, m_key);
    if (display) {
        return *std::move(display);
    }
    return row.kind == ClipboardKind::image ? kDamagedImage : kDamagedEntry;
}

Result<std::vector<ClipboardListing>> ClipboardHistory::list()
{
    KEST_TRY(const Rows all, rows());
    std::vector<ClipboardListing> listings;
    for (const ClipboardIndexRow &row : all) {
        listings.push_back({.entry = row.entry(), .display = displayOf(row)});
    }
    return listings;
}

Result<std::vector<ClipboardListing>> ClipboardHistory::search(std::string_view words)
{
    const std::string folded = Base::foldCaseAndDiacritics(words);
    KEST_TRY(const Rows all, rows());
    std::vector<ClipboardListing> found;
    for (const ClipboardIndexRow &row : all) {
        if (!isTextual(row.kind)) {
            continue;
        }
        std::string display = displayOf(row);
        KEST_TRY(const bool isFound, hasWords(row, display, folded));
        if (isFound) {
            found.push_back({.entry = row.entry(), .display = std::move(display)});
        }
    }
    return found;
}

// Most texts are short and stand in the index as a whole.
Result<bool> ClipboardHistory::hasWords(const ClipboardIndexRow &row, std::string_view display,
                                        std::string_view folded)
{
    if (Base::foldCaseAndDiacritics(display).contains(folded)) {
        return true;
    }
    const bool isWhole = std::cmp_greater_equal(display.size(), row.byteCount);
    if (isWhole || display == ClipboardPrivacy::kHidden) {
        return false;
    }
    const auto payload = content(row.id);
    return payload && Base::foldCaseAndDiacritics(payload->text.value_or("")).contains(folded);
}

Result<ClipboardEntry> ClipboardHistory::find(std::string_view idOrBeginning)
{
    KEST_TRY(const Rows all, rows());
    KEST_TRY(const std::size_t at,
             findByIdPrefix(idsOf(all), idOrBeginning, "clipboard entry"));
    return all[at].entry();
}

Result<ClipboardPayload> ClipboardHistory::content(std::string_view id)
{
    KEST_TRY(const auto record, m_store.record(id));
    if (!record || !isContentRecord(*record)) {
        return std::unexpected(removedItem());
    }
    auto payload = ClipboardCipher::open(record->body, m_key);
    if (!payload) {
        KEST_TRY(const auto row, rowOf(id));
        if (row && row->kind == ClipboardKind::image) {
            return std::unexpected(KestError::invalidData(kDamagedImage));
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
        entry.favourite = equal->favourite;
        all.erase(equal);
    }
    KEST_TRY(ClipboardIndexRow row, makeIndexRow(entry, payload, m_key));
    KEST_TRY(LocalRecord index, indexRecord(row));
    all.push_back(std::move(row));
    RecordChanges changes;
    removeUncovered(all, entry.createdAt, changes);
    if (std::ranges::find(changes.removed, entry.id) != changes.removed.end()) {
        return std::unexpected(
            KestError::invalidData("The clipboard history has no room for this."));
    }
    changes.written = {contentRecord(entry, std::move(sealed)), std::move(index)};
    KEST_CHECK(m_store.changeRecords(changes));
    return entry;
}

Result<ClipboardEntry> ClipboardHistory::setFavourite(std::string_view id, bool favourite)
{
    KEST_TRY(auto row, rowOf(id));
    KEST_TRY(auto record, m_store.record(id));
    if (!row || !record) {
        return std::unexpected(removedItem());
    }
    row->favourite = favourite;
    KEST_TRY(LocalRecord index, indexRecord(*row));
    RecordChanges changes;
    changes.written = {contentRecord(row->entry(), std::move(record->body)), std::move(index)};
    KEST_CHECK(m_store.changeRecords(changes));
    return row->entry();
}

Result<void> ClipboardHistory::remove(std::string_view id)
{
    RecordChanges changes;
    addRemoval(id, changes);
    return m_store.changeRecords(changes);
}

Result<void> ClipboardHistory::clear()
{
    KEST_TRY(const Rows all, rows());
    RecordChanges changes;
    for (const ClipboardIndexRow &row : all) {
        if (!row.favourite) {
            addRemoval(row.id, changes);
        }
    }
    return changes.removed.empty() ? Result<void>{} : m_store.changeRecords(changes);
}

Result<void> ClipboardHistory::applyRetention(Base::Instant now)
{
    KEST_TRY(const Rows all, rows());
    RecordChanges changes;
    removeUncovered(all, now, changes);
    return changes.removed.empty() ? Result<void>{} : m_store.changeRecords(changes);
}

void ClipboardHistory::removeUncovered(const Rows &rows, Base::Instant now,
                                       RecordChanges &changes) const
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
    for (const ClipboardEntry &entry : passing) {
        if (!keptIds.contains(entry.id)) {
            addRemoval(entry.id, changes);
        }
    }
}

} // namespace KestCore
