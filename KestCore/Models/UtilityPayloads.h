// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/MessageAnimation.h"
#include "KestCore/Vocabulary.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What the body of a local record holds, one struct a kind. Each is a JSON document; the
// record's title, id and time stay in the record. `keepsRules` tells whether the values make
// sense. Texts are bounded so that one record cannot make every snapshot slow.
namespace KestCore
{

inline constexpr std::size_t kLongestText = 1'000'000;   // bytes of one note
inline constexpr std::size_t kLongestAddress = 8'192;    // bytes
inline constexpr std::size_t kLongestStripMessage = 200; // characters

// Whether the text is one https:// or http:// address and nothing else.
bool isWebAddress(std::string_view text);

// Kind "link": a bookmark of a web page.
struct SavedLink {
    std::string url{}; // https:// or http://
    std::optional<std::string> note{};

    bool operator==(const SavedLink &) const = default;
};
consteval auto jsonFields(Of<SavedLink>)
{
    return std::tuple{json::Field{"url", &SavedLink::url},
                      json::Field{"note", &SavedLink::note}};
}
static_assert(json::coversAllMembers<SavedLink>());
bool keepsRules(const SavedLink &link);

// Kind "note".
struct Note {
    std::string text{};

    bool operator==(const Note &) const = default;
};
consteval auto jsonFields(Of<Note>) { return std::tuple{json::Field{"text", &Note::text}}; }
static_assert(json::coversAllMembers<Note>());
bool keepsRules(const Note &note);

// Kind "scratchpad": the one page that is always there.
struct Scratchpad {
    std::string text{};

    bool operator==(const Scratchpad &) const = default;
};
consteval auto jsonFields(Of<Scratchpad>)
{
    return std::tuple{json::Field{"text", &Scratchpad::text}};
}
static_assert(json::coversAllMembers<Scratchpad>());
bool keepsRules(const Scratchpad &scratchpad);

// Kind "emoji": one that was used before, for the row of recent ones.
struct EmojiUse {
    std::string emoji{}; // one emoji with its modifiers, at most 32 code points
    std::int64_t uses{}; // at least 1

    bool operator==(const EmojiUse &) const = default;
};
consteval auto jsonFields(Of<EmojiUse>)
{
    return std::tuple{json::Field{"emoji", &EmojiUse::emoji},
                      json::Field{"uses", &EmojiUse::uses}};
}
static_assert(json::coversAllMembers<EmojiUse>());
bool keepsRules(const EmojiUse &use);

// Kind "shortcut": something that the user starts with one click.
struct QuickShortcut {
    enum class Opens : std::uint8_t { app, link, file, tool };

    Opens opens{};
    std::string target{}; // desktop-file id, address, absolute path or tool id

    bool operator==(const QuickShortcut &) const = default;
};
constexpr auto enumTexts(Of<QuickShortcut::Opens>)
{
    using enum QuickShortcut::Opens;
    return Base::EnumTexts<QuickShortcut::Opens, 4>{
        {{app, "app"}, {link, "link"}, {file, "file"}, {tool, "tool"}}};
}
consteval auto jsonFields(Of<QuickShortcut>)
{
    return std::tuple{json::Field{"opens", &QuickShortcut::opens},
                      json::Field{"target", &QuickShortcut::target}};
}
static_assert(json::coversAllMembers<QuickShortcut>());
bool keepsRules(const QuickShortcut &shortcut);

// Kind "message": a short text that moves through the compact strip.
struct StripMessage {
    std::string text{}; // 1 to 200 characters
    MessageAnimation animation{};

    bool operator==(const StripMessage &) const = default;
};
consteval auto jsonFields(Of<StripMessage>)
{
    return std::tuple{json::Field{"text", &StripMessage::text},
                      json::Field{"animation", &StripMessage::animation}};
}
static_assert(json::coversAllMembers<StripMessage>());
bool keepsRules(const StripMessage &message);

// Kind "completion": something done to its end, such as a target reached or a timer run out.
struct Completion {
    std::string tool{}; // the tool it happened in
    std::string item{}; // what was completed there, such as a phrase id
    std::int64_t amount{};
    double completedAt{}; // ms since 1970 UTC

    bool operator==(const Completion &) const = default;
};
consteval auto jsonFields(Of<Completion>)
{
    using R = Completion;
    return std::tuple{json::Field{"tool", &R::tool}, json::Field{"item", &R::item},
                      json::Field{"amount", &R::amount},
                      json::Field{"completedAt", &R::completedAt}};
}
static_assert(json::coversAllMembers<Completion>());
bool keepsRules(const Completion &completion);

// Kind "usage": how long one application had the focus on one local day.
struct ApplicationUsage {
    std::string application{}; // desktop-file id or executable name
    std::string day{};         // YYYY-MM-DD
    double seconds{};          // 0 to 86,400 and the extra hour of a clock change

    bool operator==(const ApplicationUsage &) const = default;
};
consteval auto jsonFields(Of<ApplicationUsage>)
{
    using R = ApplicationUsage;
    return std::tuple{json::Field{"application", &R::application}, json::Field{"day", &R::day},
                      json::Field{"seconds", &R::seconds}};
}
static_assert(json::coversAllMembers<ApplicationUsage>());
bool keepsRules(const ApplicationUsage &usage);

// Kind "shelf": a file that waits on the shelf, or a text that was dropped there.
struct ShelfItem {
    std::optional<std::string> path{}; // absolute; this or `text`, never both
    std::optional<std::string> text{};
    std::optional<Base::Bytes> bookmark{}; // how a platform finds a file that moved

    bool operator==(const ShelfItem &) const = default;
};
consteval auto jsonFields(Of<ShelfItem>)
{
    using R = ShelfItem;
    return std::tuple{json::Field{"path", &R::path}, json::Field{"text", &R::text},
                      json::Field{"bookmark", &R::bookmark}};
}
static_assert(json::coversAllMembers<ShelfItem>());
bool keepsRules(const ShelfItem &item);

// Kind "file": a file or folder that the user keeps at hand.
struct FileItem {
    std::string path{}; // absolute
    bool pinned{};
    std::optional<Base::Bytes> bookmark{};

    bool operator==(const FileItem &) const = default;
};
consteval auto jsonFields(Of<FileItem>)
{
    using R = FileItem;
    return std::tuple{json::Field{"path", &R::path}, json::Field{"pinned", &R::pinned},
                      json::Field{"bookmark", &R::bookmark}};
}
static_assert(json::coversAllMembers<FileItem>());
bool keepsRules(const FileItem &item);

} // namespace KestCore
