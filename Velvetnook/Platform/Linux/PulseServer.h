// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Levels/SoundServer.h"

#include <memory>

namespace Velvetnook
{

class VolumeLink;

// Through libpulse, which is loaded with the first of these.
class PulseServer : public SoundServer
{
    Q_OBJECT

public:
    explicit PulseServer(QObject *parent = nullptr);
    ~PulseServer() override;
    PulseServer(const PulseServer &) = delete;
    PulseServer &operator=(const PulseServer &) = delete;

    QString problem() const override;
    std::optional<SystemVolume> volume() const override { return m_volume; }
    std::vector<AudioStream> streams() const override { return m_streams; }
    void setLevel(std::uint32_t stream, double level) override;
    void setMuted(std::uint32_t stream, bool isMuted) override;

private:
    void begin();
    void takeVolume(std::optional<SystemVolume> volume);
    void takeStreams(std::vector<AudioStream> streams);

    QString m_failure; // of the module
    std::optional<SystemVolume> m_volume;
    bool m_isAnswered = false; // before that nothing is known of the server
    std::vector<AudioStream> m_streams;
    std::unique_ptr<VolumeLink> m_link; // last: it goes first, and with it its thread
};

} // namespace Velvetnook
