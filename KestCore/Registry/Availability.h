// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/EnumText.h"

#include <cstdint>

namespace KestCore
{

// The momentary condition of a tool or of a client of outside data.
enum class Availability : std::uint8_t {
    unconfigured,     // needs setting up before it can show anything
    loading,          // a first load is in progress
    ready,            // data is present and current
    empty,            // loaded, nothing to show
    stale,            // older than it should be; a refresh failed or is due
    offline,          // the source could not be reached
    permissionDenied, // the system or the service refused access
    rateLimited,      // the service asked to slow down
    error,            // any other failure
};

constexpr auto enumTexts(Base::Of<Availability>)
{
    using enum Availability;
    return Base::EnumTexts<Availability, 9>{{
        {unconfigured, "unconfigured"},
        {loading, "loading"},
        {ready, "ready"},
        {empty, "empty"},
        {stale, "stale"},
        {offline, "offline"},
        {permissionDenied, "permissionDenied"},
        {rateLimited, "rateLimited"},
        {error, "error"},
    }};
}

} // namespace KestCore
