// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerFocusPlan.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/PrayerTable.h"
#include "Velvetnook/Application/ViewModels/PrayerViewModel.h"

#include <QStringList>

#include <algorithm>

// The pages behind the day: its table by week and month, and focus until a prayer.
namespace Velvetnook
{

namespace
{

namespace chrono = std::chrono;
using KestCore::LocalDate;
using KestCore::PrayerCalculator;
using KestCore::PrayerFocusPlan;

LocalDate turned(LocalDate from, bool byMonth, int distance)
{
    if (byMonth) {
        const auto month = from.year() / from.month() + chrono::months{distance};
        return LocalDate{month / 1};
    }
    return chrono::sys_days{from} + chrono::days{7 * distance};
}

} // namespace

void PrayerViewModel::setPage(const QString &page)
{
    if (page != m_page) {
        m_page = page;
        m_shown.reset();
        emit pageChanged();
    }
}

LocalDate PrayerViewModel::shownDate() const { return m_shown.value_or(today().date); }

QString PrayerViewModel::tableTitle() const
{
    const auto &inputs = m_watch.inputs();
    if (!inputs) {
        return {};
    }
    const PrayerTable table{m_model, m_formatting, *inputs};
    return m_page == u"month" ? table.monthTitle(shownDate()) : table.weekTitle(shownDate());
}

QVariantList PrayerViewModel::tableRows() const
{
    const auto &inputs = m_watch.inputs();
    if (!inputs || (m_page != u"month" && m_page != u"week")) {
        return {};
    }
    const PrayerTable table{m_model, m_formatting, *inputs};
    return m_page == u"month" ? table.month(shownDate()) : table.week(shownDate());
}

QStringList PrayerViewModel::names() const
{
    QStringList names;
    for (const auto &[prayer, text] : enumTexts(Base::Of<PrayerCore::Prayer>{})) {
        names.append(prayerName(prayer));
    }
    return names;
}

bool PrayerViewModel::isTodayShown() const { return !m_shown; }

void PrayerViewModel::turn(int distance)
{
    const LocalDate next = turned(shownDate(), m_page == u"month", distance);
    const int year = static_cast<int>(next.year());
    if (year < PrayerCalculator::kFirstYear || year > PrayerCalculator::kLastYear) {
        return;
    }
    const LocalDate now = today().date;
    const bool isHome = m_page == u"month"
                            ? next.year() == now.year() && next.month() == now.month()
                            : next == now;
    m_shown = isHome ? std::nullopt : std::optional{next};
    emit pageChanged();
}

void PrayerViewModel::turnToToday()
{
    m_shown.reset();
    emit pageChanged();
}

// Only a plan that runs can be out of date; it stays as it is until the user takes another.
void PrayerViewModel::followFocus()
{
    m_focus = runningFocus(m_model);
    const auto &inputs = m_watch.inputs();
    m_revised = m_focus && inputs ? KestCore::revisedPlan(m_focus->plan, *inputs, m_model.now())
                                  : std::nullopt;
}

QString PrayerViewModel::focusState() const
{
    if (!m_focus) {
        return {};
    }
    return m_revised ? tr("Prayer settings changed. Your current deadline is unchanged.")
                     : tr("Focus until %1").arg(timeText(m_focus->plan.deadline));
}

QString PrayerViewModel::focusLink() const
{
    if (m_revised) {
        return tr("Review revised deadline…");
    }
    const bool isOffered = hasPlace() && hasNext();
    if (m_focus || !isOffered) {
        return {};
    }
    return tr("Focus until prayer…");
}

Result<PrayerFocusPlan> PrayerViewModel::offeredPlan() const
{
    if (m_revised) {
        return *m_revised;
    }
    const Base::Instant now = m_model.now();
    const auto coming = m_watch.nextPrayer(now);
    if (!coming) {
        return std::unexpected(KestError::unavailable(message().toStdString()));
    }
    return KestCore::planFocus(*coming, focusBuffer(), now);
}

QString PrayerViewModel::focusTitle() const { return tr("Focus until prayer?"); }

QString PrayerViewModel::focusBody() const
{
    const auto plan = offeredPlan();
    if (!plan) {
        return engineText(plan.error().message);
    }
    const auto prayer = Base::fromText<PrayerCore::Prayer>(plan->prayer);
    const QString name = prayer ? prayerName(*prayer) : QString{};
    const QString time =
        timeText(plan->deadline + Base::Seconds{static_cast<double>(plan->bufferMinutes) * 60});
    return m_formatting.digits(
        tr("Focus until %1, %2 minutes before %3. Later location or prayer changes will ask "
           "you to review the deadline.")
            .arg(name)
            .arg(plan->bufferMinutes)
            .arg(time));
}

int PrayerViewModel::focusBuffer() const
{
    return static_cast<int>(m_revised ? m_revised->bufferMinutes
                                      : m_model.companion().prayerBufferMinutes);
}

int PrayerViewModel::longestBuffer() const
{
    return static_cast<int>(KestCore::kLongestPrayerBuffer);
}

QString PrayerViewModel::focusBufferText() const
{
    return m_formatting.digits(tr("%1 min").arg(focusBuffer()));
}

void PrayerViewModel::askFocus()
{
    followFocus();
    setPage(QStringLiteral("focus"));
    emit focusChanged();
}

void PrayerViewModel::setFocusBuffer(int minutes)
{
    m_model.changeCompanion([minutes](KestCore::CompanionState &companion) {
        companion.prayerBufferMinutes =
            std::clamp<std::int64_t>(minutes, 0, KestCore::kLongestPrayerBuffer);
    });
}

void PrayerViewModel::acceptFocus()
{
    auto plan = offeredPlan();
    if (!plan) {
        emit focusChanged(); // it has become too late meanwhile
        return;
    }
    const auto done = [this](const Result<void> &result) {
        if (!result) {
            emit m_model.failed(engineText(result.error().message));
            return;
        }
        setPage(QStringLiteral("day"));
        emit focusStarted();
    };
    if (m_revised && m_focus) {
        reviseFocus(m_model, *m_focus, *std::move(plan), done);
        return;
    }
    const auto prayer = Base::fromText<PrayerCore::Prayer>(plan->prayer);
    const QString title = tr("Focus until %1").arg(prayer ? prayerName(*prayer) : QString{});
    startFocus(m_model, *std::move(plan), title.toStdString(), done);
}

} // namespace Velvetnook
