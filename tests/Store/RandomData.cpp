// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/Store/RandomData.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Tools/TimerState.h"

#include <algorithm>
#include <bit>
#include <cmath>

using namespace KestCore;

namespace
{

std::vector<std::string> phraseIds()
{
    std::vector<std::string> ids;
    std::ranges::transform(contentCatalogue().dhikr, std::back_inserter(ids), &Phrase::id);
    return ids;
}

} // namespace

std::size_t RandomData::below(std::size_t count) { return m_engine() % count; }

// Any finite number, subnormal ones and negative zero included.
double RandomData::number()
{
    const auto bits = (static_cast<std::uint64_t>(m_engine()) << 32U) | m_engine();
    const auto value = std::bit_cast<double>(bits);
    return std::isfinite(value) ? value : 0.5;
}

std::string RandomData::text(std::size_t most)
{
    static const std::vector<std::string> kPieces{
        "a",      "Z",    "\"",   "\\", "/",      std::string(1, '\0'),
        "\n",     "\x1F", "\x7F", "é",  "\u0651", "\u200F",
        "\u2028", "😀",   "{",    "]"};
    std::string result;
    for (std::size_t n = below(most + 1); n > 0; --n) {
        result += kPieces[below(kPieces.size())];
    }
    return result;
}

std::vector<std::string> RandomData::someOf(const std::vector<std::string> &ids)
{
    std::vector<std::string> some;
    std::ranges::sample(ids, std::back_inserter(some),
                        static_cast<std::ptrdiff_t>(below(ids.size() + 1)), m_engine);
    std::ranges::shuffle(some, m_engine);
    return some;
}

Session RandomData::session()
{
    Session session{.id = "s" + text(5), .count = static_cast<std::int64_t>(below(1'000'000))};
    if (coin()) {
        session.target = static_cast<std::int64_t>(1 + below(1'000'000));
        session.startedAt = number();
    }
    for (std::size_t n = below(5); n > 0; --n) {
        session.history.push_back(static_cast<std::int64_t>(below(1'000)));
        session.completedTargets.push_back(static_cast<std::int64_t>(1 + below(1'000)));
    }
    session.isPaused = coin();
    return session;
}

NativeState RandomData::state()
{
    static const auto kPhrases = phraseIds();
    NativeState state = defaultNativeState();
    std::ranges::shuffle(state.order, m_engine);
    state.enabled = someOf(state.order);
    state.navigationFavorites = someOf(state.order);
    state.pin = {.tool = state.order[below(state.order.size())], .item = text(5)};
    if (coin()) {
        state.displayID = m_engine();
    }
    for (std::size_t n = below(10); n > 0; --n) {
        state.settings[text(20)] = text(30);
    }
    DevotionalState &devotional = state.devotional;
    devotional.session = session();
    devotional.favorites = someOf(kPhrases);
    devotional.preferences.weekdays = {static_cast<std::int64_t>(below(7))};
    devotional.preferences.reminderInterval = static_cast<std::int64_t>(1 + below(1440));
    devotional.pausedUntil = coin() ? std::optional{number()} : std::nullopt;
    devotional.notificationStatus = text(4);
    std::vector<SessionRecord> finished;
    for (std::size_t n = below(4); n > 0; --n) {
        finished.push_back({.id = text(9),
                            .dhikrId = kPhrases[below(kPhrases.size())],
                            .count = static_cast<std::int64_t>(below(100)),
                            .target = coin() ? std::optional<std::int64_t>{33} : std::nullopt,
                            .endedAt = number()});
    }
    devotional.records = Base::SharedList<SessionRecord>{std::move(finished)};
    return state;
}

CompanionState RandomData::companion()
{
    CompanionState companion = defaultCompanionState();
    companion.dock.enabled = coin();
    companion.prayerBufferMinutes = static_cast<std::int64_t>(below(100));
    companion.workspaces.push_back({.id = "w" + text(6), .name = text(6)});
    DockItem &item = companion.workspaces.back().items.emplace_back();
    item = {.id = text(4), .kind = DockItemKind::file, .title = text(9), .target = text(9)};
    if (coin()) {
        item.bookmark = Base::Bytes{0, 1, static_cast<std::uint8_t>(below(256))};
    }
    companion.selectedWorkspaceID = companion.workspaces[below(4)].id;
    return companion;
}

LocalRecord RandomData::record(std::size_t number)
{
    LocalRecord record{
        .id = text(6) + std::to_string(number), .title = text(12), .updated = this->number()};
    for (std::size_t n = below(3); n > 0; --n) {
        record.extra[text(5)] = text(5);
    }
    switch (below(5)) {
    case 0:
        record.kind = "note";
        record.body = json::encode(Note{.text = text(200)}).value();
        break;
    case 1:
        record.kind = "timer";
        record.body =
            json::encode(TimerState{.mode = text(3), .duration = this->number()}).value();
        break;
    case 2:
        record.kind = "link";
        record.body = json::encode(SavedLink{.url = "https://a", .note = text(9)}).value();
        break;
    case 3:
        record.kind = "completion";
        record.body = json::encode(Completion{.tool = "dhikr", .item = text(9)}).value();
        break;
    default:
        record.kind = "message";
        record.body = json::encode(StripMessage{.text = "m" + text(50)}).value();
    }
    return record;
}

std::vector<LocalRecord> RandomData::records(std::size_t most)
{
    std::vector<LocalRecord> records;
    for (std::size_t n = below(most + 1); n > 0; --n) {
        records.push_back(record(n));
    }
    return records;
}
