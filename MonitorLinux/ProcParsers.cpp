// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcParsers.h"

#include "MonitorLinux/TextCursor.h"

#include <array>
#include <cmath>

namespace MonitorLinux
{

namespace
{

constexpr std::uint64_t kKernelThreadFlag = 0x0020'0000;

// The lines "Name: number" that a reader wants, in any order; others are passed over.
template <std::size_t N>
struct WantedLines {
    std::array<std::string_view, N> names;
    std::array<std::optional<std::uint64_t>, N> values{};

    void read(std::string_view text)
    {
        TextCursor lines{text};
        std::size_t found = 0;
        while (!lines.atEnd() && found < N) {
            const std::string_view line = lines.line();
            const std::size_t colon = std::min(line.find(':'), line.size());
            const auto *const name = std::ranges::find(names, line.substr(0, colon));
            if (name != names.end() && colon < line.size()) {
                values[static_cast<std::size_t>(name - names.begin())] =
                    TextCursor{line.substr(colon + 1)}.number<std::uint64_t>();
                ++found;
            }
        }
    }
};

// The length of the UTF-8 sequence that the bytes begin with; 0 when it is none.
std::size_t sequenceLength(std::string_view bytes)
{
    const auto lead = static_cast<unsigned char>(bytes.front());
    if (lead < 0x80) {
        return 1;
    }
    const std::size_t length = 2 + (lead >= 0xE0 ? 1U : 0U) + (lead >= 0xF0 ? 1U : 0U);
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) {
        return 0;
    }
    const auto second = static_cast<unsigned char>(bytes[1]);
    const bool isTooLong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool isNoCharacter =
        (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
    const bool continues = std::ranges::all_of(bytes.substr(1, length - 1), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
    });
    return continues && !isTooLong && !isNoCharacter ? length : 0;
}

} // namespace

std::optional<ProcessStat> parseProcessStat(std::string_view text)
{
    // The name stands in parentheses and may hold some itself, and blanks and line ends.
    const std::size_t open = text.find('(');
    const std::size_t close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
        return std::nullopt;
    }
    const auto pid = TextCursor{text.substr(0, open)}.number<std::int32_t>();
    TextCursor fields{text.substr(close + 1)};
    fields.skip(1); // state
    const auto parent = fields.number<std::int32_t>();
    fields.skip(1); // group
    const auto session = fields.number<std::int32_t>();
    fields.skip(2); // terminal
    const auto flags = fields.number<std::uint64_t>();
    const auto minorFaults = fields.number<std::uint64_t>();
    fields.skip(1); // of children
    const auto majorFaults = fields.number<std::uint64_t>();
    fields.skip(1); // of children
    const auto user = fields.number<std::uint64_t>();
    const auto system = fields.number<std::uint64_t>();
    fields.skip(6); // of children, priorities, threads, a timer
    const auto start = fields.number<std::uint64_t>();
    fields.skip(1); // virtual size
    const auto resident = fields.number<std::uint64_t>();
    if (!pid || !parent || !session || !flags || !minorFaults || !majorFaults || !user ||
        !system || !start || !resident) {
        return std::nullopt;
    }
    return ProcessStat{.pid = *pid,
                       .name = text.substr(open + 1, close - open - 1),
                       .parent = *parent,
                       .session = *session,
                       .isKernelThread = (*flags & kKernelThreadFlag) != 0,
                       .faults = *minorFaults + *majorFaults,
                       .cpuTicks = *user + *system,
                       .start = *start,
                       .residentPages = *resident};
}

std::optional<std::uint64_t> parsePrivatePages(std::string_view text)
{
    TextCursor fields{text};
    fields.skip(1);
    const auto resident = fields.number<std::uint64_t>();
    const auto shared = fields.number<std::uint64_t>();
    if (!resident || !shared) {
        return std::nullopt;
    }
    // The kernel reads its two counters one after the other.
    return *resident - std::min(*resident, *shared);
}

std::optional<ProcessIo> parseProcessIo(std::string_view text)
{
    WantedLines<2> lines{{"read_bytes", "write_bytes"}};
    lines.read(text);
    const auto [read, written] = lines.values;
    if (!read || !written) {
        return std::nullopt;
    }
    return ProcessIo{.readBytes = *read, .writtenBytes = *written};
}

std::string_view parseCgroup(std::string_view text)
{
    std::string_view unified;
    std::string_view manager;
    std::string_view other;
    TextCursor lines{text};
    while (!lines.atEnd()) {
        const std::string_view line = lines.line();
        const std::size_t first = line.find(':');
        const std::size_t second =
            first == std::string_view::npos ? first : line.find(':', first + 1);
        if (second == std::string_view::npos) {
            continue;
        }
        const std::string_view path = line.substr(second + 1);
        if (path.size() <= 1) {
            continue;
        }
        const std::string_view controllers = line.substr(first + 1, second - first - 1);
        auto &legacy = controllers == "name=systemd" ? manager : other;
        auto &place = controllers.empty() ? unified : legacy;
        place = place.empty() ? path : place;
    }
    if (!unified.empty()) {
        return unified;
    }
    return manager.empty() ? other : manager;
}

std::optional<CpuTicks> parseCpuTicks(std::string_view text)
{
    TextCursor fields{text.substr(0, text.find('\n'))};
    if (fields.word() != "cpu") {
        return std::nullopt;
    }
    // user, nice, system, idle, and since later kernels iowait, irq, softirq, steal. Guests
    // are counted under user already.
    std::array<std::uint64_t, 8> ticks{};
    for (std::size_t at = 0; at < ticks.size(); ++at) {
        const auto value = fields.number<std::uint64_t>();
        if (!value && at < 4) {
            return std::nullopt;
        }
        ticks[at] = value.value_or(0);
    }
    return CpuTicks{.user = ticks[0] + ticks[1],
                    .system = ticks[2] + ticks[5] + ticks[6],
                    .idle = ticks[3] + ticks[4],
                    .stolen = ticks[7]};
}

std::optional<MemoryUse> parseMemory(std::string_view text)
{
    WantedLines<10> lines{{"MemTotal", "MemFree", "MemAvailable", "Buffers", "Cached",
                           "Unevictable", "SUnreclaim", "KernelStack", "PageTables", "Zswap"}};
    lines.read(text);
    const auto &[total, free, available, buffers, cached, unevictable, slab, stacks, tables,
                 zswap] = lines.values;
    if (!total || (!available && !free)) {
        return std::nullopt;
    }
    // Kernels before 3.14 don't say what is available.
    const std::uint64_t spare =
        available ? *available : *free + buffers.value_or(0) + cached.value_or(0);
    const auto bytes = [](std::uint64_t kibibytes) { return kibibytes * 1024; };
    return MemoryUse{.total = bytes(*total),
                     .used = bytes(*total - std::min(*total, spare)),
                     .wired = bytes(unevictable.value_or(0) + slab.value_or(0) +
                                    stacks.value_or(0) + tables.value_or(0)),
                     .zswap = zswap ? std::optional{bytes(*zswap)} : std::nullopt};
}

std::optional<double> parsePressure(std::string_view text)
{
    TextCursor fields{text};
    const std::string_view kind = fields.word();
    const std::string_view average = fields.word();
    constexpr std::string_view kKey = "avg10=";
    if (kind != "some" || !average.starts_with(kKey)) {
        return std::nullopt;
    }
    const auto percent = TextCursor{average.substr(kKey.size())}.number<double>();
    return percent && std::isfinite(*percent) ? percent : std::nullopt;
}

std::optional<std::int64_t> parseNumber(std::string_view text)
{
    return TextCursor{text}.number<std::int64_t>();
}

std::optional<std::string_view> valueOf(std::string_view text, std::string_view key)
{
    TextCursor lines{text};
    while (!lines.atEnd()) {
        const std::string_view line = lines.line();
        if (line.size() > key.size() && line.starts_with(key) && line[key.size()] == '=') {
            return line.substr(key.size() + 1);
        }
    }
    return std::nullopt;
}

std::string asUtf8(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        text += length == 0 ? std::string_view{"\xEF\xBF\xBD"} : bytes.substr(0, length);
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

} // namespace MonitorLinux
