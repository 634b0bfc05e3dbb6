// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace Velvetnook
{

// How loud the computer is: 1 is as loud as it was built for, more is amplified.
struct SystemVolume {
    double level{};
    bool isMuted{};
    std::uint32_t device{}; // another number: the sound comes out elsewhere now

    bool operator==(const SystemVolume &) const = default;
};

// The sound of one application.
struct AudioStream {
    std::uint32_t index{};
    std::string application{};
    std::string title{}; // what it plays, as it says
    double level{};
    bool isMuted{};
    bool isPlaying{};

    bool operator==(const AudioStream &) const = default;
};

} // namespace Velvetnook
