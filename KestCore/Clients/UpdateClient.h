// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "KestCore/Clients/UpdateFeed.h"
#include "KestCore/Models/NativeState.h"

#include <filesystem>
#include <optional>
#include <string>

namespace KestCore
{

// What a build knows of itself.
struct UpdateBuild {
    std::string version{};
    UpdateChannel channel{};
    std::string publicKey{}; // empty: this build has no updates
    std::string address{};   // of the folder that holds the feeds; empty likewise
};

// This build, which is told its version by the program.
UpdateBuild thisBuild(std::string version);

// Whether the system's package manager installed this program: by the mark that packages put
// into ../share/velvetnook beside the program's folder, or by its list of files.
bool isPackaged(const std::filesystem::path &program,
                const std::filesystem::path &lists = "/var/lib/dpkg/info");

// Why nobody is asked: the build, the package manager or the setting "update.allowed", which
// is off until it is "true". Fails with unavailable, and a way out.
[[nodiscard]] Result<void> mayCheck(const UpdateBuild &build, const Settings &settings,
                                    bool isPackaged);

// What is known without asking. The feed that was taken last is kept in the settings and
// verified each time that it is read.
struct UpdateKnowledge {
    std::optional<Base::Instant> checkedAt{};
    std::optional<UpdateOffer> offer{}; // newer than this build
};
UpdateKnowledge knownUpdate(const UpdateBuild &build, const Settings &settings);

// Whether a day has passed since the last check, or the clock was set back before it.
bool isCheckDue(const Settings &settings, Base::Instant now);

// Asks, and changes the settings to what is known now. A failure is noted too, so that a
// server that is down is not asked again the same day; what was known stays. Fails with
// unavailable when there is no answer, and with invalidData for a feed that is not genuine, is
// of another channel, or is older than one that was seen.
[[nodiscard]] Result<void> checkForUpdate(Base::HttpTransport &transport,
                                          const UpdateBuild &build, Settings &settings,
                                          Base::Instant now, const std::stop_token &stop = {});

} // namespace KestCore
