// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/InsightReport.h"
#include "cli/Console.h"

#include <string>
#include <vector>

// What kest insights answers with, for scripts and for people.
namespace Cli
{

namespace json = Base::json;
using Base::Of;

struct InsightPointAnswer {
    std::string date{};
    double value{};
    std::string series{};
};
consteval auto jsonFields(Of<InsightPointAnswer>)
{
    using R = InsightPointAnswer;
    return std::tuple{json::Field{"date", &R::date}, json::Field{"value", &R::value},
                      json::Field{"series", &R::series}};
}
static_assert(json::coversAllMembers<InsightPointAnswer>());

struct InsightEntryAnswer {
    std::string id{};
    std::string title{};
    std::string value{};
    std::string date{};
};
consteval auto jsonFields(Of<InsightEntryAnswer>)
{
    using R = InsightEntryAnswer;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"title", &R::title},
                      json::Field{"value", &R::value}, json::Field{"date", &R::date}};
}
static_assert(json::coversAllMembers<InsightEntryAnswer>());

// The report, its instants written as texts.
struct InsightAnswer {
    KestCore::InsightProvider provider{};
    std::vector<KestCore::InsightMetric> rows{};
    std::string fetchedAt{};
    std::string notice{};
    bool stale{};
    bool empty{};
    std::vector<InsightPointAnswer> points{};
    std::vector<InsightEntryAnswer> recent{};
    std::vector<KestCore::InsightMetric> pages{};
    std::vector<KestCore::InsightMetric> sources{};
    std::int64_t online{};
};
consteval auto jsonFields(Of<InsightAnswer>)
{
    using R = InsightAnswer;
    return std::tuple{
        json::Field{"provider", &R::provider},   json::Field{"rows", &R::rows},
        json::Field{"fetchedAt", &R::fetchedAt}, json::Field{"notice", &R::notice},
        json::Field{"stale", &R::stale},         json::Field{"empty", &R::empty},
        json::Field{"points", &R::points},       json::Field{"recent", &R::recent},
        json::Field{"pages", &R::pages},         json::Field{"sources", &R::sources},
        json::Field{"online", &R::online},
    };
}
static_assert(json::coversAllMembers<InsightAnswer>());

// Of connect and disconnect.
struct ConnectionAnswer {
    KestCore::InsightProvider provider{};
    bool connected{};
};
consteval auto jsonFields(Of<ConnectionAnswer>)
{
    return std::tuple{json::Field{"provider", &ConnectionAnswer::provider},
                      json::Field{"connected", &ConnectionAnswer::connected}};
}
static_assert(json::coversAllMembers<ConnectionAnswer>());

[[nodiscard]] Result<InsightAnswer> answerOf(const KestCore::InsightReport &report);
void printReport(const Console &console, const KestCore::InsightReport &report);

} // namespace Cli
