// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

namespace MonitorCore
{

// Finds the processes of one sample by their numbers. Keeps places, not processes: these may
// be moved away meanwhile as long as their keys stay.
class ProcessIndex
{
public:
    explicit ProcessIndex(const std::vector<ProcessSample> &processes);

    std::optional<std::size_t> find(std::int32_t pid) const;

    // None for a number that was given to a younger process while the sample was taken.
    std::optional<std::size_t> parentOf(const ProcessSample &process) const;

private:
    struct Place {
        ProcessKey key{};
        std::size_t at{};
    };

    const Place *placeOf(std::int32_t pid) const;

    std::vector<Place> m_places{}; // ascending by number
};

} // namespace MonitorCore
