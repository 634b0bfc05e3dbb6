// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

// A folder that stands in for the root of a machine.
class Machine
{
public:
    std::string root() const { return m_folder.path().string(); }
    std::string proc() const { return root() + "/proc"; }

    void write(const std::filesystem::path &file, std::string_view text)
    {
        std::filesystem::create_directories((m_folder.path() / file).parent_path());
        std::ofstream{m_folder.path() / file} << text;
    }
    void add(const std::filesystem::path &folder)
    {
        std::filesystem::create_directories(m_folder.path() / folder);
    }
    void remove(const std::filesystem::path &file)
    {
        std::filesystem::remove_all(m_folder.path() / file);
    }
    void forbid(const std::filesystem::path &file)
    {
        std::filesystem::permissions(m_folder.path() / file, std::filesystem::perms::none);
    }
    void link(const std::filesystem::path &file, std::string_view target)
    {
        std::filesystem::create_directories((m_folder.path() / file).parent_path());
        std::filesystem::remove(m_folder.path() / file);
        std::filesystem::create_symlink(target, m_folder.path() / file);
    }

    void cpu(std::uint64_t user, std::uint64_t system, std::uint64_t idle)
    {
        write("proc/stat", fmt::format("cpu  {} 0 {} {} 0 0 0 0 0 0\ncpu0 1 2 3 4\nbtime 9\n",
                                       user, system, idle));
    }
    // A disk's line: sectors read and written.
    static std::string disk(std::string_view name, std::uint64_t read, std::uint64_t written)
    {
        return fmt::format(" 8 0 {} 10 0 {} 5 20 0 {} 9 0 7 8\n", name, read, written);
    }
    static std::string interface(std::string_view name, std::uint64_t in, std::uint64_t out)
    {
        return fmt::format("{}:{} 1 0 0 0 0 0 0 {} 2 0 0 0 0 0 0\n", name, in, out);
    }

    struct Process {
        int pid{};
        std::uint64_t start{};
        std::string name = "tool";
        std::uint64_t ticks{};
        std::uint64_t written{};
    };
    void process(const Process &process)
    {
        const std::string folder = fmt::format("proc/{}", process.pid);
        write(folder + "/stat",
              fmt::format("{} ({}) S 1 7 7 0 -1 4194304 {} 0 0 0 {} 0 0 0 20 0 1 0 {} 90000 "
                          "300 18446744073709551615 1 1 0 0\n",
                          process.pid, process.name, process.ticks, process.ticks,
                          process.start));
        write(folder + "/statm", "900 300 100 1 0 50 0\n");
        write(folder + "/io",
              fmt::format("rchar: 1\nread_bytes: 0\nwrite_bytes: {}\n", process.written));
        write(folder + "/cgroup", "0::/user.slice/app.scope\n");
        link(folder + "/exe", "/usr/bin/tool");
        link(folder + "/cwd", "/home/someone");
    }

private:
    TemporaryFolder m_folder;
};

// Does things with an ordinary user's rights, as the superuser may read all. Folders made while
// this lives are open to that user.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_mask(::umask(022)) {}
    ~OrdinaryUser() { ::umask(m_mask); }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    void does(const auto &work) const
    {
        const uid_t user = ::geteuid();
        ASSERT_TRUE(user != 0 || ::seteuid(65'534) == 0);
        work();
        ASSERT_EQ(::seteuid(user), 0);
    }

private:
    mode_t m_mask;
};
