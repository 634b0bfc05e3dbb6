// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/ResourceBundle.h"

#include "Base/Fault.h"
#include "Base/File.h"

#include <cstdlib>

namespace Base
{

namespace fs = std::filesystem;

namespace
{

std::vector<fs::path> bundleHomes()
{
    if (const char *chosen = std::getenv("KEST_RESOURCES"); chosen != nullptr && *chosen != 0) {
        return {chosen};
    }
    std::error_code error;
    const fs::path beside = fs::read_symlink("/proc/self/exe", error).parent_path();
    return {beside, beside.parent_path() / "share" / "velvetnook"};
}

} // namespace

ResourceBundle ResourceBundle::find(std::string_view name)
{
    for (const fs::path &home : bundleHomes()) {
        fs::path folder = home / (std::string{name} + ".bundle");
        std::error_code error;
        if (fs::is_directory(folder, error)) {
            return ResourceBundle{std::move(folder)};
        }
    }
    fatalFault("Base/ResourceBundle", "unable to find bundle named " + std::string{name});
}

std::optional<fs::path> ResourceBundle::path(std::string_view name,
                                             std::string_view extension) const
{
    fs::path file = m_folder / (std::string{name} + "." + std::string{extension});
    std::error_code error;
    return fs::is_regular_file(file, error) ? std::optional{std::move(file)} : std::nullopt;
}

std::string ResourceBundle::read(std::string_view name, std::string_view extension,
                                 std::string_view source) const
{
    const auto file = path(name, extension);
    if (!file) {
        fatalFault(source, "unable to find the resource " + std::string{name} + "." +
                               std::string{extension});
    }
    auto bytes = readFile(*file);
    if (!bytes) {
        fatalFault(source, bytes.error().message);
    }
    return *std::move(bytes);
}

} // namespace Base
