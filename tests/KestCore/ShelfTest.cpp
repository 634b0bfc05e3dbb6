// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Shelf.h"

#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace KestCoreTests
{

using namespace KestCore;
namespace fs = std::filesystem;
using State = ShelfPlace::State;

namespace
{

const Base::Instant kNow = Base::fromSeconds1970(1'800'000'000);

void write(const fs::path &file, std::string_view text) { std::ofstream{file} << text; }

ShelfItem itemOf(const LocalRecord &record)
{
    return *json::decode<ShelfItem>(std::string_view{record.body});
}

} // namespace

TEST(Shelf, SaysWhatBecameOfAFile)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "report.txt";
    const fs::path renamed = folder.path() / "report (old).txt";
    write(file, "four");
    const auto record = *makeShelfFile(folder.path() / "." / "x" / ".." / "report.txt");
    EXPECT_EQ(record.title, "report.txt");
    const ShelfItem item = itemOf(record);
    EXPECT_EQ(item.path, file.string());
    EXPECT_EQ(placeOf(item), (ShelfPlace{State::present, file.string()}));

    write(file, "edited since, in its place");
    EXPECT_EQ(placeOf(item).state, State::present);
    write(file, "4444");
    fs::rename(file, renamed);
    EXPECT_EQ(placeOf(item), (ShelfPlace{State::moved, renamed.string()}));
    // A saving editor: the old content under another name, a new file under this one.
    write(file, "new");
    EXPECT_EQ(placeOf(item), (ShelfPlace{State::present, file.string()}));
    fs::remove(file);

    // The inode alone is no proof: systems give it to the next file.
    write(renamed, "longer");
    EXPECT_EQ(placeOf(item), (ShelfPlace{State::missing, std::nullopt}));
    fs::remove(renamed);
    EXPECT_EQ(placeOf(item).state, State::missing);
    ShelfItem foreign = item;
    foreign.bookmark = Base::Bytes{1, 2, 3};
    EXPECT_EQ(placeOf(foreign).state, State::missing);
    EXPECT_EQ(placeOf({.path = "/no/such/folder/file", .bookmark = item.bookmark}).state,
              State::missing);
}

TEST(Shelf, FollowsFoldersAndTakesALinkForItself)
{
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "a");
    fs::create_symlink("nowhere", folder.path() / "link");
    const auto record = *makeShelfFile((folder.path() / "a").string() + "/");
    EXPECT_EQ(record.title, "a");
    fs::rename(folder.path() / "a", folder.path() / "b");
    write(folder.path() / "b" / "more", "a folder has no size of its own");
    EXPECT_EQ(placeOf(itemOf(record)).path, (folder.path() / "b").string());
    EXPECT_EQ(placeOf(itemOf(*makeShelfFile(folder.path() / "link"))).state, State::present);
    EXPECT_EQ(makeShelfFile("/")->title, "/");
}

TEST(Shelf, TakesAllFilesOrNoneAndEachOnce)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    const fs::path one = folder.path() / "one";
    const fs::path two = folder.path() / "two";
    write(one, "1");
    write(two, "2");
    const auto refused = shelve(store, {one, folder.path() / "none"}, kNow);
    EXPECT_THAT(refused.error().message, testing::EndsWith("none: No such file or directory"));
    EXPECT_TRUE(store.recordsOfKind("shelf")->empty());

    const auto first = shelve(store, {one, one}, kNow);
    ASSERT_EQ(first->size(), 1U);
    const auto again = shelve(store, {two, one}, kNow);
    ASSERT_EQ(again->size(), 2U);
    EXPECT_EQ(again->front(), first->front());
    const auto items = *RecordList(store, kShelfKind, kNow).items();
    EXPECT_EQ(items.size(), 2U);
    EXPECT_EQ(items[1].title, "two");

    ASSERT_TRUE(RecordList(store, kShelfKind, kNow).removeAll());
    EXPECT_TRUE(fs::exists(one) && fs::exists(two));
}

TEST(Shelf, TakesTexts)
{
    EXPECT_EQ(makeShelfText("\n a \nb")->title, "a");
    EXPECT_EQ(itemOf(*makeShelfText("\n a \nb")).text, "\n a \nb");
    EXPECT_EQ(makeShelfText(" \n").error().message,
              "There is nothing in the text for the shelf");
    EXPECT_EQ(makeShelfText(std::string(1'000'001, 'x')).error().message,
              "The shelf holds at most 1,000,000 bytes");
}

} // namespace KestCoreTests
