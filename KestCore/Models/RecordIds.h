// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Ids as people type them: the first characters are enough while no other has the same.
namespace KestCore
{

// Which of the ids is meant: the one that is exactly this, else the only one that begins so,
// whatever its case. Fails with invalidData when there is none or more than one; `what` is
// the word for the thing in the message, such as "timer".
[[nodiscard]] Result<std::size_t> findByIdPrefix(std::span<const std::string> ids,
                                                 std::string_view typed, std::string_view what);

// The ids of anything that has one, in its order; `record` leads from an item to what has it.
template <class Items, class Record = std::identity>
std::vector<std::string> idsOf(const Items &items, Record record = {})
{
    std::vector<std::string> ids;
    for (const auto &item : items) {
        ids.push_back(std::invoke(record, item).id);
    }
    return ids;
}

// How many characters of the ids tell them apart, at least four.
std::size_t shortIdLength(std::span<const std::string> ids);

} // namespace KestCore
