// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Models/NativeState.h"
#include "KestCore/Store/StateEncoder.h"
#include "fuzz/RoundTrip.h"

// What decodes and keeps the rules must also count, and its kept text must not go stale.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    auto state = roundTrip<KestCore::NativeState>(data, size);
    if (!state || !KestCore::validate(*state)) {
        return 0;
    }
    KestCore::StateEncoder encoder;
    for (const KestCore::CountAction &action :
         {KestCore::CountAction{KestCore::Increment{}}, KestCore::CountAction{KestCore::Undo{}},
          KestCore::CountAction{KestCore::Finish{}}}) {
        (void)KestCore::apply(action, Base::fromSeconds1970(1), state->devotional);
        const auto kept = encoder.encode(*state);
        const auto fresh = Base::json::encode(*state);
        if (!kept || !fresh || *kept != *fresh || !KestCore::validate(*state)) {
            std::abort();
        }
    }
    return 0;
}
