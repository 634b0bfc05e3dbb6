// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/SunPath.h"
#include "Velvetnook/Application/TimerSteps.h"

#include <QObject>
#include <QVariantList>

#include <chrono>
#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the prayer times, the Qibla and focus until a prayer.
class PrayerViewModel : public QObject
{
    Q_OBJECT
    // Whether the view can be seen: only then does the countdown run.
    Q_PROPERTY(bool watched READ watched WRITE setWatched NOTIFY watchedChanged)
    Q_PROPERTY(bool hasPlace READ hasPlace NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed) // what is missing, if anything
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QString islamicDate READ islamicDate NOTIFY changed)
    Q_PROPERTY(bool hasTimes READ hasTimes NOTIFY changed) // today has times here
    Q_PROPERTY(bool hasNext READ hasNext NOTIFY changed)
    Q_PROPERTY(QString nextLabel READ nextLabel NOTIFY changed)
    Q_PROPERTY(QString nextName READ nextName NOTIFY changed)
    Q_PROPERTY(QString nextTime READ nextTime NOTIFY changed)
    Q_PROPERTY(QString countdown READ countdown NOTIFY ticked) // "42", "3:05"
    Q_PROPERTY(QString countdownUnit READ countdownUnit NOTIFY ticked)
    Q_PROPERTY(QString spoken READ spoken NOTIFY ticked)
    // Six of {name, time, tone: "past", "current", "coming" or "next", spoken}.
    Q_PROPERTY(QVariantList cells READ cells NOTIFY changed)
    Q_PROPERTY(QList<QPointF> arcGone READ arcGone NOTIFY arcChanged)
    Q_PROPERTY(QList<QPointF> arcComing READ arcComing NOTIFY arcChanged)
    Q_PROPERTY(QVariantList arcMarks READ arcMarks NOTIFY arcChanged)
    Q_PROPERTY(QPointF sun READ sun NOTIFY arcChanged)
    Q_PROPERTY(bool hasSun READ hasSun NOTIFY arcChanged)
    Q_PROPERTY(double qibla READ qibla NOTIFY changed)
    Q_PROPERTY(QString qiblaText READ qiblaText NOTIFY changed)
    Q_PROPERTY(QString qiblaSpoken READ qiblaSpoken NOTIFY changed)

    Q_PROPERTY(
        QString page READ page WRITE setPage NOTIFY pageChanged) // day, week, month, focus
    Q_PROPERTY(QString tableTitle READ tableTitle NOTIFY pageChanged)
    Q_PROPERTY(QVariantList tableRows READ tableRows NOTIFY pageChanged)
    Q_PROPERTY(QStringList names READ names NOTIFY changed)
    Q_PROPERTY(bool isTodayShown READ isTodayShown NOTIFY pageChanged)

    // The way to a period of focus, and the one that runs.
    Q_PROPERTY(bool isFocusing READ isFocusing NOTIFY changed)
    Q_PROPERTY(QString focusState READ focusState NOTIFY changed) // what the footer says of it
    Q_PROPERTY(QString focusLink READ focusLink NOTIFY changed)
    Q_PROPERTY(QString focusTitle READ focusTitle NOTIFY focusChanged)
    Q_PROPERTY(QString focusBody READ focusBody NOTIFY focusChanged)
    Q_PROPERTY(bool canFocus READ canFocus NOTIFY focusChanged)
    Q_PROPERTY(bool isReview READ isReview NOTIFY focusChanged)
    Q_PROPERTY(int focusBuffer READ focusBuffer NOTIFY focusChanged)
    Q_PROPERTY(int longestBuffer READ longestBuffer CONSTANT)
    Q_PROPERTY(QString focusBufferText READ focusBufferText NOTIFY focusChanged)

public:
    PrayerViewModel(ApplicationModel &model, const Formatting &formatting,
                    QObject *parent = nullptr);

    bool watched() const { return m_watched; }
    void setWatched(bool watched);
    bool hasPlace() const { return m_watch.inputs().has_value(); }
    QString message() const;
    QString note() const;
    QString islamicDate() const;
    bool hasTimes() const { return today().times.has_value(); }
    bool hasNext() const { return next().has_value(); }
    QString nextLabel() const;
    QString nextName() const;
    QString nextTime() const;
    QString countdown() const;
    QString countdownUnit() const;
    QString spoken() const;
    QVariantList cells() const;
    QList<QPointF> arcGone() const { return path().gone; }
    QList<QPointF> arcComing() const { return path().coming; }
    QVariantList arcMarks() const;
    QPointF sun() const { return path().sun.value_or(QPointF{}); }
    bool hasSun() const { return path().sun.has_value(); }
    double qibla() const;
    QString qiblaText() const;
    QString qiblaSpoken() const;

    QString page() const { return m_page; }
    void setPage(const QString &page);
    QString tableTitle() const;
    QVariantList tableRows() const;
    QStringList names() const;
    bool isTodayShown() const;
    // A week or a month back or on.
    Q_INVOKABLE void turn(int distance);
    Q_INVOKABLE void turnToToday();

    bool isFocusing() const { return m_focus.has_value(); }
    QString focusState() const;
    QString focusLink() const;
    QString focusTitle() const;
    QString focusBody() const;
    bool canFocus() const { return offeredPlan().has_value(); }
    bool isReview() const { return m_revised.has_value(); }
    int focusBuffer() const;
    int longestBuffer() const;
    QString focusBufferText() const;
    // Shows the question before a period of focus, or before the revised one.
    Q_INVOKABLE void askFocus();
    Q_INVOKABLE void setFocusBuffer(int minutes);
    Q_INVOKABLE void acceptFocus();

signals:
    void watchedChanged();
    void changed();
    void ticked();
    void arcChanged();
    void pageChanged();
    void focusChanged();
    void focusStarted();

private:
    // What a moment shows; found once for each.
    struct Moment {
        Base::Instant now{};
        KestCore::PrayerDay day{};
        std::optional<KestCore::NextPrayer> next{};
        SunPath path{};
    };

    const Moment &moment() const;
    const KestCore::PrayerDay &today() const { return moment().day; }
    std::optional<KestCore::NextPrayer> next() const { return moment().next; }
    const SunPath &path() const { return moment().path; }
    QString timeText(Base::Instant at) const;
    QString toneOf(PrayerCore::Prayer prayer) const;
    std::optional<Base::Instant> nextTick(Base::Instant shown) const;
    KestCore::LocalDate shownDate() const;
    Result<KestCore::PrayerFocusPlan> offeredPlan() const;
    void refresh();
    void tick();
    void followFocus();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    PrayerWatch m_watch;
    mutable std::optional<Moment> m_moment{};
    bool m_watched = false;
    QString m_page = QStringLiteral("day");
    std::optional<KestCore::LocalDate> m_shown{}; // what the table begins with; absent: today
    std::optional<RunningFocus> m_focus{};
    std::optional<KestCore::PrayerFocusPlan> m_revised{};
};

} // namespace Velvetnook
