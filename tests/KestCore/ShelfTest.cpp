// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Shelf.h"

#include "tests/TemporaryFolder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <sys/stat.h>

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

    // The inode alone is no proof: systems give it to the next file, here of the same size.
    fs::remove(renamed);
    write(renamed, "4444");
    EXPECT_EQ(placeOf(item), (ShelfPlace{State::missing, std::nullopt}));
    fs::remove(renamed);
    EXPECT_EQ(placeOf(item).state, State::missing);
    ShelfItem foreign = item;
    foreign.bookmark = Base::Bytes{1, 2, 3};
    EXPECT_EQ(placeOf(foreign).state, State::missing);
    EXPECT_EQ(placeOf({.path = "/no/such/folder/file", .bookmark = item.bookmark}).state,
              State::missing);
}

TEST(Shelf, FindsAFileThatGrewWhereItsBirthIsKnown)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "log";
    const fs::path renamed = folder.path() / "log.1";
    write(file, "1");
    struct stat status{};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    ShelfItem item = itemOf(*makeShelfFile(file));
    const std::string mark{item.bookmark->begin(), item.bookmark->end()};
    const bool isBirthKnown = mark.starts_with("birth:");
    // As marks were once, and are where no birth is known.
    const std::string sized = fmt::format("inode:{}:{}:1", status.st_dev, status.st_ino);
    EXPECT_TRUE(isBirthKnown || mark == sized) << mark;

    fs::rename(file, renamed);
    ShelfItem early = item;
    early.bookmark->assign(sized.begin(), sized.end());
    EXPECT_EQ(placeOf(early).path, renamed.string());
    write(renamed, "and more");
    EXPECT_EQ(placeOf(early).state, State::missing);
    EXPECT_EQ(placeOf(item).state, isBirthKnown ? State::moved : State::missing);
}

TEST(Shelf, LooksForManyAtOnce)
{
    const TemporaryFolder folder;
    std::vector<ShelfItem> items(1, ShelfItem{.text = "t"});
    std::vector<ShelfPlace> places(1, ShelfPlace{State::missing, std::nullopt});
    for (const std::string name : {"a", "b", "c"}) {
        const fs::path below = folder.path() / (name == "c" ? "2" : "1");
        fs::create_directory(below);
        write(below / name, name);
        items.push_back(itemOf(*makeShelfFile(below / name)));
        fs::rename(below / name, below / (name + name));
        places.emplace_back(State::moved, (below / (name + name)).string());
    }
    items.push_back(items[2]); // twice on the shelf
    places.push_back(places[2]);
    EXPECT_EQ(placesOf(items), places);
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
    RecordList shelf{store, kShelfKind, kNow};
    const auto refused = shelve(shelf, {one, folder.path() / "none"});
    EXPECT_THAT(refused.error().message, testing::EndsWith("none: No such file or directory"));
    EXPECT_TRUE(store.recordsOfKind("shelf")->empty());

    const auto first = shelve(shelf, {one, one});
    ASSERT_EQ(first->size(), 1U);
    const auto again = shelve(shelf, {two, one});
    ASSERT_EQ(again->size(), 2U);
    EXPECT_EQ(again->front(), first->front());
    const auto items = *shelf.items();
    EXPECT_EQ(items.size(), 2U);
    EXPECT_EQ(items[1].title, "two");

    ASSERT_TRUE(shelf.removeAll());
    EXPECT_TRUE(fs::exists(one) && fs::exists(two));
}

TEST(Shelf, TakesTexts)
{
    EXPECT_EQ(makeShelfText("\n a \nb")->title, "a");
    EXPECT_EQ(itemOf(*makeShelfText("\n a \nb")).text, "\n a \nb");
    for (const char *text : {" \n", "\u200B\u3000"}) {
        EXPECT_EQ(makeShelfText(text).error().message,
                  "There is nothing in the text for the shelf");
    }
    EXPECT_EQ(makeShelfText(std::string(1'000'001, 'x')).error().message,
              "The shelf holds at most 1,000,000 bytes");
}

} // namespace KestCoreTests
