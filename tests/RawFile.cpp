// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/RawFile.h"

#include "Base/File.h"

#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace RawFile
{

namespace
{

struct Close {
    void operator()(sqlite3 *handle) const { sqlite3_close(handle); }
};
using Handle = std::unique_ptr<sqlite3, Close>;

// Always the system's own file layer, so that injected faults do not reach the observer.
Handle open(const std::filesystem::path &file)
{
    sqlite3 *handle = nullptr;
    if (sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                        "unix") != SQLITE_OK) {
        throw std::runtime_error("cannot open " + file.string());
    }
    sqlite3_busy_timeout(handle, 5000);
    return Handle{handle};
}

std::vector<std::string> run(sqlite3 *handle, const std::string &sql,
                             const std::vector<std::string> &parameters = {})
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(handle, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(handle));
    }
    for (std::size_t at = 0; at < parameters.size(); ++at) {
        sqlite3_bind_blob(statement, static_cast<int>(at) + 1, parameters[at].data(),
                          static_cast<int>(parameters[at].size()), SQLITE_TRANSIENT);
    }
    std::vector<std::string> values;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
        const auto *data = static_cast<const char *>(sqlite3_column_blob(statement, 0));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, 0));
        values.emplace_back(data == nullptr ? "" : data, size);
    }
    sqlite3_finalize(statement);
    if (code != SQLITE_DONE) {
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(handle));
    }
    return values;
}

} // namespace

void execute(const std::filesystem::path &file, const std::string &sql)
{
    const Handle handle = open(file);
    if (sqlite3_exec(handle.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(handle.get()));
    }
}

void setBody(const std::filesystem::path &file, const std::string &table,
             const std::string &body)
{
    run(open(file).get(), "UPDATE " + table + " SET body=? WHERE id=1", {body});
}

void insertRecord(const std::filesystem::path &file, const std::string &id,
                  const std::string &kind, const std::string &body)
{
    run(open(file).get(),
        "INSERT INTO records(id,kind,body) VALUES(CAST(? AS TEXT),CAST(? AS TEXT),?)",
        {id, kind, body});
}

std::string dump(const std::filesystem::path &file)
{
    const Handle handle = open(file);
    std::string all;
    for (const std::string &table :
         run(handle.get(), "SELECT name FROM sqlite_master WHERE type='table' ORDER BY name")) {
        all += "== " + table + "\n";
        for (const std::string &row : run(handle.get(), "SELECT id || ':' || hex(body) FROM " +
                                                            table + " ORDER BY rowid")) {
            all += row + "\n";
        }
    }
    return all + "version " + run(handle.get(), "PRAGMA user_version").front();
}

std::vector<std::string> query(const std::filesystem::path &file, const std::string &sql)
{
    return run(open(file).get(), sql);
}

std::string bytes(const std::filesystem::path &file)
{
    return Base::readFile(file).value_or("(unreadable)");
}

std::vector<std::string> neighbours(const std::filesystem::path &file)
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator{file.parent_path()}) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

} // namespace RawFile
