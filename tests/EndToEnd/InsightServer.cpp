// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/WebServer.h"

#include <cstdio>
#include <iostream>

// Both providers of the insights on this machine, until standard input ends. Prints its
// address, and then a line for each request: the path, and how the key was taken.
namespace
{

constexpr const char *kFirstPage =
    R"({"data":[{"id":"txn_2","amount":123450,"fee":3610,"currency":"eur","type":"charge",)"
    R"("reporting_category":"charge","created":1795280000,)"
    R"("description":"Order \u001b[31m2"}],"has_more":true})";
constexpr const char *kSecondPage =
    R"({"data":[{"id":"txn_1","amount":-2000,"fee":0,"currency":"eur","type":"refund",)"
    R"("reporting_category":"refund","created":1795200000,"description":null}],)"
    R"("has_more":false})";

void tell(const WebRequest &request, const char *outcome)
{
    std::printf("%s %s\n", request.path.c_str(), outcome);
    std::fflush(stdout);
}

WebReply balance(const WebRequest &request)
{
    const std::string key = request.header("Authorization");
    if (key == "Bearer rk_live_busy") {
        tell(request, "busy");
        return {.status = 429, .headers = {{.name = "Retry-After", .value = "60"}}};
    }
    if (key != "Bearer rk_test_good") {
        tell(request, "unknown");
        return {.status = 401};
    }
    const bool isSecond = request.query.contains("starting_after=txn_2");
    tell(request, isSecond ? "second" : "first");
    return {.body = isSecond ? kSecondPage : kFirstPage};
}

WebReply analytics(const WebRequest &request)
{
    if (!request.query.contains("websiteId=site1") ||
        request.header("Authorization") != "Bearer df_good") {
        tell(request, "unknown");
        return {.status = 404};
    }
    tell(request, "known");
    return {.body = R"({"status":"success","data":[{"visitors":1234,"pageviews":5678,)"
                    R"("currency":"usd","revenue":99.5,"hostname":"example.org",)"
                    R"("path":"/start","referrer":"example.com",)"
                    R"("timestamp":"2026-11-20"}]})"};
}

} // namespace

int main()
{
    WebServer server;
    server.on("/v1/balance_transactions", balance);
    for (const char *part : {"overview", "timeseries", "pages", "referrers", "realtime"}) {
        server.on(std::string{"/api/v1/analytics/"} + part, analytics);
    }
    std::printf("%s\n", server.url().c_str());
    std::fflush(stdout);
    std::string line;
    while (std::getline(std::cin, line)) {
    }
    return 0;
}
