// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Registry/Availability.h"

#include <QString>

namespace Velvetnook
{

// Whether a service of the desktop can be had just now, and why not.
struct ServiceState {
    KestCore::Availability availability = KestCore::Availability::loading;
    QString message{}; // empty when it is ready

    bool isReady() const { return availability == KestCore::Availability::ready; }
    bool operator==(const ServiceState &) const = default;
};

} // namespace Velvetnook
