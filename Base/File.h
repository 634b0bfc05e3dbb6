// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace Base
{

// The whole file, or of a longer one `limit` + 1 bytes, with room behind them as a JSON parser
// needs it. Fails with unavailable, in the system's words.
[[nodiscard]] Result<std::string>
readFile(const std::filesystem::path &file,
         std::size_t limit = std::numeric_limits<std::size_t>::max() - 1);

// The same of a file that is open already, such as standard input; a failure calls it `name`.
[[nodiscard]] Result<std::string>
readDescriptor(int descriptor, const std::filesystem::path &name,
               std::size_t limit = std::numeric_limits<std::size_t>::max() - 1);

// What the file system refused, such as "/x/y: Permission denied".
KestError fileError(const std::filesystem::path &file, std::error_code code);

// Private all the way down: the folders above are made only when they are missing. Fails with
// unavailable, in the system's words.
[[nodiscard]] Result<void> makePrivateDirectory(const std::filesystem::path &directory);

// Makes the file, if it is missing, and makes it the user's alone to read. SQLite gives its
// side files the mode of the database file, so that must be right before they come into being.
// What fails here fails again, with a message, when the file is opened.
void makePrivateFile(const std::filesystem::path &file);

// Tells whether a name still leads to the same file.
struct FileIdentity {
    std::uint64_t device{};
    std::uint64_t number{};

    bool operator==(const FileIdentity &) const = default;
};

// None when there is no such file.
std::optional<FileIdentity> fileIdentity(const std::filesystem::path &file);

// A file descriptor with one owner.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileDescriptor();

    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }

private:
    int m_descriptor = -1;
};

// A file that is written beside the one whose place it takes, so that a reader sees the old
// one or the new one and never a part. Only the user can read it. A link is followed and stays.
// Every failure is unavailable, in the system's words, and leaves the old file as it is.
class ReplacingFile
{
public:
    // Fails for a target that is there and no file, such as a folder, a pipe or a device.
    [[nodiscard]] static Result<ReplacingFile> create(std::filesystem::path target);
    ReplacingFile(const ReplacingFile &) = delete;
    ReplacingFile &operator=(const ReplacingFile &) = delete;
    ReplacingFile(ReplacingFile &&) noexcept = default;
    ReplacingFile &operator=(ReplacingFile &&) = delete;
    // What was not committed is removed.
    ~ReplacingFile();

    [[nodiscard]] Result<void> write(std::string_view bytes);
    // Takes the target's place once every byte is on the disk.
    [[nodiscard]] Result<void> commit();

private:
    ReplacingFile(std::filesystem::path target, std::string partial, FileDescriptor descriptor);

    std::filesystem::path m_target;
    std::string m_partial; // empty once committed
    FileDescriptor m_descriptor;
};

} // namespace Base
