// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "fuzz/RoundTrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (const auto content = roundTrip<KestCore::Content>(data, size)) {
        (void)KestCore::searchPhrases(content->dhikr, "la ilaha");
    }
    return 0;
}
