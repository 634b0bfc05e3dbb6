// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Serial.h"
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Store/StateStore.h"
#include "tests/RawFile.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <algorithm>
#include <thread>

using Base::KestError;
using Base::Result;
using KestCore::LocalRecord;
using KestCore::NativeState;
using KestCore::Snapshot;
using KestCore::StateStore;

namespace
{

LocalRecord record(std::string id, std::string kind, std::string body)
{
    return {.id = std::move(id),
            .kind = std::move(kind),
            .title = "A title",
            .body = std::move(body),
            .updated = 1'700'000'000'123.5,
            .extra = {{"pinned", "true"}}};
}

LocalRecord note(std::string id)
{
    return record(std::move(id), "note", R"({"text":"hello"})");
}

std::vector<std::string> idsOf(const Snapshot &snapshot)
{
    std::vector<std::string> ids;
    std::ranges::transform(snapshot.records, std::back_inserter(ids),
                           [](const auto &r) { return r->id; });
    return ids;
}

Result<void> increment(NativeState &state)
{
    KEST_TRY(
        [[maybe_unused]] const bool reached,
        KestCore::apply(KestCore::Increment{}, Base::fromSeconds1970(5), state.devotional));
    return {};
}

using Ids = std::vector<std::string>;

} // namespace

TEST(Store, KeepsEveryChangeAcrossARestart)
{
    const TemporaryFolder folder;
    NativeState last;
    {
        auto store = *StateStore::open(folder.database());
        EXPECT_EQ(store.state(), KestCore::defaultNativeState());
        for (int n = 0; n < 3; ++n) {
            ASSERT_TRUE(store.update(increment));
        }
        auto companion = store.companion();
        companion.selectedWorkspaceID = "coding";
        ASSERT_TRUE(store.saveCompanion(companion));
        last = store.upsertRecord(note("a"))->state;
    }
    auto store = *StateStore::open(folder.database());
    const auto snapshot = *store.snapshot();
    EXPECT_EQ(snapshot.state, last);
    EXPECT_EQ(snapshot.state.revision, 5);
    EXPECT_EQ(snapshot.state.devotional.session.count, 3);
    EXPECT_EQ(snapshot.companion->selectedWorkspaceID, "coding");
    ASSERT_EQ(idsOf(snapshot), Ids{"a"});
    EXPECT_EQ(*snapshot.records[0], note("a"));
}

TEST(Store, IsPrivateToTheUser)
{
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "deep" / "down" / "kest.sqlite";
    const auto store = StateStore::open(file);
    ASSERT_TRUE(store.has_value());
    const auto mode = [](const fs::path &path) { return fs::status(path).permissions(); };
    EXPECT_EQ(mode(file.parent_path()), fs::perms::owner_all);
    for (const auto &name : RawFile::neighbours(file)) {
        EXPECT_EQ(mode(file.parent_path() / name),
                  fs::perms::owner_read | fs::perms::owner_write)
            << name;
    }
}

TEST(Store, RefusedMutationsChangeNothing)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    const std::string before = RawFile::dump(folder.database());
    const auto own = KestError::invalidData("no");
    EXPECT_EQ(store
                  .update([&](NativeState &state) -> Result<void> {
                      state.settings["a"] = "b";
                      return std::unexpected(own);
                  })
                  .error(),
              own);
    EXPECT_EQ(store
                  .update([](NativeState &state) -> Result<void> {
                      state.enabled.emplace_back("nothing");
                      return {};
                  })
                  .error(),
              KestError::invalidData("Invalid native settings"));
    EXPECT_EQ(store
                  .update([](NativeState &state) -> Result<void> {
                      state.settings["a"] = "\xff";
                      return {};
                  })
                  .error()
                  .kind,
              KestError::Kind::invalidData);
    auto companion = store.companion();
    companion.selectedWorkspaceID = "nowhere";
    EXPECT_FALSE(store.saveCompanion(companion));
    EXPECT_EQ(store.upsertRecord(record("l", "link", "{}")).error(),
              KestError::invalidData("Invalid saved link"));
    EXPECT_EQ(RawFile::dump(folder.database()), before);
    EXPECT_EQ(store.state(), KestCore::defaultNativeState());
    // What a mutation writes into the revision does not count.
    EXPECT_EQ(store
                  .update([](NativeState &state) -> Result<void> {
                      state.revision = 500;
                      return {};
                  })
                  ->state.revision,
              1);
}

TEST(Store, RecordsKeepTheirPlaceAndTheirIdentity)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    for (const char *id : {"a", "b", "c"}) {
        ASSERT_TRUE(store.upsertRecord(note(id)));
    }
    auto changed = note("a");
    changed.title = "Another";
    EXPECT_EQ(idsOf(*store.upsertRecord(changed)), (Ids{"a", "b", "c"}));
    EXPECT_EQ(store.snapshot()->records[0]->title, "Another");

    const auto renamed = store.updateRecord("b", [](LocalRecord &r) -> Result<void> {
        r.id = "z";
        return {};
    });
    EXPECT_EQ(renamed.error(), KestError::invalidData("Cannot change an item's identity."));
    const auto retitled = store.updateRecord("b", [](LocalRecord &r) -> Result<void> {
        r.title = "New";
        return {};
    });
    EXPECT_EQ(retitled->records[1]->title, "New");
    EXPECT_EQ(idsOf(*store.deleteRecord("b")), (Ids{"a", "c"}));
    const auto gone = store.updateRecord("b", [](LocalRecord &) -> Result<void> { return {}; });
    EXPECT_EQ(gone.error(), KestError::invalidData("This item was removed."));
    // Deleting what is not there is a change like any other.
    const auto before = store.state().revision;
    EXPECT_EQ(store.deleteRecord("b")->state.revision, before + 1);
}

TEST(Store, RecordsChangeTogetherAndAreReadApart)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    const auto link = record("l", "link", R"({"url":"https://a"})");
    ASSERT_TRUE(store.changeRecords({.written = {note("p:1"), link, note("p:2"), note("q")}}));
    const std::vector<LocalRecord> ofPrefix{note("p:1"), note("p:2")};
    EXPECT_EQ(store.recordsWithIdPrefix("p:"), ofPrefix);
    EXPECT_EQ(store.recordsOfKind("link"), std::vector{link});
    EXPECT_EQ(store.record("q").value(), note("q"));
    EXPECT_EQ(store.record("Q").value(), std::nullopt);

    ASSERT_EQ(idsOf(*store.snapshot()), (Ids{"p:1", "l", "p:2", "q"}));
    const auto moved = record("p:2", "link", R"({"url":"https://b"})");
    ASSERT_TRUE(store.changeRecords({.written = {note("r"), moved}, .removed = {"l", "gone"}}));
    EXPECT_EQ(idsOf(*store.snapshot()), (Ids{"p:1", "p:2", "q", "r"}));
    EXPECT_EQ(store.recordsOfKind("link"), std::vector{moved});
    EXPECT_EQ(store.state().revision, 2);

    const std::string before = RawFile::dump(folder.database());
    const auto refused = store.changeRecords(
        {.written = {note("s"), record("t", "timer", "{}")}, .removed = {"q"}});
    EXPECT_EQ(refused.error(), KestError::invalidData("Invalid timer"));
    EXPECT_EQ(RawFile::dump(folder.database()), before);
    EXPECT_EQ(idsOf(*store.snapshot()), (Ids{"p:1", "p:2", "q", "r"}));
}

TEST(Store, SnapshotsSeeWhatAnotherConnectionWrote)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    ASSERT_TRUE(store.upsertRecord(note("mine")));
    RawFile::insertRecord(folder.database(), "theirs", "note",
                          *Base::json::encode(note("theirs")));
    EXPECT_EQ(idsOf(*store.snapshot()), (Ids{"mine", "theirs"}));
    RawFile::execute(folder.database(), "DELETE FROM records WHERE id='mine'");
    EXPECT_EQ(idsOf(*store.update(increment)), Ids{"theirs"});
    EXPECT_EQ(idsOf(*store.upsertRecord(note("last"))), (Ids{"theirs", "last"}));
}

TEST(Store, ClearingHistoryKeepsWhatTheUserMade)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    ASSERT_TRUE(store.update(increment));
    ASSERT_TRUE(store.update([](NativeState &state) -> Result<void> {
        state.settings["prayer.method"] = "karachi";
        KEST_TRY(
            [[maybe_unused]] const bool reached,
            KestCore::apply(KestCore::Finish{}, Base::fromSeconds1970(9), state.devotional));
        return {};
    }));
    EXPECT_EQ(store.state().devotional.records.size(), 1U);
    ASSERT_TRUE(store.upsertRecord(note("n")));
    ASSERT_TRUE(store.upsertRecord(record("s", "shelf", R"({"path":"/tmp/x"})")));
    ASSERT_TRUE(store.upsertRecord(record("c", "clipboard", "sealed")));
    ASSERT_TRUE(store.upsertRecord(
        record("u", "usage", R"({"application":"editor","day":"2026-11-21","seconds":60})")));
    ASSERT_TRUE(store.upsertRecord(
        record("d", "completion",
               R"({"tool":"dhikr","item":"subhanallah","amount":33,"completedAt":1})")));
    const auto cleared = store.clearHistory();
    EXPECT_EQ(idsOf(*cleared), (Ids{"n", "s"}));
    EXPECT_TRUE(cleared->state.devotional.records.empty());
    EXPECT_EQ(RawFile::query(folder.database(), "SELECT id FROM records ORDER BY rowid"),
              (Ids{"n", "s"}));
}

TEST(Store, ResetForgetsTheDevotionalDataAndKeepsTheSettings)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    ASSERT_TRUE(store.upsertRecord(note("n")));
    auto companion = store.companion();
    companion.prayerBufferMinutes = 20;
    ASSERT_TRUE(store.saveCompanion(companion));
    ASSERT_TRUE(store.update([](NativeState &state) -> Result<void> {
        state.settings["a"] = "b";
        state.enabled = {"notes"};
        state.pin = {.tool = "prayer", .item = "fajr"};
        return increment(state);
    }));
    NativeState expected = store.state();
    expected.devotional = KestCore::defaultDevotionalState();
    ++expected.revision;
    const auto reset = store.resetAll();
    EXPECT_EQ(reset->state, expected);
    EXPECT_TRUE(reset->records.empty());
    EXPECT_EQ(reset->companion, KestCore::defaultCompanionState());
}

TEST(Store, TakesOverALegacyDocumentOnce)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    auto legacy = KestCore::defaultDevotionalState();
    legacy.mode = "expanded";
    legacy.tab = "names";
    legacy.presentation = true;
    legacy.session.count = 77;
    EXPECT_EQ(store.migrateLegacy("{}").error(),
              KestError::invalidData("Invalid devotional data; existing data has been "
                                     "preserved."));
    const auto migrated = *store.migrateLegacy(*Base::json::encode(legacy));
    EXPECT_EQ(migrated.state.revision, 1);
    EXPECT_TRUE(migrated.state.migrated);
    EXPECT_TRUE(migrated.state.devotional.migrated);
    EXPECT_EQ(migrated.state.devotional.mode, "pinned");
    EXPECT_FALSE(migrated.state.devotional.presentation);
    EXPECT_EQ(migrated.state.devotional.session.count, 77);
    EXPECT_EQ(migrated.state.pin, (KestCore::Pin{"names", "ar-rahman"}));
    EXPECT_EQ(store.migrateLegacy("not even JSON")->state.revision, 1);
}

TEST(Store, TellsWhoHoldsIt)
{
    const TemporaryFolder folder;
    const auto first = StateStore::open(folder.database());
    ASSERT_TRUE(first.has_value());
    const auto second = StateStore::open(folder.database(), std::chrono::milliseconds{30});
    ASSERT_FALSE(second.has_value());
    EXPECT_EQ(second.error().kind, KestError::Kind::unavailable);
    EXPECT_THAT(second.error().message,
                testing::StartsWith("Velvetnook's data is in use by StoreTests (process " +
                                    std::to_string(getpid())));
}

TEST(Store, CountsFromManyThreadsThroughItsQueue)
{
    const TemporaryFolder folder;
    Base::Serial<StateStore> store{*StateStore::open(folder.database())};
    std::vector<std::jthread> threads;
    for (int n = 0; n < 4; ++n) {
        threads.emplace_back([&store] {
            for (int step = 0; step < 25; ++step) {
                EXPECT_TRUE(store.ask([](StateStore &s) { return s.update(increment); }).get());
            }
        });
    }
    threads.clear();
    const auto state = store.ask([](StateStore &s) { return s.state(); }).get();
    EXPECT_EQ(state.devotional.session.count, 100);
    EXPECT_EQ(state.revision, 100);
}

TEST(Store, WritesEachChangeAsTheSameTextAsAFreshEncoding)
{
    // The text of finished sessions stays in place between writes; it must never go stale.
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    for (int step = 0; step < 60; ++step) {
        ASSERT_TRUE(store.change([&](NativeState &state) -> Result<void> {
            KEST_CHECK(increment(state));
            if (step % 7 != 6) {
                return {};
            }
            KEST_TRY([[maybe_unused]] const bool reached,
                     KestCore::apply(KestCore::Finish{}, Base::fromSeconds1970(step),
                                     state.devotional));
            return {};
        }));
        if (step == 40) {
            ASSERT_TRUE(store.clearHistory());
        }
        EXPECT_EQ(RawFile::query(folder.database(), "SELECT body FROM state"),
                  std::vector{*Base::json::encode(store.state())});
    }
}
