// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/CompanionMigration.h"

#include "Base/File.h"
#include "Base/Text.h"
#include "Base/Uuid.h"
#include "KestCore/Surfaces/CompanionState.h"

#include <fcntl.h>

namespace KestCore
{

namespace fs = std::filesystem;

namespace
{

constexpr std::string_view kProbe =
    "SELECT name FROM sqlite_master WHERE type='table' AND name='companion'";
constexpr const char *kCreate =
    "CREATE TABLE companion(id INTEGER PRIMARY KEY CHECK(id=1), body BLOB NOT NULL); PRAGMA "
    "user_version=1;";

// Never the name of an earlier copy: that one may hold the only good data.
fs::path backupName(const fs::path &file)
{
    fs::path name = file;
    name += ".pre-companion-v1.sqlite";
    std::error_code error;
    if (fs::exists(name, error)) {
        name = file;
        name += ".pre-companion-v1-retry-" + Base::makeUuid() + ".sqlite";
    }
    return name;
}

Result<void> fillAndMove(Base::Database &database, const fs::path &partial,
                         const fs::path &file)
{
    KEST_CHECK(database.backUpTo(partial));
    std::error_code error;
    fs::rename(partial, backupName(file), error);
    if (error) {
        return std::unexpected(Base::fileError(partial, error));
    }
    return {};
}

Result<void> backUp(Base::Database &database, const fs::path &file)
{
    const fs::path partial =
        file.parent_path() / (".companion-backup-" + Base::makeUuid() + ".partial");
    const Base::FileDescriptor created{
        ::open(partial.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600)};
    if (!created.isOpen()) {
        return std::unexpected(KestError::storage("Cannot create the pre-upgrade backup"));
    }
    auto outcome = fillAndMove(database, partial, file);
    std::error_code ignored;
    if (!outcome) {
        fs::remove(partial, ignored);
    }
    // The copy is complete in itself; what SQLite kept beside it is of no more use.
    for (const char *suffix : {"-wal", "-shm", "-journal"}) {
        fs::remove(fs::path{partial} += suffix, ignored);
    }
    return outcome;
}

CompanionState firstCompanion(const std::optional<NativeState> &state)
{
    if (!state) {
        return defaultCompanionState();
    }
    const auto widgets = state->settings.find("home.widgets");
    if (widgets == state->settings.end()) {
        return defaultCompanionState(
            {"screen-time", "revenue", "stats", "analytics", "claude", "weather"});
    }
    std::vector<std::string> list;
    for (const std::string_view piece : Base::split(widgets->second, ',')) {
        if (!piece.empty()) {
            list.emplace_back(piece);
        }
    }
    return defaultCompanionState(std::move(list));
}

} // namespace

Result<void> migrateCompanion(Base::Database &database, const fs::path &file,
                              const std::optional<NativeState> &state)
{
    KEST_TRY(const auto tables, database.query(kProbe));
    if (!tables.empty()) {
        return {};
    }
    if (state) {
        KEST_CHECK(backUp(database, file));
    }
    KEST_TRY(const std::string body, json::encode(firstCompanion(state)));
    return database.transaction([&]() -> Result<void> {
        KEST_CHECK(database.runScript(kCreate));
        return database.run(kWriteCompanion, {body});
    });
}

} // namespace KestCore
