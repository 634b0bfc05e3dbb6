// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

// Where the data of one build on one user's machine lives.
namespace KestCore
{

// The identifier this build was made with ("app.kest.native" for a release).
std::string_view bundleIdentifier();

// The name of the data folder of a build, so that builds never share data.
std::string_view dataDirectoryName(std::string_view bundleIdentifier);

// HOME when set, else as the system has it.
std::filesystem::path homeDirectory();

// KEST_DATA_DIR when set, else this build's folder in the user's XDG data home.
std::filesystem::path dataDirectory();

inline constexpr std::string_view kDatabaseName = "kest.sqlite";

} // namespace KestCore
