// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace MonitorLinux
{

// The bytes of a file, or why there are none.
struct ReadText {
    std::string_view text{};
    int error{}; // errno; 0 when it was read

    bool isDenied() const;
};

// One open folder, through which its files are reached without their whole path being walked
// each time. Of a folder that does not exist every question is answered with ENOENT.
class Folder
{
public:
    explicit Folder(const std::string &path);

    bool exists() const { return m_descriptor.isOpen(); }
    bool has(const char *name) const;

    // The file's first bytes, as many as the buffer holds: one open, read and close.
    ReadText read(const char *name, std::span<char> buffer) const;
    // The same of a file that stays open, from its beginning each time.
    static ReadText read(const Base::FileDescriptor &file, std::span<char> buffer);
    Base::FileDescriptor open(const char *name) const;
    // The same into a text that grows as needed and keeps its room.
    ReadText readWhole(const char *name, std::string &buffer) const;
    // The whole of a small file, such as those of /sys; empty when it cannot be read.
    std::string text(const std::string &name) const;

    // Where a link leads; empty when it cannot be read.
    std::string_view link(const char *name, std::span<char> buffer) const;
    // The user who owns it, or `otherwise`.
    std::uint32_t owner(const char *name, std::uint32_t otherwise) const;

    // The names inside a folder below, sorted; none when it cannot be listed.
    std::vector<std::string> names(const std::string &name) const;
    // The names of this folder that are numbers, ascending.
    void numbers(std::vector<std::int32_t> &numbers) const;

private:
    Base::FileDescriptor m_descriptor;
};

} // namespace MonitorLinux
