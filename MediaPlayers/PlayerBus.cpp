// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MediaPlayers/PlayerBus.h"

#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

namespace MediaPlayers
{

namespace fs = std::filesystem;

namespace
{

using Base::KestError;

constexpr const char *kModule = "KestMediaPlayers.so";

KestError missing(const std::string &reason)
{
    return KestError::unavailable("The part that speaks to players cannot be loaded: " +
                                  reason);
}

// Beside the program, as it is built, or where it is installed. Nowhere else.
fs::path moduleFile()
{
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path beside = folder / kModule;
    return fs::exists(beside, error) ? beside
                                     : folder.parent_path() / "lib" / "velvetnook" / kModule;
}

} // namespace

Result<std::unique_ptr<PlayerBus>> open()
{
    // Never closed, like every module: nothing waits for that at the end of a process.
    void *const module = dlopen(moduleFile().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) {
        return std::unexpected(missing(dlerror()));
    }
    void *const symbol = dlsym(module, "kestOpenPlayerBus");
    if (symbol == nullptr) {
        return std::unexpected(missing("it is of another version"));
    }
    KestError error;
    std::unique_ptr<PlayerBus> bus{reinterpret_cast<OpenPlayerBus *>(symbol)(error)};
    if (bus == nullptr) {
        return std::unexpected(std::move(error));
    }
    return bus;
}

Result<Player> performAndRead(PlayerBus &bus, const Player &player, const Action &action)
{
    using namespace std::chrono_literals;
    KEST_CHECK(bus.perform(player, action));
    const auto end = std::chrono::steady_clock::now() + 500ms;
    while (true) {
        KEST_TRY(const auto players, bus.players());
        const auto now = std::ranges::find(players, player.name, &Player::name);
        if (now == players.end()) {
            return std::unexpected(KestError::unavailable("The player \"" + player.name +
                                                          "\" does not answer any more."));
        }
        if (hasFollowed(player, *now, action) || std::chrono::steady_clock::now() > end) {
            return *now;
        }
        std::this_thread::sleep_for(25ms);
    }
}

} // namespace MediaPlayers
