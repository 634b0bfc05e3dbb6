// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Links.h"

#include <gmock/gmock.h>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

std::string addressOrRefusal(std::string_view text)
{
    const auto address = normalizedAddress(text);
    return address ? *address : address.error().message;
}

LocalRecord saved(const LinkChange &given, std::string id)
{
    auto link = *makeLink(given, {});
    link.id = std::move(id);
    return link;
}

} // namespace

TEST(Links, KeepAddressesInOneForm)
{
    for (const auto &[text, address] :
         std::initializer_list<std::pair<std::string_view, std::string_view>>{
             {"example.org", "https://example.org"},
             {"  HTTP://Example.ORG/Path?Q#F\n", "http://example.org/Path?Q#F"},
             {"https://example.org/", "https://example.org"},
             {"https://example.org/a/", "https://example.org/a/"},
             {"https://example.org/?q", "https://example.org/?q"},
             {"localhost:8080/x", "https://localhost:8080/x"},
             {"Me@Example.org:443", "https://Me@example.org:443"},
             {"http://[::1]:80/", "http://[::1]:80"},
             {"\u0645\u062B\u0627\u0644.\u0625\u062E\u062A\u0628\u0627\u0631/\u0627",
              "https://\u0645\u062B\u0627\u0644.\u0625\u062E\u062A\u0628\u0627\u0631/\u0627"},
             {"\u0646\u0627\u0645\u0647\u200C\u0627\u06CC.ir",
              "https://\u0646\u0627\u0645\u0647\u200C\u0627\u06CC.ir"},
             {"e.org/a:b@c", "https://e.org/a:b@c"},
             {"e.org:65535?a:b", "https://e.org:65535?a:b"},
             {"https://[2001:DB8::1]:8/X", "https://[2001:db8::1]:8/X"},
             {"B\u00DCCHER.de/\u00DC", "https://b\u00FCcher.de/\u00DC"},
         }) {
        EXPECT_EQ(addressOrRefusal(text), address);
        EXPECT_EQ(addressOrRefusal(address), address);
        EXPECT_TRUE(keepsRules(SavedLink{.url = std::string{address}}));
    }
}

TEST(Links, RefuseWhatIsNoWebAddress)
{
    const std::string scheme = "Only http:// and https:// addresses can be saved";
    const std::string signs = "An address has no spaces, backslashes or control characters";
    const std::string website = "This address names no website";
    for (const auto &[text, refusal] :
         std::initializer_list<std::pair<std::string, std::string>>{
             {"javascript:alert(1)", scheme},
             {"JavaScript://e.org", scheme},
             {"file:///etc/passwd", scheme},
             {"mailto:a@e.org", scheme},
             {"mailto:1@e.org", scheme},
             {"Tel:112", scheme},
             {"https:e.org", scheme},
             {"https:/e.org", scheme},
             {"https://a b", signs},
             {"https://e.org/\u00A0x", signs},
             {"https://e.org/\x01", signs},
             {"https://e.org/a\nb", signs},
             {"https://e.org/\u202Egro", signs},
             {"https://e.org\\@f.org", signs},
             {"", website},
             {"https://", website},
             {"https:///x", website},
             {"https://a@", website},
             {"https://:80", website},
             {"https://..", website},
             {"https://e.org:", website},
             {"https://e.org:8x", website},
             {"https://e.org:0", website},
             {"https://e.org:65536", website},
             {"https://e.org:99999999999999999999", website},
             {"https://[]", website},
             {"https://[::1", website},
             {"https://[::g]", website},
             {"https://[::1]x", website},
             {"https://<b>", website},
             {"https://a%2Fb.org", website},
             {"e.org/" + std::string(8192, 'x'), "This address is too long to be saved"},
         }) {
        EXPECT_EQ(addressOrRefusal(text), refusal) << text.substr(0, 60);
    }
}

TEST(Links, GoByTheirTitleOrTheirHost)
{
    auto link = *makeLink({.address = "https://u@www.Example.org:80/x", .note = "n"}, {});
    EXPECT_EQ(link.title, "www.example.org");
    ASSERT_TRUE(changeLink(link, {.address = "other.org"}, {}));
    EXPECT_EQ(link.title, "other.org");
    EXPECT_EQ(link.body, R"({"url":"https://other.org","note":"n"})");
    ASSERT_TRUE(changeLink(link, {.title = "Mine", .note = ""}, {}));
    ASSERT_TRUE(changeLink(link, {.address = "third.org"}, {}));
    EXPECT_EQ(link.title, "Mine");
    EXPECT_EQ(link.body, R"({"url":"https://third.org"})");
    ASSERT_TRUE(changeLink(link, {.title = ""}, {}));
    EXPECT_EQ(link.title, "third.org");
}

TEST(Links, AnAddressIsSavedOnce)
{
    const std::vector<LocalRecord> links{saved({.address = "e.org/", .title = "First"}, "1"),
                                         saved({.address = "f.org"}, "2")};
    EXPECT_EQ(makeLink({.address = "HTTPS://E.org"}, links).error().message,
              "This address is saved already, as \"First\"");
    EXPECT_TRUE(makeLink({.address = "http://e.org"}, links));
    LocalRecord second = links[1];
    EXPECT_FALSE(changeLink(second, {.address = "e.org"}, links));
    EXPECT_EQ(second, links[1]);
    EXPECT_TRUE(changeLink(second, {.address = "f.org", .title = "Same"}, links));
    // Two that are there already can be changed like any others.
    const std::vector<LocalRecord> twins{links[0], saved({.address = "e.org"}, "2")};
    LocalRecord twin = twins[1];
    EXPECT_TRUE(changeLink(twin, {.address = "https://E.org/", .note = "n"}, twins));
    EXPECT_EQ(twin.body, R"({"url":"https://e.org","note":"n"})");
}

TEST(Links, AreFoundByTitleAddressAndNote)
{
    const std::vector<LocalRecord> links{
        saved({.address = "e.org/morning", .note = "Adhk\u0101r"}, "1"),
        saved({.address = "f.org", .title = "Adhkar"}, "2"), saved({.address = "g.org"}, "3")};
    const auto hits = searchLinks(links, "adhkar");
    ASSERT_EQ(hits.size(), 2U);
    EXPECT_EQ(hits[0].record.id, "2");
    EXPECT_EQ(hits[1].excerpt, "Adhk\u0101r");
    EXPECT_EQ(searchLinks(links, "MORNING").at(0).excerpt, "https://e.org/morning");
}

} // namespace KestCoreTests
