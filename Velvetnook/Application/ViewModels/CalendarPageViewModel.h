// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/FileWatch.h"
#include "Velvetnook/Application/SideThread.h"
#include "Velvetnook/Application/ViewModels/Calendar/CalendarRows.h"

#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVariantList>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the calendar: a month, a chosen day of it, and what the user's calendar
// files hold for that day. The files are read, and watched, only while somebody looks; nothing
// is ever written to them.
class CalendarPageViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString month READ month NOTIFY changed) // "November 2025"
    Q_PROPERTY(QStringList weekdays READ weekdays NOTIFY changed)
    Q_PROPERTY(int weeks READ weeks NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *days READ days CONSTANT)
    Q_PROPERTY(QString date READ date NOTIFY changed) // of the chosen day
    Q_PROPERTY(QString islamicDate READ islamicDate NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *events READ events CONSTANT)
    // "unconfigured" without files, "loading", "ready", "empty", or "error" where none can be
    // read; the message says which.
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed) // of some of the files
    Q_PROPERTY(QString footer READ footer NOTIFY changed)
    // The day that weeks begin with: "" as in the user's country, or "monday" to "sunday".
    Q_PROPERTY(QString weekStart READ weekStart WRITE setWeekStart NOTIFY changed)
    Q_PROPERTY(bool isInStrip READ isInStrip WRITE setInStrip NOTIFY changed) // the next event
    Q_PROPERTY(QVariantList weekStarts READ weekStarts NOTIFY changed)        // {value, label}
    Q_PROPERTY(bool isTwelveHours READ isTwelveHours NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *sources READ sources CONSTANT)
    Q_PROPERTY(int sourceCount READ sourceCount NOTIFY changed)
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged) // of what was to be added
    Q_PROPERTY(bool isAdding READ isAdding NOTIFY refusalChanged)
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)

public:
    CalendarPageViewModel(ApplicationModel &model, const Formatting &formatting,
                          QObject *parent = nullptr);

    QString month() const;
    QStringList weekdays() const;
    int weeks() const { return static_cast<int>(m_month.days.size()) / 7; }
    QAbstractItemModel *days() { return &m_days; }
    const std::vector<DayCell> &dayRows() const { return m_days.rows(); }
    QString date() const;
    QString islamicDate() const;
    QAbstractItemModel *events() { return &m_events; }
    const std::vector<EventRow> &eventList() const { return m_events.rows(); }
    QString availability() const;
    QString message() const;
    QString problem() const;
    QString footer() const;
    QString weekStart() const;
    void setWeekStart(const QString &day);
    bool isInStrip() const;
    void setInStrip(bool isInStrip);
    QVariantList weekStarts() const;
    bool isTwelveHours() const;
    QAbstractItemModel *sources() { return &m_sources; }
    const std::vector<SourceRow> &sourceList() const { return m_sources.rows(); }
    int sourceCount() const { return m_sources.rowCount(); }
    QString refusal() const { return m_refusal; }
    bool isAdding() const { return m_isAdding; }
    bool isShown() const { return m_isShown; }
    void setShown(bool isShown);

    Q_INVOKABLE void choose(int cell); // of the grid
    Q_INVOKABLE void move(int days);
    Q_INVOKABLE void moveMonths(int months);
    Q_INVOKABLE void goToday();
    Q_INVOKABLE void readAgain() { read(); }
    // A file or a folder, typed or dropped; answers with `added`, or with a refusal.
    Q_INVOKABLE void addSource(const QString &typed);
    Q_INVOKABLE void addSourceUrl(const QUrl &url);
    Q_INVOKABLE void dropRefusal();
    Q_INVOKABLE void removeSource(const QString &path);

signals:
    void changed();
    void refusalChanged();
    void isShownChanged();
    void added();
    void told(const QString &message, const std::function<void()> &undo);

private:
    KestCore::LocalDate today() const;
    void chooseDate(KestCore::LocalDate date);
    void follow();
    void arrange();
    void show();
    void read();
    void takeReading(CalendarReading reading, const QDateTime &since);
    std::optional<Base::Instant> nextChange(Base::Instant now) const;
    void store(const std::string &path);
    void refuse(const QString &reason);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    KestCore::LocalDate m_day;
    KestCore::LocalDate m_today; // as it was shown
    KestCore::CalendarMonth m_month;
    CalendarReading m_reading;
    bool m_isRead = false; // for these days
    std::vector<std::string> m_paths;
    RowList<DayCell> m_days;
    RowList<EventRow> m_events;
    RowList<SourceRow> m_sources;
    QString m_refusal;
    bool m_isAdding = false;
    bool m_isShown = false;
    FileWatch m_watch;
    SideThread<CalendarReader> m_side; // last: it is waited for before what it tells goes
};

} // namespace Velvetnook
