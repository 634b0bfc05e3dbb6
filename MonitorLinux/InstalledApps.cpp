// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/InstalledApps.h"

#include "Base/File.h"
#include "Base/Text.h"
#include "MonitorLinux/DesktopFile.h"
#include "MonitorLinux/ProcParsers.h"
#include "MonitorLinux/TextCursor.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace MonitorLinux
{

namespace fs = std::filesystem;

using MonitorCore::InstalledApp;

namespace
{

constexpr std::string_view kSharedPrograms[] = {
    "sh",     "bash", "dash",         "env",      "python", "perl",    "ruby",
    "node",   "java", "mono",         "wine",     "gjs",    "flatpak", "snap",
    "pkexec", "sudo", "gapplication", "xdg-open", "busybox"};

// The texts of one desktop file that matter here.
struct Keys {
    std::string_view type{};
    std::string_view exec{};
    std::string_view name{};
    int nameRank = -1; // 0 of no language, 1 of the language, 2 of its country's kind
    bool isHidden = false;
};

void take(Keys &keys, std::string_view key, std::string_view value, std::string_view language)
{
    if (key == "Type") {
        keys.type = value;
    } else if (key == "Exec") {
        keys.exec = value;
    } else if ((key == "Hidden" || key == "NoDisplay") && value == "true") {
        keys.isHidden = true;
    } else if (const int rank = rankOfName(key, language); rank > keys.nameRank) {
        keys.nameRank = rank;
        keys.name = value;
    }
}

// The first word of a command line, which may stand in quotes and escape letters there.
std::string firstWord(std::string_view &line)
{
    line = Base::trimmed(line);
    const bool isQuoted = line.starts_with('"');
    std::string word;
    std::size_t at = isQuoted ? 1 : 0;
    for (; at < line.size() && line[at] != (isQuoted ? '"' : ' '); ++at) {
        at += isQuoted && line[at] == '\\' && at + 1 < line.size() ? 1 : 0;
        word += line[at];
    }
    line.remove_prefix(std::min(at + 1, line.size()));
    return word;
}

// "env VAR=x program" starts program.
std::string programOf(std::string_view exec)
{
    std::string word = firstWord(exec);
    if (word == "env" || word == "/usr/bin/env") {
        do {
            if (word == "-u") { // the name of what is unset stands behind it
                (void)firstWord(exec);
            }
            word = firstWord(exec);
        } while (word.contains('=') || word.starts_with('-'));
    }
    return word;
}

// "python3.11" is python.
bool isShared(const fs::path &program)
{
    std::string name = program.filename().string();
    name.resize(std::min(name.find_first_of("0123456789."), name.size()));
    return std::ranges::count(kSharedPrograms, name) > 0;
}

std::string resolved(const std::string &program, const std::vector<fs::path> &folders)
{
    std::error_code error;
    if (program.starts_with('/')) {
        const fs::path file = fs::canonical(program, error);
        return error || isShared(file) ? "" : file.string();
    }
    for (const fs::path &folder : folders) {
        const fs::path file = fs::canonical(folder / program, error);
        if (!error && !program.empty()) {
            return isShared(file) ? "" : file.string();
        }
    }
    return "";
}

std::string environment(const char *name, const std::string &otherwise)
{
    const char *const value = std::getenv(name);
    return value != nullptr && *value != '\0' ? value : otherwise;
}

} // namespace

std::optional<DesktopEntry> parseDesktopEntry(std::string_view text, std::string_view language)
{
    Keys keys;
    bool isInEntry = false;
    TextCursor lines{text};
    while (!lines.atEnd()) {
        const std::string_view line = lines.line();
        const std::size_t equals = line.find('=');
        if (line.starts_with('[')) {
            isInEntry = line.starts_with("[Desktop Entry]");
        } else if (isInEntry && equals != std::string_view::npos && !line.starts_with('#')) {
            take(keys, Base::trimmed(line.substr(0, equals)),
                 Base::trimmed(line.substr(equals + 1)), language);
        }
    }
    std::string program = programOf(keys.exec);
    if (keys.type != "Application" || keys.isHidden || keys.name.empty() || program.empty()) {
        return std::nullopt;
    }
    return DesktopEntry{.name = asUtf8(keys.name), .program = std::move(program)};
}

AppPlaces appPlacesOfUser()
{
    AppPlaces places;
    const std::string home = environment("HOME", "/");
    const std::string folders = environment("XDG_DATA_HOME", home + "/.local/share") + ":" +
                                environment("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    for (const std::string_view folder : Base::split(folders, ':')) {
        if (folder.starts_with('/')) { // another means nothing
            places.applications.push_back(fs::path{folder} / "applications");
        }
    }
    const std::string programs = environment("PATH", "/usr/local/bin:/usr/bin:/bin");
    for (const std::string_view folder : Base::split(programs, ':')) {
        if (folder.starts_with('/')) {
            places.programs.emplace_back(folder);
        }
    }
    places.language =
        environment("LC_ALL", environment("LC_MESSAGES", environment("LANG", "")));
    places.language.resize(
        std::min(places.language.find_first_of(".@"), places.language.size()));
    return places;
}

std::vector<InstalledApp> installedApps(const AppPlaces &places)
{
    std::vector<InstalledApp> apps;
    std::set<std::string> seen;
    for (const fs::path &folder : places.applications) {
        for (DesktopFile &file : desktopFilesIn(folder)) {
            const auto text = Base::readFile(file.path, kLongestDesktopFile);
            // One that hides itself hides those of its id in later folders too.
            if (!text || text->size() > kLongestDesktopFile || !seen.insert(file.id).second) {
                continue;
            }
            if (auto entry = parseDesktopEntry(*text, places.language)) {
                apps.push_back({.id = std::move(file.id),
                                .name = std::move(entry->name),
                                .executable = resolved(entry->program, places.programs)});
            }
        }
    }
    return apps;
}

} // namespace MonitorLinux
