// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>
#include <tuple>

namespace Base
{

namespace
{

constexpr std::chrono::milliseconds kRetryEvery{10};

std::string ownName()
{
    auto name = readFile("/proc/self/comm").value_or("a program\n");
    while (name.ends_with('\n')) {
        name.pop_back();
    }
    return name + " (process " + std::to_string(getpid()) + ")";
}

// For the reader of the error message only: the lock itself does not depend on the text.
void writeHolder(int descriptor)
{
    const std::string holder = ownName();
    if (ftruncate(descriptor, 0) == 0) {
        std::ignore = pwrite(descriptor, holder.data(), holder.size(), 0);
    }
}

} // namespace

Result<FileLock> FileLock::take(const std::filesystem::path &file, std::string_view what,
                                std::chrono::milliseconds patience, const std::stop_token &stop)
{
    FileDescriptor descriptor{::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)};
    if (!descriptor.isOpen()) {
        return std::unexpected(fileError(file, {errno, std::generic_category()}));
    }
    const auto giveUpAt = std::chrono::steady_clock::now() + patience;
    while (flock(descriptor.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) {
            return std::unexpected(fileError(file, {errno, std::generic_category()}));
        }
        if (std::chrono::steady_clock::now() >= giveUpAt || stop.stop_requested()) {
            const auto holder = readFile(file).value_or("");
            return std::unexpected(KestError::unavailable(
                std::string{what} + " is in use by " +
                (holder.empty() ? std::string{"another program"} : holder)));
        }
        std::this_thread::sleep_for(kRetryEvery);
    }
    writeHolder(descriptor.get());
    return FileLock{std::move(descriptor)};
}

} // namespace Base
