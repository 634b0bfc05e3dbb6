// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/MusicViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Players.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolServices.h"

#include <QFileInfo>
#include <QUrl>
#include <QVariantMap>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::BrowserPlayback;
using MediaPlayers::Player;

// Named once more for the translators, who do not read the engines.
[[maybe_unused]] constexpr const char *kTexts[]{
    QT_TRANSLATE_NOOP("Engine", "There is no session bus here, so no player can be asked."),
    QT_TRANSLATE_NOOP("Engine", "The session bus does not answer."),
    QT_TRANSLATE_NOOP(
        "Engine", "The connected tab is not open any more. Connect another, or disconnect it."),
    QT_TRANSLATE_NOOP("Engine", "Invalid playback details."),
    QT_TRANSLATE_NOOP("Engine", "Playback response is too large."),
    QT_TRANSLATE_NOOP("Engine", "What listens on the port is no browser."),
};

constexpr const char *kSourceKey = "music.player";
constexpr const char *kStripKey = "music.strip";
constexpr const char *kTabSource = "tab:";
constexpr Base::Seconds kReadTabEvery{5}; // while it is seen

QString shownName(const Player &player)
{
    return QString::fromStdString(player.identity.empty() ? player.name : player.identity);
}

} // namespace

MusicViewModel::MusicViewModel(ApplicationModel &model, const Formatting &formatting,
                               std::shared_ptr<const ToolServices> services, QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting},
      m_services{std::move(services)}, m_tab{model, m_services}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &MusicViewModel::follow);
    connect(&m_tab, &TabPlayback::changed, this, &MusicViewModel::chooseNow);
    connect(&m_tab, &TabPlayback::failed, this, &MusicViewModel::failed);
    connect(&formatting, &Formatting::wordsChanged, this, &MusicViewModel::changed);
    model.clock().add(
        this,
        [this](Base::Instant) -> std::optional<Base::Instant> {
            const bool isCounting = m_isShown && isPlaying();
            // A moment after the second, so that its roundness does not hold it back.
            const double passed =
                (m_shownAt - m_readAt).count() + (m_now ? m_now->position : 0);
            const Base::Instant second =
                m_shownAt + Base::Seconds{std::floor(passed) + 1.001 - passed};
            return isCounting ? std::optional{second} : std::nullopt;
        },
        [this](Base::Instant now) {
            m_shownAt = now;
            emit positionChanged();
            if (m_isShown && m_isTab && now - m_readAt >= kReadTabEvery) {
                m_tab.perform({});
            }
        });
    follow();
}

MusicViewModel::~MusicViewModel() = default;

bool MusicViewModel::isOn() const { return isToolOn(m_model.state(), "music"); }

// Nobody is followed for a tool that is turned off.
void MusicViewModel::follow()
{
    if (!isOn()) {
        delete std::exchange(m_players, nullptr);
        m_found.clear();
        m_playing.clear();
    } else if (m_players == nullptr && m_services->makePlayers) {
        m_players = m_services->makePlayers(this);
        connect(m_players, &Players::changed, this, &MusicViewModel::followPlayers);
        connect(m_players, &Players::failed, this, [this](const QString &message) {
            emit failed(engineText(message.toStdString()));
        });
        m_players->begin();
    }
    chooseNow();
}

void MusicViewModel::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) == isShown) {
        return;
    }
    if (isShown) {
        m_tab.perform({});
        if (m_players != nullptr) {
            m_players->read();
        }
    }
    m_shownAt = m_model.now();
    m_model.clock().reschedule();
    tellPlaying();
    emit positionChanged();
    emit isShownChanged();
}

std::string MusicViewModel::lastActive() const
{
    return m_lastStarted.empty() ? KestCore::lastPlayer(m_model.state().settings)
                                 : m_lastStarted;
}

void MusicViewModel::followPlayers()
{
    std::set<std::string> playing;
    for (const Player &player : m_players->players()) {
        if (player.status != Player::Status::playing) {
            continue;
        }
        if (!m_playing.contains(player.name)) {
            m_lastStarted = player.name;
        }
        playing.insert(player.name);
    }
    m_playing = std::move(playing);
    m_found =
        MediaPlayers::withoutDoubles(MediaPlayers::inOrder(m_players->players(), lastActive()));
    chooseNow();
}

// The one that the user has chosen, as long as it is there. Else what plays, the connected tab
// before the players; else what could.
void MusicViewModel::chooseNow()
{
    const std::string_view chosen = m_model.setting(kSourceKey);
    const auto &tab = m_tab.playback();
    const bool isTabThere = isOn() && m_tab.isConnected() && tab;
    m_player.reset();
    if (const auto *wanted = MediaPlayers::find(m_found, chosen)) {
        m_player = *wanted;
    } else if (!m_found.empty()) {
        m_player = m_found.front();
    }
    const bool isPlayerChosen = m_player && m_player->name == chosen;
    const bool isPlayerLouder =
        m_player && m_player->status == Player::Status::playing && !(tab && tab->playing);
    m_isTab = isTabThere && (chosen == kTabSource || (!isPlayerChosen && !isPlayerLouder));
    if (m_isTab) {
        show(tab);
    } else {
        show(m_player ? std::optional{MediaPlayers::playbackOf(*m_player)} : std::nullopt);
    }
}

void MusicViewModel::show(std::optional<BrowserPlayback> now)
{
    m_now = std::move(now);
    m_readAt = m_model.now();
    m_shownAt = m_readAt;
    m_model.clock().reschedule();
    emit changed();
    emit positionChanged();
    tellPlaying();
}

void MusicViewModel::tellPlaying()
{
    auto told = nowPlaying();
    if (told != m_told) {
        m_told = std::move(told);
        emit nowPlayingChanged();
    }
}

bool MusicViewModel::isInStrip() const { return m_model.setting(kStripKey) != "false"; }

void MusicViewModel::setInStrip(bool isInStrip)
{
    m_model.changeSetting(kStripKey, isInStrip ? "true" : "false");
}

std::optional<NowPlaying> MusicViewModel::nowPlaying() const
{
    // A tab is only read while the view is seen: later nobody knows whether it still plays.
    const bool isKnown = !m_isTab || m_isShown;
    if (!isPlaying() || !isInStrip() || !isKnown) {
        return std::nullopt;
    }
    return NowPlaying{.title = title(), .position = m_now->position, .at = m_readAt};
}

QString MusicViewModel::availability() const
{
    if (m_now) {
        return QStringLiteral("ready");
    }
    const bool isTabSilent = m_tab.isConnected() && !m_tab.problem().isEmpty();
    const bool isBusAway = m_players != nullptr && !m_players->problem().isEmpty();
    return isTabSilent || isBusAway ? QStringLiteral("offline") : QStringLiteral("empty");
}

QString MusicViewModel::message() const
{
    if (m_tab.isConnected() && !m_tab.problem().isEmpty()) {
        return m_tab.problem();
    }
    if (m_players != nullptr && !m_players->problem().isEmpty()) {
        return engineText(m_players->problem().toStdString());
    }
    return tr("Nothing is playing");
}

QString MusicViewModel::source() const
{
    if (m_isTab) {
        return tr("Browser tab · connected");
    }
    if (!m_player) {
        return {};
    }
    return MediaPlayers::isBrowser(*m_player) ? tr("Browser tab · %1").arg(shownName(*m_player))
                                              : shownName(*m_player);
}

QString MusicViewModel::sourceIcon() const
{
    const bool isWeb = m_isTab || (m_player && MediaPlayers::isBrowser(*m_player));
    return isWeb ? QStringLiteral("out") : QStringLiteral("music");
}

QVariantList MusicViewModel::sources() const
{
    const QString chosen = QString::fromUtf8(m_model.setting(kSourceKey));
    QVariantList all;
    const auto add = [&](const QString &value, const QString &text) {
        all.push_back(QVariantMap{{QStringLiteral("value"), value},
                                  {QStringLiteral("text"), text},
                                  {QStringLiteral("checked"), value == chosen}});
    };
    add({}, tr("The one that played last"));
    if (m_tab.isConnected()) {
        add(QLatin1String{kTabSource}, tr("The connected browser tab"));
    }
    for (const Player &player : m_found) {
        add(QString::fromStdString(player.name), shownName(player));
    }
    return all;
}

void MusicViewModel::chooseSource(const QString &value)
{
    m_model.changeSetting(kSourceKey, value.toStdString());
}

QString MusicViewModel::title() const
{
    return m_now ? QString::fromStdString(m_now->title).simplified() : QString{};
}

QString MusicViewModel::artist() const
{
    return m_now ? QString::fromStdString(m_now->artist).simplified() : QString{};
}

// Only pictures that the player has put on this computer: to fetch one would tell a server.
QString MusicViewModel::art() const
{
    if (m_isTab || !m_player || m_player->art.empty()) {
        return {};
    }
    const QUrl address{QString::fromStdString(m_player->art)};
    const QFileInfo file{address.toLocalFile()};
    if (!address.isLocalFile() || !file.isFile()) {
        return {};
    }
    const QByteArray path = file.absoluteFilePath().toUtf8().toBase64(
        QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    return QStringLiteral("image://art/%1/%2")
        .arg(QString::fromLatin1(path))
        .arg(file.lastModified().toMSecsSinceEpoch());
}

bool MusicViewModel::hasVolume() const
{
    return m_now && (m_isTab || (m_player && std::isfinite(m_player->volume)));
}

QString MusicViewModel::volumeText() const
{
    return tr("%1%").arg(m_formatting.number(std::llround(volume() * 100)));
}

QString MusicViewModel::durationText() const
{
    return duration() > 0 ? m_formatting.duration(std::floor(duration())) : QString{};
}

double MusicViewModel::position() const
{
    if (!m_now) {
        return 0;
    }
    const double passed = m_now->playing ? (m_shownAt - m_readAt).count() : 0;
    const double position = std::max(m_now->position + passed, 0.0);
    return m_now->duration > 0 ? std::min(position, m_now->duration) : position;
}

QString MusicViewModel::positionText() const
{
    return m_now ? m_formatting.duration(std::floor(position())) : QString{};
}

// Whoever was driven is the active one from now on.
void MusicViewModel::perform(const Action &action)
{
    if (m_isTab) {
        m_tab.perform(action);
        return;
    }
    if (!m_player || m_players == nullptr) {
        return;
    }
    m_lastStarted = m_player->name;
    if (KestCore::lastPlayer(m_model.state().settings) != m_player->name) {
        m_model.changeState(
            [name = m_player->name](KestCore::NativeState &state) -> Result<void> {
                KestCore::setLastPlayer(state.settings, name);
                return {};
            });
    }
    m_players->perform(*m_player, action);
}

void MusicViewModel::playPause() { perform({.kind = Action::Kind::playPause}); }

void MusicViewModel::next()
{
    if (canNext()) {
        perform({.kind = Action::Kind::next});
    }
}

void MusicViewModel::previous()
{
    if (canPrevious()) {
        perform({.kind = Action::Kind::previous});
    }
}

// Shown at once; the player's own answer corrects it.
void MusicViewModel::seek(double seconds)
{
    if (!canSeek() || !std::isfinite(seconds)) {
        return;
    }
    const double wanted = std::clamp(seconds, 0.0, m_now->duration);
    perform({.kind = Action::Kind::seek, .value = wanted});
    m_now->position = wanted;
    m_readAt = m_model.now();
    m_shownAt = m_readAt;
    emit positionChanged();
}

void MusicViewModel::step(double seconds) { seek(position() + seconds); }

void MusicViewModel::setVolume(double level)
{
    if (!hasVolume() || !std::isfinite(level)) {
        return;
    }
    m_now->volume = std::clamp(level, 0.0, 1.0);
    perform({.kind = Action::Kind::volume, .value = m_now->volume});
    emit changed();
}

void MusicViewModel::toggleMute()
{
    if (volume() > 0) {
        m_loudness = volume();
        setVolume(0);
    } else {
        setVolume(m_loudness);
    }
}

} // namespace Velvetnook
