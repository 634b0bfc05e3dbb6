// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/AppAggregator.h"

#include "MonitorCore/ControlGroup.h"
#include "MonitorCore/ProcessIndex.h"

#include <cctype>
#include <unordered_map>

namespace MonitorCore
{

namespace
{

constexpr std::string_view kKernelName = "Kernel";
constexpr std::string_view kNameless = "[unnamed]";
constexpr std::string_view kServiceEnding = ".service";

void addUp(AppUsage &app, const ProcessSample &process)
{
    app.cpu += process.cpu;
    app.memory += process.memory;
    app.diskRead += process.diskRead;
    app.diskWrite += process.diskWrite;
    app.download += process.download;
    app.upload += process.upload;
    app.energy += process.energy;
}

} // namespace

// One sample on its way into applications.
class AppAggregator::Grouping
{
public:
    Grouping(const AppAggregator &rules, std::vector<ProcessSample> processes,
             const std::vector<ProcessOrigin> &origins)
        : m_rules(rules), m_processes(std::move(processes)), m_origins(origins),
          m_index(m_processes), m_appOf(m_processes.size(), kUnknown)
    {
    }

    std::vector<AppUsage> run() &&
    {
        for (std::size_t at = 0; at < m_processes.size(); ++at) {
            resolve(at);
        }
        // Only now, as children look at their parents.
        for (std::size_t at = 0; at < m_processes.size(); ++at) {
            AppUsage &app = m_apps[m_appOf[at]];
            addUp(app, m_processes[at]);
            m_processes[at].bundleID = app.bundleID;
            app.processes.push_back(std::move(m_processes[at]));
        }
        return std::move(m_apps);
    }

private:
    static constexpr std::size_t kUnknown = static_cast<std::size_t>(-1);

    // Climbs to the nearest ancestor that is known or belongs somewhere by itself, then tells
    // the helpers on the way. A sample is no instant, so chains of parents may even be rings.
    void resolve(std::size_t at)
    {
        std::vector<std::size_t> helpers;
        std::optional<std::size_t> above = at;
        while (above && m_appOf[*above] == kUnknown && !belongsByItself(*above) &&
               helpers.size() < m_processes.size()) {
            helpers.push_back(*above);
            above = m_index.parentOf(m_processes[*above]);
        }
        const bool isApplication =
            above && m_appOf[*above] != kUnknown && m_apps[m_appOf[*above]].bundleID;
        for (const std::size_t helper : helpers) {
            m_appOf[helper] = isApplication ? m_appOf[*above] : appOfExecutable(helper);
        }
    }

    // Finds the application of a process without a look at its parents, and notes it.
    bool belongsByItself(std::size_t at)
    {
        const ProcessSample &process = m_processes[at];
        const ProcessOrigin *origin = at < m_origins.size() ? &m_origins[at] : nullptr;
        if (origin != nullptr && origin->isKernelThread) {
            m_appOf[at] = appOf(std::string{kKernelKey}, std::string{kKernelName});
            return true;
        }
        if (process.bundleID) {
            m_appOf[at] = application(*process.bundleID);
            return true;
        }
        auto owner = origin != nullptr ? ownerOf(origin->cgroup) : ControlGroupOwner{};
        if (owner.kind == ControlGroupOwner::Kind::application) {
            m_appOf[at] = application(owner.id);
        } else if (owner.kind == ControlGroupOwner::Kind::service) {
            m_appOf[at] =
                appOf(owner.id, owner.id.substr(0, owner.id.size() - kServiceEnding.size()));
        } else if (const std::string *id = m_rules.idByExecutable(process.executable)) {
            m_appOf[at] = application(*id);
        }
        return m_appOf[at] != kUnknown;
    }

    std::size_t appOfExecutable(std::size_t at)
    {
        const ProcessSample &process = m_processes[at];
        const std::string &path = process.executable;
        if (path.empty()) {
            const std::string name{process.name.empty() ? kNameless : process.name};
            return appOf(name, name);
        }
        return appOf(path, path.substr(path.rfind('/') + 1));
    }

    std::size_t application(const std::string &id)
    {
        const std::size_t place = appOf(id, {});
        if (!m_apps[place].bundleID) {
            m_apps[place].bundleID = id;
            m_apps[place].name = m_rules.nameOf(id);
        }
        return place;
    }

    std::size_t appOf(const std::string &id, std::string name)
    {
        const auto [entry, isNew] = m_placeOf.try_emplace(id, m_apps.size());
        if (isNew) {
            m_apps.push_back({.id = id, .name = std::move(name)});
        }
        return entry->second;
    }

    const AppAggregator &m_rules;
    std::vector<ProcessSample> m_processes;
    const std::vector<ProcessOrigin> &m_origins;
    ProcessIndex m_index;
    std::vector<std::size_t> m_appOf; // for each process its place among the applications
    std::vector<AppUsage> m_apps{};
    std::unordered_map<std::string, std::size_t> m_placeOf{}; // by key
};

AppAggregator::AppAggregator(const std::vector<InstalledApp> &installed)
{
    for (const InstalledApp &app : installed) {
        m_names.try_emplace(app.id, app.name);
        const auto [entry, isNew] = m_ids.try_emplace(app.executable, app.id);
        if (!isNew && entry->second != app.id) {
            entry->second.clear();
        }
    }
}

std::vector<AppUsage> AppAggregator::aggregate(std::vector<ProcessSample> processes,
                                               const std::vector<ProcessOrigin> &origins) const
{
    return Grouping{*this, std::move(processes), origins}.run();
}

const std::string *AppAggregator::idByExecutable(const std::string &executable) const
{
    const auto entry = executable.empty() ? m_ids.end() : m_ids.find(executable);
    return entry == m_ids.end() || entry->second.empty() ? nullptr : &entry->second;
}

std::string AppAggregator::nameOf(const std::string &id) const
{
    const auto entry = m_names.find(id);
    if (entry != m_names.end() && !entry->second.empty()) {
        return entry->second;
    }
    // "org.example.Mail" is Mail, but "example-2.10" is no 10.
    const std::string last = id.substr(id.rfind('.') + 1);
    const bool isWord = !last.empty() && std::isdigit(static_cast<unsigned char>(last[0])) == 0;
    return isWord ? last : id;
}

} // namespace MonitorCore
