// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/ProjectGrouper.h"

namespace MonitorCore
{

// Tells for how long a project has done next to nothing, such as a server that somebody left
// running: all its processes together use less than 2 % of one core and move less than 20 kB a
// second.
struct ProjectActivityTracker {
    std::optional<Base::Instant> lastSample{};
    std::map<std::string, double> lowActivitySeconds{}; // by project; 0: is at work

    // Feeds the projects of one sample. After a gap of more than 90 seconds, or a step back of
    // the clock, nobody knows what went on meanwhile, and all start from 0; a project that has
    // gone is forgotten.
    void update(const std::vector<MonitorProject> &projects, Base::Instant now);

    bool operator==(const ProjectActivityTracker &) const = default;
};

} // namespace MonitorCore
