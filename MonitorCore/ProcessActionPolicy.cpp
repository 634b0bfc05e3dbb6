// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/ProcessActionPolicy.h"

#include "Base/Text.h"

#include <algorithm>

namespace MonitorCore
{

namespace
{

constexpr std::int32_t kFirstProcess = 1;
constexpr std::string_view kEssentialSlice = "session.slice";
constexpr std::string_view kManagerScope = "init.scope";
constexpr std::string_view kBusUnits[] = {"dbus.service", "dbus-broker.service"};

std::string_view lastUnit(std::string_view controlGroup)
{
    return controlGroup.substr(controlGroup.rfind('/') + 1);
}

bool isLoginScope(std::string_view unit)
{
    return unit.starts_with("session-") && unit.ends_with(".scope");
}

} // namespace

ProcessActionPolicy::ProcessActionPolicy(const RawSample &sample, std::int32_t self,
                                         std::uint32_t user)
    : m_sample(sample), m_index(sample.processes), m_user(user), m_line{self}
{
    auto at = m_index.find(self);
    if (at) {
        m_sessionLeader = originAt(*at).session;
    }
    while (at && m_line.size() <= sample.processes.size()) {
        at = m_index.parentOf(sample.processes[*at]);
        if (at) {
            m_line.push_back(sample.processes[*at].key.pid);
        }
    }
}

std::optional<ActionRefusal> ProcessActionPolicy::refusal(const ProcessKey &process) const
{
    using enum ActionRefusal;
    // Of the first process nobody needs a sample to know what it is.
    if (process.pid <= kFirstProcess) {
        return system;
    }
    const auto at = m_index.find(process.pid);
    if (!at || m_sample.processes[*at].key != process) {
        return gone;
    }
    if (originAt(*at).isKernelThread) {
        return kernelThread;
    }
    if (m_sample.processes[*at].owner != m_user) {
        return otherUser;
    }
    if (isOurs(process.pid)) {
        return ourselves;
    }
    return keepsSession(*at) ? std::optional{session} : std::nullopt;
}

std::optional<ActionRefusal>
ProcessActionPolicy::refusal(const std::vector<ProcessKey> &application) const
{
    using enum ActionRefusal;
    std::optional<ActionRefusal> whole = gone;
    for (const ProcessKey &process : application) {
        const auto one = refusal(process);
        if (!one) {
            whole.reset();
        } else if (*one == otherUser) {
            whole = whole ? one : whole;
        } else if (*one != gone) {
            return one;
        }
    }
    return whole;
}

bool ProcessActionPolicy::isOurs(std::int32_t pid) const
{
    return std::ranges::find(m_line, pid) != m_line.end();
}

bool ProcessActionPolicy::keepsSession(std::size_t at) const
{
    const ProcessSample &process = m_sample.processes[at];
    const std::string &group = originAt(at).cgroup;
    const std::string_view unit = lastUnit(group);
    if (process.key.pid == m_sessionLeader || unit == kManagerScope) {
        return true;
    }
    const auto units = Base::split(group, '/');
    if (std::ranges::find(units, kEssentialSlice) != units.end()) {
        return true;
    }
    const auto parent = m_index.parentOf(process);
    if (!parent) {
        return false;
    }
    if (std::ranges::find(kBusUnits, unit) != std::end(kBusUnits)) {
        // The bus itself; what it starts may run in its group.
        return lastUnit(originAt(*parent).cgroup) == kManagerScope;
    }
    return isLoginScope(unit) && originAt(*parent).cgroup == group &&
           m_sample.processes[*parent].owner != process.owner;
}

const ProcessOrigin &ProcessActionPolicy::originAt(std::size_t at) const
{
    static const ProcessOrigin unknown{};
    return at < m_sample.origins.size() ? m_sample.origins[at] : unknown;
}

} // namespace MonitorCore
