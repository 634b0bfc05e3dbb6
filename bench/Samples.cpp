// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Samples.h"

#include "Base/Uuid.h"
#include "KestCore/Devotional/Content.h"

namespace Bench
{

KestCore::NativeState stateWithSessions(std::size_t sessions)
{
    const auto &phrases = KestCore::contentCatalogue().dhikr;
    std::vector<KestCore::SessionRecord> records;
    records.reserve(sessions);
    for (std::size_t n = 0; n < sessions; ++n) {
        records.push_back(
            {.id = Base::makeUuid(),
             .dhikrId = phrases[n % 6].id,
             .count = 33 + static_cast<std::int64_t>(n % 70),
             .target = 33,
             .endedAt = 1'700'000'000'000.0 + static_cast<double>(n) * 600'123.0});
    }
    auto state = KestCore::defaultNativeState();
    state.devotional.records = Base::SharedList{std::move(records)};
    return state;
}

} // namespace Bench
