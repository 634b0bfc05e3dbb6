// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/LogFollower.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace Assistants
{

namespace
{

// A pipe of that name is not waited for.
constexpr int kOpenFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK;

std::unexpected<Base::KestError> refused(const std::filesystem::path &file)
{
    return std::unexpected(Base::fileError(file, {errno, std::generic_category()}));
}

// Whether the place is still behind the end of a line. Where it is not, the file was written
// anew under its old name and number.
bool isBehindLine(int descriptor, const LogPlace &place)
{
    char last = '\n';
    return place.offset == 0 || place.isInLongLine ||
           (::pread(descriptor, &last, 1, static_cast<off_t>(place.offset - 1)) == 1 &&
            last == '\n');
}

// Behind the last end of a line; much faster than the text's own search backwards.
std::size_t beginOfLastLine(std::string_view text)
{
    const void *const end = text.empty() ? nullptr : ::memrchr(text.data(), '\n', text.size());
    return end == nullptr
               ? 0
               : static_cast<std::size_t>(static_cast<const char *>(end) - text.data()) + 1;
}

std::string_view lastLineOf(std::string_view lines)
{
    lines.remove_suffix(1);
    return lines.substr(beginOfLastLine(lines));
}

// As pread does, but goes on where a signal came between.
ssize_t readAt(int descriptor, std::span<char> into, std::uint64_t offset)
{
    ssize_t got = -1;
    do {
        got = ::pread(descriptor, into.data(), into.size(), static_cast<off_t>(offset));
    } while (got < 0 && errno == EINTR);
    return got;
}

} // namespace

std::optional<LogStatus> logStatus(const std::filesystem::path &file)
{
    struct stat about{};
    if (::stat(file.c_str(), &about) != 0 || !S_ISREG(about.st_mode)) {
        return std::nullopt;
    }
    const double changedAt = static_cast<double>(about.st_mtim.tv_sec) +
                             static_cast<double>(about.st_mtim.tv_nsec) * 1e-9;
    return LogStatus{.identity = {.device = about.st_dev, .number = about.st_ino},
                     .size = static_cast<std::uint64_t>(about.st_size),
                     .changedAt = Base::fromSeconds1970(changedAt)};
}

Base::Result<LogFollower::Reading>
LogFollower::follow(const std::filesystem::path &file, LogPlace &place,
                    std::span<const std::string_view> markers, const LineTaker &take)
{
    const Base::FileDescriptor descriptor{::open(file.c_str(), kOpenFlags)};
    if (!descriptor.isOpen()) {
        return refused(file);
    }
    Reading reading;
    if (!isBehindLine(descriptor.get(), place)) {
        reading.isReplaced = true;
        return reading;
    }
    std::size_t held = 0; // the beginning of a line whose end was not there yet
    while (true) {
        if (!makeRoom(held)) {
            place.isInLongLine = true;
            ++reading.tooLong;
            place.offset += std::exchange(held, 0);
        }
        const ssize_t got =
            readAt(descriptor.get(), std::span{m_buffer}.subspan(held), place.offset + held);
        if (got < 0) {
            return refused(file);
        }
        if (got == 0) {
            return reading;
        }
        reading.bytes += static_cast<std::uint64_t>(got);
        std::string_view text{m_buffer.data(), held + static_cast<std::size_t>(got)};
        text.remove_prefix(passLongLine(text, place));
        const std::string_view lines = text.substr(0, beginOfLastLine(text));
        if (!lines.empty()) {
            takeMarked(lines, place.offset, markers, take);
            reading.lastLine = lastLineOf(lines);
            place.offset += lines.size();
        }
        held = text.size() - lines.size();
        std::memmove(m_buffer.data(), lines.data() + lines.size(), held);
    }
}

// How many bytes belong to a line that is too long to be taken.
std::size_t LogFollower::passLongLine(std::string_view text, LogPlace &place) const
{
    if (!place.isInLongLine) {
        return 0;
    }
    const std::size_t end = text.find('\n');
    place.isInLongLine = end == std::string_view::npos;
    const std::size_t passed = place.isInLongLine ? text.size() : end + 1;
    place.offset += passed;
    return passed;
}

// False when the buffer is as large as it may become, and full.
bool LogFollower::makeRoom(std::size_t held)
{
    if (held == m_buffer.size()) {
        if (held >= kLongestLine) {
            return false;
        }
        m_buffer.resize(std::min(2 * held, kLongestLine));
    }
    return true;
}

void LogFollower::takeMarked(std::string_view lines, std::uint64_t offset,
                             std::span<const std::string_view> markers, const LineTaker &take)
{
    m_found.clear();
    for (const std::string_view marker : markers) {
        std::size_t from = 0;
        while (const void *const hit = ::memmem(lines.data() + from, lines.size() - from,
                                                marker.data(), marker.size())) {
            const auto at =
                static_cast<std::size_t>(static_cast<const char *>(hit) - lines.data());
            const std::size_t begin = beginOfLastLine(lines.substr(0, at));
            const std::size_t end = lines.find('\n', at);
            m_found.emplace_back(begin, end);
            from = end + 1;
        }
    }
    std::ranges::sort(m_found);
    const auto repeated = std::ranges::unique(m_found);
    m_found.erase(repeated.begin(), repeated.end());
    for (const auto &[begin, end] : m_found) {
        take({.text = lines.substr(begin, end - begin), .offset = offset + begin});
    }
}

} // namespace Assistants
