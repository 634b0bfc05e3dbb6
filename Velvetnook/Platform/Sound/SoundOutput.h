// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <cstdint>
#include <span>

namespace Velvetnook
{

// One channel of 16-bit samples.
struct SoundSamples {
    std::uint32_t rate{}; // samples a second
    std::span<const std::int16_t> samples{};
};

// Reads what resources/sounds/make-sounds.py writes; the samples stay where they are in
// `bytes`, which begins at an even address. Fails with invalidData for anything else.
[[nodiscard]] Base::Result<SoundSamples> readWave(std::span<const std::uint8_t> bytes);

// What the module exports under the name kestPlaySound: plays to the end, in bounded time. On
// failure false, and the reason in `error`.
using PlaySound = bool(const SoundSamples &sound, Base::KestError &error);

} // namespace Velvetnook
