// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Module.h"

#include <dlfcn.h>

#include <filesystem>

namespace Base
{

std::expected<void *, std::string> loadFromModule(const std::string &module, const char *symbol)
{
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    const auto beside = folder / module;
    const auto installed = folder.parent_path() / "lib" / "velvetnook" / module;
    const auto &file = std::filesystem::exists(beside, error) ? beside : installed;
    void *const loaded = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (loaded == nullptr) {
        return std::unexpected(std::string{dlerror()});
    }
    void *const found = dlsym(loaded, symbol);
    if (found == nullptr) {
        return std::unexpected(std::string{"it is of another version"});
    }
    return found;
}

} // namespace Base
