// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecordList.h"

#include "KestCore/Tools/RecordBin.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <random>

namespace KestCoreTests
{

using namespace KestCore;
using Base::Seconds;

namespace
{

const Base::Instant kNow = Base::fromSeconds1970(1'800'000'000);

std::vector<std::string> idsOf(const std::vector<LocalRecord> &records)
{
    std::vector<std::string> ids;
    std::ranges::transform(records, std::back_inserter(ids), &LocalRecord::id);
    return ids;
}

LocalRecord noteAt(std::string id, std::int64_t position, bool pinned = false)
{
    LocalRecord record{
        .id = std::move(id), .kind = "note", .title = "t", .body = R"({"text":""})"};
    setPosition(record, position);
    setPinned(record, pinned);
    return record;
}

// `records` with those of `changes` in their places.
std::vector<LocalRecord> applied(std::vector<LocalRecord> records,
                                 const std::vector<LocalRecord> &changes)
{
    for (const LocalRecord &change : changes) {
        *std::ranges::find(records, change.id, &LocalRecord::id) = change;
    }
    return records;
}

struct Fixture {
    TemporaryFolder folder{};
    StateStore store = *StateStore::open(folder.database());

    RecordList listAt(Seconds after, const char *kind = "note")
    {
        return {store, kind, kNow + after};
    }
    std::size_t binSize() { return store.recordsOfKind(kTrashKind)->size(); }
};

LocalRecord note(const char *title) { return {.title = title, .body = R"({"text":""})"}; }

} // namespace

TEST(RecordOrder, PutsPinnedFirstThenPositionThenAge)
{
    auto nonsense = noteAt("nonsense", 0);
    nonsense.extra["position"] = "99999999999999999999";
    nonsense.extra["pinned"] = "yes";
    const std::vector<LocalRecord> records{noteAt("b", 2),
                                           noteAt("none", 0),
                                           nonsense,
                                           noteAt("pinned", 9, true),
                                           noteAt("first", -3),
                                           noteAt("b2", 2),
                                           noteAt("also", 1, true)};
    EXPECT_EQ(
        idsOf(inOrder(records)),
        (std::vector<std::string>{"also", "pinned", "first", "none", "nonsense", "b", "b2"}));
    EXPECT_EQ(positionAt(ListEnd::front, records), -4);
    EXPECT_EQ(positionAt(ListEnd::back, records), 10);
    EXPECT_EQ(positionAt(ListEnd::back, {}), 0);
}

RC_GTEST_PROP(RecordOrder, AMoveTakesOneItemToItsLineAndLeavesTheOthersInOrder, ())
{
    std::vector<LocalRecord> records;
    const auto count = *rc::gen::inRange<std::size_t>(1, 9);
    for (std::size_t at = 0; at < count; ++at) {
        records.push_back(
            noteAt(std::to_string(at), *rc::gen::inRange(-3, 4), *rc::gen::arbitrary<bool>()));
    }
    const auto before = inOrder(records);
    const auto from = *rc::gen::inRange<std::size_t>(0, count);
    const auto line = *rc::gen::inRange<std::size_t>(0, count + 2);
    const auto after = inOrder(applied(records, moved(before, before[from].id, line)));

    const auto pinned = static_cast<std::size_t>(std::ranges::count_if(records, isPinned));
    const bool isPinnedItem = isPinned(before[from]);
    const std::size_t lowest = isPinnedItem ? 0 : pinned;
    const std::size_t highest = isPinnedItem ? pinned - 1 : count - 1;
    auto expected = idsOf(before);
    const std::string id = expected[from];
    std::erase(expected, id);
    expected.insert(
        expected.begin() + static_cast<std::ptrdiff_t>(std::clamp(line, lowest, highest)), id);
    RC_ASSERT(idsOf(after) == expected);
}

TEST(RecordBin, GivesBackTheLastStepWithinHalfAMinute)
{
    const auto at = [](std::string id, double seconds, const char *kind = "note") {
        return *binned({.id = std::move(id), .kind = kind, .body = R"({"text":""})"},
                       kNow + Seconds{seconds});
    };
    const std::vector<LocalRecord> bin{
        at("old", -40),       at("a", -5), at("timer", -1, "timer"),
        at("b", -5),          at("c", -9), at("ahead", 20, "link"),
        at("far", 31, "link")};
    EXPECT_EQ(idsOf(*lastRemoved(bin, "note", kNow)), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(idsOf(*lastRemoved(bin, "timer", kNow)), std::vector<std::string>{"timer"});
    EXPECT_EQ(idsOf(*lastRemoved(bin, "link", kNow)), std::vector<std::string>{"ahead"});
    EXPECT_EQ(lastRemoved(bin, "shelf", kNow).error().message,
              "Nothing was removed in the last 30 seconds");
    EXPECT_FALSE(lastRemoved(bin, "note", kNow + Seconds{25.001}));
    EXPECT_TRUE(lastRemoved(bin, "note", kNow + Seconds{25}));
    EXPECT_EQ(expired(bin, kNow), (std::vector<std::string>{"old", "far"}));
}

TEST(RecordBin, HoldsOnlySoundRecords)
{
    const auto record = *binned({.id = "1", .kind = "note", .body = R"({"text":"x"})"}, kNow);
    EXPECT_TRUE(validate(record));
    for (const auto &inner :
         {*binned(record, kNow), *binned({.id = "1", .kind = "note", .body = "?"}, kNow)}) {
        EXPECT_FALSE(validate(inner)) << inner.body;
    }
    EXPECT_FALSE(validate({.id = "1", .kind = "trash", .body = "{}"}));
}

// Few rounds, as each step of each is a commit on the disk.
TEST(RecordList, RemovingAndRestoringChangesNothing)
{
    std::mt19937 random{7};
    for (int round = 0; round < 12; ++round) {
        Fixture f;
        auto list = f.listAt(Seconds{0});
        for (unsigned left = 1 + random() % 4; left > 0; --left) {
            const ListEnd end = random() % 2 == 0 ? ListEnd::front : ListEnd::back;
            ASSERT_TRUE(list.pin(list.add(note("n"), end)->id, random() % 2 == 0));
        }
        const auto before = *list.items();
        const bool all = random() % 3 == 0;
        auto later = f.listAt(Seconds{5});
        const auto &lucky = before[random() % before.size()].id;
        ASSERT_TRUE(all ? later.removeAll().has_value() : later.remove(lucky).has_value());
        EXPECT_EQ(later.items()->size(), all ? 0 : before.size() - 1);
        ASSERT_TRUE(f.listAt(Seconds{34.9}).restore());
        EXPECT_EQ(*list.items(), before);
        EXPECT_EQ(f.binSize(), 0U);
    }
}

TEST(RecordList, RestoresBetweenTheSameNeighboursAfterOthersMoved)
{
    Fixture f;
    auto list = f.listAt(Seconds{0});
    std::vector<std::string> ids;
    for (const char *title : {"a", "b", "c", "d"}) {
        ids.push_back(list.add(note(title), ListEnd::back)->id);
    }
    ASSERT_TRUE(list.remove(ids[1]));
    ASSERT_TRUE(list.move(ids[3], 0)); // d a c
    ASSERT_TRUE(list.restore());
    EXPECT_EQ(idsOf(*list.items()), (std::vector{ids[3], ids[1], ids[0], ids[2]}));
}

TEST(RecordList, EveryChangeEmptiesTheBinOfWhatIsOver)
{
    Fixture f;
    const auto link = [&] {
        return *f.listAt(Seconds{0}, "link")
                    .add({.title = "l", .body = R"({"url":"https://e"})"}, ListEnd::back);
    };
    const std::string kept = f.listAt(Seconds{0}).add(note("kept"), ListEnd::back)->id;
    const std::string gone = f.listAt(Seconds{0}).add(note("gone"), ListEnd::back)->id;
    ASSERT_TRUE(f.listAt(Seconds{1}).remove(gone));
    ASSERT_TRUE(f.listAt(Seconds{2}, "link").remove(link().id));
    EXPECT_EQ(f.binSize(), 2);
    EXPECT_EQ(f.listAt(Seconds{31.5}).restore().error().message,
              "Nothing was removed in the last 30 seconds");
    ASSERT_TRUE(f.listAt(Seconds{31.5}).pin(kept, true));
    EXPECT_EQ(f.binSize(), 1);
    // A clock that went back by an hour.
    ASSERT_TRUE(
        f.listAt(Seconds{-3600}).edit(kept, [](LocalRecord &) { return Result<void>{}; }));
    EXPECT_EQ(f.binSize(), 0);
    EXPECT_EQ(f.listAt(Seconds{0}).remove(gone).error().message,
              "No item has the id \"" + gone + "\"");
}

TEST(RecordList, AFailedChangeChangesNothing)
{
    Fixture f;
    auto list = f.listAt(Seconds{0});
    const auto added = *list.add(note("n"), ListEnd::back);
    ASSERT_TRUE(list.remove(list.add(note("m"), ListEnd::back)->id));
    const auto before = *f.store.snapshot();
    EXPECT_FALSE(list.edit(added.id, [](LocalRecord &record) -> Result<void> {
        record.body = "{}";
        return {};
    }));
    EXPECT_FALSE(list.addAll({note("x"), {.title = "y", .body = "?"}}, ListEnd::back));
    EXPECT_EQ(f.store.state().revision, before.state.revision);
    EXPECT_EQ(f.store.snapshot()->records.size(), before.records.size());
}

} // namespace KestCoreTests
