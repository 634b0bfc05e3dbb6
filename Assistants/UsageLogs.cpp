// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/UsageLogs.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace Assistants
{

namespace fs = std::filesystem;

namespace
{

constexpr std::size_t kMostFiles = 50'000;
constexpr int kDeepest = 4; // folders below that of the tool

} // namespace

UsageLogs::UsageLogs(fs::path home, Base::Instant since)
    : m_home(std::move(home)), m_since(since)
{
}

void UsageLogs::refresh(const std::stop_token &stop)
{
    if (refreshOnce(stop)) {
        return;
    }
    // What was counted of a file that has changed under its name cannot be taken back alone:
    // other logs may hold the same answers.
    forget();
    (void)refreshOnce(stop); // a file that changes again meanwhile is noticed the next time
}

void UsageLogs::forget()
{
    m_logs.clear();
    m_ledger = {};
    m_totals = {.bytes = m_totals.bytes};
}

// False when something that was read is not there any more.
bool UsageLogs::refreshOnce(const std::stop_token &stop)
{
    ++m_round;
    m_totals.unreadable = 0;
    for (const LogFormat *const format : logFormats()) {
        if (!refreshFormat(*format, stop)) {
            return false;
        }
    }
    if (stop.stop_requested()) {
        return true;
    }
    return std::ranges::all_of(
        m_logs, [this](const auto &entry) { return entry.second.round == m_round; });
}

bool UsageLogs::refreshFormat(const LogFormat &format, const std::stop_token &stop)
{
    std::error_code error;
    fs::recursive_directory_iterator entries{
        m_home / format.folder, fs::directory_options::skip_permission_denied, error};
    for (; !error && entries != fs::recursive_directory_iterator{}; entries.increment(error)) {
        if (stop.stop_requested()) {
            return true;
        }
        if (entries.depth() >= kDeepest) {
            entries.disable_recursion_pending();
        }
        if (entries->path().extension() == ".jsonl" && !refreshFile(format, entries->path())) {
            return false;
        }
    }
    return true;
}

bool UsageLogs::refreshFile(const LogFormat &format, const fs::path &file)
{
    const auto status = logStatus(file);
    if (!status) {
        return true;
    }
    const auto known = m_logs.find(file);
    if (known == m_logs.end()) {
        if (status->changedAt < m_since || m_logs.size() >= kMostFiles) {
            return true;
        }
        Log log{.format = &format, .place = {.identity = status->identity}, .round = m_round};
        return readOn(file, m_logs.emplace(file, std::move(log)).first->second);
    }
    Log &log = known->second;
    log.round = m_round;
    if (log.place.identity != status->identity || status->size < log.place.offset) {
        return false;
    }
    return status->size == log.place.offset || readOn(file, log);
}

bool UsageLogs::readOn(const fs::path &file, Log &log)
{
    auto reading = m_follower.follow(
        file, log.place, log.format->markers,
        [&](const LogFollower::MarkedLine &line) { takeLine(file, log, line); });
    if (!reading) {
        ++m_totals.unreadable;
        return true;
    }
    m_totals.bytes += reading->bytes;
    m_totals.longLines += reading->tooLong;
    if (!reading->lastLine.empty()) {
        m_line.assign(reading->lastLine);
        if (const auto step = log.format->step(m_line, log.memory)) {
            log.step = step;
        }
    }
    return !reading->isReplaced;
}

void UsageLogs::takeLine(const fs::path &file, Log &log, const LogFollower::MarkedLine &line)
{
    m_line.assign(line.text);
    const auto finding = log.format->read(m_line, log.memory);
    const auto isPlausible = [](const std::optional<LoggedUse> &use) {
        return !use || arePlausible(use->tokens);
    };
    if (!finding || !isPlausible(finding->use)) {
        ++m_totals.damagedLines;
        return;
    }
    log.step = finding->step ? finding->step : log.step;
    if (const auto &use = finding->use; use && use->at >= m_since) {
        const std::string place =
            use->id.empty() ? fmt::format("{}:{}", file.native(), line.offset) : std::string{};
        m_ledger.add(log.format->tool, log.memory.folder, *use, place);
    }
    for (const Limit &limit : finding->limits) {
        m_ledger.add(log.format->tool, limit);
    }
}

std::vector<LoggedSession> UsageLogs::sessions(Base::Instant now) const
{
    std::vector<LoggedSession> sessions;
    for (const auto &[file, log] : m_logs) {
        if (const auto &step = log.step; step && step->at >= m_since) {
            sessions.push_back({.tool = std::string{log.format->tool},
                                .session = log.memory.session.empty()
                                               ? cleanName(file.stem().native())
                                               : log.memory.session,
                                .folder = log.memory.folder,
                                .state = KestCore::stateAfter(step->state, now - step->at),
                                .at = step->at});
        }
    }
    std::ranges::stable_sort(sessions, std::ranges::greater{}, &LoggedSession::at);
    return sessions;
}

std::vector<fs::path> UsageLogs::places(Base::Instant since, std::size_t most) const
{
    std::error_code error;
    std::set<fs::path> places;
    for (const LogFormat *const format : logFormats()) {
        if (const fs::path root = m_home / format->folder; fs::is_directory(root, error)) {
            places.insert(root);
        }
    }
    // The newest sessions first, as not all may find room.
    std::vector<std::pair<Base::Instant, const fs::path *>> files;
    for (const auto &[file, log] : m_logs) {
        files.emplace_back(log.step ? log.step->at : m_since, &file);
    }
    std::ranges::sort(files, std::ranges::greater{});
    for (const auto &[at, file] : files) {
        if (at >= since && places.size() < most) {
            places.insert(*file);
        }
        // Its folder, and those above it in which the next day's or project's appears.
        fs::path folder = file->parent_path();
        while (places.size() < most && folder.native().size() > m_home.native().size() &&
               places.insert(folder).second) {
            folder = folder.parent_path();
        }
    }
    return {places.begin(), places.end()};
}

LogTotals UsageLogs::totals() const
{
    LogTotals totals = m_totals;
    totals.files = m_logs.size();
    totals.leftOut = m_ledger.leftOut();
    return totals;
}

} // namespace Assistants
