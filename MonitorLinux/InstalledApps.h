// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/AppAggregator.h"

#include <filesystem>

namespace MonitorLinux
{

// What a desktop file says of the application that it starts.
struct DesktopEntry {
    std::string name{};
    std::string program{}; // a path, or a name to be looked up

    bool operator==(const DesktopEntry &) const = default;
};

// None for what is no application, is deleted or is not shown in menus, and for a text that
// is no desktop file. `language` is such as "pt_BR"; the name is in it where it can be.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text, std::string_view language);

// Where this user's desktop files and programs lie, the first of equals winning.
struct AppPlaces {
    std::vector<std::filesystem::path> applications{};
    std::vector<std::filesystem::path> programs{};
    std::string language{};
};
AppPlaces appPlacesOfUser();

// The applications of the menus, each with the file that runs, links followed. Without those
// that run an interpreter or another program's launcher, as many others run these too.
std::vector<MonitorCore::InstalledApp> installedApps(const AppPlaces &places);

} // namespace MonitorLinux
