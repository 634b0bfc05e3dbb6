// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/RecordSearch.h"
#include "KestCore/Tools/Shelf.h"
#include "cli/Console.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

// What the commands of notes, links, messages and the shelf answer with.
namespace Cli
{

namespace json = Base::json;
using Base::Of;

// One item; which of the optional members there are depends on what it is.
struct ItemAnswer {
    std::string id{};
    std::string title{};
    std::optional<std::string> text{};
    std::optional<std::string> url{};
    std::optional<std::string> note{};
    std::optional<KestCore::MessageAnimation> animation{};
    std::optional<std::string> path{};
    std::optional<KestCore::ShelfPlace::State> state{};
    std::optional<std::string> foundAt{}; // of a file that moved
    bool pinned{};
    std::optional<std::string> updated{}; // absent, here and below: beyond the year 9999
    std::optional<std::string> excerpt{}; // of a search
};
consteval auto jsonFields(Of<ItemAnswer>)
{
    using R = ItemAnswer;
    return std::tuple{
        json::Field{"id", &R::id},           json::Field{"title", &R::title},
        json::Field{"text", &R::text},       json::Field{"url", &R::url},
        json::Field{"note", &R::note},       json::Field{"animation", &R::animation},
        json::Field{"path", &R::path},       json::Field{"state", &R::state},
        json::Field{"foundAt", &R::foundAt}, json::Field{"pinned", &R::pinned},
        json::Field{"updated", &R::updated}, json::Field{"excerpt", &R::excerpt},
    };
}
static_assert(json::coversAllMembers<ItemAnswer>());

// Of note scratchpad.
struct PageAnswer {
    std::string text{};
    std::optional<std::string> updated{}; // absent: never written
};
consteval auto jsonFields(Of<PageAnswer>)
{
    return std::tuple{json::Field{"text", &PageAnswer::text},
                      json::Field{"updated", &PageAnswer::updated}};
}
static_assert(json::coversAllMembers<PageAnswer>());

// Of emoji.
struct EmojiAnswer {
    std::string emoji{};
    std::string name{};
    std::string arabicName{};
    std::optional<std::int64_t> uses{}; // of one that was used
    std::optional<std::string> lastUsed{};
};
consteval auto jsonFields(Of<EmojiAnswer>)
{
    using R = EmojiAnswer;
    return std::tuple{json::Field{"emoji", &R::emoji}, json::Field{"name", &R::name},
                      json::Field{"arabicName", &R::arabicName}, json::Field{"uses", &R::uses},
                      json::Field{"lastUsed", &R::lastUsed}};
}
static_assert(json::coversAllMembers<EmojiAnswer>());

// As ISO 8601; nothing for an instant that has no such text, which an imported record may
// carry and which must not stop a list.
std::optional<std::string> instantText(Base::Instant instant);

// A list of items, with what is said when there are none. All ids of their kind are there to
// keep shortened ones apart.
[[nodiscard]] Result<void> printItems(const Console &console,
                                      const std::vector<KestCore::LocalRecord> &records,
                                      std::span<const std::string> allIds,
                                      std::string_view whenEmpty);
[[nodiscard]] Result<void> printHits(const Console &console,
                                     const std::vector<KestCore::RecordHit> &hits,
                                     std::span<const std::string> allIds);

// A text of the user's, as it is for a pipe or a file; a terminal gets it without anything
// that could drive it.
void printText(const Console &console, std::string_view text);

// The argument, or all of standard input where it is "-", without its last line's end.
[[nodiscard]] Result<std::string> textOrInput(const std::string &argument);

} // namespace Cli
