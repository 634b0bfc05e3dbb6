// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecordList.h"

#include "Base/Uuid.h"
#include "KestCore/Models/RecordIds.h"
#include "KestCore/Tools/RecordBin.h"

#include <algorithm>

namespace KestCore
{

Result<std::vector<LocalRecord>> RecordList::items()
{
    KEST_TRY(auto records, m_store.recordsOfKind(m_kind));
    return inOrder(std::move(records));
}

Result<LocalRecord> RecordList::find(std::string_view idPrefix)
{
    KEST_TRY(auto records, m_store.recordsOfKind(m_kind));
    KEST_TRY(const std::size_t at, findByIdPrefix(idsOf(records), idPrefix, "item"));
    return std::move(records[at]);
}

Result<void> RecordList::write(std::vector<LocalRecord> records)
{
    KEST_TRY(const auto bin, m_store.recordsOfKind(kTrashKind));
    RecordChanges changes{.written = std::move(records), .removed = expired(bin, m_now)};
    std::erase_if(changes.removed, [&](const std::string &id) {
        return std::ranges::find(changes.written, id, &LocalRecord::id) !=
               changes.written.end();
    });
    return m_store.changeRecords(changes);
}

Result<LocalRecord> RecordList::add(LocalRecord record, ListEnd end)
{
    KEST_TRY(auto added, addAll({std::move(record)}, end));
    return std::move(added.front());
}

Result<std::vector<LocalRecord>> RecordList::addAll(std::vector<LocalRecord> records,
                                                    ListEnd end)
{
    KEST_TRY(const auto before, m_store.recordsOfKind(m_kind));
    std::int64_t position = positionAt(end, before);
    for (LocalRecord &record : records) {
        record.id = Base::makeUuid();
        record.kind = m_kind;
        record.updated = Base::milliseconds1970(m_now);
        setPosition(record, position);
        position += end == ListEnd::back ? 1 : -1;
    }
    if (!records.empty()) {
        KEST_CHECK(write(records));
    }
    return records;
}

Result<LocalRecord> RecordList::edit(std::string_view idPrefix,
                                     const StateStore::RecordMutation &mutation)
{
    KEST_TRY(LocalRecord record, find(idPrefix));
    KEST_CHECK(mutation(record));
    record.updated = Base::milliseconds1970(m_now);
    KEST_CHECK(write({record}));
    return record;
}

Result<LocalRecord> RecordList::pin(std::string_view idPrefix, bool pinned)
{
    KEST_TRY(LocalRecord record, find(idPrefix));
    if (isPinned(record) != pinned) {
        setPinned(record, pinned);
        KEST_CHECK(write({record}));
    }
    return record;
}

Result<LocalRecord> RecordList::move(std::string_view idPrefix, std::size_t line)
{
    KEST_TRY(const auto ordered, items());
    KEST_TRY(const std::size_t at, findByIdPrefix(idsOf(ordered), idPrefix, "item"));
    const std::string &id = ordered[at].id;
    auto changed = moved(ordered, id, line);
    if (!changed.empty()) {
        KEST_CHECK(write(std::move(changed)));
    }
    return find(id);
}

Result<LocalRecord> RecordList::remove(std::string_view idPrefix)
{
    KEST_TRY(LocalRecord record, find(idPrefix));
    KEST_TRY(auto trash, binned(record, m_now));
    KEST_CHECK(write({std::move(trash)}));
    return record;
}

Result<std::vector<LocalRecord>> RecordList::removeAll()
{
    KEST_TRY(auto records, items());
    std::vector<LocalRecord> trash;
    for (const LocalRecord &record : records) {
        KEST_TRY(auto one, binned(record, m_now));
        trash.push_back(std::move(one));
    }
    if (!trash.empty()) {
        KEST_CHECK(write(std::move(trash)));
    }
    return records;
}

Result<std::vector<LocalRecord>> RecordList::restore()
{
    KEST_TRY(const auto bin, m_store.recordsOfKind(kTrashKind));
    KEST_TRY(auto records, lastRemoved(bin, m_kind, m_now));
    KEST_CHECK(write(records));
    return records;
}

} // namespace KestCore
