// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionState.h"
#include "fuzz/RoundTrip.h"

// Whatever the store hands out from a row must be good enough to be saved again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    (void)roundTrip<KestCore::CompanionState>(data, size);
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    const auto stored = KestCore::readStoredCompanion(Base::json::PaddedText{bytes});
    if (stored && !KestCore::validate(*stored)) {
        std::abort();
    }
    return 0;
}
