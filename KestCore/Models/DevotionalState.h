// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SharedList.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The records of the devotional half. Times are milliseconds since 1970 UTC.
namespace KestCore
{

// The counting in progress.
struct Session {
    std::string id{};
    std::int64_t count{};
    std::optional<std::int64_t> target{}; // absent: an open count
    bool isPaused{};
    std::vector<std::int64_t> history{};          // the count before each increment
    std::vector<std::int64_t> completedTargets{}; // reached in this session, each once
    std::optional<double> startedAt{};            // of the first increment

    bool operator==(const Session &) const = default;
};

consteval auto jsonFields(Of<Session>)
{
    using R = Session;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"count", &R::count},
        json::Field{"target", &R::target},
        json::Field{"isPaused", &R::isPaused},
        json::Field{"history", &R::history},
        json::Field{"completedTargets", &R::completedTargets},
        json::Field{"startedAt", &R::startedAt},
    };
}
static_assert(json::coversAllMembers<Session>());

// One session that the user finished. Never changed once written.
struct SessionRecord {
    std::string id{};
    std::string dhikrId{}; // the phrase that was selected when it finished
    std::int64_t count{};
    std::optional<std::int64_t> target{};
    double endedAt{};

    bool operator==(const SessionRecord &) const = default;
};

consteval auto jsonFields(Of<SessionRecord>)
{
    using R = SessionRecord;
    return std::tuple{
        json::Field{"id", &R::id},           json::Field{"dhikrId", &R::dhikrId},
        json::Field{"count", &R::count},     json::Field{"target", &R::target},
        json::Field{"endedAt", &R::endedAt},
    };
}
static_assert(json::coversAllMembers<SessionRecord>());

// Texts with a fixed vocabulary stay texts here: a word that nobody knows must be told apart
// from a document that does not decode.
struct Preferences {
    bool showTransliteration{};
    bool showTranslation{};
    std::string textSize{}; // small, medium, large
    bool reminderEnabled{};
    std::int64_t reminderInterval{}; // minutes
    std::string activeHoursStart{};  // hours:minutes
    std::string activeHoursEnd{};
    bool soundEnabled{};
    bool completionSound{};
    bool reminderSound{};
    bool pinEnabled{};
    std::string pinMode{};    // single, favourites, daily
    std::string pinDisplay{}; // arabic, transliteration, meaning
    std::string pinSize{};    // mini, compact, comfortable
    std::int64_t rotationMinutes{};
    std::vector<std::int64_t> weekdays{}; // 0 is Sunday
    std::string pinnedReminder{};         // nothing, emphasis
    bool historyEnabled{};                // when false, finished sessions leave no record
    std::vector<std::int64_t> savedTargets{};

    bool operator==(const Preferences &) const = default;
};

consteval auto jsonFields(Of<Preferences>)
{
    using R = Preferences;
    return std::tuple{
        json::Field{"showTransliteration", &R::showTransliteration},
        json::Field{"showTranslation", &R::showTranslation},
        json::Field{"textSize", &R::textSize},
        json::Field{"reminderEnabled", &R::reminderEnabled},
        json::Field{"reminderInterval", &R::reminderInterval},
        json::Field{"activeHoursStart", &R::activeHoursStart},
        json::Field{"activeHoursEnd", &R::activeHoursEnd},
        json::Field{"soundEnabled", &R::soundEnabled},
        json::Field{"completionSound", &R::completionSound},
        json::Field{"reminderSound", &R::reminderSound},
        json::Field{"pinEnabled", &R::pinEnabled},
        json::Field{"pinMode", &R::pinMode},
        json::Field{"pinDisplay", &R::pinDisplay},
        json::Field{"pinSize", &R::pinSize},
        json::Field{"rotationMinutes", &R::rotationMinutes},
        json::Field{"weekdays", &R::weekdays},
        json::Field{"pinnedReminder", &R::pinnedReminder},
        json::Field{"historyEnabled", &R::historyEnabled},
        json::Field{"savedTargets", &R::savedTargets},
    };
}
static_assert(json::coversAllMembers<Preferences>());

struct DevotionalState {
    std::int64_t schemaVersion{};
    std::int64_t revision{};
    bool migrated{};    // made from the data of an older product
    std::string mode{}; // pinned, expanded
    std::string tab{};  // dhikr, names
    std::string selectedDhikrId{};
    std::string selectedNameId{};
    Session session{};
    std::vector<std::string> favorites{}; // phrase ids
    Preferences preferences{};
    bool onboardingComplete{};
    Base::SharedList<SessionRecord> records{}; // finished sessions, oldest first
    std::optional<double> pausedUntil{};       // no reminders before this time
    bool presentation{};                       // the pinned phrase is being presented
    std::string notificationStatus{};          // unknown, allowed, denied

    bool operator==(const DevotionalState &) const = default;
};

consteval auto jsonFields(Of<DevotionalState>)
{
    using R = DevotionalState;
    return std::tuple{
        json::Field{"schemaVersion", &R::schemaVersion},
        json::Field{"revision", &R::revision},
        json::Field{"migrated", &R::migrated},
        json::Field{"mode", &R::mode},
        json::Field{"tab", &R::tab},
        json::Field{"selectedDhikrId", &R::selectedDhikrId},
        json::Field{"selectedNameId", &R::selectedNameId},
        json::Field{"session", &R::session},
        json::Field{"favorites", &R::favorites},
        json::Field{"preferences", &R::preferences},
        json::Field{"onboardingComplete", &R::onboardingComplete},
        json::Field{"records", &R::records},
        json::Field{"pausedUntil", &R::pausedUntil},
        json::Field{"presentation", &R::presentation},
        json::Field{"notificationStatus", &R::notificationStatus},
    };
}
static_assert(json::coversAllMembers<DevotionalState>());

inline constexpr std::int64_t kHighestTarget = 1'000'000;
inline constexpr std::size_t kLongestUndo = 1000;
inline constexpr std::size_t kMostSessionRecords = 100'000;

// A target is 1 to 1,000,000.
constexpr bool isTarget(std::int64_t value) { return value >= 1 && value <= kHighestTarget; }

// Whether the state keeps every rule. Fails with invalidData
// "Invalid devotional data; existing data has been preserved." and never repairs.
[[nodiscard]] Result<void> validate(const DevotionalState &state);

// The state of a first run, from the resource "legacy-default".
const DevotionalState &defaultDevotionalState();

// A legacy document as a state that keeps the rules; fails as `validate` does.
[[nodiscard]] Result<DevotionalState> decodeDevotionalState(const json::PaddedText &text);

} // namespace KestCore
