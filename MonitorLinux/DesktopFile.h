// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The files that tell a desktop which applications there are and how to start them. Any
// program may have left them, so nothing in them is believed: what is not clearly right is
// refused whole.
namespace MonitorLinux
{

using Base::Result;

inline constexpr std::size_t kLongestDesktopFile = 1'048'576;

// What starting an application needs.
struct LaunchEntry {
    std::string name{};
    std::string icon{};   // a name of an icon theme, or the path of a picture; may be empty
    std::string exec{};   // the command line, its escapes of the file undone
    std::string folder{}; // to be started in; empty: anywhere
    bool isForTerminal = false;

    bool operator==(const LaunchEntry &) const = default;
};

// None for what is no application, is deleted or hidden from menus, and for a text that is no
// desktop file. `language` is such as "pt_BR"; the name is in it where it can be.
std::optional<LaunchEntry> parseLaunchEntry(std::string_view text, std::string_view language);

// The words of the command, with the field codes filled in: files as paths or as addresses,
// whichever the entry asks for, and left out where it takes none. Fails with invalidData for a
// line that a shell would be needed for, or whose quotes or codes are wrong. `file` is that of
// the entry.
[[nodiscard]] Result<std::vector<std::string>>
commandWords(const LaunchEntry &entry, const std::string &file,
             std::span<const std::string> addresses);

// How well a key names the entry in the language: 0 in no language of its own, 1 in the
// language, 2 in its country's kind; below 0 for another key or another language.
int rankOfName(std::string_view key, std::string_view language);

struct DesktopFile {
    std::string id{}; // the path below its folder, with dashes for slashes
    std::filesystem::path path{};
};
// Those below the folder, sorted.
std::vector<DesktopFile> desktopFilesIn(const std::filesystem::path &folder);

// The file of this id, in the first folder that has one. An id that leads out of the folders
// has none.
std::optional<std::filesystem::path>
findDesktopFile(std::string_view id, std::span<const std::filesystem::path> folders);

} // namespace MonitorLinux
