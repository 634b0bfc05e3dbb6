// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Prayer/PrayerCalculator.h"

#include <QString>
#include <QVariantList>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// The times of several dates as QML shows them: one map a date of day ("Fri 14"), islamic ("23
// Jumada I"), isToday, hasTimes and times, the six texts.
class PrayerTable
{
public:
    PrayerTable(const ApplicationModel &model, const Formatting &formatting,
                const KestCore::PrayerInputs &inputs);

    // The seven dates from `first` on, and all of the month in which `first` lies.
    QVariantList week(KestCore::LocalDate first) const;
    QVariantList month(KestCore::LocalDate first) const;
    QString weekTitle(KestCore::LocalDate first) const;
    QString monthTitle(KestCore::LocalDate first) const;

    // The date's label, moved by the setting "prayer.islamicDayOffset".
    QString islamicText(KestCore::LocalDate date) const;

private:
    QVariantList rows(KestCore::LocalDate first, int count) const;
    QVariantMap row(const KestCore::PrayerDay &day, KestCore::LocalDate today) const;

    const ApplicationModel &m_model;
    const Formatting &m_formatting;
    const KestCore::PrayerInputs &m_inputs;
};

} // namespace Velvetnook
