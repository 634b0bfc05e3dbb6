// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

// An empty folder that goes with the test.
class TemporaryFolder
{
public:
    explicit TemporaryFolder(
        const std::filesystem::path &parent = std::filesystem::temp_directory_path())
    {
        std::string name = (parent / "kest-test-XXXXXX").string();
        m_path = ::mkdtemp(name.data());
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::filesystem::path &path() const { return m_path; }
    std::filesystem::path database() const { return m_path / "kest.sqlite"; }

private:
    std::filesystem::path m_path;
};
