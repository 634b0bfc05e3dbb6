// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "Velvetnook/Platform/Sound/SoundOutput.h"
#include "Velvetnook/Platform/Sounds.h"

#include <memory>

namespace Velvetnook
{

// Plays through the sound server on a thread of its own, which comes into being with the first
// sound, and so does the library below it. Its end waits for the sound that is being played,
// and with a server that has stopped answering for the few seconds after which it is given up.
class PulseSounds : public Sounds
{
    Q_OBJECT

public:
    explicit PulseSounds(QObject *parent = nullptr);
    ~PulseSounds() override;
    PulseSounds(const PulseSounds &) = delete;
    PulseSounds &operator=(const PulseSounds &) = delete;

    void play(Sound sound) override;
    ServiceState state() const override;

    // Where the sound server of this session would be; empty when there is none.
    static QString server();

private:
    struct Player {
        PlaySound *module = nullptr;
    };
    [[nodiscard]] static Base::Result<void> playNow(Player &player, Sound sound);

    std::unique_ptr<Base::Serial<Player>> m_player;
    QString m_problem;
    bool m_isPlaying = false;
};

} // namespace Velvetnook
