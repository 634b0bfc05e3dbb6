// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "tests/RawFile.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <random>

using Base::KestError;
using KestCore::StateStore;

namespace
{

const std::string kDevotionalMessage =
    "Invalid devotional data; existing data has been preserved.";
const std::string kCompanionMessage =
    "Invalid companion data; existing data has been preserved.";

std::string goodState() { return *Base::json::encode(KestCore::defaultNativeState()); }

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

// Opens a store whose row holds `body` and expects the refusal to leave every byte alone.
void expectRefusal(const std::string &table, const std::string &body,
                   const std::string &message)
{
    const TemporaryFolder folder;
    ASSERT_TRUE(StateStore::open(folder.database()));
    RawFile::setBody(folder.database(), table, body);
    const std::string before = RawFile::bytes(folder.database());
    const auto names = RawFile::neighbours(folder.database());
    const auto store = StateStore::open(folder.database());
    ASSERT_FALSE(store.has_value());
    EXPECT_EQ(store.error().message, message);
    EXPECT_EQ(RawFile::bytes(folder.database()), before);
    EXPECT_EQ(RawFile::neighbours(folder.database()), names);
}

} // namespace

TEST(CorruptState, IsRefusedAndTheFileStaysAsItWas)
{
    const std::string good = goodState();
    const std::string native = "Invalid native settings";
    struct Case {
        const char *name;
        std::string body;
        std::string message;
    };
    for (const auto &[name, body, message] : {
             Case{"empty", "", native},
             Case{"half", good.substr(0, good.size() / 2), native},
             Case{"one byte short", good.substr(0, good.size() - 1), native},
             Case{"something behind", good + "{}", native},
             Case{"not JSON", std::string(5000, '\xff'), native},
             Case{"not UTF-8",
                  replaced(good, "\"medium\"",
                           "\"m\xc3"
                           "dium\""),
                  native},
             Case{"nested deeply",
                  replaced(good, "{",
                           "{\"x\":" + std::string(100'000, '[') + std::string(100'000, ']') +
                               ","),
                  native},
             Case{"a text for a number", replaced(good, "\"version\":3", R"("version":"3")"),
                  native},
             Case{"a number that does not fit",
                  replaced(good, "\"revision\":0", "\"revision\":9223372036854775808"), native},
             Case{"a missing key", replaced(good, "\"migrated\":false,", ""), native},
             Case{"another version", replaced(good, "\"version\":3", "\"version\":4"), native},
             Case{"an unknown tool", replaced(good, "\"home\"", "\"hone\""), native},
             Case{"a devotional rule broken",
                  replaced(good, "\"reminderInterval\":60", "\"reminderInterval\":0"),
                  kDevotionalMessage},
             Case{"an unknown word",
                  replaced(good, R"("textSize":"medium")", R"("textSize":"huge")"),
                  kDevotionalMessage},
         }) {
        SCOPED_TRACE(name);
        expectRefusal("state", body.empty() ? " " : body, message);
    }
}

TEST(CorruptState, SurvivesAnyFlippedBit)
{
    const std::string good = goodState();
    std::mt19937 random{20261121};
    const TemporaryFolder folder;
    ASSERT_TRUE(StateStore::open(folder.database()));
    int refused = 0;
    for (int round = 0; round < 300; ++round) {
        std::string body = good;
        char &byte = body[random() % body.size()];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << (random() % 8)));
        RawFile::setBody(folder.database(), "state", body);
        const std::string before = RawFile::dump(folder.database());
        const auto store = StateStore::open(folder.database());
        if (!store) {
            ++refused;
            EXPECT_EQ(store.error().kind, KestError::Kind::invalidData);
            EXPECT_EQ(RawFile::dump(folder.database()), before);
        }
    }
    EXPECT_GT(refused, 150); // a flip in a free text or a number may be another valid state
}

TEST(CorruptCompanion, IsRefusedAndTheFileStaysAsItWas)
{
    const std::string good = *Base::json::encode(KestCore::defaultCompanionState());
    expectRefusal("companion", "{}", kCompanionMessage);
    expectRefusal("companion", good.substr(1), kCompanionMessage);
    expectRefusal("companion", replaced(good, "\"permanent\"", "\"eternal\""),
                  kCompanionMessage);
    expectRefusal("companion", replaced(good, "\"schemaVersion\":1", "\"schemaVersion\":0"),
                  kCompanionMessage);
    expectRefusal("companion", R"({"schemaVersion":2,"unheard":"of"})",
                  "The companion layout was saved by a newer Velvetnook and was left as it is");
}

TEST(CorruptDatabase, IsRefusedWithSqlitesWords)
{
    const TemporaryFolder folder;
    ASSERT_TRUE(StateStore::open(folder.database()));
    const std::string good = RawFile::bytes(folder.database());
    const auto write = [&](const std::string &bytes) {
        FILE *file = std::fopen(folder.database().c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    };
    for (const std::string &bytes :
         {std::string(8192, 'x'), good.substr(0, 5000), "SQLite format 3" + good.substr(20)}) {
        write(bytes);
        const auto store = StateStore::open(folder.database());
        ASSERT_FALSE(store.has_value());
        EXPECT_EQ(store.error().kind, KestError::Kind::storage);
        EXPECT_FALSE(store.error().message.empty());
        EXPECT_EQ(RawFile::bytes(folder.database()), bytes);
    }
    write(good);
    RawFile::execute(folder.database(), "PRAGMA user_version=2");
    const std::string newer = RawFile::bytes(folder.database());
    const auto store = StateStore::open(folder.database());
    ASSERT_FALSE(store.has_value());
    EXPECT_EQ(store.error(), KestError::unavailable("The local data was saved by a newer "
                                                    "Velvetnook and was left as it is"));
    EXPECT_EQ(RawFile::bytes(folder.database()), newer);
}

TEST(ForeignDatabase, IsNotEvenPrepared)
{
    for (
        const char *sql :
        {"CREATE TABLE theirs(x); PRAGMA user_version=2;",
         "CREATE TABLE state(id INTEGER PRIMARY KEY, body BLOB); INSERT INTO state VALUES(1,'x');"}) {
        const TemporaryFolder folder;
        RawFile::execute(folder.database(), sql);
        const std::string before = RawFile::bytes(folder.database());
        EXPECT_FALSE(StateStore::open(folder.database()).has_value());
        EXPECT_EQ(RawFile::bytes(folder.database()), before);
    }
}

TEST(CorruptRecord, StopsSnapshotsButNotTheCount)
{
    for (const char *body :
         {"", "{", R"({"id":"a","kind":"note"})",
          R"({"id":1,"kind":"note","title":"","body":"","updated":0,"extra":{}})",
          "\xff\xff"}) {
        SCOPED_TRACE(body);
        const TemporaryFolder folder;
        auto store = *StateStore::open(folder.database());
        RawFile::insertRecord(folder.database(), "bad", "note", body);
        const std::string before = RawFile::dump(folder.database());
        const auto broken = KestError::invalidData("Invalid utility record");
        const auto nothing = [](KestCore::NativeState &) -> Base::Result<void> { return {}; };
        EXPECT_EQ(store.snapshot().error(), broken);
        EXPECT_EQ(store.update(nothing).error(), broken);
        EXPECT_EQ(RawFile::dump(folder.database()), before);
        EXPECT_EQ(store.state().revision, 0);

        EXPECT_TRUE(store.change(nothing));
        const auto mended = store.deleteRecord("bad");
        ASSERT_TRUE(mended.has_value());
        EXPECT_TRUE(mended->records.empty());
        EXPECT_EQ(mended->state.revision, 2);
    }
}
