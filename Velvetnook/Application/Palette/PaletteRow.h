// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <string>

namespace Velvetnook
{

enum class PaletteKind : std::uint8_t {
    phrase,
    name,
    tool,
    page,   // of the settings
    action, // something to do at once
    timer,
    moment, // one of the day's prayer times
    unit,
    emoji,
    note,
    link
};

// In the order in which the groups stand, but that the one of the best match is the first.
enum class PaletteGroup : std::uint8_t {
    resume,
    open,
    phrases,
    names,
    tools,
    units,
    emoji,
    notes,
    links,
    settings
};

// What is offered: its kind and, among those, its id.
struct PaletteThing {
    PaletteKind kind{};
    PaletteGroup group{};
    std::string id{};

    bool operator==(const PaletteThing &) const = default;
};

// The name under which its uses are counted.
std::string keyOf(const PaletteThing &thing);

// One line as it is shown.
struct PaletteRow {
    QString head{};   // of the group that begins here
    QString title{};  // <m> and </m> around what matches; the rest is escaped
    QString spoken{}; // the same without them
    QString note{};
    QString iconName{};
    QString emoji{};       // in the place of an icon
    QString arabic{};      // at the trailing side
    QString trailing{};    // a short text there
    QString keyHint{};     // the key that opens it wherever one is
    QString enterHint{};   // Enter, shown while it is the chosen one
    QString enterNote{};   // what that does, where it is not to open
    bool isArabic = false; // which is the title then, where it has room

    bool operator==(const PaletteRow &) const = default;
};

} // namespace Velvetnook
