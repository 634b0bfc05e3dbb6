// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the kernel's text files say. Every function takes one file's whole content, however
// damaged, and allocates only what it returns; nothing means that the text is not of the kind.
namespace MonitorLinux
{

// /proc/PID/stat
struct ProcessStat {
    std::int32_t pid{};
    std::string_view name{}; // of 15 bytes at most; any byte may stand in it
    std::int32_t parent{};
    std::int32_t session{};
    bool isKernelThread{};
    std::uint64_t faults{}; // of pages, minor and major
    std::uint64_t cpuTicks{};
    std::uint64_t start{}; // clock ticks since boot
    std::uint64_t residentPages{};

    bool operator==(const ProcessStat &) const = default;
};
std::optional<ProcessStat> parseProcessStat(std::string_view text);

// The resident pages of /proc/PID/statm that belong to no file and no shared memory.
std::optional<std::uint64_t> parsePrivatePages(std::string_view text);

// /proc/PID/io: what went to and came from the disks.
struct ProcessIo {
    std::uint64_t readBytes{};
    std::uint64_t writtenBytes{};

    bool operator==(const ProcessIo &) const = default;
};
std::optional<ProcessIo> parseProcessIo(std::string_view text);

// The path in /proc/PID/cgroup that tells most: of the unified hierarchy, else of the service
// manager's, else of any other, where it is not the root.
std::string_view parseCgroup(std::string_view text);

// The first line of /proc/stat, in clock ticks.
struct CpuTicks {
    std::uint64_t user{};
    std::uint64_t system{};
    std::uint64_t idle{};   // waiting for a disk included
    std::uint64_t stolen{}; // what the host of a virtual machine gave to others

    bool operator==(const CpuTicks &) const = default;
};
std::optional<CpuTicks> parseCpuTicks(std::string_view text);

// /proc/meminfo, in bytes.
struct MemoryUse {
    std::uint64_t total{};
    std::uint64_t used{};  // cannot be had for new programs without swapping
    std::uint64_t wired{}; // can never be swapped out: locked, and the kernel's own
    std::optional<std::uint64_t> zswap{};

    bool operator==(const MemoryUse &) const = default;
};
std::optional<MemoryUse> parseMemory(std::string_view text);

// The share of the last 10 s, in percent, in which some task waited: /proc/pressure/memory.
std::optional<double> parsePressure(std::string_view text);

// One row of /proc/diskstats or /proc/net/dev: bytes in and out.
struct Traffic {
    std::string_view name{};
    std::uint64_t in{};
    std::uint64_t out{};

    bool operator==(const Traffic &) const = default;
};
// Both clear `rows` first, skip lines that are not of the kind and keep its room.
void parseDiskStats(std::string_view text, std::vector<Traffic> &rows);
void parseNetDev(std::string_view text, std::vector<Traffic> &rows);

// The bytes that /sys/block/zramN/mm_stat says the compressed memory takes.
std::optional<std::uint64_t> parseZramUse(std::string_view text);

// The interfaces that hold a default route, of /proc/net/route and of /proc/net/ipv6_route.
std::vector<std::string_view> parseDefaultRoutes(std::string_view text);
std::vector<std::string_view> parseDefaultRoutes6(std::string_view text);

// A whole disk by its name alone, for a machine without /sys: "sda" and "nvme0n1", but not
// "sda1", "dm-0", "md0" or "loop3".
bool isWholeDiskName(std::string_view name);

enum class SocketTable : std::uint8_t { tcp, udp };

// Adds the ports of the rows of /proc/PID/net/{tcp,udp}{,6} that listen and whose inode is
// in the ascending list. A datagram socket listens when it is bound and has no peer.
void parseListeningPorts(std::string_view text, SocketTable table,
                         const std::vector<std::uint64_t> &inodes,
                         std::vector<std::uint16_t> &ports);

// "socket:[4711]", as the descriptors of a process link to.
std::optional<std::uint64_t> parseSocketInode(std::string_view link);

// One number with a line end at most, as most files of /sys hold.
std::optional<std::int64_t> parseNumber(std::string_view text);

// The value of a line "KEY=value", as in the uevent files of /sys.
std::optional<std::string_view> valueOf(std::string_view text, std::string_view key);

// The text with U+FFFD for what is not UTF-8: names of processes and files hold any byte.
std::string asUtf8(std::string_view bytes);

} // namespace MonitorLinux
