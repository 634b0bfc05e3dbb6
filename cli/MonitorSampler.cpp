// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/MonitorSampler.h"

#include "MonitorCore/MonitorServiceIdentity.h"

#include <fmt/format.h>

#include <cmath>
#include <csignal>
#include <ctime>

namespace Cli
{

namespace
{

constexpr const char *kPreferencesKey = "stats.preferences";

} // namespace

StopSignals::StopSignals()
{
    sigemptyset(&m_signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaddset(&m_signals, signal);
    }
    pthread_sigmask(SIG_BLOCK, &m_signals, nullptr);
}

bool StopSignals::cameWithin(double seconds) const
{
    timespec time{};
    const double whole = std::floor(std::max(0.0, seconds));
    time.tv_sec = static_cast<std::time_t>(whole);
    time.tv_nsec = static_cast<long>((std::max(0.0, seconds) - whole) * 999'999'999);
    return sigtimedwait(&m_signals, nullptr, &time) > 0;
}

MonitorCore::MonitorSnapshot MonitorSampler::sample()
{
    auto raw = m_collector.sample(MonitorCore::SampleScope::processes, Base::wallClock());
    raw.snapshot.apps = m_aggregator.aggregate(std::move(raw.processes), raw.origins);
    return std::move(raw.snapshot);
}

Result<MonitorCore::MonitorPreferences> monitorPreferences(const Session &session)
{
    if (!std::filesystem::exists(session.databaseFile())) { // to look must not create it
        return MonitorCore::MonitorPreferences{};
    }
    KEST_TRY(const auto store, session.openStore());
    const auto &settings = store.state().settings;
    const auto found = settings.find(kPreferencesKey);
    if (found == settings.end()) {
        return MonitorCore::MonitorPreferences{};
    }
    auto decoded = Base::json::decode<MonitorCore::MonitorPreferences>(
        Base::json::PaddedText{std::string_view{found->second}});
    if (!decoded) {
        return std::unexpected(KestError::invalidData(fmt::format(
            "The setting \"{}\" cannot be read ({}); kest settings unset {} goes back to the "
            "defaults",
            kPreferencesKey, decoded.error().message, kPreferencesKey)));
    }
    return normalised(*std::move(decoded));
}

std::filesystem::path historyFile(const Session &session)
{
    return session.databaseFile().parent_path() / MonitorCore::kHistoryPath;
}

} // namespace Cli
