// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MediaPlayers/Player.h"
#include "Velvetnook/Application/NowPlaying.h"
#include "Velvetnook/Application/ViewModels/Music/TabPlayback.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <memory>
#include <optional>
#include <set>
#include <string>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
class Players;

// What QML shows of what plays: the connected tab or the player that was active last, unless
// the user has chosen one. Players are followed while the tool is on; how far the track has
// come is worked out in between and counted only where it is seen.
class MusicViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Velvetnook::TabPlayback *tab READ tab CONSTANT)
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString sourceIcon READ sourceIcon NOTIFY changed)
    Q_PROPERTY(QString source READ source NOTIFY changed)
    Q_PROPERTY(QVariantList sources READ sources NOTIFY changed) // {value, text, checked}
    Q_PROPERTY(bool isInStrip READ isInStrip WRITE setInStrip NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString artist READ artist NOTIFY changed)
    Q_PROPERTY(QString art READ art NOTIFY changed) // of the image provider; empty: none
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY changed)
    Q_PROPERTY(bool canSeek READ canSeek NOTIFY changed)
    Q_PROPERTY(bool canNext READ canNext NOTIFY changed)
    Q_PROPERTY(bool canPrevious READ canPrevious NOTIFY changed)
    Q_PROPERTY(bool hasVolume READ hasVolume NOTIFY changed)
    Q_PROPERTY(double volume READ volume NOTIFY changed)
    Q_PROPERTY(QString volumeText READ volumeText NOTIFY changed)
    Q_PROPERTY(double duration READ duration NOTIFY changed) // 0: not known
    Q_PROPERTY(QString durationText READ durationText NOTIFY changed)
    Q_PROPERTY(double position READ position NOTIFY positionChanged)
    Q_PROPERTY(QString positionText READ positionText NOTIFY positionChanged)

public:
    MusicViewModel(ApplicationModel &model, const Formatting &formatting,
                   std::shared_ptr<const ToolServices> services, QObject *parent = nullptr);
    ~MusicViewModel() override;
    MusicViewModel(const MusicViewModel &) = delete;
    MusicViewModel &operator=(const MusicViewModel &) = delete;

    TabPlayback *tab() { return &m_tab; }
    bool isShown() const { return m_isShown; }
    void setShown(bool isShown);
    QString availability() const;
    QString message() const;
    QString sourceIcon() const;
    QString source() const;
    QVariantList sources() const;
    bool isInStrip() const;
    void setInStrip(bool isInStrip);
    QString title() const;
    QString artist() const;
    QString art() const;
    bool isPlaying() const { return m_now && m_now->playing; }
    bool canSeek() const { return m_now && m_now->canSeek && m_now->duration > 0; }
    bool canNext() const { return m_now && m_now->canNext; }
    bool canPrevious() const { return m_now && m_now->canPrevious; }
    bool hasVolume() const;
    double volume() const { return m_now ? m_now->volume : 0; }
    QString volumeText() const;
    double duration() const { return m_now ? m_now->duration : 0; }
    QString durationText() const;
    double position() const;
    QString positionText() const;

    // What the strip shows of it; nothing while nothing plays or it is not wanted there.
    std::optional<NowPlaying> nowPlaying() const;

    Q_INVOKABLE void playPause();
    Q_INVOKABLE void next();
    Q_INVOKABLE void previous();
    Q_INVOKABLE void seek(double seconds);
    Q_INVOKABLE void step(double seconds);
    Q_INVOKABLE void setVolume(double level);
    Q_INVOKABLE void toggleMute();
    // By the value of one of the sources; an empty one is the choice by itself.
    Q_INVOKABLE void chooseSource(const QString &value);

signals:
    void isShownChanged();
    void changed();
    void positionChanged();
    void nowPlayingChanged();
    void failed(const QString &message);

private:
    using Action = KestCore::BrowserPlaybackScript::Action;

    bool isOn() const;
    void follow();
    void followPlayers();
    void chooseNow();
    void show(std::optional<KestCore::BrowserPlayback> now);
    void tellPlaying(); // to the strip
    void perform(const Action &action);
    std::string lastActive() const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    std::shared_ptr<const ToolServices> m_services;
    TabPlayback m_tab;
    Players *m_players = nullptr;
    std::vector<MediaPlayers::Player> m_found; // in order, each thing that plays once
    std::set<std::string> m_playing;           // players that played when they were read last
    std::string m_lastStarted;
    std::optional<MediaPlayers::Player> m_player; // what is shown, unless it is the tab
    std::optional<KestCore::BrowserPlayback> m_now;
    Base::Instant m_readAt{};
    std::optional<NowPlaying> m_told; // to the strip
    Base::Instant m_shownAt{};
    double m_loudness = 0.5; // before it was muted
    bool m_isTab = false;
    bool m_isShown = false;
};

} // namespace Velvetnook
