// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Bench.h"
#include "bench/Samples.h"

#include <cstring>

namespace Bench
{

// The floor of both roads is the memory itself: one copy of the same bytes.
std::vector<Row> jsonSuite()
{
    const auto state = stateWithSessions(100'000);
    const std::string text = must(Base::json::encode(state));
    const Base::json::PaddedText padded{std::string_view{text}};
    std::string copy(text.size(), '\0');
    const auto copyOnce = [&] { std::memcpy(copy.data(), text.data(), text.size()); };

    const Pair encoding =
        measureByTurns(15, [&] { must(Base::json::encode(state)); }, copyOnce);
    const Pair decoding = measureByTurns(
        15, [&] { must(Base::json::decode<KestCore::NativeState>(padded)); }, copyOnce);
    return {rateRow("encode a state of 100,000 sessions", encoding, text.size(), 700),
            rateRow("decode a state of 100,000 sessions", decoding, text.size(), 250)};
}

} // namespace Bench
