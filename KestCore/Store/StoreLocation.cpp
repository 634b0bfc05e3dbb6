// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StoreLocation.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace KestCore
{

namespace fs = std::filesystem;

namespace
{

std::string_view environment(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? std::string_view{} : std::string_view{value};
}

// The base directory convention says that a relative path is to be ignored.
fs::path dataHome()
{
    const fs::path chosen = environment("XDG_DATA_HOME");
    return chosen.is_absolute() ? chosen : homeDirectory() / ".local" / "share";
}

} // namespace

fs::path homeDirectory()
{
    if (const auto home = environment("HOME"); !home.empty()) {
        return home;
    }
    const passwd *user = getpwuid(getuid());
    return user == nullptr ? fs::path{"/"} : fs::path{user->pw_dir};
}

std::string_view bundleIdentifier() { return KEST_BUNDLE_IDENTIFIER; }

std::string_view dataDirectoryName(std::string_view bundleIdentifier)
{
    if (bundleIdentifier == "app.kest.native") {
        return "KestNative";
    }
    return bundleIdentifier == "app.kest.native.rc" ? "KestNative-RC" : "KestNative-QA";
}

fs::path dataDirectory()
{
    if (const auto chosen = environment("KEST_DATA_DIR"); !chosen.empty()) {
        return chosen;
    }
    return dataHome() / dataDirectoryName(bundleIdentifier());
}

} // namespace KestCore
