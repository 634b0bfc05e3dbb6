// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Registry/ToolRegistry.h"

#include "tests/KestCore/JsonKeys.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

namespace KestCoreTests
{

using namespace KestCore;
using testing::UnorderedElementsAre;

namespace
{

using Ids = std::vector<std::string>;
using Words = std::set<std::string>;

const std::vector<ToolDescriptor> kOneTool{{.id = "a",
                                            .title = "A",
                                            .icon = "i",
                                            .category = "c",
                                            .permissions = {"p"},
                                            .background = "b",
                                            .status = "s",
                                            .summary = "m",
                                            .configuration = {"k"}}};

} // namespace

TEST(ToolRegistry, KnowsTheToolsThatOthersReferTo)
{
    Ids ids;
    for (const ToolDescriptor &tool : ToolRegistry::tools()) {
        ids.push_back(tool.id);
    }
    EXPECT_THAT(ids, UnorderedElementsAre(
                         "home", "dhikr", "tasbih", "names", "friday", "prayer", "scratchpad",
                         "notes", "timers", "clipboard", "shelf", "files", "links", "emoji",
                         "units", "calendar", "weather", "music", "sounds", "stats",
                         "screen-time", "revenue", "analytics", "claude", "settings"));
    EXPECT_TRUE(ToolRegistry::knowsAll(ids));
    EXPECT_TRUE(ToolRegistry::knowsAll({}));
    for (const char *unknown : {"", "Home", "home ", "dhik"}) {
        EXPECT_FALSE(ToolRegistry::knows(unknown)) << unknown;
        EXPECT_FALSE(ToolRegistry::knowsAll(Ids{"home", unknown})) << unknown;
    }
}

TEST(ToolRegistry, NeedsAllTenKeysInTheirOrder)
{
    const auto text = json::encode(kOneTool).value();
    EXPECT_EQ(joinedKeys(text), "id title icon category permissions background pinnable status "
                                "summary configuration");
    EXPECT_EQ(json::decode<std::vector<ToolDescriptor>>(text), kOneTool);
    for (const KeyPlace &place : keysOf(text)) {
        EXPECT_FALSE(json::decode<std::vector<ToolDescriptor>>(without(text, place)))
            << place.key;
    }
}

TEST(ToolRegistry, ListsTheToolsThatAreNotDevotional)
{
    const std::vector<ToolDescriptor> mixed{{.id = "z", .category = "core"},
                                            {.id = "y", .category = "faith"},
                                            {.id = "x", .category = "Faith"},
                                            {.id = "a", .category = ""}};
    EXPECT_EQ(ToolRegistry::nonDevotionalIds(mixed), (Ids{"z", "x", "a"}));
    EXPECT_EQ(ToolRegistry::nonDevotionalIds(std::span{mixed}.subspan(1, 1)), Ids{});
    const Ids all = ToolRegistry::nonDevotionalIds();
    EXPECT_EQ(all.size(), 20U);
    for (const char *faith : {"dhikr", "tasbih", "names", "friday", "prayer"}) {
        EXPECT_THAT(all, testing::Not(testing::Contains(faith)));
    }
}

TEST(ToolRegistry, AppendsMissingToolsInTheirNaturalOrder)
{
    Ids natural;
    EXPECT_TRUE(ToolRegistry::appendMissing(natural));
    ASSERT_EQ(natural.size(), ToolRegistry::tools().size());
    EXPECT_FALSE(ToolRegistry::appendMissing(natural));

    Ids order{"settings", natural[3], "retired"};
    EXPECT_TRUE(ToolRegistry::appendMissing(order));
    Ids expected{"settings", natural[3], "retired"};
    for (const std::string &id : natural) {
        if (id != "settings" && id != natural[3]) {
            expected.push_back(id);
        }
    }
    EXPECT_EQ(order, expected);
}

TEST(ToolRegistry, DescribesEachToolInKnownWords)
{
    const Words categories{"core", "faith", "everyday", "media", "system", "insights"};
    const Words backgrounds{"none", "schedule", "watch", "refresh", "sample"};
    const Words permissions{"notifications", "location", "clipboard", "secrets",
                            "files",         "calendar", "network",   "media",
                            "automation",    "activity", "accounts"};
    const std::regex key{R"([a-z-]+(\.[A-Za-z]+)+)"};
    std::map<std::string, std::string> ownerOf;
    Words titles;
    for (const ToolDescriptor &tool : ToolRegistry::tools()) {
        SCOPED_TRACE(tool.id);
        EXPECT_TRUE(titles.insert(tool.title).second && !tool.title.empty());
        EXPECT_FALSE(tool.icon.empty());
        EXPECT_TRUE(tool.summary.ends_with('.'));
        EXPECT_TRUE(categories.contains(tool.category));
        EXPECT_TRUE(backgrounds.contains(tool.background));
        EXPECT_TRUE(tool.status == "stable" || tool.status == "preview");
        EXPECT_TRUE(std::ranges::includes(
            permissions, Words{tool.permissions.begin(), tool.permissions.end()}));
        for (const std::string &setting : tool.configuration) {
            EXPECT_TRUE(std::regex_match(setting, key)) << setting;
            const auto [owner, isFirst] = ownerOf.emplace(setting, tool.id);
            EXPECT_TRUE(isFirst) << setting << " belongs to " << owner->second << " already";
        }
    }
}

} // namespace KestCoreTests
