// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <functional>

namespace MonitorCore
{

// What works in the folder of one repository: builds, servers, editors, assistants.
struct MonitorProject {
    std::string id{};                // outlives the processes: the path of the folder
    std::string folder{};            // the repository's root
    std::vector<ProcessKey> roots{}; // those whose parent works elsewhere: what was started
    std::vector<ProcessSample> processes{};

    bool operator==(const MonitorProject &) const = default;
};

consteval auto jsonFields(Of<MonitorProject>)
{
    using R = MonitorProject;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"folder", &R::folder},
                      json::Field{"roots", &R::roots}, json::Field{"processes", &R::processes}};
}
static_assert(json::coversAllMembers<MonitorProject>());

// Groups processes into projects by the folder that they work in: the nearest repository at or
// above it is the project, so a repository within another is one of its own. The home folder
// and the root of the file system are none, whatever is kept there, since programs of all
// kinds work in them; neither is a folder above the home folder.
class ProjectGrouper
{
public:
    // Tells whether the folder is the root of a repository. Asked once for each folder on the
    // way up, in each grouping.
    using IsRepository = std::function<bool(const std::string &folder)>;

    ProjectGrouper(std::string home, IsRepository isRepository)
        : m_home(std::move(home)), m_isRepository(std::move(isRepository))
    {
        while (m_home.ends_with('/')) {
            m_home.pop_back();
        }
    }

    // By folder. Processes that work in no project are left out.
    std::vector<MonitorProject> group(const std::vector<ProcessSample> &processes) const;

private:
    using Known = std::map<std::string, std::string>; // the project of a folder; empty: none

    const std::string &projectOf(const std::string &folder, Known &known) const;
    bool isTooWide(const std::string &folder) const;

    std::string m_home;
    IsRepository m_isRepository;
};

} // namespace MonitorCore
