// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace Bench
{

// The floor of the monitor's history: SQLite itself with the same schema and statement,
// prepared once, and the very rows that come out in the end.
class RawHistory
{
public:
    explicit RawHistory(const std::filesystem::path &file);
    ~RawHistory();
    RawHistory(const RawHistory &) = delete;
    RawHistory &operator=(const RawHistory &) = delete;

    struct Row {
        std::int64_t bucket{};
        std::string_view app{};
        std::string_view metric{};
        double value{};
        double covered{};
    };
    // One transaction.
    void insert(const std::vector<Row> &rows);

    // Every row of the file in order, to compare two of them.
    std::string contents();

    // Reads one whole series; gives the number of its points.
    std::size_t readSeries(std::string_view app, std::string_view metric);

private:
    sqlite3_stmt *prepare(const char *sql);
    static void run(sqlite3_stmt *statement);

    sqlite3 *m_handle = nullptr;
    sqlite3_stmt *m_begin = nullptr;
    sqlite3_stmt *m_insert = nullptr;
    sqlite3_stmt *m_commit = nullptr;
};

} // namespace Bench
