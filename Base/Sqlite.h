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

    // Copies the whole live database into `file`, which must exist and be empty.
    [[nodiscard]] Result<void> backUpTo(const std::filesystem::path &file);

    // A number that changes when another connection has committed to the file.
    [[nodiscard]] Result<std::string> dataVersion();

private:
    struct Close {
        void operator()(sqlite3 *handle) const;
    };

    explicit Database(std::unique_ptr<sqlite3, Close> handle) : m_handle(std::move(handle)) {}
    void rollBack();
    void forgetPages(sqlite3_stmt *statement);
    KestError lastError() const;

    std::unique_ptr<sqlite3, Close> m_handle;
};

} // namespace Base
