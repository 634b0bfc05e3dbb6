// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/HistoryTotals.h"
#include "Velvetnook/Application/ViewModels/SessionList.h"

#include <QObject>
#include <QString>
#include <QVariantList>

namespace Velvetnook
{

// What QML shows of finished sessions and their totals.
class HistoryViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *sessions READ sessions CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY sessionsChanged)
    Q_PROPERTY(QString period READ period WRITE setPeriod NOTIFY changed) // today, week, …
    Q_PROPERTY(bool byPhrase READ byPhrase WRITE setByPhrase NOTIFY byPhraseChanged)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(QString totalNote READ totalNote NOTIFY changed)
    // {share, label, isToday}: 7 days with a letter each, or 30.
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)
    Q_PROPERTY(QString firstDay READ firstDay NOTIFY changed)    // the leftmost of 30
    Q_PROPERTY(QVariantList phrases READ phrases NOTIFY changed) // {arabic, title, count, note}
    Q_PROPERTY(bool isOff READ isOff NOTIFY sessionsChanged)
    Q_PROPERTY(QString footer READ footer NOTIFY sessionsChanged)

public:
    HistoryViewModel(ApplicationModel &model, const Formatting &formatting,
                     QObject *parent = nullptr);

    QAbstractItemModel *sessions() { return &m_sessions; }
    bool isEmpty() const { return m_records.empty(); }
    QString period() const;
    void setPeriod(const QString &period);
    bool byPhrase() const { return m_byPhrase; }
    void setByPhrase(bool byPhrase);
    QString total() const;
    QString totalNote() const;
    QVariantList days() const;
    QString firstDay() const;
    QVariantList phrases() const;
    bool isOff() const { return m_isOff; }
    QString footer() const;

signals:
    void changed();
    void byPhraseChanged();
    void sessionsChanged();

private:
    void follow();
    void reword();
    void addUp();
    void take(HistoryTotals totals);
    Base::Instant dayBefore(std::size_t days) const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    SessionList m_sessions;
    Base::SharedList<KestCore::SessionRecord> m_records; // that m_totals are of, or soon will
    HistoryTotals m_totals;
    bool m_isKnown = false; // until then there is no total to show
    HistoryPeriod m_period = HistoryPeriod::today;
    bool m_byPhrase = false;
    bool m_isOff = false;
    QString m_wording;
    std::uint64_t m_generation = 0; // of the adding up that is under way
};

} // namespace Velvetnook
