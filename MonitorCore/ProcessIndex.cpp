// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/ProcessIndex.h"

#include <algorithm>

namespace MonitorCore
{

namespace
{

constexpr auto kPid = [](const auto &place) { return place.key.pid; };

} // namespace

ProcessIndex::ProcessIndex(const std::vector<ProcessSample> &processes)
{
    m_places.reserve(processes.size());
    for (std::size_t at = 0; at < processes.size(); ++at) {
        m_places.push_back({.key = processes[at].key, .at = at});
    }
    std::ranges::sort(m_places, {},
                      [](const Place &place) { return std::pair{place.key.pid, place.at}; });
}

std::optional<std::size_t> ProcessIndex::find(std::int32_t pid) const
{
    const Place *place = placeOf(pid);
    return place == nullptr ? std::nullopt : std::optional{place->at};
}

std::optional<std::size_t> ProcessIndex::parentOf(const ProcessSample &process) const
{
    const Place *place = placeOf(process.parentPID);
    const bool isParent = place != nullptr && place->key.pid != process.key.pid &&
                          place->key.start <= process.key.start;
    return isParent ? std::optional{place->at} : std::nullopt;
}

const ProcessIndex::Place *ProcessIndex::placeOf(std::int32_t pid) const
{
    const auto found = std::ranges::lower_bound(m_places, pid, {}, kPid);
    return found == m_places.end() || found->key.pid != pid ? nullptr : &*found;
}

} // namespace MonitorCore
