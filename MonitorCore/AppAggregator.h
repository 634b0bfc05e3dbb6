// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/Collector.h"

#include <map>

namespace MonitorCore
{

// An application of the menus, as its desktop file tells. The file of a script names the
// script: its interpreter runs others too.
struct InstalledApp {
    std::string id{};         // the desktop-file id, without ".desktop"
    std::string name{};       // for people
    std::string executable{}; // full path
};

// The key of the kernel's own threads.
inline constexpr std::string_view kKernelKey = "[kernel]";

// Groups the processes of a sample into applications. A process belongs
//  1. to the kernel, to the application that the platform names, or to the application or
//     service that its control group names;
//  2. else to the installed application whose executable it runs;
//  3. else to the application that its parent belongs to, as a helper of it. Services adopt
//     no children: one of them may run a whole login;
//  4. else to its own executable, or to its name where the executable may not be seen.
// The keys ("org.example.Mail", "example.service", "/usr/bin/make") outlive the processes, as
// history and preferences keep them.
class AppAggregator
{
public:
    explicit AppAggregator(const std::vector<InstalledApp> &installed = {});

    // In the order of the processes, which are moved into their applications and get the
    // desktop-file id of those that have one.
    std::vector<AppUsage> aggregate(std::vector<ProcessSample> processes,
                                    const std::vector<ProcessOrigin> &origins) const;

private:
    class Grouping;

    // None for what several applications run, since it tells nothing.
    const std::string *idByExecutable(const std::string &executable) const;
    // What people call the application; without a desktop file the last word of its id.
    std::string nameOf(const std::string &id) const;

    std::map<std::string, std::string> m_names{}; // by id
    std::map<std::string, std::string> m_ids{};   // by executable; empty: of several
};

} // namespace MonitorCore
