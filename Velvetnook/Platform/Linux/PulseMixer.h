// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "Velvetnook/Application/SoundMixer.h"
#include "Velvetnook/Platform/Sound/LoopOutput.h"

#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

namespace Velvetnook
{

// Mixes through the sound server. The library, the connection and the loops come with the first
// sound and, but for the library, go when the last one has faded.
class PulseMixer : public SoundMixer
{
    Q_OBJECT

public:
    explicit PulseMixer(QObject *parent = nullptr);
    ~PulseMixer() override;
    PulseMixer(const PulseMixer &) = delete;
    PulseMixer &operator=(const PulseMixer &) = delete;

    void play(const Gains &gains, Base::Seconds fade) override;

private:
    struct Player;

    [[nodiscard]] static Base::Result<void> open(Player &player);
    void fade(const Gains &gains, Base::Seconds time);
    void stop();

    QTimer m_end; // when all has faded
    bool m_isHeard = false;
    std::unique_ptr<Base::Serial<Player>> m_player; // last, so that it ends first
};

} // namespace Velvetnook
