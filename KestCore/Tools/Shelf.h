// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/RecordList.h"

#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace KestCore
{

inline constexpr const char *kShelfKind = "shelf";

// Where a file on the shelf is now. The shelf only looks: it never touches the file.
struct ShelfPlace {
    enum class State : std::uint8_t {
        present,
        moved,   // it has another name in the same folder
        missing, // it is not there, and not found in its folder
    };

    State state{};
    std::optional<std::string> path{}; // of a file that is found

    bool operator==(const ShelfPlace &) const = default;
};
constexpr auto enumTexts(Of<ShelfPlace::State>)
{
    using enum ShelfPlace::State;
    return Base::EnumTexts<ShelfPlace::State, 3>{
        {{present, "present"}, {moved, "moved"}, {missing, "missing"}}};
}

// A file or folder for the shelf, with what finds it again: device, inode and the time of its
// birth. A link stands for itself. Fails when there is nothing at the path.
[[nodiscard]] Result<LocalRecord> makeShelfFile(const std::filesystem::path &path);
// A text for the shelf. Fails for one that is empty or too long.
[[nodiscard]] Result<LocalRecord> makeShelfText(std::string text);

// Looks for the files of items that have a path; one that has none is missing. A file of that
// name is the file, as editors save by putting a new one in the place of the old. Otherwise
// its folder is searched, once for all the items of that.
std::vector<ShelfPlace> placesOf(std::span<const ShelfItem> items);
ShelfPlace placeOf(const ShelfItem &item);

// Puts all of these files on the shelf or, where one is not there, none. A path that is on it
// already stays where it stands.
[[nodiscard]] Result<std::vector<LocalRecord>>
shelve(RecordList &shelf, const std::vector<std::filesystem::path> &paths);

} // namespace KestCore
