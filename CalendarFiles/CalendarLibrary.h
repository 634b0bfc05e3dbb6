// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarFiles/Agenda.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace CalendarFiles
{

inline constexpr std::size_t kMostFiles = 5'000;
inline constexpr std::size_t kMostBytes = 64'000'000; // of all files together

// What was found under one of the user's sources.
struct SourceReport {
    std::string path{};
    std::vector<std::string> calendars{}; // their names
    std::size_t files{};
    std::size_t events{};
    std::size_t broken{};                // events that could not be read
    std::vector<std::string> problems{}; // one a file that could not be read, in full sentences

    bool operator==(const SourceReport &) const = default;
};

// The calendar files under the user's sources, as they were when it last looked. Reads only
// what has changed since then, and writes nothing. One thread.
class CalendarLibrary
{
public:
    // Fails with unavailable when the reader of events cannot be loaded.
    [[nodiscard]] static Result<CalendarLibrary> open();
    explicit CalendarLibrary(std::unique_ptr<EventParser> parser);

    // Looks at files, and at the files below folders whose names end in .ics, absolute paths
    // all. Returns how many it had to read.
    std::size_t refresh(const std::vector<std::string> &sources);

    const std::vector<SourceReport> &reports() const { return m_reports; }

    // What happens in the window, for somebody at this calendar.
    Agenda agenda(const KestCore::Calendar &viewer, Window window);

private:
    // Tells whether a file is as it was.
    struct Stamp {
        std::uint64_t device{};
        std::uint64_t number{};
        std::int64_t size{};
        std::int64_t modified{}; // ns
        std::int64_t changed{};  // ns; no program can set it

        bool operator==(const Stamp &) const = default;
    };
    struct File {
        Stamp stamp{};
        CalendarDocument document{};
        std::string problem{}; // empty where it could be read
    };
    using Files = std::map<std::string, File>;

    static std::optional<Stamp> stampOf(const std::string &path);
    static std::vector<std::string> filesBelow(const std::string &source, SourceReport &report);
    void look(const std::string &path, SourceReport &report, Files &files);
    File readAnew(const std::string &path, const Stamp &stamp);
    static std::string nameOf(const std::string &path, const std::string &source,
                              const CalendarDocument &document);

    std::unique_ptr<EventParser> m_parser;
    Files m_files{};
    std::map<std::string, std::string> m_names{}; // of the calendar, by the file
    std::vector<SourceReport> m_reports{};
    std::size_t m_bytes{};
    std::size_t m_read{};
};

} // namespace CalendarFiles
