// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Sqlite.h"
#include "MonitorCore/Vocabulary.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace MonitorCore
{

inline constexpr std::string_view kCannotOpen = "Could not open local storage";
inline constexpr std::string_view kCannotPrepare = "Could not prepare history query";

// A database and the two files that SQLite keeps beside it.
inline constexpr std::array<const char *, 3> kHistoryFileEndings{"", "-wal", "-shm"};

struct HistoryFile {
    Base::Database database;
    std::string setAside{}; // the new name of a file that could not be used; empty: none
};

// Opens the history, creating folder and file when they are missing, and replaces a file that
// is damaged or holds something else; one of a newer build is refused and left as it is. What
// the file system refuses is unavailable.
[[nodiscard]] Result<HistoryFile> openHistoryFile(const std::filesystem::path &url);

// Renames the file, which nobody may have open, with its side files, and begins a new one.
[[nodiscard]] Result<HistoryFile> replaceHistoryFile(const std::filesystem::path &url);

std::unexpected<Base::KestError> historyFailure(std::string_view message);

} // namespace MonitorCore
