// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/ProjectGrouper.h"

#include "Base/JsonWriter.h"
#include "MonitorCore/ProcessIndex.h"

namespace Base::json
{

using namespace MonitorCore;
template Result<std::string> encode(const MonitorProject &);
template Result<std::string> encode(const std::vector<MonitorProject> &);

} // namespace Base::json

namespace MonitorCore
{

namespace
{

// "/a/b" gives "/a", and "/a" gives "/".
std::string folderAbove(const std::string &folder)
{
    const std::size_t slash = folder.rfind('/');
    return slash == 0 ? "/" : folder.substr(0, slash);
}

} // namespace

std::vector<MonitorProject>
ProjectGrouper::group(const std::vector<ProcessSample> &processes) const
{
    const ProcessIndex index{processes};
    Known known;
    std::map<std::string, MonitorProject> projects;
    const auto projectAt = [&](std::size_t at) -> const std::string & {
        return projectOf(processes[at].directory.value_or("/"), known);
    };
    for (std::size_t at = 0; at < processes.size(); ++at) {
        const std::string &folder = projectAt(at);
        if (folder.empty()) {
            continue;
        }
        auto &project = projects[folder];
        const auto parent = index.parentOf(processes[at]);
        if (!parent || projectAt(*parent) != folder) {
            project.roots.push_back(processes[at].key);
        }
        project.processes.push_back(processes[at]);
    }
    std::vector<MonitorProject> all;
    for (auto &[folder, project] : projects) {
        project.id = folder;
        project.folder = folder;
        all.push_back(std::move(project));
    }
    return all;
}

// What is relative is no place that could be looked at.
const std::string &ProjectGrouper::projectOf(const std::string &folder, Known &known) const
{
    const auto [entry, isNew] = known.try_emplace(folder);
    if (isNew && folder.starts_with('/') && !isTooWide(folder)) {
        entry->second = m_isRepository(folder) ? folder : projectOf(folderAbove(folder), known);
    }
    return entry->second;
}

bool ProjectGrouper::isTooWide(const std::string &folder) const
{
    return folder == "/" || folder == m_home || m_home.starts_with(folder + "/");
}

} // namespace MonitorCore
