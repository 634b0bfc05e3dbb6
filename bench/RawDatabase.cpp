// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/RawDatabase.h"

#include "bench/Bench.h"

#include <sqlite3.h>

namespace Bench
{

RawDatabase::RawDatabase(const std::filesystem::path &file)
{
    constexpr const char *kSchema =
        "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; CREATE TABLE IF NOT EXISTS state(id "
        "INTEGER PRIMARY KEY CHECK(id=1), body BLOB NOT NULL);";
    if (sqlite3_open(file.c_str(), &m_handle) != SQLITE_OK ||
        sqlite3_exec(m_handle, kSchema, nullptr, nullptr, nullptr) != SQLITE_OK) {
        giveUp("the floor's database did not open");
    }
    m_begin = prepare("BEGIN IMMEDIATE");
    m_write = prepare("INSERT INTO state(id,body) VALUES(1,?) ON CONFLICT(id) DO UPDATE SET "
                      "body=excluded.body");
    m_commit = prepare("COMMIT");
}

RawDatabase::~RawDatabase()
{
    for (sqlite3_stmt *statement : {m_begin, m_write, m_commit}) {
        sqlite3_finalize(statement);
    }
    sqlite3_close(m_handle);
}

sqlite3_stmt *RawDatabase::prepare(const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr) != SQLITE_OK) {
        giveUp(sqlite3_errmsg(m_handle));
    }
    return statement;
}

void RawDatabase::run(sqlite3_stmt *statement)
{
    if (sqlite3_step(statement) != SQLITE_DONE) {
        giveUp("the floor's statement failed");
    }
    sqlite3_reset(statement);
}

void RawDatabase::commitState(std::string_view body)
{
    run(m_begin);
    sqlite3_bind_blob(m_write, 1, body.data(), static_cast<int>(body.size()), SQLITE_STATIC);
    run(m_write);
    run(m_commit);
}

std::size_t RawDatabase::readAll()
{
    std::size_t bytes = 0;
    for (const char *sql :
         {"SELECT body FROM state WHERE id=1", "SELECT body FROM records ORDER BY rowid"}) {
        sqlite3_stmt *statement = prepare(sql);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            sqlite3_column_blob(statement, 0);
            bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, 0));
        }
        sqlite3_finalize(statement);
    }
    return bytes;
}

} // namespace Bench
