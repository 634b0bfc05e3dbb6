// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/HomeViewModel.h"

#include "KestCore/Devotional/Rotation.h"
#include "KestCore/Prayer/PrayerInputs.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/HomeCards.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

QVariantMap part(const QString &value, const QString &unit)
{
    return {{QStringLiteral("value"), value}, {QStringLiteral("unit"), unit}};
}

// When a count down to `end`, in whole units and rounded up, shows one less than at `shown`. A
// moment later, so that the clock's own roundness does not hold it back.
Base::Instant oneLess(Base::Instant end, Base::Instant shown, double unit)
{
    const double steps = std::ceil((end - shown).count() / unit) - 1;
    return end - Base::Seconds{std::max(steps, 0.0) * unit - 0.001};
}

const KestCore::Phrase &nameOfToday(const ApplicationModel &model)
{
    const auto &names = KestCore::contentCatalogue().names;
    const auto &id = KestCore::nameOfTheDay(model.now(), model.calendar());
    return KestCore::phraseById(id, names, names.front());
}

} // namespace

HomeViewModel::HomeViewModel(ApplicationModel &model, const Formatting &formatting,
                             QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    connect(&m_model, &ApplicationModel::stateChanged, this, &HomeViewModel::follow);
    connect(&m_model, &ApplicationModel::recordsChanged, this, &HomeViewModel::follow);
    connect(&m_model, &ApplicationModel::companionChanged, this, &HomeViewModel::follow);
    connect(&m_model, &ApplicationModel::calendarChanged, this, &HomeViewModel::follow);
    m_model.clock().add(
        this,
        // Counted from what is shown: a tick that another event overtook still comes.
        [this](Base::Instant) {
            return m_isShown ? nextTick(m_shownAt) : std::optional<Base::Instant>{};
        },
        [this](Base::Instant now) {
            if (m_next && now >= m_next->at) {
                followPrayer();
            }
            show();
        });
}

void HomeViewModel::show()
{
    m_shownAt = m_model.now();
    emit changed();
}

void HomeViewModel::setShown(bool isShown)
{
    if (isShown == m_isShown) {
        return;
    }
    m_isShown = isShown;
    follow();
    m_model.clock().reschedule();
    emit isShownChanged();
}

void HomeViewModel::follow()
{
    if (!m_isShown) {
        return;
    }
    followPrayer();
    followTimers();
    QVariantList cards;
    for (const HomeCard &card : homeCards(m_model.state(), m_model.companion())) {
        cards.append(QVariantMap{{QStringLiteral("tool"), QString::fromStdString(card.tool)},
                                 {QStringLiteral("row"), card.row},
                                 {QStringLiteral("column"), card.column},
                                 {QStringLiteral("columns"), card.columns}});
    }
    if (cards != m_cards) {
        m_cards = std::move(cards);
        emit cardsChanged();
    }
    show();
}

void HomeViewModel::followPrayer()
{
    m_next.reset();
    m_prayerCalendar.reset();
    const auto inputs = KestCore::prayerInputs(m_model.state().settings);
    if (!inputs) {
        m_prayerMessage = tr("Choose where you are");
        return;
    }
    m_prayerCalendar = inputs->calendar;
    m_next = nextPrayerOf(*inputs, m_model.now());
    m_prayerMessage = m_next ? QString{} : tr("No times on this date here.");
}

// The first that goes on; else one that is over or waits.
void HomeViewModel::followTimers()
{
    m_timer.reset();
    auto timers = timersIn(m_model);
    if (timers.empty()) {
        return;
    }
    KestCore::sortForList(timers);
    const auto going = std::ranges::find_if(
        timers, [this](const auto &timer) { return isGoing(timer.state, m_model.now()); });
    m_timer = going == timers.end() ? timers.front() : *going;
}

std::optional<Base::Instant> HomeViewModel::nextTick(Base::Instant shown) const
{
    std::optional<Base::Instant> tick;
    if (m_next) {
        tick = oneLess(m_next->at, shown, (m_next->at - shown).count() > 60 ? 60 : 1);
    }
    if (m_timer && isGoing(m_timer->state, shown)) {
        const double seconds = KestCore::remaining(m_timer->state, shown);
        const bool isStopwatch = !KestCore::countsDown(m_timer->state);
        // A stopwatch shows the second that has passed, a moment later than its roundness.
        const Base::Instant second =
            isStopwatch ? shown + Base::Seconds{std::floor(seconds) + 1.001 - seconds}
                        : oneLess(shown + Base::Seconds{seconds}, shown, 1);
        tick = tick ? std::min(*tick, second) : second;
    }
    return tick;
}

QString HomeViewModel::footer() const
{
    return tr("%1 · %2").arg(m_formatting.date(m_model.now()),
                             islamicDateText(m_model, m_formatting));
}

QString HomeViewModel::clipboardNote() const
{
    const bool isPaused = isToolOn(m_model.state(), "clipboard") &&
                          m_model.isOn("clipboard.enabled") && m_model.isOn("clipboard.paused");
    return isPaused ? tr("Clipboard · paused") : QString{};
}

QString HomeViewModel::counterNote() const
{
    const KestCore::Session &session = m_model.state().devotional.session;
    const QString count = m_formatting.number(session.count);
    QString progress = session.target
                           ? tr("%1 of %2").arg(count, m_formatting.number(*session.target))
                           : tr("%1, open count").arg(count);
    if (session.isPaused) {
        return tr("%1 · paused").arg(progress);
    }
    if (!session.startedAt) {
        return progress;
    }
    const auto startedAt = Base::fromMilliseconds1970(*session.startedAt);
    return tr("%1 · since %2").arg(progress, momentText(startedAt, m_model, m_formatting));
}

QString HomeViewModel::prayerTitle() const
{
    return m_next ? prayerName(m_next->prayer) : tr("Prayer");
}

QVariantList HomeViewModel::prayerLeft() const
{
    if (!m_next) {
        return {};
    }
    const auto left = m_formatting.countdown((m_next->at - m_model.now()).count());
    switch (left.unit) {
    case Countdown::Unit::seconds:
        return {part(left.first, tr("s"))};
    case Countdown::Unit::minutes:
        return {part(left.first, tr("min"))};
    case Countdown::Unit::hours:
        break;
    }
    return {part(left.first, tr("h")), part(left.rest, {})};
}

QString HomeViewModel::prayerNote() const
{
    if (!m_next || !m_prayerCalendar) {
        return m_prayerMessage;
    }
    const QString time = m_formatting.timeIn(*m_prayerCalendar, m_next->at);
    const std::string_view city = m_model.setting("prayer.city");
    return city.empty() ? time : tr("%1 · %2").arg(time, QString::fromUtf8(city));
}

QString HomeViewModel::nameId() const
{
    return QString::fromStdString(nameOfToday(m_model).id);
}

QString HomeViewModel::nameArabic() const
{
    return QString::fromStdString(nameOfToday(m_model).arabic);
}

QString HomeViewModel::nameTitle() const
{
    return m_formatting.isRightToLeft() ? QString{} : phraseTitle(nameOfToday(m_model));
}

double HomeViewModel::timerSeconds() const
{
    return m_timer ? KestCore::remaining(m_timer->state, m_model.now()) : 0;
}

QString HomeViewModel::timerTitle() const
{
    return m_timer ? Velvetnook::timerTitle(*m_timer, m_formatting) : tr("Timer");
}

QString HomeViewModel::timerText() const
{
    if (!m_timer) {
        return {};
    }
    const bool isStopwatch = !KestCore::countsDown(m_timer->state);
    return m_formatting.duration(isStopwatch ? std::floor(timerSeconds()) : timerSeconds());
}

QString HomeViewModel::timerNote() const
{
    if (!m_timer) {
        return tr("Nothing is running");
    }
    if (KestCore::hasEnded(m_timer->state, m_model.now())) {
        return tr("finished");
    }
    return m_timer->state.running ? QString{} : tr("paused");
}

bool HomeViewModel::hasTimerBar() const
{
    return m_timer && m_timer->state.running && KestCore::countsDown(m_timer->state);
}

double HomeViewModel::timerShare() const
{
    if (!m_timer || m_timer->state.duration <= 0) {
        return 0;
    }
    return std::clamp(1 - timerSeconds() / m_timer->state.duration, 0.0, 1.0);
}

void HomeViewModel::resumeCounter()
{
    if (m_model.state().devotional.session.isPaused) {
        stepCounter(m_model, KestCore::TogglePause{}, [this](Result<bool> done) {
            if (!done) {
                emit m_model.failed(engineText(done.error().message));
            }
        });
    }
}

} // namespace Velvetnook
