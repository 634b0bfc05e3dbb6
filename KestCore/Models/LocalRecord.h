// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <map>
#include <string>
#include <string_view>

namespace KestCore
{

// A free-standing row of the store: a note, a link, a timer, a clipboard entry.
struct LocalRecord {
    std::string id{};
    std::string kind{};
    std::string title{};
    std::string body{};                         // the kind's own payload
    double updated{};                           // ms since 1970 UTC
    std::map<std::string, std::string> extra{}; // attributes of the kind

    bool operator==(const LocalRecord &) const = default;
};

consteval auto jsonFields(Of<LocalRecord>)
{
    using R = LocalRecord;
    return std::tuple{
        json::Field{"id", &R::id},           json::Field{"kind", &R::kind},
        json::Field{"title", &R::title},     json::Field{"body", &R::body},
        json::Field{"updated", &R::updated}, json::Field{"extra", &R::extra},
    };
}
static_assert(json::coversAllMembers<LocalRecord>());

// Whether the kind is lower-case ASCII letters and hyphens and, for a kind with a payload of
// its own, the body decodes as one. Fails with invalidData "Invalid saved link",
// "Invalid timer" or "Invalid utility record".
[[nodiscard]] Result<void> validate(const LocalRecord &record);

// What is said of a record that was there when its id was taken down, and is no more: "This
// item was removed." Of ids as people type them findByIdPrefix has more to say.
KestError removedItem();

// The body as this payload, or an empty one where it is none; a record that was validated has
// one of its kind.
template <class Payload>
Payload payloadOf(const LocalRecord &record)
{
    return json::decode<Payload>(std::string_view{record.body}).value_or(Payload{});
}

// A stored row as a record; fails with "Invalid utility record" when it does not decode.
[[nodiscard]] Result<LocalRecord> decodeLocalRecord(const json::PaddedText &text);

} // namespace KestCore
