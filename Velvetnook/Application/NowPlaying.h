// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QString>

namespace Velvetnook
{

// What plays, and where in it, for the strip.
struct NowPlaying {
    QString title{};
    double position{}; // seconds, at `at`
    Base::Instant at{};

    bool operator==(const NowPlaying &) const = default;
};

} // namespace Velvetnook
