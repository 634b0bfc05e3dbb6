// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/InstalledApps.h"
#include "MonitorLinux/PowerSupplies.h"
#include "MonitorLinux/ProcParsers.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace
{

using namespace MonitorLinux;

// What is cut from a text must lie inside it.
void mustLieInside(std::string_view piece, std::string_view text)
{
    if (!piece.empty() && (piece.data() < text.data() ||
                           piece.data() + piece.size() > text.data() + text.size())) {
        std::abort();
    }
}

void readRows(std::string_view text, void (*parse)(std::string_view, std::vector<Traffic> &))
{
    std::vector<Traffic> rows;
    parse(text, rows);
    for (const Traffic &row : rows) {
        mustLieInside(row.name, text);
    }
}

void readText(std::string_view text)
{
    const std::string once = asUtf8(text);
    if (asUtf8(once) != once) {
        std::abort();
    }
    (void)isWholeDiskName(text);
    (void)parseSocketInode(text);
    (void)parseNumber(text);
}

void readPorts(std::string_view text)
{
    std::vector<std::uint16_t> ports;
    parseListeningPorts(text, SocketTable::tcp, {1, 2, 100}, ports);
    parseListeningPorts(text, SocketTable::udp, {1, 2, 100}, ports);
}

void readProcess(std::string_view text)
{
    if (const auto stat = parseProcessStat(text)) {
        mustLieInside(stat->name, text);
    }
}

void readRoutes(std::string_view text)
{
    for (const auto parse : {parseDefaultRoutes, parseDefaultRoutes6}) {
        for (const std::string_view name : parse(text)) {
            mustLieInside(name, text);
        }
    }
}

void readMemory(std::string_view text)
{
    (void)parseMemory(text);
    (void)parsePrivatePages(text);
    (void)parseZramUse(text);
}

constexpr void (*kReaders[])(std::string_view) = {
    readProcess,
    readMemory,
    [](std::string_view text) { (void)parseProcessIo(text); },
    [](std::string_view text) { mustLieInside(parseCgroup(text), text); },
    [](std::string_view text) { (void)parseCpuTicks(text); },
    [](std::string_view text) { (void)parsePressure(text); },
    [](std::string_view text) { readRows(text, parseDiskStats); },
    [](std::string_view text) { readRows(text, parseNetDev); },
    readRoutes,
    readPorts,
    readText,
    [](std::string_view text) { (void)parsePowerSupply(text); },
    [](std::string_view text) { (void)parseDesktopEntry(text, "pt_BR"); },
};

} // namespace

// The first byte, a letter from "a" on in the seeds, picks the reader.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 0) {
        const std::string_view text{reinterpret_cast<const char *>(data), size};
        constexpr std::size_t kCount = std::size(kReaders);
        kReaders[(data[0] + kCount - 'a' % kCount) % kCount](text.substr(1));
    }
    return 0;
}
