// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/TimersViewModel.h"

#include "Base/EnumText.h"
#include "KestCore/Tools/Texts.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/DurationText.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/TimerSteps.h"

#include <QVariant>

#include <algorithm>
#include <array>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::Timer;
using KestCore::TimerMode;
using KestCore::TimerState;

constexpr double kMinute = 60;
const QString kNew = QStringLiteral("new-");

std::optional<TimerMode> modeOf(const std::string &text)
{
    return Base::fromText<TimerMode>(text);
}

// The titles that the engine gives, which are shown translated.
[[maybe_unused]] constexpr std::array kEngineTexts{
    QT_TRANSLATE_NOOP("Velvetnook::TimersViewModel", "Focus"),
    QT_TRANSLATE_NOOP("Velvetnook::TimersViewModel", "Timer"),
    QT_TRANSLATE_NOOP("Velvetnook::TimersViewModel", "Stopwatch"),
    QT_TRANSLATE_NOOP("Velvetnook::TimersViewModel", "Water")};

QString iconOf(const std::string &mode)
{
    static constexpr std::array kIcons{"focus", "hourglass", "timers", "drop"};
    const TimerMode known = modeOf(mode).value_or(TimerMode::countdown);
    return QLatin1String{kIcons.at(static_cast<std::size_t>(known))};
}

// Whether anything of it has run.
bool hasBegun(const TimerState &timer)
{
    return timer.running || timer.elapsed > 0 || timer.notified;
}

} // namespace

TimersViewModel::TimersViewModel(ApplicationModel &model, const Formatting &formatting,
                                 QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    follow();
    connect(&model, &ApplicationModel::recordsChanged, this, &TimersViewModel::follow);
    connect(&model, &ApplicationModel::choicesChanged, this, &TimersViewModel::refresh);
    connect(&model, &ApplicationModel::calendarChanged, this, &TimersViewModel::refresh);
    // Counted from what is shown: a tick that was overtaken by another event still comes.
    model.clock().add(
        this, [this](Base::Instant) { return m_watched ? nextTick(m_shownAt) : std::nullopt; },
        [this](Base::Instant) { tick(); });
}

void TimersViewModel::setWatched(bool watched)
{
    if (m_watched != watched) {
        m_watched = watched;
        emit watchedChanged();
        refresh();
        m_model.clock().reschedule();
    }
}

const Timer *TimersViewModel::timerOf(const QString &id) const
{
    const auto found = std::ranges::find(m_timers, id.toStdString(),
                                         [](const Timer &timer) { return timer.record.id; });
    return found == m_timers.end() ? nullptr : &*found;
}

void TimersViewModel::follow()
{
    m_timers = timersIn(m_model);
    KestCore::sortForList(m_timers);
    refresh();
}

double TimersViewModel::minutesOf(const std::string &mode) const
{
    const auto set = m_lengths.find(mode);
    return set == m_lengths.end() ? KestCore::configuredMinutes(mode, m_model.state().settings)
                                  : set->second;
}

// The timers there are, then the kinds of which there is none.
void TimersViewModel::showRows()
{
    m_shownAt = m_model.now();
    std::vector<TimerRow> rows;
    for (const Timer &timer : m_timers) {
        rows.push_back(rowOf(timer));
    }
    for (const auto &[mode, text] : enumTexts(Base::Of<TimerMode>{})) {
        const bool isThere = std::ranges::any_of(
            m_timers, [&](const Timer &timer) { return timer.state.mode == text; });
        if (!isThere) {
            rows.push_back(rowOf(mode));
        }
    }
    const bool isThere = std::ranges::any_of(
        rows, [this](const TimerRow &row) { return row.timerId == m_chosen; });
    // A kind that nobody chose gives way to the first timer that is begun.
    const bool isOpen = !m_isChosenByUser && m_chosen.startsWith(kNew);
    if (!isThere || isOpen) {
        m_chosen = rows.front().timerId;
        m_isChosenByUser = false;
    }
    for (TimerRow &row : rows) {
        row.isChosen = row.timerId == m_chosen;
    }
    m_rows.show(std::move(rows));
}

void TimersViewModel::refresh()
{
    showRows();
    followProgress();
    emit changed();
    emit ticked();
    m_model.clock().reschedule();
}

TimerRow TimersViewModel::rowOf(const Timer &timer) const
{
    const TimerState &state = timer.state;
    const bool hasEnded = KestCore::hasEnded(state, m_model.now());
    return {.timerId = QString::fromStdString(timer.record.id),
            .icon = iconOf(state.mode),
            .title = titleOf(timer),
            .note = noteOf(timer),
            .isRunning = state.running && !hasEnded,
            .canReset = hasBegun(state),
            .canRemove = true,
            .canSet = KestCore::countsDown(state)};
}

TimerRow TimersViewModel::rowOf(TimerMode mode) const
{
    const std::string text{Base::textOf(mode)};
    const bool hasLength = mode != TimerMode::stopwatch;
    return {.timerId = kNew + QString::fromStdString(text),
            .icon = iconOf(text),
            .title = tr(std::string{KestCore::displayTitle(text)}.c_str()),
            .note = hasLength ? m_formatting.remaining(minutesOf(text) * kMinute)
                              : tr("Not started"),
            .canSet = hasLength};
}

int TimersViewModel::chosenRow() const
{
    const auto found = std::ranges::find(m_rows.rows(), m_chosen, &TimerRow::timerId);
    return static_cast<int>(found - m_rows.rows().begin());
}

void TimersViewModel::choose(const QString &id)
{
    m_isChosenByUser = true;
    if (m_chosen != id) {
        m_chosen = id;
        refresh();
    }
}

void TimersViewModel::step(int distance)
{
    const auto &rows = m_rows.rows();
    const int at = std::clamp(chosenRow() + distance, 0, static_cast<int>(rows.size()) - 1);
    choose(rows[static_cast<std::size_t>(at)].timerId);
}

// A refusal is told in the engine's words.
void TimersViewModel::tell(const Base::Result<void> &result)
{
    if (!result) {
        m_model.say(engineText(result.error().message));
    }
}

void TimersViewModel::begin(KestCore::NewTimer wanted)
{
    std::vector<std::string> before;
    for (const Timer &timer : m_timers) {
        before.push_back(timer.record.id);
    }
    beginTimer(m_model, std::move(wanted), [this, before](const Base::Result<void> &result) {
        tell(result);
        for (const Timer &timer : m_timers) {
            if (result && std::ranges::find(before, timer.record.id) == before.end()) {
                choose(QString::fromStdString(timer.record.id));
            }
        }
    });
}

void TimersViewModel::toggle(const QString &id)
{
    if (id.startsWith(kNew)) {
        add(id.mid(kNew.size()));
        return;
    }
    const Timer *timer = timerOf(id);
    if (timer == nullptr) {
        return;
    }
    toggleTimer(m_model, *timer, [this](const Base::Result<void> &result) { tell(result); });
}

void TimersViewModel::adjust(int minutes)
{
    const double seconds = minutes * kMinute;
    const Timer *timer = chosen();
    if (timer == nullptr) {
        const std::string mode = m_chosen.mid(kNew.size()).toStdString();
        const double length = minutesOf(mode) * kMinute + seconds;
        const QString error = setTime(m_chosen, QStringLiteral("%1 s").arg(length, 0, 'f', 0));
        if (!error.isEmpty()) {
            m_model.say(error);
        }
        return;
    }
    changeTimer(
        m_model, timer->record.id, PastEnd::settled,
        [seconds](TimerState &state, Base::Instant now) {
            return KestCore::adjustTimer(state, now, KestCore::remaining(state, now) + seconds);
        },
        [this](const Base::Result<void> &result) { tell(result); });
}

void TimersViewModel::reset(const QString &id)
{
    if (const Timer *timer = timerOf(id)) {
        resetTimer(m_model, timer->record.id,
                   [this](const Base::Result<void> &result) { tell(result); });
    }
}

void TimersViewModel::remove(const QString &id)
{
    const Timer *timer = timerOf(id);
    if (timer == nullptr) {
        return;
    }
    const auto record = std::make_shared<KestCore::LocalRecord>();
    removeTimer(m_model, timer->record.id, record,
                [this, record, name = titleOf(*timer)](const Base::Result<void> &result) {
                    tell(result);
                    if (result) {
                        m_removed = record;
                        emit removed(name);
                    }
                });
}

void TimersViewModel::restore()
{
    if (m_removed) {
        const QString id = QString::fromStdString(m_removed->id);
        restoreTimer(m_model, *std::exchange(m_removed, nullptr),
                     [this, id](const Base::Result<void> &result) {
                         tell(result);
                         if (result) {
                             choose(id);
                         }
                     });
    }
}

void TimersViewModel::add(const QString &kind)
{
    const std::string text = kind.toStdString();
    if (text == "break") {
        begin({.mode = TimerMode::countdown,
               .minutes = KestCore::configuredMinutes(text, m_model.state().settings),
               .title = tr("Break").toStdString()});
        return;
    }
    if (const auto mode = modeOf(text)) {
        const bool hasLength = *mode != TimerMode::stopwatch;
        begin({.mode = *mode,
               .minutes = hasLength ? std::optional{minutesOf(text)} : std::nullopt,
               .title = {}});
    }
}

QString TimersViewModel::setTime(const QString &id, const QString &text)
{
    const auto seconds = secondsFromText(text);
    const bool isLength =
        seconds && *seconds >= KestCore::kShortestTimer && *seconds <= KestCore::kLongestTimer;
    if (!isLength) {
        return m_formatting.digits(tr("Choose between 1 minute and 365 days."));
    }
    const Timer *timer = timerOf(id);
    if (timer == nullptr) {
        m_lengths[id.mid(kNew.size()).toStdString()] = *seconds / kMinute;
        refresh();
        return {};
    }
    TimerState tried = timer->state;
    if (const auto result = KestCore::adjustTimer(tried, m_model.now(), *seconds); !result) {
        return m_formatting.digits(engineText(result.error().message));
    }
    changeTimer(
        m_model, timer->record.id, PastEnd::settled,
        [wanted = *seconds](TimerState &state, Base::Instant now) {
            return KestCore::adjustTimer(state, now, wanted);
        },
        [this](const Base::Result<void> &result) { tell(result); });
    return {};
}

QString TimersViewModel::rename(const QString &id, const QString &title)
{
    const auto checked = KestCore::checkedTitle(title.toStdString());
    if (!checked) {
        return engineText(checked.error().message);
    }
    const Timer *timer = timerOf(id);
    if (timer != nullptr && !checked->empty() && title != titleOf(*timer)) {
        renameTimer(m_model, timer->record.id, *checked,
                    [this](const Base::Result<void> &result) { tell(result); });
    }
    return {};
}

} // namespace Velvetnook
