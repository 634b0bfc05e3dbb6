// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>

namespace Web
{

namespace fs = std::filesystem;

namespace
{

constexpr const char *kModule = "KestHttpTransport.so";

std::unexpected<Base::KestError> missing(const std::string &reason)
{
    return std::unexpected(Base::KestError::unavailable(
        "The part that speaks to web services cannot be loaded: " + reason));
}

// Beside the program, as it is built, or where it is installed. Nowhere else: who names the
// folder of the module sees the keys.
fs::path moduleFile()
{
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path beside = folder / kModule;
    return fs::exists(beside, error) ? beside
                                     : folder.parent_path() / "lib" / "velvetnook" / kModule;
}

} // namespace

TransportOptions optionsOfEnvironment()
{
    const char *file = std::getenv("KEST_CA_FILE");
    return {.extraAuthorities = file == nullptr ? "" : file};
}

Base::Result<std::unique_ptr<Base::HttpTransport>>
openTransport(const TransportOptions &options)
{
    // Never closed: the libraries below it cannot be unloaded.
    void *const module = dlopen(moduleFile().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) {
        return missing(dlerror());
    }
    void *const symbol = dlsym(module, "kestMakeHttpTransport");
    if (symbol == nullptr) {
        return missing("it is of another version");
    }
    const auto make = reinterpret_cast<MakeHttpTransport *>(symbol);
    std::unique_ptr<Base::HttpTransport> transport{make(options)};
    if (transport == nullptr) {
        return missing("libcurl does not start");
    }
    return transport;
}

} // namespace Web
