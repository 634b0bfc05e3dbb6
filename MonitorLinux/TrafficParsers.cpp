// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcParsers.h"
#include "MonitorLinux/TextCursor.h"

#include <cctype>

namespace MonitorLinux
{

namespace
{

constexpr std::uint64_t kSectorBytes = 512; // in this file, whatever the disk's own are
constexpr unsigned kTcpListen = 0x0A;
constexpr unsigned kUdpUnconnected = 0x07;
constexpr std::uint32_t kRouteRejects = 0x0200;

// "00000000:0016" and its longer cousin of the sixth version: address and port.
struct Endpoint {
    bool isAnyAddress{};
    std::uint16_t port{};
};

bool isZero(std::string_view digits)
{
    return !digits.empty() && digits.find_first_not_of('0') == std::string_view::npos;
}

std::optional<Endpoint> parseEndpoint(std::string_view word)
{
    const std::size_t colon = word.find(':');
    if (colon == std::string_view::npos) {
        return std::nullopt;
    }
    const auto port = TextCursor{word.substr(colon + 1)}.number<std::uint16_t>(16);
    if (!port) {
        return std::nullopt;
    }
    return Endpoint{.isAnyAddress = isZero(word.substr(0, colon)), .port = *port};
}

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

// Letters, then nothing: "sda", "vdb", "xvda".
bool isLettersAfter(std::string_view name, std::string_view prefix)
{
    return name.starts_with(prefix) && name.size() > prefix.size() &&
           std::ranges::all_of(name.substr(prefix.size()),
                               [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

} // namespace

void parseDiskStats(std::string_view text, std::vector<Traffic> &rows)
{
    rows.clear();
    TextCursor lines{text};
    while (!lines.atEnd()) {
        TextCursor fields{lines.line()};
        fields.skip(2); // device number
        const std::string_view name = fields.word();
        fields.skip(2); // reads, merged
        const auto read = fields.number<std::uint64_t>();
        fields.skip(3); // time, writes, merged
        const auto written = fields.number<std::uint64_t>();
        if (read && written) {
            rows.push_back(
                {.name = name, .in = *read * kSectorBytes, .out = *written * kSectorBytes});
        }
    }
}

void parseNetDev(std::string_view text, std::vector<Traffic> &rows)
{
    rows.clear();
    TextCursor lines{text};
    while (!lines.atEnd()) {
        // A large first number may touch the colon; a name's alias may hold one itself.
        const std::string_view line = lines.line();
        const std::size_t colon = line.rfind(':');
        if (colon == std::string_view::npos) {
            continue;
        }
        TextCursor fields{line.substr(colon + 1)};
        const auto received = fields.number<std::uint64_t>();
        fields.skip(7);
        const auto sent = fields.number<std::uint64_t>();
        if (received && sent) {
            rows.push_back({.name = TextCursor{line.substr(0, colon)}.word(),
                            .in = *received,
                            .out = *sent});
        }
    }
}

std::optional<std::uint64_t> parseZramUse(std::string_view text)
{
    TextCursor fields{text};
    fields.skip(2); // original size, compressed size
    return fields.number<std::uint64_t>();
}

std::vector<std::string_view> parseDefaultRoutes(std::string_view text)
{
    std::vector<std::string_view> names;
    TextCursor lines{text};
    while (!lines.atEnd()) {
        TextCursor fields{lines.line()};
        const std::string_view name = fields.word();
        const auto destination = fields.number<std::uint32_t>(16);
        fields.skip(5); // gateway, flags, counts, metric
        const auto mask = fields.number<std::uint32_t>(16);
        if (destination == 0U && mask == 0U) {
            names.push_back(name);
        }
    }
    return names;
}

std::vector<std::string_view> parseDefaultRoutes6(std::string_view text)
{
    std::vector<std::string_view> names;
    TextCursor lines{text};
    while (!lines.atEnd()) {
        TextCursor fields{lines.line()};
        const bool isAnywhere = isZero(fields.word());
        const bool isWhole = isZero(fields.word()); // the destination's length in bits
        fields.skip(6); // source and its length, next hop, metric, counts
        const auto flags = fields.number<std::uint32_t>(16);
        const std::string_view name = fields.word();
        // A machine without a way out has a route that says so.
        if (isAnywhere && isWhole && flags && (*flags & kRouteRejects) == 0 && !name.empty()) {
            names.push_back(name);
        }
    }
    return names;
}

bool isWholeDiskName(std::string_view name)
{
    for (const std::string_view prefix : {"sd", "vd", "xvd", "hd"}) {
        if (isLettersAfter(name, prefix)) {
            return true;
        }
    }
    // "nvme0n1" and "mmcblk0" are whole, "nvme0n1p2" and "mmcblk0p1" are not.
    const bool isNumbered = name.starts_with("nvme") || name.starts_with("mmcblk");
    return isNumbered && isDigit(name.back()) && name.find('p') == std::string_view::npos;
}

void parseListeningPorts(std::string_view text, SocketTable table,
                         const std::vector<std::uint64_t> &inodes,
                         std::vector<std::uint16_t> &ports)
{
    TextCursor lines{text};
    while (!lines.atEnd()) {
        TextCursor fields{lines.line()};
        fields.skip(1); // row number
        const auto local = parseEndpoint(fields.word());
        const auto peer = parseEndpoint(fields.word());
        const auto state = fields.number<unsigned>(16);
        fields.skip(5); // queues, timers, owner, timeout
        const auto inode = fields.number<std::uint64_t>();
        if (!local || !peer || !inode) {
            continue;
        }
        const bool listens =
            table == SocketTable::tcp
                ? state == kTcpListen
                : state == kUdpUnconnected && peer->isAnyAddress && peer->port == 0;
        if (listens && local->port != 0 && std::ranges::binary_search(inodes, *inode)) {
            ports.push_back(local->port);
        }
    }
}

std::optional<std::uint64_t> parseSocketInode(std::string_view link)
{
    constexpr std::string_view kStart = "socket:[";
    if (!link.starts_with(kStart) || !link.ends_with(']')) {
        return std::nullopt;
    }
    return TextCursor{link.substr(kStart.size(), link.size() - kStart.size() - 1)}
        .number<std::uint64_t>();
}

} // namespace MonitorLinux
