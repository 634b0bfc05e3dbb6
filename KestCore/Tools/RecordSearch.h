// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/LocalRecord.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

struct RecordHit {
    LocalRecord record{};
    std::string excerpt{}; // the line of its text that fits best; empty where none has a word

    bool operator==(const RecordHit &) const = default;
};

// What of a record is searched beside its title.
using SearchedText = std::function<std::string(const LocalRecord &)>;

// The records in whose title or text every word of the query occurs, without regard to case,
// diacritics, harakat and signs; a query of signs alone is looked for as it is, and an empty
// one finds everything. A title that is the query comes first, then titles that begin with it,
// have a word that does, have it at all or have its words; then texts in the same way. Equal
// ones stay in the order in which they came.
std::vector<RecordHit> searchRecords(const std::vector<LocalRecord> &records,
                                     std::string_view query, const SearchedText &textOf);

} // namespace KestCore
