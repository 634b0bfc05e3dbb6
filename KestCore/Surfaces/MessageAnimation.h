// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/EnumText.h"

#include <cstdint>

namespace KestCore
{

// The motion with which a short message shows in the compact strip.
enum class MessageAnimation : std::uint8_t { scroll, bounce, wave, sparkle, pulse, rainbow };

constexpr auto enumTexts(Base::Of<MessageAnimation>)
{
    using enum MessageAnimation;
    return Base::EnumTexts<MessageAnimation, 6>{{
        {scroll, "scroll"},
        {bounce, "bounce"},
        {wave, "wave"},
        {sparkle, "sparkle"},
        {pulse, "pulse"},
        {rainbow, "rainbow"},
    }};
}

} // namespace KestCore
