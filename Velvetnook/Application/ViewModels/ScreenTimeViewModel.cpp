// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/ScreenTimeViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Monitor/AmountText.h"

#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

namespace chrono = std::chrono;

constexpr int kDays = 7;
constexpr int kTints = 5;

QStringList excludedIn(const QString &stored) { return stored.split(u',', Qt::SkipEmptyParts); }

} // namespace

ScreenTimeViewModel::ScreenTimeViewModel(ApplicationModel &model, const Formatting &formatting,
                                         QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_service{model}
{
    connect(&model, &ApplicationModel::recordsChanged, this, &ScreenTimeViewModel::follow);
    connect(&model, &ApplicationModel::calendarChanged, this, &ScreenTimeViewModel::follow);
    connect(&model, &ApplicationModel::choicesChanged, this, &ScreenTimeViewModel::changed);
    connect(&formatting, &Formatting::wordsChanged, this, &ScreenTimeViewModel::changed);
    connect(&m_service, &ScreenTimeService::countingChanged, this,
            &ScreenTimeViewModel::changed);
}

void ScreenTimeViewModel::setWatched(bool watched)
{
    if (m_isWatched != watched) {
        m_isWatched = watched;
        m_service.setWatched(watched);
        follow();
    }
}

void ScreenTimeViewModel::follow()
{
    if (!m_isWatched) {
        return;
    }
    const auto records = m_model.recordsOfKind("usage");
    const KestCore::LocalDate today{
        chrono::sys_days{chrono::days{m_model.calendar().dayNumber(m_model.now())}}};
    m_days = KestCore::usageDays(records, today, kDays);
    m_week = KestCore::usageTotal(records, today, kDays, kDays);
    emit changed();
}

QString ScreenTimeViewModel::availability() const
{
    const bool hasAny = std::ranges::any_of(
        m_days, [](const KestCore::UsageDay &day) { return day.seconds > 0; });
    if (hasAny) {
        return QStringLiteral("ready");
    }
    if (!isOn()) {
        return QStringLiteral("unconfigured");
    }
    return m_service.problem().isEmpty() ? QStringLiteral("empty") : QStringLiteral("error");
}

bool ScreenTimeViewModel::isOn() const { return m_model.isOn("screen-time.enabled"); }

void ScreenTimeViewModel::setOn(bool isOn)
{
    m_model.changeSetting("screen-time.enabled", isOn ? "true" : "false");
}

QString ScreenTimeViewModel::period() const
{
    return m_isWeek ? QStringLiteral("week") : QStringLiteral("day");
}

void ScreenTimeViewModel::setPeriod(const QString &period)
{
    m_isWeek = period == u"week";
    emit changed();
}

void ScreenTimeViewModel::choose(int day)
{
    m_chosen = std::clamp(day, 0, kDays - 1);
    m_isWeek = false;
    emit changed();
}

const KestCore::UsageDay *ScreenTimeViewModel::chosen() const
{
    const auto at = static_cast<std::size_t>(m_chosen);
    return at < m_days.size() ? &m_days[at] : nullptr;
}

double ScreenTimeViewModel::seconds() const
{
    const KestCore::UsageDay *day = chosen();
    const double ofDay = day == nullptr ? 0 : day->seconds;
    return m_isWeek ? m_week.seconds : ofDay;
}

std::optional<double> ScreenTimeViewModel::change() const
{
    const KestCore::UsageDay *day = chosen();
    const auto ofDay = day == nullptr ? std::nullopt : day->change;
    return m_isWeek ? m_week.change : ofDay;
}

const std::vector<KestCore::ApplicationTotal> &ScreenTimeViewModel::totals() const
{
    static const std::vector<KestCore::ApplicationTotal> kNone;
    const KestCore::UsageDay *day = chosen();
    const auto &ofDay = day == nullptr ? kNone : day->applications;
    return m_isWeek ? m_week.applications : ofDay;
}

QString ScreenTimeViewModel::dayName(const KestCore::UsageDay &day) const
{
    const chrono::sys_days date{day.date};
    const int weekday = static_cast<int>(chrono::weekday{date}.iso_encoding());
    return m_formatting.locale().standaloneDayName(weekday, QLocale::LongFormat);
}

QString ScreenTimeViewModel::title() const
{
    if (m_isWeek) {
        return tr("7 days", "the last ones");
    }
    const KestCore::UsageDay *day = chosen();
    return m_chosen == kDays - 1 || day == nullptr ? tr("Today") : dayName(*day);
}

QString ScreenTimeViewModel::hours() const
{
    const auto whole = static_cast<qlonglong>(seconds() / 3600);
    return whole > 0 ? m_formatting.number(whole) : QString{};
}

QString ScreenTimeViewModel::minutes() const
{
    return m_formatting.number(static_cast<qlonglong>(seconds() / 60) % 60);
}

QString ScreenTimeViewModel::comparison() const
{
    const auto difference = change();
    if (!difference) {
        return {};
    }
    const QString before = m_isWeek ? tr("the week before") : tr("the day before");
    if (std::abs(*difference) < 60) {
        return tr("as much as %1").arg(before);
    }
    const QString amount = spanText(m_formatting, std::abs(*difference));
    return *difference < 0 ? tr("%1 less than %2").arg(amount, before)
                           : tr("%1 more than %2").arg(amount, before);
}

QString ScreenTimeViewModel::stretch() const
{
    const KestCore::UsageDay *day = chosen();
    if (m_isWeek || day == nullptr || day->longestStretch < 60) {
        return {};
    }
    return tr("Longest stretch %1").arg(spanText(m_formatting, day->longestStretch));
}

QVariantList ScreenTimeViewModel::days() const
{
    double most = 1;
    for (const KestCore::UsageDay &day : m_days) {
        most = std::max(most, day.seconds);
    }
    QVariantList list;
    for (std::size_t at = 0; at < m_days.size(); ++at) {
        const KestCore::UsageDay &day = m_days[at];
        const QString name = dayName(day);
        const int weekday =
            static_cast<int>(chrono::weekday{chrono::sys_days{day.date}}.iso_encoding());
        list.append(QVariantMap{
            {QStringLiteral("share"), day.seconds / most},
            {QStringLiteral("label"),
             m_formatting.locale().standaloneDayName(weekday, QLocale::NarrowFormat)},
            {QStringLiteral("spoken"),
             QStringLiteral("%1: %2").arg(name, spanText(m_formatting, day.seconds))},
            {QStringLiteral("isToday"), at + 1 == m_days.size()},
            {QStringLiteral("isChosen"), !m_isWeek && static_cast<int>(at) == m_chosen}});
    }
    return list;
}

QVariantList ScreenTimeViewModel::applications() const
{
    const auto &all = totals();
    const double most = all.empty() ? 1 : std::max(1.0, all.front().seconds);
    QVariantList list;
    for (const auto &[id, name, seconds] : all) {
        const QString key = QString::fromStdString(id);
        list.append(
            QVariantMap{{QStringLiteral("id"), key},
                        {QStringLiteral("title"), QString::fromStdString(name)},
                        {QStringLiteral("time"),
                         seconds < 60 ? tr("under a minute") : spanText(m_formatting, seconds)},
                        {QStringLiteral("share"), seconds / most},
                        {QStringLiteral("tint"), static_cast<int>(qHash(key, 0) % kTints)}});
    }
    return list;
}

int ScreenTimeViewModel::idleMinutes() const
{
    const auto limit = KestCore::screenTimeSettings(m_model.state().settings).idleLimit;
    return static_cast<int>(limit.count() / 60);
}

void ScreenTimeViewModel::setIdleMinutes(int minutes)
{
    m_model.changeSetting("screen-time.idleMinutes", std::to_string(minutes));
}

QString ScreenTimeViewModel::idleText() const
{
    return spanText(m_formatting, 60.0 * idleMinutes());
}

QStringList ScreenTimeViewModel::excluded() const
{
    const std::string_view stored = m_model.setting("screen-time.excluded");
    return excludedIn(QString::fromUtf8(stored.data(), static_cast<qsizetype>(stored.size())));
}

// The list as it is in the store at that moment: another change may be on its way.
void ScreenTimeViewModel::changeExcluded(std::function<void(QStringList &)> edit)
{
    m_model.changeState([edit = std::move(edit)](KestCore::NativeState &state) -> Result<void> {
        std::string &stored = state.settings["screen-time.excluded"];
        QStringList names = excludedIn(QString::fromStdString(stored));
        edit(names);
        stored = names.join(u',').toStdString();
        return {};
    });
}

void ScreenTimeViewModel::exclude(const QString &application)
{
    if (application.isEmpty() || application.contains(u',')) {
        return; // commas part the list
    }
    changeExcluded([application](QStringList &names) {
        if (!names.contains(application, Qt::CaseInsensitive)) {
            names.append(application);
        }
    });
    emit excludedNow(application);
}

void ScreenTimeViewModel::include(const QString &application)
{
    changeExcluded([application](QStringList &names) { names.removeAll(application); });
}

QString ScreenTimeViewModel::footer() const
{
    if (!isOn()) {
        return tr("Nothing is counted now");
    }
    return m_service.problem().isEmpty() ? tr("Known only to this computer")
                                         : m_service.problem();
}

} // namespace Velvetnook
