// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/ViewModels/TimerRows.h"

#include <QObject>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the timers: the list, and the chosen one large. While it is watched the
// large figure ticks; the rest changes by the minute.
class TimersViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool watched READ watched WRITE setWatched NOTIFY watchedChanged)
    Q_PROPERTY(Velvetnook::TimerRows *rows READ rows CONSTANT)
    Q_PROPERTY(int chosenRow READ chosenRow NOTIFY changed)
    Q_PROPERTY(QString chosenId READ chosenId NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString timeText READ timeText NOTIFY ticked) // "14:32"
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged) // in small steps
    Q_PROPERTY(QString tone READ tone NOTIFY changed) // idle, running, paused or finished
    Q_PROPERTY(QString actionText READ actionText NOTIFY changed)
    Q_PROPERTY(QString actionIcon READ actionIcon NOTIFY changed)
    Q_PROPERTY(bool canAdjust READ canAdjust NOTIFY changed)
    Q_PROPERTY(bool offersBreak READ offersBreak NOTIFY changed) // a period of focus is over
    Q_PROPERTY(QString breakText READ breakText NOTIFY changed)
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed)
    // Of the timer that is set, as the fields begin with them.
    Q_PROPERTY(QString setTitle READ setTitle NOTIFY changed)
    Q_PROPERTY(QString setLength READ setLength NOTIFY changed)

public:
    TimersViewModel(ApplicationModel &model, const Formatting &formatting,
                    QObject *parent = nullptr);

    bool watched() const { return m_watched; }
    void setWatched(bool watched);
    TimerRows *rows() { return &m_rows; }
    int chosenRow() const;
    QString chosenId() const { return m_chosen; }
    QString title() const;
    QString timeText() const;
    QString note() const;
    double progress() const { return m_progress; }
    QString tone() const;
    QString actionText() const;
    QString actionIcon() const;
    bool canAdjust() const;
    bool offersBreak() const;
    QString breakText() const;
    QString spoken() const;
    QString setTitle() const;
    QString setLength() const;

    Q_INVOKABLE void choose(const QString &id);
    Q_INVOKABLE void step(int distance); // to another row
    // Starts, pauses, goes on with or starts it over.
    Q_INVOKABLE void toggle(const QString &id);
    Q_INVOKABLE void adjust(int minutes); // the chosen one
    Q_INVOKABLE void reset(const QString &id);
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void restore(); // what was removed last
    // One more of a kind: "pomodoro", "break", "countdown", "stopwatch" or "hydration".
    Q_INVOKABLE void add(const QString &kind);
    // Both answer with what is wrong, or with nothing and change it.
    Q_INVOKABLE QString setTime(const QString &id, const QString &text);
    Q_INVOKABLE QString rename(const QString &id, const QString &title);

signals:
    void watchedChanged();
    void changed();
    void ticked();
    void progressChanged();
    void removed(const QString &title);

private:
    const KestCore::Timer *timerOf(const QString &id) const;
    const KestCore::Timer *chosen() const { return timerOf(m_chosen); }
    void follow();
    void showRows();
    void refresh();
    void tick();
    void followProgress();
    std::optional<Base::Instant> nextTick(Base::Instant shown) const;
    TimerRow rowOf(const KestCore::Timer &timer) const;
    TimerRow rowOf(KestCore::TimerMode mode) const;
    double minutesOf(const std::string &mode) const;
    QString titleOf(const KestCore::Timer &timer) const;
    QString noteOf(const KestCore::Timer &timer) const;
    void begin(KestCore::NewTimer wanted);
    void tell(const Base::Result<void> &result);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    std::vector<KestCore::Timer> m_timers;
    TimerRows m_rows;
    QString m_chosen;
    bool m_isChosenByUser = false;
    std::map<std::string, double> m_lengths{}; // minutes for the next of a kind, as set here
    std::shared_ptr<KestCore::LocalRecord> m_removed{};
    Base::Instant m_shownAt{};
    double m_progress = 0;
    bool m_watched = false;
};

} // namespace Velvetnook
