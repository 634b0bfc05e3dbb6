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

constexpr const char *kInvalidOperation = "Invalid storage operation";

KestError invalidOperation() { return KestError::storage(kInvalidOperation); }

// A read that came up short left a page of zeros in the cache, which SQLite may not even have
// noticed, and the next statement would take it for the file's.
void forgetPages(sqlite3_stmt *statement)
{
    sqlite3_reset(statement);
    sqlite3_db_release_memory(sqlite3_db_handle(statement));
}

KestError errorOf(sqlite3 *handle) { return KestError::storage(sqlite3_errmsg(handle)); }

Result<void> bindBlobs(sqlite3_stmt *statement, Database::Parameters parameters)
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

} // namespace

void Statement::Finalize::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

void Statement::reset()
{
    sqlite3_reset(m_statement.get());
    m_isBound = true;
}

void Statement::bindOne(int index, std::int64_t value)
{
    m_isBound &= sqlite3_bind_int64(m_statement.get(), index, value) == SQLITE_OK;
}

void Statement::bindOne(int index, double value)
{
    m_isBound &= sqlite3_bind_double(m_statement.get(), index, value) == SQLITE_OK;
}

void Statement::bindOne(int index, std::string_view value)
{
    // A null pointer would bind NULL, and an empty text is not NULL.
    const char *data = value.data() == nullptr ? "" : value.data();
    m_isBound &= sqlite3_bind_text64(m_statement.get(), index, data, value.size(),
                                     SQLITE_STATIC, SQLITE_UTF8) == SQLITE_OK;
}

Result<bool> Statement::step()
{
    if (!m_isBound) {
        return std::unexpected(invalidOperation());
    }
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW || code == SQLITE_DONE) {
        return code == SQLITE_ROW;
    }
    KestError error = errorOf(sqlite3_db_handle(m_statement.get()));
    forgetPages(m_statement.get());
    return std::unexpected(std::move(error));
}

std::int64_t Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

double Statement::real(int column) const
{
    return sqlite3_column_double(m_statement.get(), column);
}

std::string_view Statement::text(int column) const
{
    const void *data = sqlite3_column_blob(m_statement.get(), column);
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return {static_cast<const char *>(data), static_cast<std::size_t>(size)};
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

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
        return std::unexpected(errorOf(m_handle.get()));
    }
    return {};
}

Result<Statement> Database::prepare(std::string_view sql, std::string_view message)
{
    sqlite3_stmt *prepared = nullptr;
    if (sqlite3_prepare_v2(m_handle.get(), sql.data(), static_cast<int>(sql.size()), &prepared,
                           nullptr) != SQLITE_OK) {
        return std::unexpected(KestError::storage(std::string{message}));
    }
    return Statement{prepared};
}

Result<void> Database::forEachRow(std::string_view sql, Parameters parameters,
                                  const RowTaker &take)
{
    KEST_TRY(Statement statement, prepare(sql, kInvalidOperation));
    sqlite3_stmt *const raw = statement.m_statement.get();
    KEST_CHECK(bindBlobs(raw, parameters));
    Row row;
    while (true) {
        KEST_TRY(const bool hasRow, statement.step());
        if (!hasRow) {
            return {};
        }
        row.assign(statement.text(0));
        if (auto taken = take(row); !taken) {
            forgetPages(raw);
            return taken;
        }
    }
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
    m_failure = sqlite3_errcode(m_handle.get()); // which what follows would hide
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

std::int64_t Database::totalChanges() const { return sqlite3_total_changes64(m_handle.get()); }

bool Database::isDamaged()
{
    const auto tellsDamage = [](int code) {
        return code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
    };
    if (!tellsDamage(std::exchange(m_failure, SQLITE_OK)) &&
        !tellsDamage(sqlite3_errcode(m_handle.get()))) {
        return false;
    }
    const auto rows = query("PRAGMA integrity_check(1)");
    if (rows) {
        return rows->empty() || rows->front().view() != "ok";
    }
    return tellsDamage(sqlite3_errcode(m_handle.get()));
}

void Database::leaveLog()
{
    sqlite3_db_config(m_handle.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

} // namespace Base
