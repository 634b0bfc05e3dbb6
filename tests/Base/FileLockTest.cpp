// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/FileLock.h"

#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <optional>
#include <thread>

namespace BaseTests
{

using Base::FileLock;
using std::chrono::milliseconds;

namespace
{

// Starts a process that holds the lock until it is killed; returns once it has it.
pid_t holdInChild(const std::filesystem::path &file)
{
    int ready[2] = {};
    if (::pipe(ready) != 0) {
        return -1;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        const auto lock = FileLock::take(file, "The store", milliseconds{0});
        const char word = lock ? 'y' : 'n';
        if (::write(ready[1], &word, 1) != 1) {
            ::_exit(1);
        }
        while (true) {
            ::pause();
        }
    }
    char word = 'n';
    const bool isTold = ::read(ready[0], &word, 1) == 1;
    ::close(ready[0]);
    ::close(ready[1]);
    return isTold && word == 'y' ? child : -1;
}

} // namespace

TEST(FileLock, RefusesASecondHolderAndSaysWhoHasIt)
{
    const TemporaryFolder folder;
    const auto file = folder.path() / "store.lock";
    std::optional lock = FileLock::take(file, "The store", milliseconds{0});
    ASSERT_TRUE(*lock);

    const auto second = FileLock::take(file, "The store", milliseconds{30});
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error(),
              Base::KestError::unavailable("The store is in use by BaseTests (process " +
                                           std::to_string(getpid()) + ")"));
    lock.reset();
    EXPECT_TRUE(FileLock::take(file, "The store", milliseconds{0}));
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST(FileLock, IsFreeOnceItsHolderWasKilled)
{
    const TemporaryFolder folder;
    const auto file = folder.path() / "store.lock";
    const pid_t child = holdInChild(file);
    ASSERT_GT(child, 0);
    const auto refused = FileLock::take(file, "The store", milliseconds{0});
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);

    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.error().message.ends_with("(process " + std::to_string(child) + ")"));
    EXPECT_TRUE(FileLock::take(file, "The store", milliseconds{0}));
    const auto self = "(process " + std::to_string(getpid()) + ")";
    EXPECT_TRUE(Base::readFile(file).value().ends_with(self));
}

TEST(FileLock, WaitsAsLongAsThePatienceLasts)
{
    const TemporaryFolder folder;
    const auto file = folder.path() / "store.lock";
    std::optional lock = FileLock::take(file, "The store", milliseconds{0});
    const std::jthread releaser{[&lock] {
        std::this_thread::sleep_for(milliseconds{50});
        lock.reset();
    }};
    EXPECT_TRUE(FileLock::take(file, "The store", std::chrono::minutes{5}));
}

TEST(FileLock, SaysWhatTheFileSystemRefused)
{
    const TemporaryFolder folder;
    const auto file = folder.path() / "missing" / "store.lock";
    EXPECT_EQ(FileLock::take(file, "The store", milliseconds{0}).error(),
              Base::KestError::unavailable(file.string() + ": No such file or directory"));
}

TEST(File, TakesThePlaceOfAnotherWholeOrNotAtAll)
{
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "data.json";
    std::ofstream{file} << "old";
    {
        auto given = Base::ReplacingFile::create(file).value();
        ASSERT_TRUE(given.write("a part of the new"));
    }
    EXPECT_EQ(Base::readFile(file), "old");
    auto given = Base::ReplacingFile::create(file).value();
    ASSERT_TRUE(given.write("ne") && given.write("w"));
    EXPECT_EQ(Base::readFile(file), "old");
    ASSERT_TRUE(given.commit());
    EXPECT_EQ(Base::readFile(file), "new");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(std::distance(fs::directory_iterator{folder.path()}, {}), 1);

    const fs::path other = folder.path() / "folder";
    auto blocked = Base::ReplacingFile::create(other).value();
    fs::create_directory(other);
    EXPECT_EQ(blocked.commit().error().message, other.string() + ": Is a directory");
    EXPECT_EQ(Base::ReplacingFile::create(other).error().message,
              other.string() + ": This is no regular file");
}

TEST(File, ReadsNoMoreThanAsked)
{
    const TemporaryFolder folder;
    std::ofstream{folder.path() / "file"} << "12345";
    EXPECT_EQ(Base::readFile(folder.path() / "file", 5), "12345");
    EXPECT_EQ(Base::readFile(folder.path() / "file", 4), "12345");
    EXPECT_EQ(Base::readFile(folder.path() / "file", 3), "1234");
    EXPECT_EQ(Base::readFile("/dev/zero", 100'000).value().size(), 100'001U);
}

TEST(File, ReadsWholeFilesAndThoseThatSayTheyAreEmpty)
{
    const TemporaryFolder folder;
    const std::string bytes(100'000, '\0');
    std::ofstream{folder.path() / "zeros"} << bytes;
    EXPECT_EQ(Base::readFile(folder.path() / "zeros").value(), bytes);
    std::ofstream{folder.path() / "nothing"} << "";
    EXPECT_EQ(Base::readFile(folder.path() / "nothing").value(), "");
    EXPECT_GT(Base::readFile("/proc/self/status").value().size(), 200U);
    EXPECT_EQ(Base::readFile(folder.path()).error().message,
              folder.path().string() + ": Is a directory");
}

} // namespace BaseTests
