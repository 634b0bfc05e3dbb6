// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/StripeReport.h"

#include "Base/JsonReader.h"
#include "Base/Text.h"
#include "KestCore/Clients/Money.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>

template Base::Result<KestCore::BalancePage> Base::json::decode(const PaddedText &);

namespace KestCore
{

namespace
{

constexpr std::size_t kMostEntries = 10'000;
constexpr std::size_t kMostCurrencies = 200; // the world has some 180
constexpr std::size_t kMostRecent = 10;
constexpr std::int64_t kLatest = 253'402'300'799; // the end of the year 9999

// Every kind of entry that counts, by the words of the provider, which uses some as a
// reporting category, some as a type and some as both.
//
//   payments  what customers paid. Amounts are added as they are.
//   refunds   what went back to them, less refunds that failed and came back, so amounts are
//             taken off: a refund of -5 counts 5, its failure of +5 counts -5. The reversal of
//             a payment that failed after it had been booked counts as a refund.
//   payouts   what went to the bank, less payouts that were cancelled or failed; likewise.
//
// Fees are the fees of the entries in payments and refunds.
constexpr std::array<BalanceKind, 8> kKinds{{
    {"charge", BalanceRow::payments, "Payment"},
    {"payment", BalanceRow::payments, "Payment"},
    {"refund", BalanceRow::refunds, "Refund"},
    {"payment_failure_refund", BalanceRow::refunds, "Failed payment"},
    {"refund_failure", BalanceRow::refunds, "Failed refund"},
    {"payout", BalanceRow::payouts, "Payout"},
    {"payout_cancel", BalanceRow::payouts, "Cancelled payout"},
    {"payout_failure", BalanceRow::payouts, "Failed payout"},
}};

const BalanceKind *kindNamed(const std::optional<std::string> &word)
{
    const auto *const kind =
        word ? std::ranges::find(kKinds, *word, &BalanceKind::word) : kKinds.end();
    return kind == kKinds.end() ? nullptr : kind;
}

std::unexpected<InsightError> unexpectedReport()
{
    return std::unexpected(InsightError{.kind = InsightError::Kind::response});
}

// Each term is far from the limits of the type, so no sum of one step overflows.
bool addTo(std::int64_t &sum, std::int64_t amount)
{
    if (amount > kMostMoney || amount < -kMostMoney) {
        return false;
    }
    sum += amount;
    return sum <= kMostMoney && sum >= -kMostMoney;
}

bool isCurrencyCode(std::string_view text)
{
    return text.size() == 3 &&
           std::ranges::all_of(text, [](char c) { return c >= 'a' && c <= 'z'; });
}

std::string wholeSeconds(Base::Instant instant)
{
    return std::to_string(std::llround(Base::seconds1970(instant)));
}

} // namespace

const BalanceKind *kindOf(const BalanceEntry &entry)
{
    const BalanceKind *const kind = kindNamed(entry.reportingCategory);
    return kind != nullptr ? kind : kindNamed(entry.type);
}

BalanceTotals::BalanceTotals(const InsightSpan &span, const Calendar &calendar)
    : m_buckets(bucketsOf(span, calendar))
{
}

InsightResult<> BalanceTotals::add(const BalanceEntry &entry)
{
    const BalanceKind *const kind = kindOf(entry);
    if (kind == nullptr) {
        return {};
    }
    const bool isDated = entry.created >= 0 && entry.created <= kLatest;
    const std::string currency = Base::lowerAscii(entry.currency);
    if (!isCurrencyCode(currency) || !isDated) {
        return unexpectedReport();
    }
    OneCurrency &totals = m_currencies[currency];
    totals.grossByBucket.resize(m_buckets.size());
    if (m_currencies.size() > kMostCurrencies || !count(totals, entry, kind->row)) {
        return unexpectedReport();
    }
    keepRecent(entry, *kind, currency);
    return {};
}

bool BalanceTotals::count(OneCurrency &totals, const BalanceEntry &entry, BalanceRow row) const
{
    // The lowest number of all has no opposite.
    if (entry.amount < -kMostMoney) {
        return false;
    }
    if (row == BalanceRow::payouts) {
        return addTo(totals.payouts, -entry.amount);
    }
    if (!addTo(totals.fees, entry.fee.value_or(0))) {
        return false;
    }
    if (row == BalanceRow::refunds) {
        return addTo(totals.refunds, -entry.amount);
    }
    const auto after = std::ranges::upper_bound(
        m_buckets, Base::fromSeconds1970(static_cast<double>(entry.created)));
    const auto bucket = std::max<std::ptrdiff_t>(after - m_buckets.begin() - 1, 0);
    return addTo(totals.gross, entry.amount) &&
           addTo(totals.grossByBucket[static_cast<std::size_t>(bucket)], entry.amount);
}

void BalanceTotals::keepRecent(const BalanceEntry &entry, const BalanceKind &kind,
                               std::string_view currency)
{
    if (m_recent.size() == kMostRecent && entry.created <= m_recent.back().created) {
        return;
    }
    const bool isDescribed = entry.description && !entry.description->empty();
    const auto place =
        std::ranges::upper_bound(m_recent, entry.created, std::greater{}, &Recent::created);
    m_recent.insert(
        place, {.created = entry.created,
                .entry = {.id = entry.id,
                          .title = isDescribed ? *entry.description : std::string{kind.title},
                          .value = moneyText(entry.amount, currency),
                          .date = Base::fromSeconds1970(static_cast<double>(entry.created))}});
    m_recent.resize(std::min(m_recent.size(), kMostRecent));
}

void BalanceTotals::addRows(const std::string &currency, const OneCurrency &totals,
                            InsightReport &report)
{
    struct Row {
        const char *suffix;
        const char *label;
        std::int64_t amount;
        const char *detail;
    };
    const std::int64_t net = totals.gross - totals.refunds - totals.fees;
    for (const auto &[suffix, label, amount, detail] : {
             Row{"-gross", "Gross payments", totals.gross, "Charges and payments"},
             Row{"-refunds", "Refunds", totals.refunds,
                 "Refund movements, less failed-refund reversals"},
             Row{"-fees", "Payment fees", totals.fees,
                 "Fees attached to these payment and refund entries"},
             Row{"-net", "Net payments", net,
                 "After refunds and attached fees; excludes disputes, transfers and tax "
                 "liability"},
             Row{"-payouts", "Payout movements", totals.payouts,
                 "Net balance debits for payouts, less failures/cancellations. Not a bank "
                 "settlement confirmation"},
         }) {
        report.rows.push_back(
            {.id = currency + suffix,
             .label = label,
             .value = mainUnits(amount, currency),
             .detail = fmt::format("{} · balance-entry creation date in the selected period",
                                   detail)});
    }
}

void BalanceTotals::fill(InsightReport &report) const
{
    for (const auto &[currency, totals] : m_currencies) {
        addRows(currency, totals, report);
        for (std::size_t at = 0; at < m_buckets.size(); ++at) {
            report.points.push_back({.date = m_buckets[at],
                                     .value = mainUnits(totals.grossByBucket[at], currency),
                                     .series = currency});
        }
    }
    std::ranges::transform(m_recent, std::back_inserter(report.recent), &Recent::entry);
    report.empty = m_currencies.empty();
}

InsightResult<InsightReport> stripeReport(InsightExchange &exchange, std::string_view host,
                                          std::string_view key, const InsightSpan &span,
                                          const Calendar &calendar)
{
    BalanceTotals totals{span, calendar};
    std::size_t received = 0;
    std::vector<QueryItem> query{{"limit", "100"},
                                 {"created[gte]", wholeSeconds(span.start)},
                                 {"created[lte]", wholeSeconds(span.end)}};
    const std::size_t firstQuery = query.size();
    for (bool hasMore = true; hasMore;) {
        KEST_TRY(auto body, exchange.get(addressOf(host, "/v1/balance_transactions", query)));
        const auto page = json::decode<BalancePage>(json::PaddedText{std::move(body)});
        if (!page) {
            return unexpectedReport();
        }
        received += page->data.size();
        if (received > kMostEntries) {
            return std::unexpected(InsightError{.kind = InsightError::Kind::limit});
        }
        for (const BalanceEntry &entry : page->data) {
            KEST_CHECK(totals.add(entry));
        }
        hasMore = page->hasMore;
        if (hasMore) {
            // Without a new last entry there is no way to ask for the rest.
            if (page->data.empty() || page->data.back().id == query.back().second) {
                return unexpectedReport();
            }
            query.resize(firstQuery);
            query.emplace_back("starting_after", page->data.back().id);
        }
    }
    InsightReport report{.provider = InsightProvider::stripe};
    totals.fill(report);
    report.notice = fmt::format("{}Payment balance activity, not profit. Currencies stay "
                                "separate.",
                                key.starts_with("rk_test_") ? "Stripe test mode · " : "");
    return report;
}

} // namespace KestCore
