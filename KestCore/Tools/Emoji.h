// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// One emoji. Its texts belong to the list that it came from.
struct Emoji {
    std::string_view text{};
    std::string_view name{};
    std::string_view arabicName{};
    std::string_view words{}; // in their search form, separated by |, the name first
    std::string_view arabicWords{};
    std::string_view toned{};     // with the lightest tone on each person; empty: takes none
    std::string_view twoPeople{}; // as two tones need it, without them; empty: as `text`

    bool operator==(const Emoji &) const = default;
};

// A list of emoji, read from `text`, which has to live as long as they do. Fails with
// invalidData that names the first bad line.
[[nodiscard]] Result<std::vector<Emoji>> parseEmoji(std::string_view text);

// The list that ships with the program, read on first use and kept. A missing or broken one
// is a fault of the build and ends the process.
const std::vector<Emoji> &allEmoji();

// The groups in which keyboards show them.
enum class EmojiGroup : std::uint8_t {
    people,
    nature,
    food,
    travel,
    activities,
    objects, // and symbols and flags
};
constexpr auto enumTexts(Of<EmojiGroup>)
{
    using enum EmojiGroup;
    return Base::EnumTexts<EmojiGroup, 6>{{{people, "people"},
                                           {nature, "nature"},
                                           {food, "food"},
                                           {travel, "travel"},
                                           {activities, "activities"},
                                           {objects, "objects"}}};
}
std::span<const Emoji> emojiOfGroup(EmojiGroup group);

enum class SkinTone : std::uint8_t { none, light, mediumLight, medium, mediumDark, dark };
constexpr auto enumTexts(Of<SkinTone>)
{
    using enum SkinTone;
    return Base::EnumTexts<SkinTone, 6>{{{none, "none"},
                                         {light, "light"},
                                         {mediumLight, "medium-light"},
                                         {medium, "medium"},
                                         {mediumDark, "medium-dark"},
                                         {dark, "dark"}}};
}

// The setting "emoji.skinTone"; none where it is not set or names no tone.
SkinTone chosenTone(const Settings &settings);

// The emoji with this tone on every person that takes one.
std::string withTone(const Emoji &emoji, SkinTone tone);

struct KnownEmoji {
    const Emoji *emoji{};
    std::string text{}; // with its tones, in the one form in which all emoji are kept
};
// The emoji that the text is, whether or not it asks to be shown in colour; none for any other
// text, and for tones where they don't belong.
std::optional<KnownEmoji> emojiOf(std::string_view text);

// The form in which words are compared: case, marks, tatweel and the forms of one Arabic
// letter don't matter, and signs are spaces, so that :thumbs_up: is "thumbs up".
std::string emojiSearchForm(std::string_view text);

// At most `limit` emoji that have a word or name like the query, in English or Arabic: one
// that is the query, begins with it, has a word that does, or has it at all; then those that
// have all its words. Better names come first in each, else the order of keyboards.
std::vector<const Emoji *> searchEmoji(std::string_view query, std::size_t limit);

} // namespace KestCore
