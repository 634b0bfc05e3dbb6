// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/SoundMixViewModel.h"

#include "Base/Text.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/SoundMixer.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolServices.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace
{

// Named once more for the translators, who do not read the engines.
[[maybe_unused]] constexpr const char *kTexts[]{
    QT_TRANSLATE_NOOP("Engine", "The sounds are not installed."),
};

constexpr const char *kMixKey = "sounds.mix";
constexpr const char *kVolumeKey = "sounds.volume";
constexpr const char *kSleepKey = "sounds.sleepMinutes";

constexpr Base::Seconds kFadeIn{1.2};
constexpr Base::Seconds kFadeOut{0.8};
constexpr Base::Seconds kFadeToSleep{12};
constexpr Base::Seconds kFollowHand{0.12};
constexpr double kUsualVolume = 0.5;
constexpr int kLongestSleep = 24 * 60;
constexpr std::array kSleeps{0, 15, 30, 45, 60, 90, 120};

struct Sound {
    const char *id;
    const char *title;
    const char *icon;
};
constexpr std::array kSounds{
    Sound{"rain", QT_TRANSLATE_NOOP("Sounds", "Rain"), "rain"},
    Sound{"wind", QT_TRANSLATE_NOOP("Sounds", "Wind"), "wind"},
    Sound{"stream", QT_TRANSLATE_NOOP("Sounds", "Stream"), "drop"},
    Sound{"night", QT_TRANSLATE_NOOP("Sounds", "Night garden"), "moon"},
    Sound{"thunder", QT_TRANSLATE_NOOP("Sounds", "Far thunder"), "cloud"},
    Sound{"brown", QT_TRANSLATE_NOOP("Sounds", "Brown noise"), "sounds"},
    Sound{"pink", QT_TRANSLATE_NOOP("Sounds", "Pink noise"), "sounds"},
    Sound{"white", QT_TRANSLATE_NOOP("Sounds", "White noise"), "sounds"},
};

bool isSound(std::string_view id)
{
    return std::ranges::any_of(kSounds, [id](const Sound &sound) { return id == sound.id; });
}

// "rain:0.62,stream:0.28". What makes no sense is passed over.
std::map<std::string, double> mixFrom(std::string_view text)
{
    std::map<std::string, double> mix;
    while (!text.empty()) {
        const std::string_view piece = text.substr(0, text.find(','));
        text.remove_prefix(std::min(piece.size() + 1, text.size()));
        const std::size_t colon = std::min(piece.find(':'), piece.size());
        const auto volume =
            Base::numberFrom<double>(piece.substr(std::min(colon + 1, piece.size())));
        if (isSound(piece.substr(0, colon)) && volume && *volume >= 0 && *volume <= 1) {
            mix.emplace(piece.substr(0, colon), *volume);
        }
    }
    return mix;
}

std::string textOf(const std::map<std::string, double> &mix)
{
    std::string text;
    for (const auto &[id, volume] : mix) {
        text += fmt::format("{}{}:{:.2f}", text.empty() ? "" : ",", id, volume);
    }
    return text;
}

// An ear hears the square root of what is sent.
double loudness(double volume) { return volume * volume; }

} // namespace

SoundMixViewModel::SoundMixViewModel(ApplicationModel &model, const Formatting &formatting,
                                     std::shared_ptr<const ToolServices> services,
                                     QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_services{std::move(services)}
{
    read();
    m_keep.setSingleShot(true);
    m_keep.setInterval(std::chrono::seconds{1});
    connect(&m_keep, &QTimer::timeout, this, &SoundMixViewModel::keep);
    connect(&model, &ApplicationModel::choicesChanged, this, &SoundMixViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, &SoundMixViewModel::changed);
    model.clock().add(
        this,
        [this](Base::Instant now) -> std::optional<Base::Instant> {
            if (!m_sleepAt || !m_isShown) {
                return m_sleepAt;
            }
            // The minutes that are left are counted where they are seen.
            const double minutes = std::ceil((*m_sleepAt - now).count() / 60) - 1;
            return *m_sleepAt - Base::Seconds{std::max(minutes, 0.0) * 60 - 0.01};
        },
        [this](Base::Instant now) {
            if (m_sleepAt && now >= *m_sleepAt) {
                end(kFadeToSleep);
            }
            emit changed();
        });
}

SoundMixViewModel::~SoundMixViewModel() { keep(); }

void SoundMixViewModel::read()
{
    m_kept = m_model.setting(kMixKey);
    m_mix = mixFrom(m_kept);
    const auto volume = Base::numberFrom<double>(m_model.setting(kVolumeKey));
    m_volume = volume && *volume >= 0 && *volume <= 1 ? *volume : kUsualVolume;
}

void SoundMixViewModel::follow()
{
    if (m_isPlaying && !isToolOn(m_model.state(), "sounds")) {
        end(kFadeOut);
    }
    if (!m_keep.isActive() && m_model.setting(kMixKey) != m_kept) {
        read(); // another program has changed it
        if (m_isPlaying) {
            mix(kFadeIn);
        }
    }
    emit changed();
}

void SoundMixViewModel::setShown(bool isShown)
{
    m_isShown = isShown;
    m_model.clock().reschedule();
    emit changed();
}

QVariantList SoundMixViewModel::sounds() const
{
    QVariantList all;
    for (const Sound &sound : kSounds) {
        const auto volume = m_mix.find(sound.id);
        const bool isIn = volume != m_mix.end();
        all.push_back(QVariantMap{
            {QStringLiteral("id"), QLatin1String{sound.id}},
            {QStringLiteral("title"), QCoreApplication::translate("Sounds", sound.title)},
            {QStringLiteral("icon"), QLatin1String{sound.icon}},
            {QStringLiteral("isIn"), isIn},
            {QStringLiteral("volume"), isIn ? volume->second : kUsualVolume}});
    }
    return all;
}

QString SoundMixViewModel::volumeText() const
{
    return tr("%1%").arg(m_formatting.number(std::llround(m_volume * 100)));
}

int SoundMixViewModel::sleepMinutes() const
{
    const int minutes = Base::numberFrom<int>(m_model.setting(kSleepKey)).value_or(0);
    return minutes > 0 && minutes <= kLongestSleep ? minutes : 0;
}

QString SoundMixViewModel::sleepText() const
{
    if (sleepMinutes() == 0) {
        return tr("Until you stop it");
    }
    const double left =
        m_sleepAt ? (*m_sleepAt - m_model.now()).count() : 60.0 * sleepMinutes();
    return tr("Off in %1", "30 min").arg(m_formatting.remaining(std::max(left, 60.0)));
}

QVariantList SoundMixViewModel::sleepChoices() const
{
    QVariantList choices;
    for (const int minutes : kSleeps) {
        choices.push_back(QVariantMap{
            {QStringLiteral("value"), minutes},
            {QStringLiteral("text"),
             minutes == 0
                 ? tr("Until you stop it")
                 : tr("Off in %1", "30 min").arg(m_formatting.remaining(60.0 * minutes))},
            {QStringLiteral("checked"), minutes == sleepMinutes()}});
    }
    return choices;
}

QString SoundMixViewModel::footer() const
{
    if (!m_problem.isEmpty()) {
        return m_problem;
    }
    const int count = static_cast<int>(m_mix.size());
    if (count == 0) {
        return tr("Choose a sound, or several together");
    }
    return m_isPlaying ? tr("%n sound(s) playing together", nullptr, count)
                       : tr("%n sound(s) paused", nullptr, count);
}

void SoundMixViewModel::toggle(const QString &id)
{
    const std::string sound = id.toStdString();
    if (!isSound(sound)) {
        return;
    }
    if (m_mix.erase(sound) == 0) {
        m_mix.emplace(sound, kUsualVolume);
        begin();
    } else if (m_mix.empty()) {
        end(kFadeOut);
    } else if (m_isPlaying) {
        mix(kFadeOut);
    }
    keepSoon();
    emit changed();
}

void SoundMixViewModel::setSoundVolume(const QString &id, double volume)
{
    const auto sound = m_mix.find(id.toStdString());
    if (sound == m_mix.end() || !std::isfinite(volume)) {
        return;
    }
    sound->second = std::clamp(volume, 0.0, 1.0);
    mix(kFollowHand);
    keepSoon();
    emit changed();
}

void SoundMixViewModel::setVolume(double volume)
{
    if (!std::isfinite(volume)) {
        return;
    }
    m_volume = std::clamp(volume, 0.0, 1.0);
    mix(kFollowHand);
    keepSoon();
    emit changed();
}

void SoundMixViewModel::playOrPause()
{
    if (m_isPlaying) {
        end(kFadeOut);
    } else if (!m_mix.empty()) {
        begin();
    }
    emit changed();
}

void SoundMixViewModel::begin()
{
    if (m_mixer == nullptr && m_services->makeSoundMixer) {
        m_mixer = m_services->makeSoundMixer(this);
        connect(m_mixer, &SoundMixer::failed, this, [this](const QString &message) {
            m_isPlaying = false;
            m_sleepAt.reset();
            m_problem = engineText(message.toStdString());
            m_model.clock().reschedule();
            emit changed();
        });
    }
    if (m_mixer == nullptr) {
        m_problem = tr("There is no way to play sounds here.");
        return;
    }
    m_problem.clear();
    if (!std::exchange(m_isPlaying, true) && sleepMinutes() > 0) {
        m_sleepAt = m_model.now() + Base::Seconds{60.0 * sleepMinutes()};
        m_model.clock().reschedule();
    }
    mix(kFadeIn);
}

void SoundMixViewModel::end(Base::Seconds fade)
{
    m_isPlaying = false;
    m_sleepAt.reset();
    m_model.clock().reschedule();
    if (m_mixer != nullptr) {
        m_mixer->play({}, fade);
    }
}

void SoundMixViewModel::mix(Base::Seconds fade)
{
    if (!m_isPlaying || m_mixer == nullptr) {
        return;
    }
    SoundMixer::Gains gains;
    for (const auto &[id, volume] : m_mix) {
        gains[id] = loudness(volume) * m_volume;
    }
    m_mixer->play(gains, fade);
}

void SoundMixViewModel::setSleepMinutes(int minutes)
{
    const int wanted = std::clamp(minutes, 0, kLongestSleep);
    m_sleepAt.reset();
    if (m_isPlaying && wanted > 0) {
        m_sleepAt = m_model.now() + Base::Seconds{60.0 * wanted};
    }
    m_model.changeSetting(kSleepKey, std::to_string(wanted));
    m_model.clock().reschedule();
    emit changed();
}

void SoundMixViewModel::keepSoon() { m_keep.start(); }

void SoundMixViewModel::keep()
{
    const std::string mix = textOf(m_mix);
    const std::string volume = fmt::format("{:.2f}", m_volume);
    m_keep.stop();
    m_kept = mix;
    const std::string_view stored = m_model.setting(kVolumeKey);
    const bool isSameVolume = stored.empty() ? m_volume == kUsualVolume : stored == volume;
    if (m_model.setting(kMixKey) == mix && isSameVolume) {
        return;
    }
    m_model.changeState([mix, volume](KestCore::NativeState &state) -> Result<void> {
        state.settings.insert_or_assign(kMixKey, mix);
        state.settings.insert_or_assign(kVolumeKey, volume);
        return {};
    });
}

} // namespace Velvetnook
