// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/HistoryViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <QVariantMap>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr std::size_t kQuicklyAdded = 2'000; // sessions; more are added up on another thread
constexpr std::size_t kWeek = 7;
constexpr std::array<const char *, HistoryTotals::kPeriods> kPeriodNames{"today", "week",
                                                                         "month", "all"};

std::size_t indexOf(HistoryPeriod period) { return static_cast<std::size_t>(period); }

} // namespace

HistoryViewModel::HistoryViewModel(ApplicationModel &model, const Formatting &formatting,
                                   QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_sessions{model, formatting},
      m_records{model.state().devotional.records},
      m_isOff{!model.state().devotional.preferences.historyEnabled},
      m_wording{wordingOf(formatting)}
{
    connect(&m_model, &ApplicationModel::stateChanged, this, &HistoryViewModel::follow);
    connect(&m_model, &ApplicationModel::calendarChanged, this, &HistoryViewModel::reword);
    addUp();
}

void HistoryViewModel::follow()
{
    const auto &devotional = m_model.state().devotional;
    if (const QString wording = wordingOf(m_formatting); wording != m_wording) {
        m_wording = wording;
        m_sessions.reword();
        emit changed();
        emit sessionsChanged();
    }
    const bool isOff = !devotional.preferences.historyEnabled;
    const bool hasOthers = !devotional.records.sharesBlockWith(m_records);
    if (!hasOthers && isOff == m_isOff) {
        return;
    }
    m_isOff = isOff;
    m_records = devotional.records;
    if (hasOthers) {
        m_sessions.follow();
        addUp();
    }
    emit sessionsChanged();
}

void HistoryViewModel::reword()
{
    m_sessions.reword();
    addUp();
}

void HistoryViewModel::addUp()
{
    const std::uint64_t generation = ++m_generation;
    if (m_records.size() <= kQuicklyAdded) {
        take(historyTotals(m_records, m_model.calendar(), m_model.now()));
        return;
    }
    // Asked of on the main thread only: this may be gone by then, or want other totals.
    QThreadPool::globalInstance()->start([guard = QPointer{this}, generation,
                                          records = m_records, now = m_model.now(),
                                          calendar = m_model.calendar()] {
        HistoryTotals totals = historyTotals(records, calendar, now);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [guard, generation, totals = std::move(totals)]() mutable {
                if (guard && guard->m_generation == generation) {
                    guard->take(std::move(totals));
                }
            },
            Qt::QueuedConnection);
    });
}

void HistoryViewModel::take(HistoryTotals totals)
{
    m_totals = std::move(totals);
    m_isKnown = true;
    emit changed();
}

QString HistoryViewModel::period() const
{
    return QLatin1String{kPeriodNames.at(indexOf(m_period))};
}

void HistoryViewModel::setPeriod(const QString &period)
{
    for (std::size_t n = 0; n < kPeriodNames.size(); ++n) {
        const auto named = static_cast<HistoryPeriod>(n);
        if (period == QLatin1String{kPeriodNames.at(n)} && named != m_period) {
            m_period = named;
            emit changed();
        }
    }
}

void HistoryViewModel::setByPhrase(bool byPhrase)
{
    if (m_byPhrase != byPhrase) {
        m_byPhrase = byPhrase;
        emit byPhraseChanged();
    }
}

QString HistoryViewModel::total() const
{
    return m_isKnown ? m_formatting.number(m_totals.total.at(indexOf(m_period)).count)
                     : QString{};
}

QString HistoryViewModel::totalNote() const
{
    if (!m_isKnown) {
        return {};
    }
    const std::int64_t sessions = m_totals.total.at(indexOf(m_period)).sessions;
    const QString number = m_formatting.number(sessions);
    const bool isOne = sessions == 1;
    switch (m_period) {
    case HistoryPeriod::today:
        return isOne ? tr("today, in one session") : tr("today, in %1 sessions").arg(number);
    case HistoryPeriod::week:
        return isOne ? tr("in 7 days, one session") : tr("in 7 days, %1 sessions").arg(number);
    case HistoryPeriod::month:
        return isOne ? tr("in 30 days, one session")
                     : tr("in 30 days, %1 sessions").arg(number);
    case HistoryPeriod::all:
        break;
    }
    return isOne ? tr("in all, one session") : tr("in all, %1 sessions").arg(number);
}

// Noon, so that a change of the clock moves nothing to another date.
Base::Instant HistoryViewModel::dayBefore(std::size_t days) const
{
    const KestCore::LocalTime local = m_model.calendar().at(m_model.now());
    const double sinceNoon = (local.hour - 12) * 3600.0 + local.minute * 60.0;
    return m_model.now() - Base::Seconds{sinceNoon + static_cast<double>(days) * 86'400.0};
}

QVariantList HistoryViewModel::days() const
{
    const bool isWeek = m_period == HistoryPeriod::today || m_period == HistoryPeriod::week;
    const std::size_t shown = isWeek ? kWeek : m_totals.days.size();
    const auto first = m_totals.days.end() - static_cast<std::ptrdiff_t>(shown);
    const std::int64_t most =
        std::max<std::int64_t>(*std::max_element(first, m_totals.days.end()), 1);
    QVariantList list;
    for (std::size_t n = 0; n < shown; ++n) {
        const std::size_t age = shown - 1 - n;
        const std::int64_t count = m_totals.days.at(m_totals.days.size() - 1 - age);
        const Base::Instant noon = dayBefore(age);
        list.append(QVariantMap{
            {QStringLiteral("share"), static_cast<double>(count) / static_cast<double>(most)},
            {QStringLiteral("label"),
             isWeek ? weekdayLetter(noon, m_model.calendar(), m_formatting) : QString{}},
            {QStringLiteral("spoken"),
             QStringLiteral("%1: %2").arg(dayText(noon, m_model, m_formatting),
                                          m_formatting.number(count))},
            {QStringLiteral("isToday"), age == 0}});
    }
    return list;
}

QString HistoryViewModel::firstDay() const
{
    return dayText(dayBefore(m_totals.days.size() - 1), m_model, m_formatting);
}

QVariantList HistoryViewModel::phrases() const
{
    QVariantList list;
    for (const auto &[id, total] : m_totals.byPhrase.at(indexOf(m_period))) {
        const KestCore::Phrase &phrase = phraseOf(id);
        list.append(
            QVariantMap{{QStringLiteral("arabic"), QString::fromStdString(phrase.arabic)},
                        {QStringLiteral("title"), phraseTitle(phrase)},
                        {QStringLiteral("count"), m_formatting.number(total.count)},
                        {QStringLiteral("note"),
                         total.sessions == 1
                             ? tr("one session")
                             : tr("%1 sessions").arg(m_formatting.number(total.sessions))}});
    }
    return list;
}

QString HistoryViewModel::footer() const
{
    return m_isOff ? tr("The history is off: what you finish now is not kept")
                   : tr("History is kept on this computer");
}

} // namespace Velvetnook
