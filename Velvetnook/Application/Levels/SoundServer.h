// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Levels/AudioLevels.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

namespace Velvetnook
{

// Tells how loud the computer and each application is, and makes an application louder. Sleeps
// until something of it changes; waits for a server that is not there.
class SoundServer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Why nothing can be told; empty while it can.
    virtual QString problem() const = 0;
    virtual std::optional<SystemVolume> volume() const = 0;
    virtual std::vector<AudioStream> streams() const = 0;
    virtual void setLevel(std::uint32_t stream, double level) = 0;
    virtual void setMuted(std::uint32_t stream, bool isMuted) = 0;

signals:
    void volumeChanged();
    void streamsChanged();
    void problemChanged();
};

} // namespace Velvetnook
