// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"
#include "KestCore/Clients/DirectInsightsClient.h"
#include "KestCore/Clients/InsightText.h"
#include "tests/WebServer.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <thread>

namespace KestCore
{

namespace
{

using Way = WebReply::Way;
using enum InsightProvider;

constexpr const char *kBalance = "/v1/balance_transactions";
constexpr const char *kUnexpected =
    "The provider returned an unexpected report. No totals were saved.";
constexpr const char *kNoAnswer = "Stripe did not answer. Check the connection, then refresh.";

// The client on the real transport, before a server that plays both providers.
class InsightServer : public testing::Test
{
protected:
    InsightResult<InsightReport> load(InsightProvider provider,
                                      const std::stop_token &stop = {})
    {
        DirectInsightsClient client{*m_transport,
                                    {.stripe = m_server.url(), .datafast = m_server.url()}};
        return client.load(provider, provider == stripe ? "rk_live_secret" : "df_secret",
                           InsightPeriod::last7Days, "site", Base::wallClock(),
                           {.calendar = Calendar::inZone("UTC").value(), .identifier = "UTC"},
                           stop);
    }

    // Serves so many entries, a hundred a page.
    void serveEntries(int total)
    {
        m_server.on(kBalance, [total](const WebRequest &request) -> WebReply {
            constexpr std::string_view kAfter = "starting_after=txn_";
            const std::size_t at = request.query.find(kAfter);
            const int from = at == std::string::npos
                                 ? 0
                                 : std::stoi(request.query.substr(at + kAfter.size()));
            const int to = std::min(from + 100, total);
            std::string entries;
            for (int number = from + 1; number <= to; ++number) {
                entries.append(fmt::format(
                    R"({}{{"id":"txn_{}","amount":100,"fee":3,"currency":"usd",)"
                    R"("type":"charge","reporting_category":"charge","created":1795000000,)"
                    R"("description":null}})",
                    number == from + 1 ? "" : ",", number));
            }
            return {.body =
                        fmt::format(R"({{"data":[{}],"has_more":{}}})", entries, to < total)};
        });
    }

    WebServer m_server;
    std::unique_ptr<Base::HttpTransport> m_transport = Web::openTransport({}).value();
};

} // namespace

TEST_F(InsightServer, CountsTenThousandEntriesAndRefusesOneMore)
{
    serveEntries(10'000);
    const auto report = load(stripe);
    ASSERT_TRUE(report) << messageOf(report.error());
    EXPECT_EQ(metricText(report->rows[0]), "10,000.00 USD");
    EXPECT_EQ(metricText(report->rows[2]), "300.00 USD");
    EXPECT_EQ(m_server.requests().size(), 100U);
    EXPECT_EQ(m_server.requests().back().header("Authorization"), "Bearer rk_live_secret");
    serveEntries(10'001);
    const auto refused = load(stripe);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().kind, InsightError::Kind::limit);
}

TEST_F(InsightServer, GivesEachRoadItsMessage)
{
    WebServer elsewhere;
    const auto check = [](const char *status) {
        return fmt::format("Check the Stripe key and website selection (HTTP {}).", status);
    };
    const std::string entries(1000, ' ');
    struct Case {
        const char *name;
        WebReply reply;
        std::string message;
    };
    for (const auto &[name, reply, message] : {
             Case{"no JSON", {.body = "<html></html>"}, kUnexpected},
             Case{"nothing", {.status = 204}, kUnexpected},
             Case{"endless", {.body = entries, .way = Way::endless}, kUnexpected},
             Case{"endless and refused",
                  {.status = 403, .body = entries, .way = Way::endless},
                  kUnexpected},
             Case{"dropped", {.body = entries, .way = Way::dropped}, kNoAnswer},
             Case{"truncated", {.body = entries, .way = Way::truncated}, kNoAnswer},
             Case{"bad gzip",
                  {.headers = {{"Content-Encoding", "gzip"}}, .body = entries},
                  kNoAnswer},
             Case{"304", {.status = 304}, check("304")},
             Case{"404", {.status = 404}, check("404")},
             Case{"401",
                  {.status = 401},
                  "This Stripe key has expired or is invalid. Replace it in Connections."},
             Case{"403",
                  {.status = 403},
                  "Allow Balance read access on this restricted Stripe key, then reconnect."},
             Case{"429",
                  {.status = 429, .headers = {{"Retry-After", "7"}}},
                  "The provider is limiting requests. Wait a moment, then refresh."},
             Case{"500",
                  {.status = 500},
                  "The provider is temporarily unavailable. Try again shortly."},
             Case{"503",
                  {.status = 503},
                  "The provider is temporarily unavailable. Try again shortly."},
             Case{"led to another server",
                  {.status = 302, .headers = {{"Location", elsewhere.url("/stolen")}}},
                  "The address of Stripe is not allowed, or leads to one that is not."},
         }) {
        SCOPED_TRACE(name);
        m_server.on(kBalance, reply);
        const auto report = load(stripe);
        ASSERT_FALSE(report);
        EXPECT_EQ(messageOf(report.error()), message);
    }
    EXPECT_TRUE(elsewhere.requests().empty()) << "the key must not travel";
}

TEST_F(InsightServer, StopsInTheMiddleOfARequest)
{
    for (const auto provider : {stripe, datafast}) {
        m_server.on(kBalance, {.way = Way::silent});
        m_server.on("/api/v1/analytics/overview",
                    {.body = R"({"status":"success","data":[{"visitors":1}]})"});
        m_server.on("/api/v1/analytics/timeseries", {.way = Way::silent});
        const std::size_t before = m_server.requests().size();
        std::stop_source stopping;
        InsightResult<InsightReport> report;
        {
            const std::jthread loading{[&] { report = load(provider, stopping.get_token()); }};
            EXPECT_TRUE(m_server.waitForRequests(before + (provider == stripe ? 1 : 2)));
            stopping.request_stop();
        }
        ASSERT_FALSE(report);
        EXPECT_EQ(report.error().kind, InsightError::Kind::cancelled);
    }
}

} // namespace KestCore
