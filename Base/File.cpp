// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace Base
{

namespace
{

std::error_code lastError() { return {errno, std::generic_category()}; }

} // namespace

Result<std::string> readFile(const std::filesystem::path &file)
{
    const FileDescriptor descriptor{::open(file.c_str(), O_RDONLY | O_CLOEXEC)};
    struct stat info{};
    if (!descriptor.isOpen() || fstat(descriptor.get(), &info) != 0) {
        return std::unexpected(fileError(file, lastError()));
    }
    // The size is only a hint: a file of /proc says 0, and a growing one says too little.
    std::string bytes(static_cast<std::size_t>(info.st_size) + 1, '\0');
    std::size_t size = 0;
    while (true) {
        const ssize_t got = ::read(descriptor.get(), bytes.data() + size, bytes.size() - size);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return std::unexpected(fileError(file, lastError()));
        }
        if (got == 0) {
            break;
        }
        size += static_cast<std::size_t>(got);
        if (size == bytes.size()) {
            bytes.resize(bytes.size() * 2);
        }
    }
    bytes.resize(size);
    return bytes;
}

KestError fileError(const std::filesystem::path &file, std::error_code code)
{
    return KestError::unavailable(file.string() + ": " + code.message());
}

FileDescriptor::~FileDescriptor()
{
    if (isOpen()) {
        ::close(m_descriptor);
    }
}

} // namespace Base
