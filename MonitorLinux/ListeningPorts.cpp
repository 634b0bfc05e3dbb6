// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcessTable.h"

#include <algorithm>
#include <array>

namespace MonitorLinux
{

namespace
{

std::vector<std::uint64_t> socketInodes(const Folder &proc, const std::string &process)
{
    std::vector<std::uint64_t> inodes;
    std::array<char, 64> buffer{};
    const std::string folder = process + "/fd";
    for (const std::string &name : proc.names(folder)) {
        std::string link = folder;
        link.append("/").append(name);
        if (const auto inode = parseSocketInode(proc.link(link.c_str(), buffer))) {
            inodes.push_back(*inode);
        }
    }
    std::ranges::sort(inodes);
    return inodes;
}

} // namespace

// The tables are those of the process, which may live in a network of its own.
std::vector<std::uint16_t> ProcessTable::portsOf(const MonitorCore::ProcessKey &process) const
{
    const std::string folder = std::to_string(process.pid);
    const std::string text = m_proc.text(folder + "/stat");
    const auto stat = parseProcessStat(text);
    std::vector<std::uint16_t> ports;
    if (!stat || stat->start != process.start) {
        return ports;
    }
    const auto inodes = socketInodes(m_proc, folder);
    if (inodes.empty()) {
        return ports;
    }
    std::string buffer;
    for (const auto &[file, table] :
         {std::pair{"/net/tcp", SocketTable::tcp}, std::pair{"/net/tcp6", SocketTable::tcp},
          std::pair{"/net/udp", SocketTable::udp}, std::pair{"/net/udp6", SocketTable::udp}}) {
        const std::string name = folder + file;
        parseListeningPorts(m_proc.readWhole(name.c_str(), buffer).text, table, inodes, ports);
    }
    std::ranges::sort(ports);
    ports.erase(std::ranges::unique(ports).begin(), ports.end());
    return ports;
}

} // namespace MonitorLinux
