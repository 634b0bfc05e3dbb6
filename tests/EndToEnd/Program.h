// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

// What a program printed and how it ended.
struct Outcome {
    int status{};
    std::string out{};
    std::string err{};
};

// Runs kest on the data in this folder, without a terminal.
Outcome runKest(const std::filesystem::path &folder, std::vector<std::string> arguments);
