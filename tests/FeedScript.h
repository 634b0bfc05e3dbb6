// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"
#include "tests/TemporaryFolder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

// The script that signs the feed of a release, in a folder with a package and its notes. Who
// includes this defines KEST_MAKE_FEED.
class FeedScript
{
public:
    explicit FeedScript(const std::string &notes)
    {
        std::ofstream{m_folder.path() / "package"} << "0123456789";
        std::ofstream{m_folder.path() / "notes"} << notes;
    }

    // What it prints.
    std::string run(const std::string &words) const
    {
        const std::string out = m_folder.path() / "out";
        const std::string command = fmt::format(
            "cd '{}' && '{}' {} > '{}'", m_folder.path().string(), KEST_MAKE_FEED, words, out);
        EXPECT_EQ(std::system(command.c_str()), 0) << command; // NOLINT(*-command-processor)
        return Base::readFile(out).value();
    }
    // Makes a pair of keys and gives the public one.
    std::string keys(const std::string &file) const
    {
        std::string key = run("keys " + file);
        key.pop_back();
        return key;
    }

private:
    TemporaryFolder m_folder;
};
