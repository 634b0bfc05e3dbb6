// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

// What a program printed and how it ended.
struct Outcome {
    int status{};
    std::string out{};
    std::string err{};
};

// Runs kest on the data in this folder, without a terminal, its input from a file.
Outcome runKest(const std::filesystem::path &folder, std::vector<std::string> arguments,
                const std::filesystem::path &input = "/dev/null");

// Starts it and lets it run, its output thrown away; the caller waits for the process.
pid_t startKest(const std::filesystem::path &folder, std::vector<std::string> arguments);
