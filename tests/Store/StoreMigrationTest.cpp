// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Store/StateStore.h"
#include "tests/RawFile.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>

using KestCore::StateStore;

namespace
{

constexpr const char *kBackup = "kest.sqlite.pre-companion-v1.sqlite";

// A database from before there was a companion, with this state.
void makeOldDatabase(const std::filesystem::path &file, const KestCore::NativeState &state)
{
    ASSERT_TRUE(StateStore::open(file));
    RawFile::setBody(file, "state", *Base::json::encode(state));
    RawFile::execute(file, "DROP TABLE companion; PRAGMA user_version=0;");
}

std::vector<std::string> faithWidgets(const std::filesystem::path &file)
{
    return StateStore::open(file)->companion().workspaces.front().homeWidgets;
}

using Names = std::vector<std::string>;

} // namespace

TEST(CompanionMigration, TakesTheWidgetsThatTheUserHad)
{
    struct Case {
        const char *name;
        std::optional<std::string> setting;
        Names widgets;
    };
    for (const auto &[name, setting, widgets] : {
             Case{"chosen", "weather,,stats,", {"weather", "stats"}},
             Case{"none chosen", "", {}},
             Case{"never set",
                  std::nullopt,
                  {"screen-time", "revenue", "stats", "analytics", "claude", "weather"}},
             Case{"unknown ones are not shown", "stats,horoscope", {"stats"}},
         }) {
        SCOPED_TRACE(name);
        const TemporaryFolder folder;
        auto state = KestCore::defaultNativeState();
        if (setting) {
            state.settings["home.widgets"] = *setting;
        }
        makeOldDatabase(folder.database(), state);
        EXPECT_EQ(faithWidgets(folder.database()), widgets);
    }
    const TemporaryFolder fresh;
    EXPECT_EQ(faithWidgets(fresh.database()), (Names{"stats", "weather"}));
}

TEST(CompanionMigration, BacksUpFirstAndNeverOverwritesABackup)
{
    const TemporaryFolder folder;
    makeOldDatabase(folder.database(), KestCore::defaultNativeState());
    const std::string old = RawFile::dump(folder.database());
    ASSERT_TRUE(StateStore::open(folder.database()));
    EXPECT_EQ(RawFile::dump(folder.path() / kBackup), old);
    EXPECT_EQ(std::filesystem::status(folder.path() / kBackup).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);

    const std::string firstBackup = RawFile::bytes(folder.path() / kBackup);
    RawFile::execute(folder.database(), "DROP TABLE companion");
    ASSERT_TRUE(StateStore::open(folder.database()));
    EXPECT_EQ(RawFile::bytes(folder.path() / kBackup), firstBackup);
    const auto names = RawFile::neighbours(folder.database());
    EXPECT_EQ(std::ranges::count_if(names,
                                    [](const std::string &name) {
                                        return name.starts_with(
                                                   "kest.sqlite.pre-companion-v1-retry-") &&
                                               name.ends_with(".sqlite");
                                    }),
              1);
}

TEST(CompanionMigration, IsDoneOnce)
{
    const TemporaryFolder folder;
    ASSERT_TRUE(StateStore::open(folder.database()));
    const auto names = RawFile::neighbours(folder.database());
    const std::string before = RawFile::bytes(folder.database());
    ASSERT_TRUE(StateStore::open(folder.database()));
    EXPECT_EQ(RawFile::bytes(folder.database()), before);
    EXPECT_EQ(RawFile::neighbours(folder.database()), names);
}

TEST(StateOpen, AppendsNewToolsAndRaisesTheRevisionOnce)
{
    const TemporaryFolder folder;
    auto state = KestCore::defaultNativeState();
    state.revision = 41;
    state.order = {"settings", "home"};
    ASSERT_TRUE(StateStore::open(folder.database()));
    RawFile::setBody(folder.database(), "state", *Base::json::encode(state));
    for (int opening = 0; opening < 2; ++opening) {
        const auto store = *StateStore::open(folder.database());
        EXPECT_EQ(store.state().revision, 42);
        const auto &order = store.state().order;
        EXPECT_EQ(order.size(), KestCore::ToolRegistry::tools().size());
        EXPECT_EQ(order[0], "settings");
        EXPECT_EQ(order[1], "home");
        EXPECT_EQ(order[2], KestCore::ToolRegistry::tools()[1].id);
    }
}
