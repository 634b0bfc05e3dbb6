// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/PulseMixer.h"

#include "Base/Module.h"
#include "KestCore/Resources.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace Velvetnook
{

namespace
{

using std::chrono::milliseconds;

constexpr std::array<const char *, 8> kLoops{"rain",    "wind",  "stream", "night",
                                             "thunder", "brown", "pink",   "white"};
constexpr milliseconds kHeld{700}; // what the server still holds when a fade has ended

milliseconds inMilliseconds(Base::Seconds time)
{
    return milliseconds{static_cast<std::int64_t>(time.count() * 1000)};
}

} // namespace

// The loops are mapped and not read: only what is heard comes into memory.
struct PulseMixer::Player {
    std::function<void(const std::string &)> ended{};
    std::vector<std::unique_ptr<QFile>> files{};
    std::vector<SoundSamples> samples{};
    std::unique_ptr<LoopOutput> output{}; // after what it plays

    Base::Result<void> map()
    {
        for (const char *name : kLoops) {
            const auto path = KestCore::coreBundle().path(std::string{"loop-"} + name, "wav");
            auto file = std::make_unique<QFile>(
                QString::fromStdString(path ? path->string() : std::string{}));
            const uchar *bytes =
                file->open(QIODevice::ReadOnly) ? file->map(0, file->size()) : nullptr;
            if (bytes == nullptr) {
                return std::unexpected(
                    Base::KestError::unavailable("The sounds are not installed."));
            }
            KEST_TRY(const SoundSamples loop,
                     readWave({bytes, static_cast<std::size_t>(file->size())}));
            samples.push_back(loop);
            files.push_back(std::move(file));
        }
        return {};
    }
    void close()
    {
        output.reset();
        samples.clear();
        files.clear();
    }
};

PulseMixer::PulseMixer(QObject *parent) : SoundMixer{parent}
{
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &PulseMixer::stop);
}

PulseMixer::~PulseMixer() = default;

Base::Result<void> PulseMixer::open(Player &player)
{
    if (player.output) {
        return {};
    }
    const auto symbol = Base::loadFromModule("KestSound.so", "kestOpenLoops");
    if (!symbol) {
        return std::unexpected(Base::KestError::unavailable(
            "The part that plays sounds cannot be loaded: " + symbol.error()));
    }
    player.close();
    KEST_CHECK(player.map());
    Base::KestError error;
    player.output.reset(reinterpret_cast<OpenLoops *>(*symbol)(
        {.loops = player.samples, .ended = player.ended}, error));
    return player.output ? Base::Result<void>{} : std::unexpected(std::move(error));
}

void PulseMixer::play(const Gains &gains, Base::Seconds time)
{
    const bool isHeard =
        std::ranges::any_of(gains, [](const auto &gain) { return gain.second > 0; });
    if (!isHeard && !m_isHeard) {
        return;
    }
    m_end.stop();
    if (isHeard) {
        m_isHeard = true;
    } else {
        m_end.start(inMilliseconds(time) + kHeld);
    }
    fade(gains, time);
}

void PulseMixer::fade(const Gains &gains, Base::Seconds time)
{
    // The queue of this object dies with it, after its threads have ended.
    const auto onMainThread = [this](auto call) {
        auto shared = std::make_shared<decltype(call)>(std::move(call));
        QMetaObject::invokeMethod(this, [shared] { (*shared)(); }, Qt::QueuedConnection);
    };
    const auto fail = [this](const std::string &message) {
        stop();
        emit failed(QString::fromStdString(message));
    };
    if (!m_player) {
        m_player = std::make_unique<Base::Serial<Player>>(
            Player{.ended = [this, fail](const std::string &message) {
                QMetaObject::invokeMethod(
                    this, [fail, message] { fail(message); }, Qt::QueuedConnection);
            }});
    }
    std::vector<float> wanted;
    for (const char *name : kLoops) {
        const auto gain = gains.find(name);
        wanted.push_back(gain == gains.end() ? 0.0F : static_cast<float>(gain->second));
    }
    m_player->ask(
        [wanted, time = inMilliseconds(time)](Player &player) -> Base::Result<void> {
            KEST_CHECK(open(player));
            player.output->fadeTo(wanted, time);
            return {};
        },
        onMainThread,
        [fail](const Base::Result<void> &done) {
            if (!done) {
                fail(done.error().message);
            }
        });
}

void PulseMixer::stop()
{
    m_isHeard = false;
    m_end.stop();
    if (m_player) {
        (void)m_player->ask([](Player &player) { player.close(); });
    }
}

} // namespace Velvetnook
