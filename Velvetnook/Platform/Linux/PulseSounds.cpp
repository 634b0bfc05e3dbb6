// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/PulseSounds.h"

#include "Base/Module.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace Velvetnook
{

PulseSounds::PulseSounds(QObject *parent) : Sounds{parent} {}

PulseSounds::~PulseSounds() = default;

void PulseSounds::play(Sound sound)
{
    if (std::exchange(m_isPlaying, true)) {
        return;
    }
    if (!m_player) {
        m_player = std::make_unique<Base::Serial<Player>>(Player{});
    }
    const auto onMainThread = [this](auto call) {
        auto shared = std::make_shared<decltype(call)>(std::move(call));
        QMetaObject::invokeMethod(this, [shared] { (*shared)(); }, Qt::QueuedConnection);
    };
    m_player->ask([sound](Player &player) { return playNow(player, sound); }, onMainThread,
                  [this](const Base::Result<void> &result) {
                      m_isPlaying = false;
                      m_problem =
                          result ? QString{} : QString::fromStdString(result.error().message);
                      emit played(m_problem);
                  });
}

Base::Result<void> PulseSounds::playNow(Player &player, Sound sound)
{
    if (player.module == nullptr) {
        const auto symbol = Base::loadFromModule("KestSound.so", "kestPlaySound");
        if (!symbol) {
            return std::unexpected(Base::KestError::unavailable(
                "The part that plays sounds cannot be loaded: " + symbol.error()));
        }
        player.module = reinterpret_cast<PlaySound *>(*symbol);
    }
    QFile file{sound == Sound::completion ? QStringLiteral(":/velvetnook/sounds/completion.wav")
                                          : QStringLiteral(":/velvetnook/sounds/reminder.wav")};
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("unable to find our own sounds");
    }
    const QByteArray bytes = file.readAll();
    KEST_TRY(const SoundSamples samples,
             readWave({reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                       static_cast<std::size_t>(bytes.size())}));
    Base::KestError error;
    if (!player.module(samples, error)) {
        return std::unexpected(error);
    }
    return {};
}

QString PulseSounds::server()
{
    QString named = qEnvironmentVariable("PULSE_SERVER");
    if (!named.isEmpty()) {
        return named;
    }
    const QString socket =
        qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1String{"/pulse/native"};
    return QFileInfo::exists(socket) ? socket : QString{};
}

ServiceState PulseSounds::state() const
{
    using KestCore::Availability;
    if (!m_problem.isEmpty()) {
        return {.availability = Availability::error, .message = m_problem};
    }
    if (server().isEmpty()) {
        return {.availability = Availability::offline,
                .message = tr("There is no sound server in this session.")};
    }
    return {.availability = Availability::ready, .message = {}};
}

} // namespace Velvetnook
