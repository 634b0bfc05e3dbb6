// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/CalendarPageViewModel.h"

#include "KestCore/Tools/CalendarSources.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/EventWatch.h"
#include "Velvetnook/Application/Formatting.h"

#include <QLocale>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace chrono = std::chrono;

using KestCore::LocalDate;
using KestCore::PrayerCalculator;

CalendarPageViewModel::CalendarPageViewModel(ApplicationModel &model,
                                             const Formatting &formatting, QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_day{today()}, m_today{m_day},
      m_days{dayRoles()}, m_events{eventRoles()}, m_sources{sourceRoles()}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &CalendarPageViewModel::follow);
    connect(&model, &ApplicationModel::calendarChanged, this, &CalendarPageViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, &CalendarPageViewModel::follow);
    connect(&m_watch, &FileWatch::changed, this, &CalendarPageViewModel::read);
    model.clock().add(
        this, [this](Base::Instant now) { return nextChange(now); },
        [this](Base::Instant) {
            // The next event has begun: which is the next one now?
            if (m_reading.next && m_reading.next->start <= m_model.now()) {
                read();
            }
            show();
        });
    arrange();
}

LocalDate CalendarPageViewModel::today() const
{
    return chrono::sys_days{chrono::days{m_model.calendar().dayNumber(m_model.now())}};
}

QString CalendarPageViewModel::month() const
{
    const auto month = static_cast<unsigned>(m_month.month.month());
    const QString name = m_formatting.locale().standaloneMonthName(static_cast<int>(month));
    const QString year = QString::number(static_cast<int>(m_month.month.year()));
    return name + u' ' + m_formatting.digits(year);
}

QStringList CalendarPageViewModel::weekdays() const
{
    QStringList letters;
    for (unsigned day = 0; day < 7; ++day) {
        const auto weekday = m_month.firstWeekday + chrono::days{day};
        letters.push_back(m_formatting.locale().standaloneDayName(
            static_cast<int>(weekday.iso_encoding()), QLocale::NarrowFormat));
    }
    return letters;
}

QString CalendarPageViewModel::date() const
{
    QString date = m_formatting.date(noonOf(dayNumberOf(m_day), m_model));
    if (m_day.year() == m_today.year()) {
        return date;
    }
    return date + u' ' + m_formatting.digits(QString::number(static_cast<int>(m_day.year())));
}

QString CalendarPageViewModel::islamicDate() const
{
    return m_formatting.islamicDate(KestCore::shownIslamicDate(
        m_day, KestCore::islamicDayOffset(m_model.state().settings)));
}

bool CalendarPageViewModel::isTwelveHours() const { return m_formatting.isTwelveHours(); }

QString CalendarPageViewModel::availability() const
{
    if (m_paths.empty()) {
        return QStringLiteral("unconfigured");
    }
    if (!m_isRead) {
        return QStringLiteral("loading");
    }
    if (!m_reading.failure.empty()) {
        return QStringLiteral("error");
    }
    return m_events.rows().empty() ? QStringLiteral("empty") : QStringLiteral("ready");
}

QString CalendarPageViewModel::message() const
{
    const QString state = availability();
    if (state == u"unconfigured") {
        return tr("No calendar is there yet");
    }
    if (state == u"loading") {
        return tr("Reading your calendars…");
    }
    if (state == u"error") {
        return engineText(m_reading.failure);
    }
    return state == u"empty" ? tr("Nothing planned") : QString{};
}

QString CalendarPageViewModel::problem() const
{
    const auto isBroken = [](const SourceRow &row) { return !row.problem.isEmpty(); };
    const auto broken = static_cast<int>(std::ranges::count_if(m_sources.rows(), isBroken));
    if (broken > 0) {
        return m_formatting.digits(
            tr("%n calendar(s) could not be read in full", nullptr, broken));
    }
    if (m_reading.broken > 0 || !m_reading.isWhole) {
        return tr("Some series could not be counted out");
    }
    return {};
}

QString CalendarPageViewModel::footer() const
{
    const auto count = static_cast<int>(m_paths.size());
    return count == 0 ? tr("Your calendar files are only read")
                      : m_formatting.digits(tr("Read only · %n calendar(s)", nullptr, count));
}

bool CalendarPageViewModel::isInStrip() const
{
    return showsEventInStrip(m_model.state().settings);
}

void CalendarPageViewModel::setInStrip(bool isInStrip) { showEventInStrip(m_model, isInStrip); }

void CalendarPageViewModel::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) == isShown) {
        return;
    }
    emit isShownChanged();
    if (isShown) {
        follow();
        read();
    } else {
        m_watch.stop();
        m_side.tell(this, [](CalendarReader &reader) { reader.forget(); });
    }
    m_model.clock().reschedule();
}

// The settings, the day or the words are others.
void CalendarPageViewModel::follow()
{
    const LocalDate now = today();
    if (now != m_today && m_day == std::exchange(m_today, now)) {
        m_day = now; // who looks at today goes on doing so
    }
    const auto before = m_paths;
    arrange();
    if (m_isShown && (before != m_paths || !m_isRead)) {
        read();
    }
}

// The month round the chosen day.
void CalendarPageViewModel::arrange()
{
    const auto &settings = m_model.state().settings;
    const auto first = KestCore::firstWeekday(settings, QLocale::system().name().toStdString());
    m_month = KestCore::calendarMonth(m_day.year() / m_day.month(), first, m_today,
                                      KestCore::islamicDayOffset(settings));
    auto paths = KestCore::calendarSources(settings);
    if (paths != m_paths) {
        m_paths = std::move(paths);
        m_isRead = false;
    }
    if (m_reading.firstDay != dayNumberOf(m_month.days.front().date)) {
        m_isRead = false;
    }
    show();
}

void CalendarPageViewModel::show()
{
    m_days.show(dayCells(m_month, m_day, m_reading, m_formatting, m_model));
    m_events.show(m_isRead ? eventRows(m_reading, dayNumberOf(m_day), m_model, m_formatting)
                           : std::vector<EventRow>{});
    m_sources.show(sourceRows(m_paths, m_reading, m_formatting));
    emit changed();
}

void CalendarPageViewModel::read()
{
    if (!m_isShown) {
        return;
    }
    if (m_paths.empty()) {
        m_watch.stop();
        m_reading = {};
        show();
        return;
    }
    m_side.ask(
        this,
        [question = CalendarQuestion{.sources = m_paths,
                                     .calendar = m_model.calendar(),
                                     .firstDay = dayNumberOf(m_month.days.front().date),
                                     .dayCount = static_cast<int>(m_month.days.size()),
                                     .now = m_model.now()}](CalendarReader &reader) {
            return reader.read(question);
        },
        [this, since = QDateTime::currentDateTime()](CalendarReading reading) {
            takeReading(std::move(reading), since);
        });
}

// What has been asked for another month meanwhile is still on its way.
void CalendarPageViewModel::takeReading(CalendarReading reading, const QDateTime &since)
{
    if (!m_isShown || m_paths.empty() ||
        reading.firstDay != dayNumberOf(m_month.days.front().date)) {
        return;
    }
    m_watch.watch(reading.places, since);
    m_reading = std::move(reading);
    m_isRead = true;
    show();
    m_model.clock().reschedule();
}

// The next whole minute, while something on the chosen day depends on it.
std::optional<Base::Instant> CalendarPageViewModel::nextChange(Base::Instant now) const
{
    if (!m_isShown || m_events.rows().empty() || m_day != m_today) {
        return std::nullopt;
    }
    constexpr double kMinute = 60;
    const double minutes = std::floor(now.time_since_epoch().count() / kMinute) + 1;
    return Base::Instant{Base::Seconds{minutes * kMinute}};
}

void CalendarPageViewModel::chooseDate(LocalDate date)
{
    if (!PrayerCalculator::checkDate(date)) {
        return;
    }
    m_day = date;
    arrange();
    if (!m_isRead) {
        read();
    }
    m_model.clock().reschedule();
}

void CalendarPageViewModel::choose(int cell)
{
    if (cell >= 0 && cell < m_days.rowCount()) {
        chooseDate(m_month.days[static_cast<std::size_t>(cell)].date);
    }
}

void CalendarPageViewModel::move(int days)
{
    chooseDate(chrono::sys_days{m_day} + chrono::days{days});
}

// To the same day of the month, or its last one.
void CalendarPageViewModel::moveMonths(int months)
{
    LocalDate date = m_day + chrono::months{months};
    if (!date.ok()) {
        date = date.year() / date.month() / chrono::last;
    }
    chooseDate(date);
}

void CalendarPageViewModel::goToday() { chooseDate(today()); }

} // namespace Velvetnook
