// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Sqlite.h"
#include "KestCore/Models/NativeState.h"

#include <filesystem>
#include <optional>

namespace KestCore
{

// Adds the companion table to a database from before there was one, after a full copy of the
// database beside it. Does nothing when the table is there. `state` is the state row, absent
// in a new database. On failure the database is as it was and no half copy stays behind.
[[nodiscard]] Result<void> migrateCompanion(Base::Database &database,
                                            const std::filesystem::path &file,
                                            const std::optional<NativeState> &state);

inline constexpr std::string_view kWriteCompanion =
    "INSERT INTO companion(id,body) VALUES(1,?) ON CONFLICT(id) DO UPDATE SET "
    "body=excluded.body";

} // namespace KestCore
