// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Prayer/PrayerCalculator.h"
#include "KestCore/Tools/TimerList.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the cards of the home view. Follows the clock only while it is shown.
class HomeViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)
    Q_PROPERTY(
        QVariantList cards READ cards NOTIFY cardsChanged) // {tool, row, column, columns}
    Q_PROPERTY(QString footer READ footer NOTIFY changed)
    Q_PROPERTY(QString clipboardNote READ clipboardNote NOTIFY changed) // while it is paused
    Q_PROPERTY(QString counterNote READ counterNote NOTIFY changed)

    Q_PROPERTY(QString prayerTitle READ prayerTitle NOTIFY changed)
    // {value, unit}; empty where there is no time to tell, and `prayerNote` says why.
    Q_PROPERTY(QVariantList prayerLeft READ prayerLeft NOTIFY changed)
    Q_PROPERTY(QString prayerNote READ prayerNote NOTIFY changed)

    Q_PROPERTY(QString nameId READ nameId NOTIFY changed)
    Q_PROPERTY(QString nameArabic READ nameArabic NOTIFY changed)
    Q_PROPERTY(QString nameTitle READ nameTitle NOTIFY changed) // empty in an Arabic interface

    Q_PROPERTY(QString timerTitle READ timerTitle NOTIFY changed)
    Q_PROPERTY(QString timerText READ timerText NOTIFY changed) // empty: there is no timer
    Q_PROPERTY(QString timerNote READ timerNote NOTIFY changed)
    Q_PROPERTY(bool hasTimerBar READ hasTimerBar NOTIFY changed)
    Q_PROPERTY(double timerShare READ timerShare NOTIFY changed) // that has run, 0 to 1

public:
    HomeViewModel(ApplicationModel &model, const Formatting &formatting,
                  QObject *parent = nullptr);

    bool isShown() const { return m_isShown; }
    void setShown(bool isShown);
    QVariantList cards() const { return m_cards; }
    QString footer() const;
    QString clipboardNote() const;
    QString counterNote() const;
    QString prayerTitle() const;
    QVariantList prayerLeft() const;
    QString prayerNote() const;
    QString nameId() const;
    QString nameArabic() const;
    QString nameTitle() const;
    QString timerTitle() const;
    QString timerText() const;
    QString timerNote() const;
    bool hasTimerBar() const;
    double timerShare() const;

    // Goes on with what is counted, if it was paused.
    Q_INVOKABLE void resumeCounter();

signals:
    void isShownChanged();
    void cardsChanged();
    void changed();

private:
    void follow();
    void followTimers();
    void followPrayer();
    // When what was shown at `shown` is another without any change of the data.
    std::optional<Base::Instant> nextTick(Base::Instant shown) const;
    void show();
    double timerSeconds() const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    QVariantList m_cards;
    std::optional<KestCore::NextPrayer> m_next;
    std::optional<KestCore::Calendar> m_prayerCalendar; // absent: no place is set
    QString m_prayerMessage;                            // why there is no time
    std::optional<KestCore::Timer> m_timer;
    Base::Instant m_shownAt{};
    bool m_isShown = false;
};

} // namespace Velvetnook
