// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/InsightPeriod.h"
#include "KestCore/Clients/InsightReport.h"
#include "KestCore/Clients/InsightResponse.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The balance of a Stripe account, entry by entry, and what it adds up to.
namespace KestCore
{

// One entry of the balance. Amounts are in the smallest unit of the currency; what leaves the
// balance is negative.
struct BalanceEntry {
    std::string id{};
    std::int64_t amount{};
    std::optional<std::int64_t> fee{}; // taken for this entry
    std::string currency{};
    std::optional<std::string> type{};
    std::optional<std::string> reportingCategory{};
    std::int64_t created{}; // seconds since 1970
    std::optional<std::string> description{};
};
consteval auto jsonFields(Of<BalanceEntry>)
{
    using R = BalanceEntry;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"amount", &R::amount},
        json::Field{"fee", &R::fee},
        json::Field{"currency", &R::currency},
        json::Field{"type", &R::type},
        json::Field{"reporting_category", &R::reportingCategory},
        json::Field{"created", &R::created},
        json::Field{"description", &R::description},
    };
}
static_assert(json::coversAllMembers<BalanceEntry>());

struct BalancePage {
    std::vector<BalanceEntry> data{};
    bool hasMore{};
};
consteval auto jsonFields(Of<BalancePage>)
{
    return std::tuple{json::Field{"data", &BalancePage::data},
                      json::Field{"has_more", &BalancePage::hasMore}};
}
static_assert(json::coversAllMembers<BalancePage>());

// Which rows an entry counts in.
enum class BalanceRow : std::uint8_t { payments, refunds, payouts };

struct BalanceKind {
    std::string_view word{}; // what the provider calls it
    BalanceRow row{};
    std::string_view title{}; // of an entry that has no description
};

// The kind that the entry's reporting category names, or where it names none that is known,
// the entry's type; null when that is not known either: disputes, transfers, taxes and the
// provider's own bills count in no row.
const BalanceKind *kindOf(const BalanceEntry &entry);

// Adds up entries as they come, so that a page need not be kept.
class BalanceTotals
{
public:
    BalanceTotals(const InsightSpan &span, const Calendar &calendar);

    // Fails with response for a currency that is none, or for more money than there is.
    [[nodiscard]] InsightResult<> add(const BalanceEntry &entry);
    // The rows, the points and the recent entries of a report.
    void fill(InsightReport &report) const;

private:
    struct OneCurrency {
        std::int64_t gross{};
        std::int64_t refunds{};
        std::int64_t fees{};
        std::int64_t payouts{};
        std::vector<std::int64_t> grossByBucket{};
    };
    struct Recent {
        std::int64_t created{};
        InsightEntry entry{};
    };

    [[nodiscard]] bool count(OneCurrency &totals, const BalanceEntry &entry,
                             BalanceRow row) const;
    void keepRecent(const BalanceEntry &entry, const BalanceKind &kind,
                    std::string_view currency);
    static void addRows(const std::string &currency, const OneCurrency &totals,
                        InsightReport &report);

    std::vector<Base::Instant> m_buckets;
    std::map<std::string, OneCurrency> m_currencies;
    std::vector<Recent> m_recent;
};

// The whole report of the span. `key` is only looked at, for the notice.
[[nodiscard]] InsightResult<InsightReport>
stripeReport(InsightExchange &exchange, std::string_view host, std::string_view key,
             const InsightSpan &span, const Calendar &calendar);

} // namespace KestCore
