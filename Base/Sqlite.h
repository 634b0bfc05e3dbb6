// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"
#include "Base/Result.h"

#include <concepts>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace Base
{

// A prepared statement that binds numbers and texts as such and reads rows of several columns.
// Must not outlive the Database that made it. A text that is bound is not copied: it must live
// until the statement is bound anew or gone.
class Statement
{
public:
    // Starts the statement over with these values, one for each of its question marks.
    template <class... Values>
    void bind(const Values &...values)
    {
        reset();
        int index = 0;
        (bindOne(++index, values), ...);
    }

    // Whether there is a row to read; false at the end. Fails with SQLite's message.
    [[nodiscard]] Result<bool> step();

    // Columns of the current row, from 0. A text lives until the next step.
    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string_view text(int column) const;
    bool isNull(int column) const;

private:
    friend class Database;
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const;
    };

    explicit Statement(sqlite3_stmt *statement) : m_statement(statement) {}
    void reset();
    void bindOne(int index, std::int64_t value);
    void bindOne(int index, double value);
    void bindOne(int index, std::string_view value);

    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
    bool m_isBound = true; // false once a value did not fit
};

// One SQLite connection. Every failure is KestError.storage. Not for two threads at once.
class Database
{
public:
    using Row = json::PaddedText;
    using Parameters = std::initializer_list<std::string_view>;
    // Takes one row's first column; an error ends the statement and is handed on.
    using RowTaker = std::function<Result<void>(const Row &)>;

    // Opens or creates the file. Fails with `message`.
    [[nodiscard]] static Result<Database> open(const std::filesystem::path &file,
                                               std::string_view message);

    // Runs a script of statements that return nothing. Fails with SQLite's message.
    [[nodiscard]] Result<void> runScript(const char *script);

    // The one road of every statement: prepare, bind each parameter as a BLOB, step to the
    // end, finalize. Fails with "Invalid storage operation" when the statement cannot be
    // prepared or a parameter is too long, and with SQLite's message when a step fails.
    [[nodiscard]] Result<void> forEachRow(std::string_view sql, Parameters parameters,
                                          const RowTaker &take);
    [[nodiscard]] Result<std::vector<Row>> query(std::string_view sql,
                                                 Parameters parameters = {});
    [[nodiscard]] Result<void> run(std::string_view sql, Parameters parameters = {});

    // For statements that run often or read several columns. Fails with `message`.
    [[nodiscard]] Result<Statement> prepare(std::string_view sql, std::string_view message);

    // How many rows this connection has changed since it was opened.
    std::int64_t totalChanges() const;

    // Whether what failed last failed because the file is damaged or no database at all. Reads
    // the whole file where it seems so; one that cannot be read just now is not damaged.
    bool isDamaged();

    // Closing will leave the file as it is, and its log beside it.
    void leaveLog();

    // Runs `body` between "BEGIN IMMEDIATE" and "COMMIT"; any failure rolls back and is
    // returned. What the rollback itself may say would only hide the cause.
    template <std::invocable Body>
    [[nodiscard]] Result<void> transaction(Body body)
    {
        KEST_CHECK(run("BEGIN IMMEDIATE"));
        Result<void> outcome = body();
        if (outcome) {
            outcome = run("COMMIT");
        }
        if (!outcome) {
            rollBack();
        }
        return outcome;
    }

    // Ends a transaction that failed midway; for scripts that hold one.
    void rollBack();

    // Copies the whole live database into `file`, which must exist and be empty.
    [[nodiscard]] Result<void> backUpTo(const std::filesystem::path &file);

    // A number that changes when another connection has committed to the file.
    [[nodiscard]] Result<std::string> dataVersion();

private:
    struct Close {
        void operator()(sqlite3 *handle) const;
    };

    explicit Database(std::unique_ptr<sqlite3, Close> handle) : m_handle(std::move(handle)) {}

    std::unique_ptr<sqlite3, Close> m_handle;
    int m_failure{}; // SQLite's code of the operation that was rolled back last
};

} // namespace Base
