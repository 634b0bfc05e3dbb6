// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>

namespace KestCore
{
struct DevotionalState;
struct Preferences;
} // namespace KestCore

namespace Velvetnook
{

class Alarms;
class ApplicationModel;
class Formatting;

// The gentle reminders and the rotation of what is pinned, as the settings show them. Each
// setter answers with what is wrong with the value, or with nothing and changes it; a refused
// value leaves the old one.
class RemindersViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool reminderEnabled READ reminderEnabled NOTIFY changed)
    Q_PROPERTY(int interval READ interval NOTIFY changed)
    Q_PROPERTY(QString intervalDigits READ intervalDigits NOTIFY changed) // as it is typed
    Q_PROPERTY(QString activeStart READ activeStart NOTIFY changed)       // "09:00"
    Q_PROPERTY(QString activeEnd READ activeEnd NOTIFY changed)
    // Seven of {value, letter, name, chosen}, Sunday first.
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)
    Q_PROPERTY(QString pinnedReminder READ pinnedReminder NOTIFY changed) // nothing, emphasis
    // How often the favourites take their turns, as it is typed.
    Q_PROPERTY(QString rotationDigits READ rotationDigits NOTIFY changed)
    Q_PROPERTY(bool reminderSound READ reminderSound NOTIFY changed)
    Q_PROPERTY(bool soundEnabled READ soundEnabled NOTIFY changed)
    Q_PROPERTY(bool timersAreAnnounced READ timersAreAnnounced NOTIFY changed)
    Q_PROPERTY(bool fridayEnabled READ fridayEnabled NOTIFY changed)
    Q_PROPERTY(QString fridayTime READ fridayTime NOTIFY changed)
    Q_PROPERTY(QString nextText READ nextText NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY changed)
    Q_PROPERTY(QString pausedText READ pausedText NOTIFY changed) // empty when not paused
    // What became of the test notification or is known of notifications; may be empty.
    Q_PROPERTY(QString testText READ testText NOTIFY changed)
    Q_PROPERTY(bool testIsDenied READ testIsDenied NOTIFY changed)

public:
    RemindersViewModel(ApplicationModel &model, const Formatting &formatting, Alarms &alarms,
                       QObject *parent = nullptr);

    bool reminderEnabled() const;
    int interval() const;
    QString intervalDigits() const;
    QString activeStart() const;
    QString activeEnd() const;
    QVariantList days() const;
    QString pinnedReminder() const;
    QString rotationDigits() const;
    bool reminderSound() const;
    bool soundEnabled() const;
    bool timersAreAnnounced() const;
    bool fridayEnabled() const;
    QString fridayTime() const;
    QString nextText() const;
    bool isPaused() const;
    QString pausedText() const;
    QString testText() const;
    bool testIsDenied() const;

    Q_INVOKABLE QString setReminderEnabled(bool isOn);
    Q_INVOKABLE QString setInterval(const QString &minutes);
    Q_INVOKABLE QString setActiveStart(const QString &time);
    Q_INVOKABLE QString setActiveEnd(const QString &time);
    Q_INVOKABLE QString setWeekday(int weekday, bool isChosen);
    Q_INVOKABLE QString setPinnedReminder(const QString &value);
    Q_INVOKABLE QString setRotationMinutes(const QString &minutes);
    Q_INVOKABLE QString setReminderSound(bool isOn);
    Q_INVOKABLE QString setSoundEnabled(bool isOn);
    Q_INVOKABLE void setTimersAreAnnounced(bool isOn);
    Q_INVOKABLE void setFridayEnabled(bool isOn);
    Q_INVOKABLE QString setFridayTime(const QString &time);

    Q_INVOKABLE void pauseForHours(int hours);
    Q_INVOKABLE void pauseUntilTomorrow();
    // Until this time of the day, the next one that comes.
    Q_INVOKABLE QString pauseUntil(const QString &time);
    Q_INVOKABLE void endPause();
    Q_INVOKABLE void sendTest();

signals:
    void changed();

private:
    const KestCore::Preferences &preferences() const;
    void change(std::function<void(KestCore::DevotionalState &)> edit);
    QString setMinutes(const QString &text,
                       std::function<void(KestCore::Preferences &, qint64)> set);
    // Hands on the time as the engines read it, "09:00", or answers with what is wrong.
    QString setHours(const QString &text, std::function<void(std::string)> set);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    Alarms &m_alarms;
};

} // namespace Velvetnook
