// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/ScreenTime.h"

#include "Base/Text.h"

#include <algorithm>
#include <utility>

namespace KestCore
{

namespace
{

constexpr int kLongestIdleMinutes = 60;

std::string_view valueOf(const Settings &settings, const char *key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? std::string_view{} : found->second;
}

// "Firefox.desktop" and "firefox" are the same application.
std::string comparable(std::string_view id)
{
    std::string lower = Base::lowerAscii(Base::trimmed(id));
    if (lower.ends_with(".desktop")) {
        lower.resize(lower.size() - std::string_view{".desktop"}.size());
    }
    return lower;
}

} // namespace

ScreenTimeSettings screenTimeSettings(const Settings &settings)
{
    ScreenTimeSettings read{.enabled = settingIsTrue(settings, "screen-time.enabled")};
    const auto minutes = Base::numberFrom<int>(valueOf(settings, "screen-time.idleMinutes"));
    if (minutes && *minutes >= 1 && *minutes <= kLongestIdleMinutes) {
        read.idleLimit = std::chrono::minutes{*minutes};
    }
    for (const auto piece : Base::split(valueOf(settings, "screen-time.excluded"), ',')) {
        if (std::string id = comparable(piece); !id.empty()) {
            read.excluded.push_back(std::move(id));
        }
    }
    return read;
}

ScreenTimeTracker::ScreenTimeTracker(ScreenTimeSettings settings, Calendar calendar)
    : m_settings(std::move(settings)), m_calendar(std::move(calendar))
{
}

void ScreenTimeTracker::advance(Base::Instant now)
{
    const auto from = std::exchange(m_countedUntil, now);
    if (!from || now <= *from) {
        m_lastInput = std::min(m_lastInput, now);
        return;
    }
    if (!isCounting()) {
        m_stretch = {};
        return;
    }
    const Base::Instant idleFrom = m_lastInput + m_settings.idleLimit;
    const Base::Instant silentFrom = *from + m_settings.idleLimit;
    const Base::Instant to = std::min({now, std::max(idleFrom, *from), silentFrom});
    count(*from, to);
    if (to < now) {
        m_stretch = {};
    }
}

void ScreenTimeTracker::focus(std::optional<FocusedApplication> application, Base::Instant now)
{
    advance(now);
    m_application = std::move(application);
}

void ScreenTimeTracker::input(Base::Instant last, Base::Instant now)
{
    advance(now);
    m_lastInput = std::min(std::max(m_lastInput, last), now);
}

void ScreenTimeTracker::setAway(Away why, bool isAway, Base::Instant now)
{
    advance(now);
    (why == Away::locked ? m_isLocked : m_isSuspended) = isAway;
}

void ScreenTimeTracker::setCalendar(Calendar calendar, Base::Instant now)
{
    advance(now);
    m_calendar = std::move(calendar);
}

void ScreenTimeTracker::setSettings(ScreenTimeSettings settings, Base::Instant now)
{
    advance(now);
    m_settings = std::move(settings);
}

std::vector<UsagePiece> ScreenTimeTracker::take() { return std::exchange(m_pieces, {}); }

bool ScreenTimeTracker::isCounting() const
{
    return m_settings.enabled && !m_isLocked && !m_isSuspended;
}

void ScreenTimeTracker::count(Base::Instant from, Base::Instant to)
{
    while (from < to) {
        const Base::Instant end = std::min(to, m_calendar.nextDateChange(from));
        add(m_calendar.dayNumber(from), end - from);
        from = end;
    }
}

void ScreenTimeTracker::add(std::int64_t day, Base::Seconds seconds)
{
    if (!m_application || m_application->id.empty() ||
        std::ranges::find(m_settings.excluded, comparable(m_application->id)) !=
            m_settings.excluded.end()) {
        return;
    }
    if (std::exchange(m_stretchDay, day) != day) {
        m_stretch = {};
    }
    m_stretch += seconds;
    const auto piece = std::ranges::find_if(m_pieces, [&](const UsagePiece &known) {
        return known.day == day && known.application.id == m_application->id;
    });
    if (piece == m_pieces.end()) {
        m_pieces.push_back({.application = *m_application,
                            .day = day,
                            .seconds = seconds,
                            .stretch = m_stretch});
        return;
    }
    piece->seconds += seconds;
    piece->stretch = std::max(piece->stretch, m_stretch);
}

} // namespace KestCore
