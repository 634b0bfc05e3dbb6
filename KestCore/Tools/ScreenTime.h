// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Models/NativeState.h"

#include <optional>
#include <string>
#include <vector>

// How long which application is in front of somebody. Counts only what it is told, and only
// for whoever has turned it on; nothing of it leaves this computer.
namespace KestCore
{

// The settings "screen-time.enabled", "screen-time.idleMinutes" (1 to 60) and
// "screen-time.excluded", application ids with commas between them.
struct ScreenTimeSettings {
    bool enabled{}; // nobody is watched unasked
    Base::Seconds idleLimit = std::chrono::minutes{5};
    std::vector<std::string> excluded{};

    bool operator==(const ScreenTimeSettings &) const = default;
};

ScreenTimeSettings screenTimeSettings(const Settings &settings);

struct FocusedApplication {
    std::string id{};   // desktop-file id or executable name
    std::string name{}; // as people call it; may be empty

    bool operator==(const FocusedApplication &) const = default;
};

// Some time of one application on one local day.
struct UsagePiece {
    FocusedApplication application{};
    std::int64_t day{}; // days since 1970
    Base::Seconds seconds{};
    Base::Seconds
        stretch{}; // of that day, without a break up to its end, over all applications

    bool operator==(const UsagePiece &) const = default;
};

// From what the watcher of windows sees to seconds. The watcher says each change as it comes
// and calls `advance` at least every half minute; of a longer silence, such as a suspend that
// nobody announced, no more than the idle limit counts. Once nobody has touched anything for
// the idle limit, counting stops until somebody does. One thread.
class ScreenTimeTracker
{
public:
    ScreenTimeTracker(ScreenTimeSettings settings, Calendar calendar);

    // Each counts up to `now` by how it was until then. A clock that was set back counts
    // nothing for the step, and neither does what comes before the first call.
    void advance(Base::Instant now);
    // Nothing: no window has the focus.
    void focus(std::optional<FocusedApplication> application, Base::Instant now);
    // When somebody last touched a key or the pointer.
    void input(Base::Instant last, Base::Instant now);
    enum class Away : std::uint8_t { locked, suspended };
    void setAway(Away why, bool isAway, Base::Instant now);
    void setCalendar(Calendar calendar, Base::Instant now);
    void setSettings(ScreenTimeSettings settings, Base::Instant now);

    // What has been counted since this was last asked, one piece a day and application.
    std::vector<UsagePiece> take();

private:
    bool isCounting() const;
    void count(Base::Instant from, Base::Instant to);
    void add(std::int64_t day, Base::Seconds seconds);

    ScreenTimeSettings m_settings;
    Calendar m_calendar;
    std::optional<FocusedApplication> m_application{};
    std::optional<Base::Instant> m_countedUntil{};
    Base::Instant m_lastInput{};
    bool m_isLocked{};
    bool m_isSuspended{};
    std::int64_t m_stretchDay{};
    Base::Seconds m_stretch{};
    std::vector<UsagePiece> m_pieces{};
};

} // namespace KestCore
