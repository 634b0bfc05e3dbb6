// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"
#include "tests/WebServer.h"

#include <gmock/gmock.h>

#include <cstdlib>

using Kind = Base::HttpFailure::Kind;

TEST(TransportTrust, TrustsOnlyCertificatesOfAKnownAuthorityForThatHost)
{
    WebServer server{WebServer::Security::tls};
    server.on("/page", {.body = "secret page"});
    const WebServer stranger{WebServer::Security::tls};
    struct Case {
        const char *name;
        std::string authorities;
        std::string url;
        bool isTrusted;
    };
    for (const auto &[name, authorities, url, isTrusted] : {
             Case{"known", server.authorityFile(), server.url("/page"), true},
             Case{"by another name", server.authorityFile(), server.url("/page", "localhost"),
                  false},
             Case{"unknown", "", server.url("/page"), false},
             Case{"another authority", stranger.authorityFile(), server.url("/page"), false},
             Case{"no such file", "/nonexistent.pem", server.url("/page"), false},
         }) {
        SCOPED_TRACE(name);
        const auto transport = Web::openTransport({.extraAuthorities = authorities});
        ASSERT_TRUE(transport);
        const auto answer = (*transport)->get({.url = url}, {});
        EXPECT_EQ(answer.has_value(), isTrusted);
        if (answer) {
            EXPECT_EQ(answer->body, "secret page");
        } else {
            EXPECT_EQ(answer.error().kind, Kind::noAnswer);
        }
    }
    EXPECT_EQ(server.requests().size(), 1U) << "no request before there is trust";
}

TEST(TransportTrust, NeverStepsDownToPlainHttp)
{
    WebServer plain;
    WebServer server{WebServer::Security::tls};
    server.on("/page", {.status = 301, .headers = {{"Location", plain.url("/page")}}});
    const auto transport =
        Web::openTransport({.extraAuthorities = server.authorityFile()}).value();
    const auto answer = transport->get({.url = server.url("/page")}, {});
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error().kind, Kind::refused);
    EXPECT_TRUE(plain.requests().empty());
}

TEST(TransportTrust, SendsNothingForThisMachineToAProxy)
{
    WebServer proxy;
    WebServer server;
    setenv("http_proxy", proxy.url().c_str(), 1);
    const auto answer = Web::openTransport({}).value()->get({.url = server.url("/page")}, {});
    unsetenv("http_proxy");
    ASSERT_TRUE(answer) << answer.error().message;
    EXPECT_EQ(server.requests().size(), 1U);
    EXPECT_TRUE(proxy.requests().empty());
}
