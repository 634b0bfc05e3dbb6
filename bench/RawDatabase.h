// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace Bench
{

// The floor of the store: SQLite itself with the same schema and the same statements,
// prepared once, and nothing around them.
class RawDatabase
{
public:
    explicit RawDatabase(const std::filesystem::path &file);
    ~RawDatabase();
    RawDatabase(const RawDatabase &) = delete;
    RawDatabase &operator=(const RawDatabase &) = delete;

    void commitState(std::string_view body);
    // Reads the state row and every record; gives the bytes seen.
    std::size_t readAll();

private:
    sqlite3_stmt *prepare(const char *sql);
    static void run(sqlite3_stmt *statement);

    sqlite3 *m_handle = nullptr;
    sqlite3_stmt *m_begin = nullptr;
    sqlite3_stmt *m_write = nullptr;
    sqlite3_stmt *m_commit = nullptr;
};

} // namespace Bench
