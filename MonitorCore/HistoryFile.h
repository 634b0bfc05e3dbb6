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

inline constexpr std::string_view kUnusable =
    "The file is damaged or is no history; the next recording sets it aside";

// Beside the history: who records holds the lock on it, so that no second is counted twice
// and nobody renames the file that another writes to.
inline constexpr std::string_view kRecorderLockName = "recorder.lock";

struct HistoryFile {
    Base::Database database;
    std::string setAside{}; // the new name of a file that could not be used; empty: none
};

// Opens the history, creating folder and file when they are missing. A file that is damaged or
// holds something else is refused, as is one whose table a newer build has changed; both stay
// as they are. What the file system refuses is unavailable.
[[nodiscard]] Result<HistoryFile> openHistoryFile(const std::filesystem::path &url);

// The same for the holder of the recorder's lock: replaces a file that cannot be used.
[[nodiscard]] Result<HistoryFile> openOrReplaceHistoryFile(const std::filesystem::path &url);

// Renames the file with its side files and begins a new one. For the holder of the recorder's
// lock; the file must not be open any more.
[[nodiscard]] Result<HistoryFile> replaceHistoryFile(const std::filesystem::path &url);

std::unexpected<Base::KestError> historyFailure(std::string_view message);

} // namespace MonitorCore
