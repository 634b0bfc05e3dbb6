// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"
#include "RunningModel.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/InsightsViewModel.h"
#include "tests/WebServer.h"

#include <fmt/format.h>

#include <mutex>

using namespace Velvetnook;

namespace
{

constexpr const char *kBalance = "/v1/balance_transactions";
constexpr const char *kKey = "rk_live_abc";

// The keyring, as the tests see it from outside.
struct Ring {
    std::mutex mutex{};
    std::map<std::string, std::string> secrets{};
    bool isLocked{};
};

class RingStore : public Base::SecretStore
{
public:
    RingStore(Ring &ring, Keyring::Prompts prompts)
        : m_ring{ring}, m_mayAsk{prompts == Keyring::Prompts::allowed}
    {
    }
    Base::SecretResult<std::optional<Base::SecretBytes>> read(std::string_view account) override
    {
        const std::scoped_lock lock{m_ring.mutex};
        if (m_ring.isLocked && !m_mayAsk) {
            return std::unexpected(
                Base::SecretFailure{.kind = Base::SecretFailure::Kind::locked,
                                    .message = "The keyring is locked."});
        }
        const auto found = m_ring.secrets.find(std::string{account});
        return found == m_ring.secrets.end() ? std::nullopt
                                             : std::optional{Base::SecretBytes{
                                                   found->second.begin(), found->second.end()}};
    }
    Base::SecretResult<> write(std::string_view account,
                               std::span<const std::uint8_t> secret) override
    {
        const std::scoped_lock lock{m_ring.mutex};
        m_ring.secrets[std::string{account}] = {secret.begin(), secret.end()};
        return {};
    }
    Base::SecretResult<> erase(std::string_view account) override
    {
        const std::scoped_lock lock{m_ring.mutex};
        m_ring.secrets.erase(std::string{account});
        return {};
    }

private:
    Ring &m_ring;
    bool m_mayAsk;
};

// One payment and one refund of just now.
WebReply balance()
{
    const auto now = static_cast<std::int64_t>(Base::seconds1970(Base::wallClock())) - 1;
    constexpr const char *kEntry =
        R"({{"id":"txn_{}","amount":{},"fee":{},"currency":"eur","type":"{}",)"
        R"("reporting_category":"{}","created":{},"description":"Order"}})";
    return {.body = fmt::format(
                R"({{"object":"list","has_more":false,"data":[{},{}]}})",
                fmt::format(fmt::runtime(kEntry), 1, 10'000, 300, "charge", "charge", now),
                fmt::format(fmt::runtime(kEntry), 2, -2'500, 0, "refund", "refund", now))};
}

class Insights
{
public:
    Insights()
    {
        setenv("KEST_STRIPE_URL", server.url().c_str(), 1);
        server.on(kBalance, balance());
        m_view.emplace(running.model(), running.formatting(),
                       std::make_shared<const ToolServices>(ToolServices{
                           .openTransport = [] { return Web::openTransport(); },
                           .openSecrets =
                               [this](Keyring::Prompts prompts, const std::stop_token &) {
                                   return std::unique_ptr<Base::SecretStore>{
                                       std::make_unique<RingStore>(ring, prompts)};
                               }}));
    }

    InsightsViewModel &view() { return *m_view; }
    std::string availability() { return view().availability().toStdString(); }
    void answer()
    {
        EXPECT_TRUE(RunningModel::waitUntil(
            [this] { return !view().isLoading() && !view().isConnecting(); }));
        running.settle();
    }
    void show()
    {
        view().setShown(true);
        answer();
    }
    void connect(const char *key)
    {
        view().connectKey(QLatin1String{key}, {});
        answer();
    }

    WebServer server;
    Ring ring;
    RunningModel running;

private:
    std::optional<InsightsViewModel> m_view;
};

} // namespace

TEST(InsightsView, AsksNobodyWithoutAKey)
{
    Insights insights;
    insights.show();
    EXPECT_EQ(insights.availability(), "unconfigured");
    EXPECT_TRUE(insights.server.requests().empty());
}

TEST(InsightsView, AKeyGoesIntoTheKeyringAndNowhereElse)
{
    Insights insights;
    insights.show();
    insights.connect("sk_live_abc"); // can move money
    EXPECT_FALSE(insights.view().refusal().isEmpty());
    EXPECT_TRUE(insights.ring.secrets.empty());
    EXPECT_TRUE(insights.server.requests().empty());
    insights.connect(kKey);
    EXPECT_TRUE(insights.view().refusal().isEmpty());
    EXPECT_EQ(insights.ring.secrets.at("insights.stripe.key"), kKey);
    EXPECT_EQ(insights.availability(), "ready");
    ASSERT_EQ(insights.server.requests().size(), 1U);
    EXPECT_EQ(insights.server.requests().front().header("Authorization"),
              std::string{"Bearer "} + kKey);
    for (const auto &[name, value] : insights.running.state().settings) {
        EXPECT_EQ(value.find(kKey), std::string::npos) << name;
    }
    insights.view().disconnectKey();
    insights.answer();
    EXPECT_TRUE(insights.ring.secrets.empty());
    EXPECT_EQ(insights.availability(), "unconfigured"); // and not what was fetched before
}

TEST(InsightsView, ShowsWhatWasEarnedLessWhatWasTakenOff)
{
    Insights insights;
    insights.ring.secrets["insights.stripe.key"] = kKey;
    insights.show();
    EXPECT_EQ(insights.view().headline()[QStringLiteral("value")].toString(), u"72.00");
    QStringList figures;
    for (const QVariant &row : insights.view().figures()) {
        figures.push_back(row.toMap()[QStringLiteral("value")].toString());
    }
    EXPECT_EQ(figures, (QStringList{QStringLiteral("100.00"), QStringLiteral("−25.00"),
                                    QStringLiteral("−3.00"), QStringLiteral("72.00"),
                                    QStringLiteral("0.00")}));
    ASSERT_FALSE(insights.view().bars().isEmpty());
    EXPECT_EQ(insights.view().bars().last().toMap()[QStringLiteral("share")].toDouble(), 1.0);
    EXPECT_LE(insights.view().bars().size(), static_cast<qsizetype>(46));
}

TEST(InsightsView, AFailureKeepsTheFiguresUnlessTheKeyIsRefused)
{
    struct Case {
        const char *name;
        WebReply reply;
        const char *availability;
        bool hasReport;
    };
    for (const auto &[name, reply, availability, hasReport] : {
             Case{"a fault", {.status = 500}, "stale", true},
             Case{"no report", {.body = "{}"}, "stale", true},
             Case{"too often",
                  {.status = 429, .headers = {{"Retry-After", "90"}}},
                  "stale",
                  true},
             Case{"the key is refused", {.status = 401}, "permissionDenied", false},
         }) {
        SCOPED_TRACE(name);
        Insights insights;
        insights.ring.secrets["insights.stripe.key"] = kKey;
        insights.show();
        insights.server.on(kBalance, reply);
        insights.view().refresh();
        insights.answer();
        EXPECT_EQ(insights.availability(), availability);
        EXPECT_EQ(insights.view().hasReport(), hasReport);
        EXPECT_FALSE(insights.view().footer().isEmpty() && insights.view().message().isEmpty());
        // Also the next run leaves a provider alone that has asked for it.
        EXPECT_EQ(insights.running.state().settings.contains("revenue.waitUntil"),
                  reply.status == 429);
        EXPECT_EQ(insights.view().canRefresh(), reply.status != 429);
    }
}

TEST(InsightsView, ALockedKeyringIsOpenedOnlyWhenTheUserAsks)
{
    Insights insights;
    insights.ring.secrets["insights.stripe.key"] = kKey;
    insights.ring.isLocked = true;
    insights.show();
    EXPECT_EQ(insights.availability(), "permissionDenied");
    EXPECT_TRUE(insights.server.requests().empty());
    insights.view().refresh();
    insights.answer();
    EXPECT_EQ(insights.availability(), "ready");
}

TEST(InsightsView, AnotherPeriodIsAskedForAndTheOldFiguresGo)
{
    Insights insights;
    insights.ring.secrets["insights.stripe.key"] = kKey;
    insights.show();
    insights.server.on(kBalance, WebReply{.status = 500});
    insights.view().setPeriod(QStringLiteral("7d"));
    insights.running.settle();
    insights.answer();
    EXPECT_FALSE(insights.view().hasReport());
    EXPECT_EQ(insights.availability(), "offline");
    insights.view().setPeriod(QStringLiteral("30d")); // fetched a moment ago
    insights.running.settle();
    insights.answer();
    EXPECT_EQ(insights.availability(), "ready");
    EXPECT_EQ(insights.server.requests().size(), 2U);
}
