// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/DevotionalState.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/TimeOfDay.h"
#include "KestCore/Resources.h"

#include <algorithm>
#include <cmath>

template Base::Result<KestCore::DevotionalState>
Base::json::decode<KestCore::DevotionalState>(const Base::json::PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::DevotionalState &);
template Base::Result<std::string> Base::json::encode(const KestCore::Session &);
template Base::Result<std::string>
Base::json::encode(const Base::SharedList<KestCore::SessionRecord> &);
template Base::Result<std::string>
Base::json::encode(const std::vector<KestCore::SessionRecord> &);

namespace KestCore
{

namespace
{

constexpr std::int64_t kHighestCount = 1'000'000'000;

KestError invalidDevotionalData()
{
    return KestError::invalidData("Invalid devotional data; existing data has been preserved.");
}

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> allowed)
{
    return std::ranges::find(allowed, text) != allowed.end();
}

bool isWithin(std::int64_t value, std::int64_t lowest, std::int64_t highest)
{
    return value >= lowest && value <= highest;
}

bool isValid(const Session &session)
{
    return session.count <= kHighestCount && (!session.target || isTarget(*session.target)) &&
           !session.id.empty() && Base::countCodePoints(session.id) <= 100 &&
           session.history.size() <= kLongestUndo &&
           std::ranges::all_of(session.history, [](auto n) { return n <= kHighestCount; }) &&
           std::ranges::all_of(session.completedTargets, isTarget);
}

bool isValid(const SessionRecord &record)
{
    return isPhraseId(record.dhikrId) && record.count >= 0 && std::isfinite(record.endedAt);
}

bool areValid(const Base::SharedList<SessionRecord> &records)
{
    if (records.size() > kMostSessionRecords) {
        return false;
    }
    const std::size_t verified = records.verifiedCount();
    for (std::size_t at = verified; at < records.size(); ++at) {
        if (!isValid(records[at])) {
            return false;
        }
    }
    if (verified != records.size()) {
        records.rememberVerified(records.size());
    }
    return true;
}

bool isValid(const Preferences &p)
{
    return isOneOf(p.textSize, {"small", "medium", "large"}) &&
           isOneOf(p.pinMode, {"single", "favourites", "daily"}) &&
           isOneOf(p.pinDisplay, {"arabic", "transliteration", "meaning"}) &&
           isOneOf(p.pinSize, {"mini", "compact", "comfortable"}) &&
           isWithin(p.reminderInterval, 1, 1440) && isWithin(p.rotationMinutes, 1, 1440) &&
           std::ranges::all_of(p.weekdays, [](auto day) { return isWithin(day, 0, 6); }) &&
           isOneOf(p.pinnedReminder, {"nothing", "emphasis"}) &&
           p.savedTargets.size() <= 1000 && std::ranges::all_of(p.savedTargets, isTarget) &&
           minuteOfDay(p.activeHoursStart) && minuteOfDay(p.activeHoursEnd);
}

bool isValid(const DevotionalState &state)
{
    return state.schemaVersion == 2 && state.revision >= 0 &&
           isOneOf(state.mode, {"pinned", "expanded"}) &&
           isOneOf(state.tab, {"dhikr", "names"}) && isPhraseId(state.selectedDhikrId) &&
           isNameId(state.selectedNameId) && isValid(state.session) &&
           std::ranges::all_of(state.favorites, isPhraseId) && areValid(state.records) &&
           isValid(state.preferences);
}

} // namespace

Result<void> validate(const DevotionalState &state)
{
    if (!isValid(state)) {
        return std::unexpected(invalidDevotionalData());
    }
    return {};
}

const DevotionalState &defaultDevotionalState()
{
    static const auto kState =
        decodeResource<DevotionalState>("legacy-default", "KestCore/Models");
    return kState;
}

Result<DevotionalState> decodeDevotionalState(const json::PaddedText &text)
{
    auto state = json::decode<DevotionalState>(text);
    if (!state || !isValid(*state)) {
        return std::unexpected(invalidDevotionalData());
    }
    return state;
}

} // namespace KestCore
