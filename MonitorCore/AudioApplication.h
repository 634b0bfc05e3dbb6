// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

namespace MonitorCore
{

// An application that plays or may play sound.
struct AudioApplication {
    std::string id{};
    std::string name{};
    std::optional<std::string> bundleID{}; // its desktop-file id
    std::vector<ProcessKey> processes{};
    double gain{1}; // the factor of its volume; 1 leaves it as it is
    bool running{};

    bool operator==(const AudioApplication &) const = default;
};

consteval auto jsonFields(Of<AudioApplication>)
{
    using R = AudioApplication;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"name", &R::name},
        json::Field{"bundleID", &R::bundleID},
        json::Field{"processes", &R::processes},
        json::Field{"gain", &R::gain},
        json::Field{"running", &R::running},
    };
}
static_assert(json::coversAllMembers<AudioApplication>());

} // namespace MonitorCore
