// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantList>

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
class SoundMixer;
struct ToolServices;

// What QML shows of the background sounds: which are in the mix, how loud each is, and when
// they fall silent. The mix is kept; that it is heard is not: nothing begins by itself.
class SoundMixViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        QVariantList sounds READ sounds NOTIFY changed) // {id, title, icon, isIn, volume}
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY changed)
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY changed)
    Q_PROPERTY(double volume READ volume NOTIFY changed)
    Q_PROPERTY(QString volumeText READ volumeText NOTIFY changed)
    Q_PROPERTY(int sleepMinutes READ sleepMinutes NOTIFY changed) // 0: not by itself
    Q_PROPERTY(QString sleepText READ sleepText NOTIFY changed)
    Q_PROPERTY(
        QVariantList sleepChoices READ sleepChoices NOTIFY changed) // {value, text, checked}
    Q_PROPERTY(QString footer READ footer NOTIFY changed)

public:
    SoundMixViewModel(ApplicationModel &model, const Formatting &formatting,
                      std::shared_ptr<const ToolServices> services, QObject *parent = nullptr);
    ~SoundMixViewModel() override;
    SoundMixViewModel(const SoundMixViewModel &) = delete;
    SoundMixViewModel &operator=(const SoundMixViewModel &) = delete;

    QVariantList sounds() const;
    bool isPlaying() const { return m_isPlaying; }
    bool isShown() const { return m_isShown; }
    void setShown(bool isShown);
    double volume() const { return m_volume; }
    QString volumeText() const;
    int sleepMinutes() const;
    QString sleepText() const;
    QVariantList sleepChoices() const;
    QString footer() const;

    // Puts the sound into the mix and lets that be heard; or takes it out.
    Q_INVOKABLE void toggle(const QString &id);
    Q_INVOKABLE void setSoundVolume(const QString &id, double volume);
    Q_INVOKABLE void setVolume(double volume);
    Q_INVOKABLE void playOrPause();
    Q_INVOKABLE void setSleepMinutes(int minutes);

signals:
    void changed();

private:
    void read();
    void follow();
    void begin();
    void end(Base::Seconds fade);
    void mix(Base::Seconds fade);
    void keepSoon();
    void keep();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    std::shared_ptr<const ToolServices> m_services;
    SoundMixer *m_mixer = nullptr;
    std::map<std::string, double> m_mix; // how loud each is that is in it
    std::string m_kept;                  // the mix as it is stored
    double m_volume = 0.5;
    QTimer m_keep; // a slider is let go of before it is stored
    std::optional<Base::Instant> m_sleepAt;
    QString m_problem;
    bool m_isPlaying = false;
    bool m_isShown = false;
};

} // namespace Velvetnook
