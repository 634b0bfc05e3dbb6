// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/ScreenTimeTotals.h"
#include "Velvetnook/Application/ScreenTime/ScreenTimeService.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <vector>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the time at the screen: one of the last seven days, or the week.
class ScreenTimeViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool watched READ watched WRITE setWatched NOTIFY changed)
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed) // what cannot be told here
    Q_PROPERTY(bool isOn READ isOn WRITE setOn NOTIFY changed)
    Q_PROPERTY(QString period READ period WRITE setPeriod NOTIFY changed) // day or week
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString hours READ hours NOTIFY changed) // empty below one
    Q_PROPERTY(QString minutes READ minutes NOTIFY changed)
    Q_PROPERTY(QString comparison READ comparison NOTIFY changed)
    Q_PROPERTY(QString stretch READ stretch NOTIFY changed)
    // Of seven days: {share, label, spoken, isToday, isChosen}.
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)
    Q_PROPERTY(QVariantList applications READ applications NOTIFY changed) // {id, title, …}
    Q_PROPERTY(int idleMinutes READ idleMinutes WRITE setIdleMinutes NOTIFY changed)
    Q_PROPERTY(QString idleText READ idleText NOTIFY changed)
    Q_PROPERTY(QStringList excluded READ excluded NOTIFY changed)
    Q_PROPERTY(QString footer READ footer NOTIFY changed)

public:
    ScreenTimeViewModel(ApplicationModel &model, const Formatting &formatting,
                        QObject *parent = nullptr);

    ScreenTimeService &service() { return m_service; }

    bool watched() const { return m_isWatched; }
    void setWatched(bool watched);
    QString availability() const;
    QString problem() const { return m_service.problem(); }
    bool isOn() const;
    void setOn(bool isOn);
    QString period() const;
    void setPeriod(const QString &period);
    QString title() const;
    QString hours() const;
    QString minutes() const;
    QString comparison() const;
    QString stretch() const;
    QVariantList days() const;
    QVariantList applications() const;
    int idleMinutes() const;
    void setIdleMinutes(int minutes);
    QString idleText() const;
    QStringList excluded() const;
    QString footer() const;

    // One of the seven days; the last is today.
    Q_INVOKABLE void choose(int day);
    Q_INVOKABLE void exclude(const QString &application);
    Q_INVOKABLE void include(const QString &application);

signals:
    void changed();
    void excludedNow(const QString &application);

private:
    void follow();
    const KestCore::UsageDay *chosen() const;
    const std::vector<KestCore::ApplicationTotal> &totals() const;
    double seconds() const;
    std::optional<double> change() const;
    QString dayName(const KestCore::UsageDay &day) const;
    void changeExcluded(std::function<void(QStringList &)> edit);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    ScreenTimeService m_service;
    std::vector<KestCore::UsageDay> m_days;
    KestCore::UsageTotal m_week;
    int m_chosen = 6;
    bool m_isWeek = false;
    bool m_isWatched = false;
};

} // namespace Velvetnook
