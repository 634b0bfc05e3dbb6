// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Levels/AudioLevels.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

// What the link tells, on a thread of its own. Each is the whole of what is known then; nothing
// instead of a volume: there is no server, or it has no device.
struct VolumeListener {
    std::function<void(std::optional<SystemVolume>)> volume{};
    std::function<void(std::vector<AudioStream>)> streams{};
};

// A connection to the sound server that lasts as long as this does and comes back after the
// server.
class VolumeLink
{
public:
    VolumeLink() = default;
    VolumeLink(const VolumeLink &) = delete;
    VolumeLink &operator=(const VolumeLink &) = delete;
    virtual ~VolumeLink() = default;

    virtual void setLevel(std::uint32_t stream, double level) = 0;
    virtual void setMuted(std::uint32_t stream, bool isMuted) = 0;
};

// What the module exports under the name kestOpenVolume; null when it has no memory or thread.
// The caller deletes it, on whatever thread but the link's own.
using OpenVolume = VolumeLink *(VolumeListener listener);

} // namespace Velvetnook
