// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace Base
{

namespace
{

std::error_code lastError() { return {errno, std::generic_category()}; }

// Where a link leads, also one to a file that is not there yet.
std::filesystem::path followed(std::filesystem::path path)
{
    constexpr int kMostLinks = 40; // as the kernel has it
    std::error_code error;
    for (int link = 0; link < kMostLinks && std::filesystem::is_symlink(path, error); ++link) {
        path = path.parent_path() / std::filesystem::read_symlink(path, error);
    }
    return path;
}

} // namespace

Result<void> makePrivateDirectory(const std::filesystem::path &directory)
{
    std::error_code error;
    if (directory.empty() || std::filesystem::is_directory(directory, error)) {
        return {};
    }
    KEST_CHECK(makePrivateDirectory(directory.parent_path()));
    if (mkdir(directory.c_str(), 0700) != 0) {
        const auto refused = lastError();
        // Another program may just have made it.
        if (!std::filesystem::is_directory(directory, error)) {
            return std::unexpected(fileError(directory, refused));
        }
    }
    return {};
}

void makePrivateFile(const std::filesystem::path &file)
{
    // A pipe of that name must not be waited for.
    const FileDescriptor created{
        ::open(file.c_str(), O_CREAT | O_WRONLY | O_NONBLOCK | O_CLOEXEC, 0600)};
    if (created.isOpen()) {
        (void)::fchmod(created.get(), 0600);
    }
}

std::optional<FileIdentity> fileIdentity(const std::filesystem::path &file)
{
    struct stat about{};
    if (::stat(file.c_str(), &about) != 0) {
        return std::nullopt;
    }
    return FileIdentity{.device = about.st_dev, .number = about.st_ino};
}

Result<std::string> readFile(const std::filesystem::path &file, std::size_t limit)
{
    const FileDescriptor descriptor{::open(file.c_str(), O_RDONLY | O_CLOEXEC)};
    if (!descriptor.isOpen()) {
        return std::unexpected(fileError(file, lastError()));
    }
    return readDescriptor(descriptor.get(), file, limit);
}

Result<std::string> readDescriptor(int descriptor, const std::filesystem::path &name,
                                   std::size_t limit)
{
    constexpr std::size_t kRoomBehind = 64;
    struct stat info{};
    if (fstat(descriptor, &info) != 0) {
        return std::unexpected(fileError(name, lastError()));
    }
    // The size is only a hint: a file of /proc says 0, and a growing one says too little.
    const auto hint = std::min(static_cast<std::size_t>(info.st_size), limit) + 1;
    std::string bytes;
    bytes.reserve(hint + kRoomBehind);
    bytes.resize(hint);
    std::size_t size = 0;
    while (true) {
        const ssize_t got = ::read(descriptor, bytes.data() + size, bytes.size() - size);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return std::unexpected(fileError(name, lastError()));
        }
        if (got == 0) {
            break;
        }
        size += static_cast<std::size_t>(got);
        if (size > limit) {
            break;
        }
        if (size == bytes.size()) {
            bytes.resize(std::min(bytes.size() * 2, limit + 1));
        }
    }
    bytes.resize(size);
    return bytes;
}

KestError fileError(const std::filesystem::path &file, std::error_code code)
{
    return KestError::unavailable(file.string() + ": " + code.message());
}

ReplacingFile::ReplacingFile(std::filesystem::path target, std::string partial,
                             FileDescriptor descriptor)
    : m_target(std::move(target)), m_partial(std::move(partial)),
      m_descriptor(std::move(descriptor))
{
}

Result<ReplacingFile> ReplacingFile::create(std::filesystem::path target)
{
    target = followed(std::move(target));
    std::error_code error;
    const auto status = std::filesystem::status(target, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        return std::unexpected(
            KestError::unavailable(target.string() + ": This is no regular file"));
    }
    std::string partial = target.string() + ".XXXXXX";
    FileDescriptor descriptor{::mkostemp(partial.data(), O_CLOEXEC)};
    if (!descriptor.isOpen()) {
        return std::unexpected(fileError(target, lastError()));
    }
    return ReplacingFile{std::move(target), std::move(partial), std::move(descriptor)};
}

ReplacingFile::~ReplacingFile()
{
    if (!m_partial.empty()) {
        ::unlink(m_partial.c_str());
    }
}

Result<void> ReplacingFile::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_descriptor.get(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return std::unexpected(fileError(m_target, lastError()));
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return {};
}

Result<void> ReplacingFile::commit()
{
    if (::fsync(m_descriptor.get()) != 0 ||
        ::rename(m_partial.c_str(), m_target.c_str()) != 0) {
        return std::unexpected(fileError(m_target, lastError()));
    }
    m_partial.clear();
    // Without this a power cut may bring the old file back; that the folder cannot be synced
    // on some file systems is no reason to call the new file a failure.
    const auto parent = std::filesystem::path{m_target}.replace_filename(".");
    const FileDescriptor folder{::open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    (void)::fsync(folder.get());
    return {};
}

FileDescriptor::~FileDescriptor()
{
    if (isOpen()) {
        ::close(m_descriptor);
    }
}

} // namespace Base
