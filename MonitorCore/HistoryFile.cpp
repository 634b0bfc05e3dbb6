// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/HistoryFile.h"

#include "Base/File.h"

#include <fmt/format.h>

#include <ranges>

namespace MonitorCore
{

namespace fs = std::filesystem;

using Base::KestError;

namespace
{

constexpr const char *kSchema =
    "PRAGMA auto_vacuum=INCREMENTAL; PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; "
    "PRAGMA busy_timeout=3000; PRAGMA journal_size_limit=8388608; CREATE TABLE IF NOT EXISTS "
    "samples(t INTEGER NOT NULL,res INTEGER NOT NULL,app TEXT NOT NULL,metric TEXT NOT "
    "NULL,total REAL NOT NULL,weight REAL NOT NULL,peak REAL NOT NULL,PRIMARY "
    "KEY(t,res,app,metric)); CREATE INDEX IF NOT EXISTS sample_lookup ON "
    "samples(app,metric,t); PRAGMA user_version=1;";

// Each minute's rows stand together, so a day's series touches 1,440 pages, and so do the other
// series of that day: with room for them a chart is drawn in a third of the time.
constexpr const char *kRoomForADay = "PRAGMA cache_size=-8192"; // KiB

constexpr std::string_view kReadVersion = "PRAGMA user_version";
constexpr std::string_view kCountTables = "SELECT COUNT(*) FROM sqlite_master";
constexpr std::string_view kReadColumns =
    "SELECT group_concat(name,',') FROM pragma_table_info('samples')";
constexpr std::string_view kColumns = "t,res,app,metric,total,weight,peak";
constexpr std::int64_t kSchemaVersion = 1;

constexpr std::string_view kNewerFile =
    "the file was saved by a newer Velvetnook and was left as it is";

fs::path withEnding(const fs::path &file, std::string_view ending)
{
    return fs::path{file} += ending;
}

Result<std::int64_t> readNumber(Base::Database &db, std::string_view sql)
{
    KEST_TRY(auto statement, db.prepare(sql, kCannotPrepare));
    KEST_TRY([[maybe_unused]] const bool hasRow, statement.step());
    return statement.integer(0);
}

enum class FileState : std::uint8_t { usable, newer, foreign };

// Only reads, so that a file which is not ours stays as it was found.
Result<FileState> stateOf(Base::Database &db)
{
    KEST_TRY(const auto tables, readNumber(db, kCountTables));
    if (tables == 0) {
        return FileState::usable;
    }
    KEST_TRY(const auto columns, db.query(kReadColumns));
    KEST_TRY(const auto version, readNumber(db, kReadVersion));
    if (version > kSchemaVersion && !columns.front().view().empty()) {
        return FileState::newer;
    }
    return columns.front().view() == kColumns ? FileState::usable : FileState::foreign;
}

// No database, and no error either, for a file that is damaged or holds something else.
Result<std::optional<Base::Database>> tryOpen(const fs::path &url)
{
    Base::makePrivateFile(url);
    KEST_TRY(Base::Database db, Base::Database::open(url, kCannotOpen));
    const auto state = stateOf(db);
    if (state && *state != FileState::usable) {
        db.leaveLog();
        if (*state == FileState::newer) {
            return historyFailure(kNewerFile);
        }
        return std::nullopt;
    }
    const Result<void> ready =
        state ? db.runScript(kSchema) : Result<void>{std::unexpected(state.error())};
    if (!ready) {
        if (db.isDamaged()) {
            db.leaveLog();
            return std::nullopt;
        }
        return std::unexpected(ready.error());
    }
    KEST_CHECK(db.runScript(kRoomForADay));
    std::error_code error; // of a file that is another user's, for one
    fs::permissions(url, fs::perms::owner_read | fs::perms::owner_write, error);
    if (error) {
        return std::unexpected(Base::fileError(url, error));
    }
    return db;
}

// Renames the file and what belongs to it, as the changes of its last minutes may stand there.
// The file itself goes last: a log that was left beside a new file would be taken for its own.
// Gives the new name.
Result<std::string> setAside(const fs::path &url)
{
    fs::path target;
    std::error_code error;
    for (int number = 1; target.empty() || fs::exists(target, error); ++number) {
        target = url.parent_path() / fmt::format("{}.set-aside-{}{}", url.stem().string(),
                                                 number, url.extension().string());
    }
    for (const char *ending : std::views::reverse(kHistoryFileEndings)) {
        const fs::path from = withEnding(url, ending);
        if (fs::exists(from, error)) {
            fs::rename(from, withEnding(target, ending), error);
        }
        if (error) {
            return std::unexpected(Base::fileError(from, error));
        }
    }
    return target.filename().string();
}

} // namespace

std::unexpected<KestError> historyFailure(std::string_view message)
{
    return std::unexpected(KestError::storage(std::string{message}));
}

Result<HistoryFile> openHistoryFile(const fs::path &url)
{
    KEST_CHECK(Base::makePrivateDirectory(url.parent_path()));
    KEST_TRY(auto database, tryOpen(url));
    if (!database) {
        return historyFailure(kUnusable);
    }
    return HistoryFile{.database = *std::move(database)};
}

Result<HistoryFile> openOrReplaceHistoryFile(const fs::path &url)
{
    KEST_CHECK(Base::makePrivateDirectory(url.parent_path()));
    KEST_TRY(auto database, tryOpen(url));
    if (!database) {
        return replaceHistoryFile(url);
    }
    return HistoryFile{.database = *std::move(database)};
}

Result<HistoryFile> replaceHistoryFile(const fs::path &url)
{
    KEST_TRY(std::string name, setAside(url));
    KEST_TRY(auto database, tryOpen(url));
    if (!database) {
        return historyFailure(kCannotOpen);
    }
    return HistoryFile{.database = *std::move(database), .setAside = std::move(name)};
}

} // namespace MonitorCore
