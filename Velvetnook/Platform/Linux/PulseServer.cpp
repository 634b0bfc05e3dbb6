// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/PulseServer.h"

#include "Base/Module.h"
#include "Velvetnook/Platform/Volume/VolumeLink.h"

#include <QCoreApplication>
#include <QPointer>

#include <utility>

namespace Velvetnook
{

PulseServer::PulseServer(QObject *parent) : SoundServer{parent} { begin(); }

PulseServer::~PulseServer() = default;

void PulseServer::begin()
{
    const auto symbol = Base::loadFromModule("KestVolume.so", "kestOpenVolume");
    if (!symbol) {
        m_failure = tr("The part that knows volumes cannot be loaded: %1")
                        .arg(QString::fromStdString(symbol.error()));
        return;
    }
    // Posted to the application: this may be on its way out when the link tells something.
    const auto post = [owner = QPointer{this}](auto call) {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [owner, call = std::move(call)] {
                if (owner) {
                    call(*owner);
                }
            },
            Qt::QueuedConnection);
    };
    auto *open = reinterpret_cast<OpenVolume *>(*symbol);
    m_link.reset(
        open({.volume =
                  [post](std::optional<SystemVolume> volume) {
                      post([volume](PulseServer &server) { server.takeVolume(volume); });
                  },
              .streams =
                  [post](std::vector<AudioStream> streams) {
                      post([streams = std::move(streams)](PulseServer &server) {
                          server.takeStreams(streams);
                      });
                  }}));
    if (!m_link) {
        m_failure = tr("The sound server cannot be asked.");
    }
}

QString PulseServer::problem() const
{
    if (!m_failure.isEmpty()) {
        return m_failure;
    }
    return m_volume || !m_isAnswered ? QString{}
                                     : tr("There is no sound server in this session.");
}

void PulseServer::takeVolume(std::optional<SystemVolume> volume)
{
    const bool wasThere = m_volume.has_value() || !m_isAnswered;
    m_isAnswered = true;
    if (std::exchange(m_volume, volume) != volume) {
        emit volumeChanged();
    }
    if (wasThere != m_volume.has_value()) {
        emit problemChanged();
    }
}

void PulseServer::takeStreams(std::vector<AudioStream> streams)
{
    if (m_streams != streams) {
        m_streams = std::move(streams);
        emit streamsChanged();
    }
}

void PulseServer::setLevel(std::uint32_t stream, double level)
{
    if (m_link) {
        m_link->setLevel(stream, level);
    }
}

void PulseServer::setMuted(std::uint32_t stream, bool isMuted)
{
    if (m_link) {
        m_link->setMuted(stream, isMuted);
    }
}

} // namespace Velvetnook
