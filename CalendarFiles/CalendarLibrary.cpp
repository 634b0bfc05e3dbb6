// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/CalendarLibrary.h"

#include "Base/File.h"
#include "Base/Text.h"

#include <sys/stat.h>

#include <algorithm>

namespace CalendarFiles
{

namespace
{

namespace fs = std::filesystem;

constexpr int kDeepestFolder = 4;
constexpr std::size_t kMostEntries = 50'000; // of a folder and those below it

std::int64_t nanoseconds(const timespec &time)
{
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

bool isCalendarName(const fs::path &path)
{
    return Base::lowerAscii(path.extension().string()) == ".ics" &&
           !path.filename().string().starts_with('.');
}

} // namespace

Result<CalendarLibrary> CalendarLibrary::open()
{
    KEST_TRY(auto parser, openEventParser());
    return CalendarLibrary{std::move(parser)};
}

CalendarLibrary::CalendarLibrary(std::unique_ptr<EventParser> parser)
    : m_parser(std::move(parser))
{
}

std::size_t CalendarLibrary::refresh(const std::vector<std::string> &sources)
{
    Files files;
    m_names.clear();
    m_reports.clear();
    m_bytes = 0;
    m_read = 0;
    for (const std::string &source : sources) {
        SourceReport report{.path = source};
        for (const std::string &path : filesBelow(source, report)) {
            if (files.contains(path)) {
                continue; // under a source before this one
            }
            look(path, report, files);
            const auto found = files.find(path);
            if (found == files.end() || !found->second.problem.empty()) {
                continue;
            }
            const std::string name = nameOf(path, source, found->second.document);
            m_names.emplace(path, name);
            if (std::ranges::find(report.calendars, name) == report.calendars.end()) {
                report.calendars.push_back(name);
            }
        }
        m_reports.push_back(std::move(report));
    }
    m_files = std::move(files);
    return m_read;
}

Agenda CalendarLibrary::agenda(const KestCore::Calendar &viewer, Window window)
{
    Agenda agenda;
    Budget budget;
    for (const auto &[path, name] : m_names) {
        addOccurrences(agenda, m_files.at(path).document, name, *m_parser, viewer, window,
                       budget);
    }
    arrange(agenda);
    return agenda;
}

// Nothing for what is no file: reading from a pipe could take for ever.
std::optional<CalendarLibrary::Stamp> CalendarLibrary::stampOf(const std::string &path)
{
    struct stat status{};
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return Stamp{.device = status.st_dev,
                 .number = status.st_ino,
                 .size = status.st_size,
                 .modified = nanoseconds(status.st_mtim),
                 .changed = nanoseconds(status.st_ctim)};
}

std::vector<std::string> CalendarLibrary::filesBelow(const std::string &source,
                                                     SourceReport &report)
{
    std::error_code error;
    if (!fs::is_directory(source, error)) {
        return {source};
    }
    std::vector<std::string> found;
    fs::recursive_directory_iterator entry{
        source, fs::directory_options::skip_permission_denied, error};
    std::size_t seen = 0;
    while (!error && entry != fs::recursive_directory_iterator{}) {
        if (++seen > kMostEntries) {
            report.problems.push_back(source + ": only 50,000 entries were looked at.");
            break;
        }
        const bool isHidden = entry->path().filename().string().starts_with('.');
        if (isHidden || entry.depth() >= kDeepestFolder) {
            entry.disable_recursion_pending();
        }
        std::error_code ignored;
        if (isCalendarName(entry->path()) && entry->is_regular_file(ignored)) {
            found.push_back(entry->path().string());
        }
        entry.increment(error);
    }
    if (error) {
        report.problems.push_back(Base::fileError(source, error).message + ".");
    }
    std::ranges::sort(found);
    return found;
}

void CalendarLibrary::look(const std::string &path, SourceReport &report, Files &files)
{
    const auto stamp = stampOf(path);
    if (!stamp) {
        std::error_code error;
        const bool isThere = fs::exists(path, error);
        report.problems.push_back(path + (isThere ? ": it is no file." : ": it is not there."));
        return;
    }
    m_bytes += static_cast<std::size_t>(stamp->size);
    if (files.size() >= kMostFiles || m_bytes > kMostBytes) {
        report.problems.push_back(path + ": there are too many calendars already.");
        return;
    }
    const auto known = m_files.find(path);
    File file = known != m_files.end() && known->second.stamp == *stamp
                    ? std::move(known->second)
                    : readAnew(path, *stamp);
    ++report.files;
    report.events += file.document.events.size();
    report.broken += file.document.broken;
    if (!file.problem.empty()) {
        report.problems.push_back(file.problem);
    } else if (file.document.beyond > 0) {
        report.problems.push_back(path + ": only 20,000 events were read.");
    }
    files.emplace(path, std::move(file));
}

CalendarLibrary::File CalendarLibrary::readAnew(const std::string &path, const Stamp &stamp)
{
    ++m_read;
    File file{.stamp = stamp};
    const auto bytes = Base::readFile(path, kLargestFile);
    if (!bytes) {
        file.problem = bytes.error().message + ".";
        return file;
    }
    auto document = readCalendar(*bytes, *m_parser);
    if (document) {
        file.document = *std::move(document);
    } else {
        file.problem = path + ": " + document.error().message + ".";
    }
    return file;
}

// A folder with a file for each event is one calendar, named as the folder.
std::string CalendarLibrary::nameOf(const std::string &path, const std::string &source,
                                    const CalendarDocument &document)
{
    if (!document.name.empty()) {
        return document.name;
    }
    const fs::path file{path};
    return Base::printable(
        (path == source ? file.stem() : file.parent_path().filename()).string());
}

} // namespace CalendarFiles
