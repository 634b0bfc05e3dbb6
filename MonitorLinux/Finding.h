// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <map>
#include <utility>

namespace MonitorLinux
{

using MonitorCore::MetricID;
using MonitorCore::MetricState;

// What a source had to say of one metric: a value, or why there is none.
struct Finding {
    std::optional<double> value{};
    MetricState state = MetricState::unsupported;
    std::string source{};
    std::optional<std::string> detail{};
};

using Findings = std::map<MetricID, Finding>;

inline Finding found(double value, std::string source,
                     std::optional<std::string> detail = std::nullopt)
{
    return {.value = value,
            .state = MetricState::available,
            .source = std::move(source),
            .detail = std::move(detail)};
}

inline Finding missing(MetricState why, std::string source,
                       std::optional<std::string> detail = std::nullopt)
{
    return {.state = why, .source = std::move(source), .detail = std::move(detail)};
}

// A rate that has no second reading yet is on its way.
inline Finding foundRate(std::optional<double> rate, std::string source)
{
    return rate ? found(*rate, std::move(source))
                : missing(MetricState::warmingUp, std::move(source));
}

inline Finding foundOrUnsupported(std::optional<double> value, std::string source,
                                  std::optional<std::string> detail = std::nullopt)
{
    return value ? found(*value, std::move(source), std::move(detail))
                 : missing(MetricState::unsupported, std::move(source));
}

} // namespace MonitorLinux
