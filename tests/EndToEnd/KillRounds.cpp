// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/EndToEnd/KillRounds.h"

#include "Base/File.h"
#include "KestCore/Store/StateStore.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <limits>
#include <optional>
#include <random>

namespace
{

// What the store holds, in numbers.
struct Tally {
    long long revision{};
    long long count{};
    std::size_t sessions{};
    std::size_t records{};

    bool operator==(const Tally &) const = default;
};

struct Victim {
    pid_t process{};
    Base::FileDescriptor answers{};
};

std::optional<Victim> startVictim(const std::filesystem::path &database)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    Victim victim{.answers = Base::FileDescriptor{ends[0]}};
    const Base::FileDescriptor writing{ends[1]};
    std::string program = KEST_VICTIM;
    std::string file = database.string();
    std::array<char *, 3> argv{program.data(), file.data(), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    const int code =
        posix_spawn(&victim.process, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return code == 0 ? std::optional{std::move(victim)} : std::nullopt;
}

// Reads on until there are so many lines, or the other end is closed.
void readLines(int descriptor, std::size_t wanted, std::string &text)
{
    std::array<char, 4096> piece{};
    while (static_cast<std::size_t>(std::ranges::count(text, '\n')) < wanted) {
        const ssize_t size = read(descriptor, piece.data(), piece.size());
        if (size <= 0) {
            return;
        }
        text.append(piece.data(), static_cast<std::size_t>(size));
    }
}

// The last whole line is the last acknowledgement.
std::optional<Tally> lastTally(const std::string &answers)
{
    const auto end = answers.rfind('\n');
    if (end == std::string::npos) {
        return std::nullopt;
    }
    const auto before = end == 0 ? std::string::npos : answers.rfind('\n', end - 1);
    const std::string line = answers.substr(before == std::string::npos ? 0 : before + 1, end);
    Tally tally;
    const int fields = std::sscanf(line.c_str(), "%lld %lld %zu %zu", &tally.revision,
                                   &tally.count, &tally.sessions, &tally.records);
    return fields == 4 ? std::optional{tally} : std::nullopt;
}

// Whether `found` is `known` with one more change: a count, a finished session or a record.
bool isOneChangeLater(const Tally &found, const Tally &known)
{
    Tally counted = known;
    Tally finished = known;
    Tally recorded = known;
    ++counted.revision;
    ++counted.count;
    ++finished.revision;
    finished.count = 0;
    finished.sessions += known.count > 0 ? 1 : 0;
    ++recorded.revision;
    ++recorded.records;
    return found == counted || found == finished || found == recorded;
}

std::string describe(const Tally &tally)
{
    return fmt::format("revision {}, count {}, {} sessions, {} records", tally.revision,
                       tally.count, tally.sessions, tally.records);
}

// Opens what the dead process left; an empty text when all is as it must be.
std::string inspect(const std::filesystem::path &database, const Tally &known, Tally &found)
{
    auto store = KestCore::StateStore::open(database);
    if (!store) {
        return "does not open: " + store.error().message;
    }
    const auto snapshot = store->snapshot();
    const auto integrity = store->checkIntegrity();
    if (!snapshot || !integrity || *integrity != "ok") {
        return "is damaged: " + (snapshot ? integrity.value_or("?") : snapshot.error().message);
    }
    const auto &state = snapshot->state;
    found = {.revision = state.revision,
             .count = state.devotional.session.count,
             .sessions = state.devotional.records.size(),
             .records = snapshot->records.size()};
    if (found == known || isOneChangeLater(found, known)) {
        return {};
    }
    return "acknowledged " + describe(known) + ", found " + describe(found);
}

} // namespace

KillReport runKillRounds(const std::filesystem::path &database, int rounds, std::uint32_t seed)
{
    KillReport report;
    std::mt19937 random{seed};
    Tally known{};
    while (report.rounds < rounds && report.failure.empty()) {
        auto victim = startVictim(database);
        if (!victim) {
            report.failure = "the victim did not start";
            return report;
        }
        // A moment is so many acknowledgements and then some microseconds, so that it falls
        // everywhere on slow machines and fast ones. One in five falls while it opens.
        const bool whileOpening = random() % 5 == 0;
        std::string answers;
        readLines(victim->answers.get(), whileOpening ? 0 : 1 + random() % 60, answers);
        usleep(static_cast<useconds_t>(random() % (whileOpening ? 8'000 : 600)));
        kill(victim->process, SIGKILL);
        int status = 0;
        waitpid(victim->process, &status, 0);
        if (!WIFSIGNALED(status)) {
            report.failure = "the victim ended by itself";
            return report;
        }
        readLines(victim->answers.get(), std::numeric_limits<std::size_t>::max(), answers);
        const auto acknowledged = lastTally(answers);
        report.killedWhileOpening += acknowledged ? 0 : 1;
        report.acknowledged += acknowledged ? acknowledged->revision - known.revision : 0;
        Tally found{};
        report.failure = inspect(database, acknowledged.value_or(known), found);
        if (!report.failure.empty()) {
            report.failure = fmt::format("round {}, seed {}: the store {}", report.rounds, seed,
                                         report.failure);
        }
        known = found;
        ++report.rounds;
    }
    return report;
}
