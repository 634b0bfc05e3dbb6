// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

namespace Velvetnook
{

// How prayer times are found, with those of today to see what a choice makes of them.
class PrayerSettings : public SettingsPage
{
    Q_OBJECT
    Q_PROPERTY(QString method READ method WRITE setMethod NOTIFY changed)
    Q_PROPERTY(QVariantList methods READ methods NOTIFY wordsChanged)
    Q_PROPERTY(QString methodNote READ methodNote NOTIFY changed)
    Q_PROPERTY(QString asr READ asr WRITE setAsr NOTIFY changed)
    Q_PROPERTY(QVariantList asrChoices READ asrChoices NOTIFY wordsChanged)
    Q_PROPERTY(QString highLatitude READ highLatitude WRITE setHighLatitude NOTIFY changed)
    Q_PROPERTY(QVariantList highLatitudes READ highLatitudes NOTIFY wordsChanged)
    // The prayers that can be adjusted, [{value, label}], and for each the minutes that are
    // added and how they read.
    Q_PROPERTY(QVariantList adjusted READ adjusted NOTIFY wordsChanged)
    Q_PROPERTY(QVariantMap minutes READ minutes NOTIFY changed)
    Q_PROPERTY(QVariantMap minuteTexts READ minuteTexts NOTIFY changed)
    Q_PROPERTY(int hijriOffset READ hijriOffset WRITE setHijriOffset NOTIFY changed)
    Q_PROPERTY(QString hijriOffsetText READ hijriOffsetText NOTIFY changed)
    Q_PROPERTY(QString hijriDate READ hijriDate NOTIFY changed) // of today
    Q_PROPERTY(bool notifies READ notifies WRITE setNotifies NOTIFY changed)
    Q_PROPERTY(bool sounds READ sounds WRITE setSounds NOTIFY changed)
    Q_PROPERTY(bool showsInStrip READ showsInStrip WRITE setShowsInStrip NOTIFY changed)
    // Today's times, [{name, time, isNext}]; empty, with a message, where there are none.
    Q_PROPERTY(QVariantList times READ times NOTIFY changed)
    Q_PROPERTY(QString timesMessage READ timesMessage NOTIFY changed)

public:
    static constexpr int kFurthestAdjustment = 60;
    static constexpr int kFurthestOffset = 2;

    PrayerSettings(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

    QString method() const;
    QVariantList methods() const;
    QString methodNote() const;
    QString asr() const;
    QVariantList asrChoices() const;
    QString highLatitude() const;
    QVariantList highLatitudes() const;
    QVariantList adjusted() const;
    QVariantMap minutes() const;
    QVariantMap minuteTexts() const;
    int hijriOffset() const;
    QString hijriOffsetText() const;
    QString hijriDate() const;
    bool notifies() const;
    bool sounds() const;
    bool showsInStrip() const;
    QVariantList times() const;
    QString timesMessage() const;

    void setMethod(const QString &value);
    void setAsr(const QString &value);
    void setHighLatitude(const QString &value);
    void setHijriOffset(int days);
    void setNotifies(bool on);
    void setSounds(bool on);
    void setShowsInStrip(bool on);
    Q_INVOKABLE void setAdjustment(const QString &prayer, int minutes);

private:
    int minutesOf(std::string_view prayer) const;
    QString signedText(int value) const;
};

} // namespace Velvetnook
