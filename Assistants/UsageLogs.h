// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Assistants/LogFollower.h"
#include "Assistants/LogFormat.h"
#include "Assistants/UsageLedger.h"

#include <filesystem>
#include <map>
#include <stop_token>
#include <string>
#include <vector>

namespace Assistants
{

// A session as its log shows it.
struct LoggedSession {
    std::string tool{};
    std::string session{};
    std::string folder{};
    KestCore::AssistantState state{};
    Base::Instant at{}; // of the last event

    bool operator==(const LoggedSession &) const = default;
};

// What could not be used, and how much was looked at.
struct LogTotals {
    std::uint64_t files{};
    std::uint64_t bytes{};        // read, over all refreshes
    std::uint64_t damagedLines{}; // with a marker, and not what the tool writes
    std::uint64_t longLines{};
    std::uint64_t leftOut{};    // lines beyond what the ledger holds
    std::uint64_t unreadable{}; // files

    bool operator==(const LogTotals &) const = default;
};

// The logs that the tools leave in a user's home, as far as they were written since a moment.
// The answer is that of the files as they are: when one was replaced, cut or removed,
// everything is read anew. One owner uses it.
class UsageLogs
{
public:
    UsageLogs(std::filesystem::path home, Base::Instant since);

    // Reads what has come to the logs. What cannot be read is counted and stays out. Asked to
    // stop, it ends behind the file that it is at, and what it knows is not whole.
    void refresh(const std::stop_token &stop = {});
    // The folders in which logs appear and those logs that something has happened in since
    // then, `most` of both: who watches them hears of all that comes.
    std::vector<std::filesystem::path> places(Base::Instant since, std::size_t most) const;

    std::vector<ToolUse> report(const KestCore::Calendar &calendar, Base::Instant now,
                                std::int64_t days) const
    {
        return m_ledger.report(calendar, now, days);
    }
    // Those that were written last first.
    std::vector<LoggedSession> sessions(Base::Instant now) const;
    LogTotals totals() const;

private:
    struct Log {
        const LogFormat *format{};
        LogPlace place{};
        LogMemory memory{};
        std::optional<LoggedStep> step{};
        std::uint64_t round{}; // of the refresh that saw it last
    };

    bool refreshOnce(const std::stop_token &stop);
    bool refreshFormat(const LogFormat &format, const std::stop_token &stop);
    bool refreshFile(const LogFormat &format, const std::filesystem::path &file);
    bool readOn(const std::filesystem::path &file, Log &log);
    void takeLine(const std::filesystem::path &file, Log &log,
                  const LogFollower::MarkedLine &line);
    void forget();

    std::filesystem::path m_home;
    Base::Instant m_since;
    LogFollower m_follower;
    UsageLedger m_ledger;
    std::map<std::filesystem::path, Log> m_logs;
    LogTotals m_totals;
    std::uint64_t m_round = 0;
    json::PaddedText m_line; // one after the other, in the same memory
};

} // namespace Assistants
