// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/RawHistory.h"

#include "bench/Bench.h"

#include <sqlite3.h>

namespace Bench
{

namespace
{

constexpr const char *kSchema =
    "PRAGMA auto_vacuum=INCREMENTAL; PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; "
    "PRAGMA journal_size_limit=8388608; PRAGMA cache_size=-8192; CREATE TABLE IF NOT EXISTS "
    "samples(t INTEGER NOT NULL,res INTEGER NOT NULL,app TEXT NOT NULL,metric TEXT NOT NULL,total REAL NOT "
    "NULL,weight REAL NOT NULL,peak REAL NOT NULL,PRIMARY KEY(t,res,app,metric)); CREATE "
    "INDEX IF NOT EXISTS sample_lookup ON samples(app,metric,t)";
constexpr const char *kInsert =
    "INSERT INTO samples(t,res,app,metric,total,weight,peak) VALUES(?,60,?,?,?,?,?) ON "
    "CONFLICT(t,res,app,metric) DO UPDATE SET "
    "total=total+excluded.total,weight=weight+excluded.weight,peak=MAX(peak,excluded.peak)";

void bindText(sqlite3_stmt *statement, int index, std::string_view text)
{
    // A null pointer would bind NULL, and the machine's own key is an empty text.
    sqlite3_bind_text(statement, index, text.empty() ? "" : text.data(),
                      static_cast<int>(text.size()), SQLITE_STATIC);
}

} // namespace

RawHistory::RawHistory(const std::filesystem::path &file)
{
    if (sqlite3_open(file.c_str(), &m_handle) != SQLITE_OK ||
        sqlite3_exec(m_handle, kSchema, nullptr, nullptr, nullptr) != SQLITE_OK) {
        giveUp("the floor's history did not open");
    }
    m_begin = prepare("BEGIN IMMEDIATE");
    m_insert = prepare(kInsert);
    m_commit = prepare("COMMIT");
}

RawHistory::~RawHistory()
{
    for (sqlite3_stmt *statement : {m_begin, m_insert, m_commit}) {
        sqlite3_finalize(statement);
    }
    sqlite3_close(m_handle);
}

sqlite3_stmt *RawHistory::prepare(const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr) != SQLITE_OK) {
        giveUp(sqlite3_errmsg(m_handle));
    }
    return statement;
}

void RawHistory::run(sqlite3_stmt *statement)
{
    if (sqlite3_step(statement) != SQLITE_DONE) {
        giveUp("the floor's statement failed");
    }
    sqlite3_reset(statement);
}

void RawHistory::insert(const std::vector<Row> &rows)
{
    run(m_begin);
    for (const Row &row : rows) {
        sqlite3_bind_int64(m_insert, 1, row.bucket);
        bindText(m_insert, 2, row.app);
        bindText(m_insert, 3, row.metric);
        sqlite3_bind_double(m_insert, 4, row.value * row.covered);
        sqlite3_bind_double(m_insert, 5, row.covered);
        sqlite3_bind_double(m_insert, 6, row.value);
        run(m_insert);
    }
    run(m_commit);
}

std::string RawHistory::contents()
{
    sqlite3_stmt *statement =
        prepare("SELECT group_concat(t||' '||res||' '||app||' '||metric||' '||total||' '||"
                "weight||' '||peak) FROM (SELECT * FROM samples ORDER BY t,res,app,metric)");
    std::string text;
    if (sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_bytes(statement, 0) > 0) {
        text = reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
    }
    sqlite3_finalize(statement);
    return text;
}

std::size_t RawHistory::readSeries(std::string_view app, std::string_view metric)
{
    sqlite3_stmt *statement =
        prepare("SELECT t,total/weight,peak,weight,res FROM samples WHERE app=? AND metric=? "
                "AND weight>0 ORDER BY t LIMIT 5000");
    bindText(statement, 1, app);
    bindText(statement, 2, metric);
    std::size_t points = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++points;
    }
    sqlite3_finalize(statement);
    return points;
}

} // namespace Bench
