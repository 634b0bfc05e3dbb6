// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"
#include "Base/Instant.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Assistants
{

// A log as the file system shows it.
struct LogStatus {
    Base::FileIdentity identity{};
    std::uint64_t size{};
    Base::Instant changedAt{};
};
// Nothing for what is no regular file.
std::optional<LogStatus> logStatus(const std::filesystem::path &file);

// How far a log has been read.
struct LogPlace {
    Base::FileIdentity identity{};
    std::uint64_t offset{}; // of the first byte that is still to come
    bool isInLongLine{};    // whose end is still to come

    bool operator==(const LogPlace &) const = default;
};

// Goes through what was appended to logs since it was last there. Memory is bounded by the
// longest line that is taken; one buffer serves all files.
class LogFollower
{
public:
    static constexpr std::size_t kLongestLine = std::size_t{4} * 1024 * 1024;

    // A line that has one of the markers in it, without its end.
    struct MarkedLine {
        std::string_view text{};
        std::uint64_t offset{};
    };
    using LineTaker = std::function<void(const MarkedLine &line)>;

    struct Reading {
        std::uint64_t bytes{};
        std::uint64_t tooLong{}; // lines that were passed over
        bool isReplaced{};       // what was read before is not in front of it any more
        std::string lastLine{};  // whole, whatever it holds; empty when none came
    };

    // Reads on to the last whole line; one that is still being written waits. Fails with
    // unavailable, in the system's words, and then the place is that of what was taken.
    [[nodiscard]] Base::Result<Reading> follow(const std::filesystem::path &file,
                                               LogPlace &place,
                                               std::span<const std::string_view> markers,
                                               const LineTaker &take);

private:
    std::size_t passLongLine(std::string_view text, LogPlace &place) const;
    void takeMarked(std::string_view lines, std::uint64_t offset,
                    std::span<const std::string_view> markers, const LineTaker &take);
    bool makeRoom(std::size_t held);

    std::vector<char> m_buffer = std::vector<char>(std::size_t{256} * 1024);
    std::vector<std::pair<std::size_t, std::size_t>> m_found; // begin and end of lines
};

} // namespace Assistants
