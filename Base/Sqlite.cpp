// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Sqlite.h"

#include <sqlite3.h>

namespace Base
{

namespace
{

constexpr int kBusyTimeoutMs = 5000; // for another program that has the file for a moment
constexpr std::size_t kLongestParameter = 2'147'483'646;

struct Finalize {
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

KestError invalidOperation() { return KestError::storage("Invalid storage operation"); }

Result<void> bind(sqlite3_stmt *statement, Database::Parameters parameters)
{
    int index = 0;
    for (const std::string_view bytes : parameters) {
        // A null pointer would bind NULL, and an empty text is not NULL.
        const char *data = bytes.data() == nullptr ? "" : bytes.data();
        if (bytes.size() > kLongestParameter ||
            sqlite3_bind_blob(statement, ++index, data, static_cast<int>(bytes.size()),
                              SQLITE_TRANSIENT) != SQLITE_OK) {
            return std::unexpected(invalidOperation());
        }
    }
    return {};
}

std::string_view firstColumn(sqlite3_stmt *statement)
{
    const void *data = sqlite3_column_blob(statement, 0);
    const int size = sqlite3_column_bytes(statement, 0);
    return {static_cast<const char *>(data), static_cast<std::size_t>(size)};
}

} // namespace

void Database::Close::operator()(sqlite3 *handle) const { sqlite3_close(handle); }

Result<Database> Database::open(const std::filesystem::path &file, std::string_view message)
{
    sqlite3 *handle = nullptr;
    const int code = sqlite3_open(file.c_str(), &handle);
    std::unique_ptr<sqlite3, Close> owned{handle};
    if (code != SQLITE_OK || handle == nullptr) {
        return std::unexpected(KestError::storage(std::string{message}));
    }
    sqlite3_busy_timeout(handle, kBusyTimeoutMs);
    return Database{std::move(owned)};
}

Result<void> Database::runScript(const char *script)
{
    if (sqlite3_exec(m_handle.get(), script, nullptr, nullptr, nullptr) != SQLITE_OK) {
        return std::unexpected(lastError());
    }
    return {};
}

Result<void> Database::forEachRow(std::string_view sql, Parameters parameters,
                                  const RowTaker &take)
{
    sqlite3_stmt *prepared = nullptr;
    if (sqlite3_prepare_v2(m_handle.get(), sql.data(), static_cast<int>(sql.size()), &prepared,
                           nullptr) != SQLITE_OK) {
        return std::unexpected(invalidOperation());
    }
    const Statement statement{prepared};
    KEST_CHECK(bind(statement.get(), parameters));
    Row row;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement.get())) == SQLITE_ROW) {
        row.assign(firstColumn(statement.get()));
        if (auto taken = take(row); !taken) {
            forgetPages(statement.get());
            return taken;
        }
    }
    if (code != SQLITE_DONE) {
        KestError error = lastError();
        forgetPages(statement.get());
        return std::unexpected(std::move(error));
    }
    return {};
}

// A read that came up short left a page of zeros in the cache, which SQLite may not even have
// noticed, and the next statement would take it for the file's.
void Database::forgetPages(sqlite3_stmt *statement)
{
    sqlite3_reset(statement);
    sqlite3_db_release_memory(m_handle.get());
}

Result<std::vector<Database::Row>> Database::query(std::string_view sql, Parameters parameters)
{
    std::vector<Row> rows;
    KEST_CHECK(forEachRow(sql, parameters, [&](const Row &row) -> Result<void> {
        rows.emplace_back(row.view());
        return {};
    }));
    return rows;
}

Result<void> Database::run(std::string_view sql, Parameters parameters)
{
    return forEachRow(sql, parameters, [](const Row &) -> Result<void> { return {}; });
}

void Database::rollBack()
{
    // An I/O error may have rolled back already; then there is nothing left to end.
    if (sqlite3_get_autocommit(m_handle.get()) == 0) {
        (void)run("ROLLBACK");
    }
}

Result<void> Database::backUpTo(const std::filesystem::path &file)
{
    const char *const kCannotOpen = "Cannot back up local storage";
    KEST_TRY(const Database target, open(file, kCannotOpen));
    sqlite3_backup *backup =
        sqlite3_backup_init(target.m_handle.get(), "main", m_handle.get(), "main");
    if (backup == nullptr) {
        return std::unexpected(KestError::storage(kCannotOpen));
    }
    const int stepped = sqlite3_backup_step(backup, -1);
    const int finished = sqlite3_backup_finish(backup);
    if (stepped != SQLITE_DONE || finished != SQLITE_OK) {
        return std::unexpected(KestError::storage(
            "Local backup could not finish. Existing data was not changed."));
    }
    return {};
}

Result<std::string> Database::dataVersion()
{
    KEST_TRY(const auto rows, query("PRAGMA data_version"));
    return rows.empty() ? std::string{} : std::string{rows.front().view()};
}

KestError Database::lastError() const
{
    return KestError::storage(sqlite3_errmsg(m_handle.get()));
}

} // namespace Base
