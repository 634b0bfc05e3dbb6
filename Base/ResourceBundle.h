// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Base
{

// A folder of read-only files that ships with the program.
class ResourceBundle
{
public:
    // Finds NAME.bundle in KEST_RESOURCES when that is set, else beside the executable, else
    // in the installed share folder. A missing bundle is a fault of the build and ends the
    // process with "unable to find bundle named NAME".
    static ResourceBundle find(std::string_view name);

    // The file NAME.EXTENSION, if the bundle has it.
    std::optional<std::filesystem::path> path(std::string_view name,
                                              std::string_view extension) const;

    // The bytes of that file. A missing or unreadable one ends the process, naming `source`.
    std::string read(std::string_view name, std::string_view extension,
                     std::string_view source) const;

    const std::filesystem::path &folder() const { return m_folder; }

private:
    explicit ResourceBundle(std::filesystem::path folder) : m_folder(std::move(folder)) {}

    std::filesystem::path m_folder;
};

} // namespace Base
