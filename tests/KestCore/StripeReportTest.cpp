// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/DirectInsightsClient.h"
#include "KestCore/Clients/InsightText.h"
#include "tests/KestCore/ScriptedTransport.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KestCore
{

namespace
{

using testing::ElementsAre;
using testing::EndsWith;

const Base::Instant kNow = *Base::fromIso8601("2026-11-21T18:00:00Z");
constexpr const char *kKey = "rk_live_a1B2c3";

InsightResult<InsightReport> loaded(ScriptedTransport &transport, std::string_view key = kKey,
                                    InsightPeriod period = InsightPeriod::last7Days,
                                    const std::stop_token &stop = {})
{
    DirectInsightsClient client{transport};
    return client.load(InsightProvider::stripe, key, period, "ignored", kNow,
                       {.calendar = Calendar::inZone("UTC").value(), .identifier = "UTC"},
                       stop);
}

std::string page(std::string_view entries, bool hasMore = false)
{
    return fmt::format(R"({{"object":"list","data":[{}],"has_more":{}}})", entries, hasMore);
}

InsightResult<InsightReport> loadedFrom(const std::string &document)
{
    ScriptedTransport transport{
        [&](const auto &) { return ScriptedTransport::body(document); }};
    return loaded(transport);
}

std::string entry(std::string_view category, std::string_view type, std::int64_t amount,
                  std::int64_t fee = 0, std::string_view currency = "usd")
{
    return fmt::format(R"({{"id":"txn_1","amount":{},"fee":{},"currency":"{}","type":"{}",)"
                       R"("reporting_category":"{}","created":1795000000,)"
                       R"("description":null}})",
                       amount, fee, currency, type, category);
}

std::vector<std::string> rowsOf(const InsightReport &report)
{
    std::vector<std::string> rows;
    for (const InsightMetric &metric : report.rows) {
        rows.push_back(metric.id + " " + metricText(metric));
    }
    return rows;
}

// Answers with pages of `each` entries until `total` are sent.
class Pages
{
public:
    Pages(int total, int each) : m_left(total), m_each(each) {}

    ScriptedTransport::Answer operator()(const Base::HttpRequest &)
    {
        std::string entries;
        const int count = std::min(m_left, m_each);
        for (int at = 0; at < count; ++at) {
            entries.append(fmt::format(
                R"({}{{"id":"txn_{}","amount":100,"currency":"usd","type":"charge",)"
                R"("created":1795000000}})",
                at == 0 ? "" : ",", m_left - at));
        }
        m_left -= count;
        return ScriptedTransport::body(page(entries, m_left > 0));
    }

private:
    int m_left;
    int m_each;
};

} // namespace

TEST(StripeReport, CountsEachKindOfEntryInItsRow)
{
    struct Case {
        const char *category;
        const char *type;
        std::int64_t amount;
        std::vector<std::string> rows; // gross, refunds, fees, net, payouts
    };
    using Rows = std::vector<std::string>;
    for (const auto &[category, type, amount, rows] : {
             Case{"charge", "charge", 1000, Rows{"10.00", "0.00", "0.30", "9.70", "0.00"}},
             Case{"charge", "payment", 1000, Rows{"10.00", "0.00", "0.30", "9.70", "0.00"}},
             Case{"payment", "", 1000, Rows{"10.00", "0.00", "0.30", "9.70", "0.00"}},
             Case{"refund", "payment_refund", -500,
                  Rows{"0.00", "5.00", "0.30", "-5.30", "0.00"}},
             Case{"charge_failure", "payment_failure_refund", -500,
                  Rows{"0.00", "5.00", "0.30", "-5.30", "0.00"}},
             Case{"refund_failure", "refund_failure", 500,
                  Rows{"0.00", "-5.00", "0.30", "4.70", "0.00"}},
             Case{"payout", "payout", -900, Rows{"0.00", "0.00", "0.00", "0.00", "9.00"}},
             Case{"payout_reversal", "payout_cancel", 900,
                  Rows{"0.00", "0.00", "0.00", "0.00", "-9.00"}},
             Case{"payout_reversal", "payout_failure", 900,
                  Rows{"0.00", "0.00", "0.00", "0.00", "-9.00"}},
             // The category goes before the type.
             Case{"refund", "charge", -500, Rows{"0.00", "5.00", "0.30", "-5.30", "0.00"}},
             Case{"dispute", "adjustment", -500, Rows{}},
             Case{"transfer", "transfer", -500, Rows{}},
             Case{"fee", "stripe_fee", -500, Rows{}},
             Case{"tax", "tax_fee", -500, Rows{}},
         }) {
        SCOPED_TRACE(std::string{category} + "/" + type);
        const auto report = loadedFrom(page(entry(category, type, amount, 30)));
        ASSERT_TRUE(report);
        Rows amounts;
        for (const InsightMetric &metric : report->rows) {
            const std::string text = metricText(metric);
            EXPECT_THAT(text, EndsWith(" USD"));
            amounts.push_back(text.substr(0, text.size() - 4));
        }
        EXPECT_EQ(amounts, rows);
        EXPECT_EQ(report->empty, rows.empty());
        EXPECT_EQ(report->recent.empty(), rows.empty());
    }
}

TEST(StripeReport, KeepsCurrenciesApartAndAddsUpExactly)
{
    const std::string document =
        page(entry("charge", "charge", 10, 1) + "," + entry("charge", "charge", 20, 2) + "," +
             entry("charge", "charge", 5000, 10, "jpy") + "," +
             entry("charge", "charge", 1'005, 0, "kwd") + "," + entry("refund", "refund", -5));
    const auto report = loadedFrom(document);
    ASSERT_TRUE(report);
    EXPECT_THAT(rowsOf(*report),
                ElementsAre("jpy-gross 5,000 JPY", "jpy-refunds 0 JPY", "jpy-fees 10 JPY",
                            "jpy-net 4,990 JPY", "jpy-payouts 0 JPY", "kwd-gross 1.005 KWD",
                            "kwd-refunds 0.000 KWD", "kwd-fees 0.000 KWD", "kwd-net 1.005 KWD",
                            "kwd-payouts 0.000 KWD", "usd-gross 0.30 USD",
                            "usd-refunds 0.05 USD", "usd-fees 0.03 USD", "usd-net 0.22 USD",
                            "usd-payouts 0.00 USD"));
    EXPECT_EQ(report->rows[0].label, "Gross payments");
    EXPECT_EQ(report->rows[1].detail,
              "Refund movements, less failed-refund reversals · balance-entry creation date in "
              "the selected period");
    EXPECT_EQ(report->rows[4].detail,
              "Net balance debits for payouts, less failures/cancellations. Not a bank "
              "settlement confirmation · balance-entry creation date in the selected period");
    for (const InsightMetric &metric : report->rows) {
        EXPECT_THAT(metric.detail,
                    EndsWith(" · balance-entry creation date in the selected period"));
    }
    EXPECT_EQ(report->notice,
              "Payment balance activity, not profit. Currencies stay separate.");
    EXPECT_EQ(report->fetchedAt, kNow);
    EXPECT_FALSE(report->empty || report->stale);
    // 1,795,000,000 is 18 November 2026, the fourth of seven days.
    ASSERT_EQ(report->points.size(), 21U);
    EXPECT_EQ(pointText(report->points[17]), "0.30 USD");
    EXPECT_EQ(pointText(report->points[16]), "0.00 USD");
    EXPECT_EQ(report->points[17].date, *Base::fromIso8601("2026-11-18T00:00:00Z"));
}

TEST(StripeReport, ShowsTheNewestEntriesWhateverTheirOrder)
{
    std::string entries;
    for (const int minute : {3, 11, 7, 1, 12, 5, 9, 2, 10, 6, 4, 8}) {
        entries.append(fmt::format(
            R"({}{{"id":"t{}","amount":-{},"currency":"EUR","reporting_category":"refund",)"
            R"("created":{},"description":{}}})",
            entries.empty() ? "" : ",", minute, minute, 1'795'000'000 + 60 * minute,
            minute == 12 ? R"("Order 7")" : "null"));
    }
    const auto report = loadedFrom(page(entries));
    ASSERT_TRUE(report);
    ASSERT_EQ(report->recent.size(), 10U);
    EXPECT_EQ(report->recent[0], (InsightEntry{.id = "t12",
                                               .title = "Order 7",
                                               .value = "-0.12 EUR",
                                               .date = Base::fromSeconds1970(1'795'000'720)}));
    EXPECT_EQ(report->recent[1].title, "Refund");
    EXPECT_EQ(report->recent[9].id, "t3");
}

TEST(StripeReport, AsksPageByPageWithTheKeyInItsHeaderAlone)
{
    ScriptedTransport transport{Pages{250, 100}};
    const auto report = loaded(transport, "rk_test_xyz");
    ASSERT_TRUE(report);
    EXPECT_EQ(metricText(report->rows[0]), "250.00 USD");
    EXPECT_EQ(report->notice, "Stripe test mode · Payment balance activity, not profit. "
                              "Currencies stay separate.");
    ASSERT_EQ(transport.requests.size(), 3U);
    const std::string first = "https://api.stripe.com/v1/balance_transactions?limit=100"
                              "&created%5Bgte%5D=1794700800&created%5Blte%5D=1795284000";
    EXPECT_EQ(transport.requests[0].url, first);
    EXPECT_EQ(transport.requests[1].url, first + "&starting_after=txn_151");
    EXPECT_EQ(transport.requests[2].url, first + "&starting_after=txn_51");
    for (const Base::HttpRequest &request : transport.requests) {
        ASSERT_EQ(request.headers.size(), 2U);
        EXPECT_EQ(request.headers[0].name, "Authorization");
        EXPECT_EQ(request.headers[0].value, "Bearer rk_test_xyz");
        EXPECT_EQ(request.headers[1].name, "Accept");
        EXPECT_EQ(request.headers[1].value, "application/json");
    }
}

TEST(StripeReport, TakesTenThousandEntriesAndNotOneMore)
{
    ScriptedTransport full{Pages{10'000, 100}};
    const auto report = loaded(full);
    ASSERT_TRUE(report);
    EXPECT_EQ(metricText(report->rows[0]), "10,000.00 USD");
    ScriptedTransport over{Pages{10'001, 100}};
    const auto refused = loaded(over);
    ASSERT_FALSE(refused);
    EXPECT_EQ(messageOf(refused.error()),
              "This period contains more than 10,000 balance entries. Choose a shorter period; "
              "partial totals are not shown.");
    EXPECT_EQ(over.requests.size(), 101U);
    ScriptedTransport far{Pages{50'000, 100}};
    EXPECT_FALSE(loaded(far));
    EXPECT_EQ(far.requests.size(), 101U) << "what is too much is not fetched to its end";
}

TEST(StripeReport, StopsBetweenPages)
{
    std::stop_source stopping;
    Pages pages{1000, 100};
    ScriptedTransport transport{[&](const Base::HttpRequest &request) {
        if (transport.requests.size() == 3) {
            stopping.request_stop();
        }
        return pages(request);
    }};
    const auto report = loaded(transport, kKey, InsightPeriod::last7Days, stopping.get_token());
    ASSERT_FALSE(report);
    EXPECT_EQ(report.error().kind, InsightError::Kind::cancelled);
    EXPECT_EQ(transport.requests.size(), 3U);
}

TEST(StripeReport, RefusesWhatIsNoReport)
{
    const std::string good = entry("charge", "charge", 100);
    for (const std::string &document : {
             std::string{}, std::string{"<html>"}, std::string{"[]"}, std::string{"{}"},
             std::string{R"({"data":[]})"}, page(good) + "x",
             page(entry("charge", "charge", std::int64_t{1} << 49U)),
             page(entry("charge", "charge", std::numeric_limits<std::int64_t>::min())),
             page(entry("charge", "charge", 1, std::numeric_limits<std::int64_t>::max())),
             page(entry("charge", "charge", std::int64_t{1} << 48U) + "," + good),
             page(entry("charge", "charge", 100, 0, "dollars")),
             page(entry("charge", "charge", 100, 0, "")),
             page(R"({"id":"a","amount":1.5,"currency":"usd","type":"charge","created":1})"),
             page(R"({"id":"a","amount":1,"currency":"usd","type":"charge","created":-1})"),
             page(R"({"id":"a","amount":1,"currency":"usd","type":"charge"})"),
             page("", true),   // more is promised, but after which entry?
             page(good, true), // the same page for ever
         }) {
        const auto report = loadedFrom(document);
        ASSERT_FALSE(report) << document;
        EXPECT_EQ(messageOf(report.error()),
                  "The provider returned an unexpected report. No totals were saved.");
    }
    const auto empty = loadedFrom(page(""));
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->empty && empty->rows.empty() && empty->points.empty());
}

} // namespace KestCore
