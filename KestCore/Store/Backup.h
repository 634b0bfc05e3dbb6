// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Models/LocalRecord.h"
#include "KestCore/Models/NativeState.h"
#include "KestCore/Surfaces/CompanionState.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace KestCore
{

// The name that a backup gets when the user chooses none, and the question before one
// replaces what is there.
inline constexpr std::string_view kBackupName = "Velvetnook-backup.json";
inline constexpr std::string_view kReplaceTitle = "Replace local data?";
inline constexpr std::string_view kReplaceText =
    "This replaces devotional and portable tool data.";

// The largest file that is read, in bytes, and the most records.
inline constexpr std::size_t kLargestBackup = 50'000'000;
inline constexpr std::int64_t kMostBackupRecords = 100'000;

// Whether records of this kind travel in a backup. The others stay on their machine.
bool isPortable(std::string_view kind);

// Takes the bytes of a backup piece by piece, in order.
using BackupSink = std::function<Result<void>(std::string_view)>;

// The bytes of a backup around its records, which stand between `head` and `tail` with commas
// between them.
struct BackupFrame {
    std::string head{};
    std::string tail{};
};
[[nodiscard]] Result<BackupFrame> backupFrame(const CompanionState &companion,
                                              const NativeState &state, Base::Instant now);

// One backup that was read and found sound in every part. Its records stay in the file's own
// bytes, so that it needs little more memory than the file is large.
class Backup
{
public:
    using RecordTaker = std::function<Result<void>(const LocalRecord &)>;

    // Proves the whole file. Fails with invalidData: "Backup exceeds 50 MB", "Invalid
    // backup", or what the state or a record is refused with.
    [[nodiscard]] static Result<Backup> read(std::string bytes);

    Base::Instant exportedAt() const { return m_exportedAt; }
    const CompanionState &companion() const { return m_companion; }
    // With the tools that this build knows and the backup does not at the end of the order.
    const NativeState &state() const { return m_state; }
    // How many records there are, by kind.
    const std::map<std::string, std::int64_t> &recordCounts() const { return m_counts; }

    [[nodiscard]] Result<void> forEachRecord(const RecordTaker &take) const;

private:
    explicit Backup(std::string bytes) : m_text(std::move(bytes)) {}
    [[nodiscard]] Result<void> readFrame();
    [[nodiscard]] Result<void> proveRecords(Result<void> &firstRefusal);
    [[nodiscard]] Result<void> proveState();

    json::PaddedText m_text;
    std::size_t m_recordsAt = 0; // where the array of records stands in the text
    std::size_t m_recordsSize = 0;
    Base::Instant m_exportedAt;
    CompanionState m_companion;
    NativeState m_state;
    std::map<std::string, std::int64_t> m_counts;
};

} // namespace KestCore
