// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/LocalRecord.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace KestCore
{

// The order in which a tool shows its records: pinned ones first, then by their position, and
// as they were added where that is the same. Both are attributes of the record, "pinned" and
// "position"; a record that has none, or has nonsense there, is not pinned and stands at 0.

bool isPinned(const LocalRecord &record);
void setPinned(LocalRecord &record, bool pinned);

std::int64_t positionOf(const LocalRecord &record);
void setPosition(LocalRecord &record, std::int64_t position);

// `records` come in the order in which they were added.
std::vector<LocalRecord> inOrder(std::vector<LocalRecord> records);

enum class ListEnd : std::uint8_t { front, back };
// The position before, or behind, all the others.
std::int64_t positionAt(ListEnd end, std::span<const LocalRecord> records);

// The records that change when this one takes the place `line`, counted from 0 and from the
// first line shown. It stays among the pinned, or among the others: a line beyond those means
// the nearest of theirs. `ordered` is as inOrder gives it and holds the id.
std::vector<LocalRecord> moved(const std::vector<LocalRecord> &ordered, std::string_view id,
                               std::size_t line);

} // namespace KestCore
