// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ScreenTime/ScreenTimeService.h"

#include "KestCore/Tools/ScreenTimeTotals.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::ScreenTimeTracker;
using KestCore::UsagePiece;

constexpr Base::Seconds kStep{30}; // the tracker wants to be asked so often
constexpr Base::Seconds kWritePace{300};
constexpr Base::Seconds kWatchedPace{60};

Result<Committed> written(KestCore::StateStore &store, const std::vector<UsagePiece> &pieces,
                          std::int64_t today, Base::Instant now)
{
    KEST_TRY(const auto stored, store.recordsOfKind("usage"));
    KEST_CHECK(store.changeRecords(KestCore::usageChanges(stored, pieces, today, now)));
    KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
    return committedAll(std::move(snapshot));
}

} // namespace

ScreenTimeService::ScreenTimeService(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &ScreenTimeService::follow);
    connect(&model, &ApplicationModel::calendarChanged, this, [this] {
        if (m_tracker) {
            m_tracker->setCalendar(m_model.calendar(), m_model.now());
        }
    });
    model.clock().add(
        this, [this](Base::Instant now) { return nextStep(now); },
        [this](Base::Instant now) { advance(now); });
}

ScreenTimeService::~ScreenTimeService() = default;

void ScreenTimeService::begin(MakeActivity make)
{
    m_make = std::move(make);
    follow();
}

QString ScreenTimeService::problem() const
{
    return m_activity ? m_activity->problem() : QString{};
}

void ScreenTimeService::follow()
{
    auto settings = KestCore::screenTimeSettings(m_model.state().settings);
    const bool isWanted =
        m_make && settings.enabled && isToolOn(m_model.state(), "screen-time");
    if (!isWanted) {
        stop();
    } else if (!m_tracker) {
        start(settings);
    } else if (settings != m_settings) {
        m_tracker->setSettings(settings, m_model.now());
    }
    m_settings = std::move(settings);
}

void ScreenTimeService::start(const KestCore::ScreenTimeSettings &settings)
{
    m_activity = m_make();
    m_tracker.emplace(settings, m_model.calendar());
    const Base::Instant now = m_model.now();
    m_writtenAt = now;
    connect(m_activity.get(), &ScreenActivity::applicationChanged, this,
            &ScreenTimeService::followApplication);
    using Away = ScreenTimeTracker::Away;
    connect(m_activity.get(), &ScreenActivity::lockedChanged, this, [this] {
        m_tracker->setAway(Away::locked, m_activity->isLocked(), m_model.now());
        write();
        m_model.clock().reschedule(); // nothing was waited for while it was locked
    });
    connect(m_activity.get(), &ScreenActivity::suspending, this, [this] {
        m_tracker->setAway(Away::suspended, true, m_model.now());
        write();
    });
    connect(m_activity.get(), &ScreenActivity::resumed, this, [this] {
        m_tracker->setAway(Away::suspended, false, m_model.now());
        m_model.clock().reschedule();
    });
    m_tracker->setAway(Away::locked, m_activity->isLocked(), now);
    followApplication();
    advance(now);
    emit countingChanged();
}

void ScreenTimeService::stop()
{
    if (m_tracker) {
        write();
        m_tracker.reset();
        m_activity.reset();
        emit countingChanged();
        m_model.clock().reschedule();
    }
}

void ScreenTimeService::followApplication()
{
    const Base::Instant now = m_model.now();
    m_tracker->focus(m_activity->application(), now);
    m_tracker->input(now, now); // a window does not come to the front by itself
}

// While the screen is locked nothing is counted, and nobody needs to be asked.
std::optional<Base::Instant> ScreenTimeService::nextStep(Base::Instant now) const
{
    if (!m_tracker || m_activity->isLocked()) {
        return std::nullopt;
    }
    return m_steppedAt && *m_steppedAt <= now ? *m_steppedAt + kStep : now;
}

void ScreenTimeService::advance(Base::Instant now)
{
    if (!m_tracker) {
        return;
    }
    m_steppedAt = now;
    // Where idleness cannot be known, the application in front counts as used.
    const Base::Seconds idle = m_activity->idle().value_or(Base::Seconds{});
    m_tracker->input(now - idle, now);
    const Base::Seconds pace = m_isWatched ? kWatchedPace : kWritePace;
    if (!m_writtenAt || now < *m_writtenAt || now - *m_writtenAt >= pace) {
        write();
    }
    m_model.clock().reschedule();
}

void ScreenTimeService::setWatched(bool watched)
{
    m_isWatched = watched;
    if (watched) {
        write();
    }
}

// What was counted of the same application and day is one piece.
void ScreenTimeService::keep(std::vector<UsagePiece> pieces)
{
    for (UsagePiece &piece : pieces) {
        const auto known = std::ranges::find_if(m_pieces, [&](const UsagePiece &other) {
            return other.day == piece.day && other.application.id == piece.application.id;
        });
        if (known == m_pieces.end()) {
            m_pieces.push_back(std::move(piece));
        } else {
            known->seconds += piece.seconds;
            known->stretch = std::max(known->stretch, piece.stretch);
        }
    }
}

void ScreenTimeService::write()
{
    if (!m_tracker) {
        return;
    }
    const Base::Instant now = m_model.now();
    m_tracker->advance(now);
    keep(m_tracker->take());
    m_writtenAt = now;
    if (m_pieces.empty()) {
        return;
    }
    auto pieces = std::exchange(m_pieces, {});
    const std::int64_t today = m_model.calendar().dayNumber(now);
    m_model.perform(
        [pieces, today, now](KestCore::StateStore &store) {
            return written(store, pieces, today, now);
        },
        [owner = QPointer{this}, pieces](const Result<void> &done) mutable {
            if (owner && !done) {
                owner->keep(std::move(pieces));
            }
        });
}

} // namespace Velvetnook
