// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/CalendarSources.h"

#include "Base/Text.h"

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr const char *kSources = "calendar.sources";

void keep(Settings &settings, const std::vector<std::string> &sources)
{
    std::string lines;
    for (const std::string &source : sources) {
        lines += lines.empty() ? source : "\n" + source;
    }
    if (lines.empty()) {
        settings.erase(kSources);
    } else {
        settings.insert_or_assign(kSources, std::move(lines));
    }
}

Result<void> refused(std::string message)
{
    return std::unexpected(KestError::invalidData(std::move(message)));
}

} // namespace

std::vector<std::string> calendarSources(const Settings &settings)
{
    std::vector<std::string> sources;
    const auto found = settings.find(kSources);
    if (found == settings.end()) {
        return sources;
    }
    for (const std::string_view line : Base::split(found->second, '\n')) {
        if (line.starts_with('/') && std::ranges::find(sources, line) == sources.end() &&
            sources.size() < kMostCalendarSources) {
            sources.emplace_back(line);
        }
    }
    return sources;
}

Result<void> addCalendarSource(Settings &settings, std::string_view path)
{
    if (!path.starts_with('/') || path.contains('\n')) {
        return refused("A calendar needs an absolute path, on one line");
    }
    auto sources = calendarSources(settings);
    if (std::ranges::find(sources, path) != sources.end()) {
        return refused("That calendar is there already");
    }
    if (sources.size() >= kMostCalendarSources) {
        return refused("There are 50 calendars, and no more fit");
    }
    sources.emplace_back(path);
    keep(settings, sources);
    return {};
}

Result<void> removeCalendarSource(Settings &settings, std::string_view path)
{
    auto sources = calendarSources(settings);
    if (std::erase(sources, path) == 0) {
        return refused("There is no such calendar; kest calendar sources lists them");
    }
    keep(settings, sources);
    return {};
}

} // namespace KestCore
