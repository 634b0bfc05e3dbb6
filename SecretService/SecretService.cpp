// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "SecretService/SecretService.h"

#include <dlfcn.h>

#include <filesystem>

namespace Keyring
{

namespace fs = std::filesystem;

namespace
{

constexpr const char *kModule = "KestSecretService.so";

Base::SecretFailure missing(const std::string &reason)
{
    return {.kind = Base::SecretFailure::Kind::noService,
            .message = "The part that speaks to the keyring cannot be loaded: " + reason};
}

// Beside the program, as it is built, or where it is installed. Nowhere else: who names the
// folder of the module gets the key.
fs::path moduleFile()
{
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path beside = folder / kModule;
    return fs::exists(beside, error) ? beside
                                     : folder.parent_path() / "lib" / "velvetnook" / kModule;
}

} // namespace

Base::SecretResult<std::unique_ptr<Base::SecretStore>> open(Prompts prompts)
{
    // Never closed: the libraries below it cannot be unloaded.
    void *const module = dlopen(moduleFile().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) {
        return std::unexpected(missing(dlerror()));
    }
    void *const symbol = dlsym(module, "kestMakeSecretStore");
    if (symbol == nullptr) {
        return std::unexpected(missing("it is of another version"));
    }
    const auto make = reinterpret_cast<MakeSecretStore *>(symbol);
    return std::unique_ptr<Base::SecretStore>{make(prompts)};
}

} // namespace Keyring
