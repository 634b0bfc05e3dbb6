// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Prayer/PrayerCalculator.h"

#include <QLocale>
#include <QObject>
#include <QString>

namespace Velvetnook
{

class ApplicationModel;

// What is left until something, rounded up, in the unit that fits it: "45" seconds, "42"
// minutes, or "3" hours and "05".
struct Countdown {
    enum class Unit : std::uint8_t { seconds, minutes, hours };

    Unit unit{};
    QString first{};
    QString rest{}; // minutes beside hours
};

// Numbers, times and dates as the user reads them: in the language of the interface, with the
// digits that were chosen, in the user's time zone. QML formats nothing itself.
class Formatting : public QObject
{
    Q_OBJECT

public:
    explicit Formatting(const ApplicationModel &model, QObject *parent = nullptr);

    // The language of the interface, "en" or "ar": setting "appearance.language", or the
    // session's where that is "system" or not set.
    QString language() const;
    bool isRightToLeft() const { return language() == QLatin1String{"ar"}; }
    QLocale locale() const;

    Q_INVOKABLE QString number(qlonglong value) const;
    Q_INVOKABLE QString decimal(double value, int decimals) const;
    // The same text with the chosen digits: setting "appearance.digits" is "latin" or "arabic";
    // else as the language has them.
    QString digits(QString text) const;
    bool usesArabicDigits() const;

    // Setting "appearance.clock": "24", "12", or else as the session has it.
    bool isTwelveHours() const;
    QString time(Base::Instant instant) const; // "13:48", "1:48 pm"
    QString timeIn(const KestCore::Calendar &calendar, Base::Instant instant) const;
    QString date(Base::Instant instant) const;                    // "Friday 14 November"
    QString islamicDate(const KestCore::IslamicDate &date) const; // "23 Jumada I 1447"
    QString duration(double seconds) const;                       // "14:32", "1:02:03"
    Countdown countdown(double seconds) const;
    // The same as one text: "42 min", "3 h 05", and in the last minute "45 s".
    QString remaining(double seconds) const;

signals:
    // The same day, time or number is put into other words now, and the texts of the language
    // are loaded. For what C++ words by itself; QML does what it has worded anew.
    void wordsChanged();

private:
    void follow();

    const ApplicationModel &m_model;
    QString m_wording;
};

} // namespace Velvetnook
