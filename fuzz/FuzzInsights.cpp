// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/DirectInsightsClient.h"
#include "KestCore/Clients/InsightText.h"
#include "fuzz/RoundTrip.h"

namespace
{

using namespace KestCore;

// The bytes are the answer to everything, but for what must come to an end.
class OneAnswer : public Base::HttpTransport
{
public:
    explicit OneAnswer(std::string_view body) : m_body(body) {}

    Base::HttpResult<Base::HttpResponse> get(const Base::HttpRequest &request,
                                             const std::stop_token & /*stop*/) override
    {
        const bool isLaterPage = request.url.contains("starting_after");
        return Base::HttpResponse{.status = 200,
                                  .body = isLaterPage ? R"({"data":[],"has_more":false})"
                                                      : std::string{m_body}};
    }

private:
    std::string_view m_body;
};

// What became a report can be shown, kept and read again.
void tryReport(Base::HttpTransport &transport, InsightProvider provider, const char *key)
{
    DirectInsightsClient client{transport};
    static const InsightZone kZone{.calendar = Calendar::inZone("Europe/Berlin").value(),
                                   .identifier = "Europe/Berlin"};
    const auto report = client.load(provider, key, InsightPeriod::last30Days, "site",
                                    Base::fromSeconds1970(1'795'284'000), kZone, {});
    if (!report) {
        return;
    }
    for (const auto &metric : report->rows) {
        (void)metricText(metric);
    }
    for (const auto &point : report->points) {
        (void)pointText(point);
    }
    const auto document = Base::json::encode(*report);
    if (!document) {
        std::abort();
    }
    const auto again = Base::json::decode<InsightReport>(std::string_view{*document});
    if (!again || !(*again == *report)) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view body{reinterpret_cast<const char *>(data), size};
    OneAnswer transport{body};
    tryReport(transport, InsightProvider::stripe, "rk_test_1");
    tryReport(transport, InsightProvider::datafast, "df_1");
    roundTrip<InsightReport>(data, size);
    return 0;
}
