// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/Folder.h"

#include "MonitorLinux/TextCursor.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

namespace MonitorLinux
{

namespace
{

constexpr std::size_t kSmallFile = 4096; // what a file of /sys holds at most

using Base::FileDescriptor;

FileDescriptor openBelow(const FileDescriptor &folder, const char *name, int flags)
{
    return FileDescriptor{::openat(folder.get(), name, flags | O_CLOEXEC)};
}

ssize_t readAgain(int descriptor, char *into, std::size_t size)
{
    ssize_t count = 0;
    do {
        count = ::read(descriptor, into, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

struct DirCloser {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

// Calls `use` with each name but the folder itself and its parent.
template <class Use>
void forEachName(FileDescriptor descriptor, Use use)
{
    if (!descriptor.isOpen()) {
        return;
    }
    // The stream gets a descriptor of its own to close.
    const std::unique_ptr<DIR, DirCloser> folder{
        ::fdopendir(::fcntl(descriptor.get(), F_DUPFD_CLOEXEC, 0))};
    while (const dirent *entry = folder ? ::readdir(folder.get()) : nullptr) {
        const std::string_view name{entry->d_name};
        if (name != "." && name != "..") {
            use(name);
        }
    }
}

} // namespace

bool ReadText::isDenied() const { return error == EACCES || error == EPERM; }

Folder::Folder(const std::string &path)
    : m_descriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

bool Folder::has(const char *name) const
{
    return ::faccessat(m_descriptor.get(), name, F_OK, 0) == 0;
}

ReadText Folder::read(const char *name, std::span<char> buffer) const
{
    const FileDescriptor file = openBelow(m_descriptor, name, O_RDONLY);
    if (!file.isOpen()) {
        return {.error = exists() ? errno : ENOENT};
    }
    const ssize_t count = readAgain(file.get(), buffer.data(), buffer.size());
    if (count < 0) {
        return {.error = errno};
    }
    return {.text = {buffer.data(), static_cast<std::size_t>(count)}};
}

ReadText Folder::read(const FileDescriptor &file, std::span<char> buffer)
{
    const ssize_t count = ::pread(file.get(), buffer.data(), buffer.size(), 0);
    if (count < 0) {
        return {.error = errno};
    }
    return {.text = {buffer.data(), static_cast<std::size_t>(count)}};
}

FileDescriptor Folder::open(const char *name) const
{
    return openBelow(m_descriptor, name, O_RDONLY);
}

ReadText Folder::readWhole(const char *name, std::string &buffer) const
{
    const FileDescriptor file = openBelow(m_descriptor, name, O_RDONLY);
    if (!file.isOpen()) {
        return {.error = exists() ? errno : ENOENT};
    }
    buffer.resize(std::max(buffer.capacity(), kSmallFile));
    std::size_t size = 0;
    // The kernel gives such a file by pieces: only an empty one is the end.
    while (true) {
        if (size == buffer.size()) {
            buffer.resize(2 * size);
        }
        const ssize_t count = readAgain(file.get(), &buffer[size], buffer.size() - size);
        if (count < 0) {
            return {.error = errno};
        }
        if (count == 0) {
            return {.text = std::string_view{buffer}.substr(0, size)};
        }
        size += static_cast<std::size_t>(count);
    }
}

std::string Folder::text(const std::string &name) const
{
    std::array<char, kSmallFile> buffer{};
    return std::string{read(name.c_str(), buffer).text};
}

std::string_view Folder::link(const char *name, std::span<char> buffer) const
{
    const ssize_t count = ::readlinkat(m_descriptor.get(), name, buffer.data(), buffer.size());
    return {buffer.data(), count < 0 ? 0 : static_cast<std::size_t>(count)};
}

std::uint32_t Folder::owner(const char *name, std::uint32_t otherwise) const
{
    struct stat about{};
    return ::fstatat(m_descriptor.get(), name, &about, 0) == 0 ? about.st_uid : otherwise;
}

std::vector<std::string> Folder::names(const std::string &name) const
{
    std::vector<std::string> names;
    forEachName(openBelow(m_descriptor, name.c_str(), O_RDONLY | O_DIRECTORY),
                [&](std::string_view found) { names.emplace_back(found); });
    std::ranges::sort(names);
    return names;
}

void Folder::numbers(std::vector<std::int32_t> &numbers) const
{
    numbers.clear();
    forEachName(openBelow(m_descriptor, ".", O_RDONLY | O_DIRECTORY),
                [&](std::string_view found) {
                    if (const auto number = TextCursor{found}.number<std::int32_t>()) {
                        numbers.push_back(*number);
                    }
                });
    // The kernel gives them in order, other file systems don't.
    if (!std::ranges::is_sorted(numbers)) {
        std::ranges::sort(numbers);
    }
}

} // namespace MonitorLinux
