// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Store/StateStore.h"
#include "KestCore/Tools/RecordOrder.h"

#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// The records of one kind as a list that its owner arranges: notes, links, messages, the
// shelf. Each change is one durable step, which also empties the bin of what is past
// restoring; a failed one changes nothing. An item is named by its id or the beginning of it.
// Does not own the store, and works at one moment.
class RecordList
{
public:
    RecordList(StateStore &store, std::string kind, Base::Instant now)
        : m_store(store), m_kind(std::move(kind)), m_now(now)
    {
    }

    [[nodiscard]] Result<std::vector<LocalRecord>> items(); // in the order shown
    [[nodiscard]] Result<LocalRecord> find(std::string_view idPrefix);

    // A record of this list's kind with a fresh id, standing at that end.
    [[nodiscard]] Result<LocalRecord> add(LocalRecord record, ListEnd end);
    [[nodiscard]] Result<std::vector<LocalRecord>> addAll(std::vector<LocalRecord> records,
                                                          ListEnd end);
    // Sets the time of the change, too.
    [[nodiscard]] Result<LocalRecord> edit(std::string_view idPrefix,
                                           const StateStore::RecordMutation &mutation);

    // Arranging leaves the time of the last change as it is.
    [[nodiscard]] Result<LocalRecord> pin(std::string_view idPrefix, bool pinned);
    // `line` counts from 0; see `moved`.
    [[nodiscard]] Result<LocalRecord> move(std::string_view idPrefix, std::size_t line);

    [[nodiscard]] Result<LocalRecord> remove(std::string_view idPrefix);
    [[nodiscard]] Result<std::vector<LocalRecord>> removeAll();
    [[nodiscard]] Result<std::vector<LocalRecord>> restore(); // what was removed last

private:
    [[nodiscard]] Result<void> write(std::vector<LocalRecord> records);

    StateStore &m_store;
    std::string m_kind;
    Base::Instant m_now;
};

} // namespace KestCore
