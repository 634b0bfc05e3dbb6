// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/Backup.h"

#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Store/StateStore.h"
#include "tests/RawFile.h"
#include "tests/Store/RandomData.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>

using Base::KestError;
using Base::Result;
using KestCore::Backup;
using KestCore::LocalRecord;
using KestCore::NativeState;
using KestCore::StateStore;

namespace
{

const Base::Instant kNow = Base::fromSeconds1970(1.8e9);

std::string backupOf(StateStore &store)
{
    std::string bytes;
    EXPECT_TRUE(store.exportBackup(kNow, [&](std::string_view piece) -> Result<void> {
        bytes += piece;
        return {};
    }));
    return bytes;
}

std::string bodyOf(const LocalRecord &record) { return Base::json::encode(record).value(); }

// A backup as another program may have written it.
std::string backupWith(const std::vector<std::string> &records,
                       const NativeState &state = KestCore::defaultNativeState())
{
    const auto frame =
        KestCore::backupFrame(KestCore::defaultCompanionState(), state, kNow).value();
    std::string bytes = frame.head;
    for (const std::string &record : records) {
        bytes += (&record == records.data() ? "" : ",") + record;
    }
    return bytes + frame.tail;
}

std::string letters(std::size_t count)
{
    std::string text;
    text.resize(count, 'x');
    return text;
}

LocalRecord note(std::string id, std::string text = "hello")
{
    return {.id = std::move(id),
            .kind = "note",
            .body = Base::json::encode(KestCore::Note{.text = std::move(text)}).value(),
            .updated = 1};
}

std::vector<LocalRecord> recordsOf(const Backup &backup)
{
    std::vector<LocalRecord> records;
    EXPECT_TRUE(backup.forEachRecord([&](const LocalRecord &record) -> Result<void> {
        records.push_back(record);
        return {};
    }));
    return records;
}

std::vector<LocalRecord> recordsOf(StateStore &store)
{
    std::vector<LocalRecord> records;
    const auto snapshot = *store.snapshot();
    for (const auto &record : snapshot.records) {
        records.push_back(*record);
    }
    return records;
}

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

} // namespace

TEST(Backup, CarriesTenThousandRandomStates)
{
    RandomData random{20261121};
    for (int round = 0; round < 10'000; ++round) {
        const NativeState state = random.state();
        const auto companion = random.companion();
        const auto records = random.records(6);
        const auto frame = KestCore::backupFrame(companion, state, kNow).value();
        std::string bytes = frame.head;
        for (const LocalRecord &record : records) {
            bytes += (&record == records.data() ? "" : ",") + bodyOf(record);
        }
        const auto backup = Backup::read(bytes + frame.tail);
        ASSERT_TRUE(backup) << backup.error().message << round;
        ASSERT_EQ(backup->state(), state) << round;
        ASSERT_EQ(backup->companion(), companion) << round;
        ASSERT_EQ(recordsOf(*backup), records) << round;
        ASSERT_EQ(backup->exportedAt(), kNow);
    }
}

TEST(Backup, MovesFromOneStoreToAnother)
{
    const TemporaryFolder from;
    const TemporaryFolder into;
    auto source = *StateStore::open(from.database());
    auto target = *StateStore::open(into.database());
    const std::vector<LocalRecord> local{
        {.id = "c", .kind = "clipboard", .body = "sealed"},
        {.id = "f",
         .kind = "file",
         .body = R"({"path":"/a",)"
                 R"("pinned":true})"},
        {.id = "x", .kind = "trash", .body = bodyOf(note("x"))}};
    ASSERT_TRUE(target.changeRecords({.written = local}));
    RandomData random{7};
    for (int round = 0; round < 100; ++round) {
        std::vector<std::string> old;
        std::ranges::transform(recordsOf(source), std::back_inserter(old), &LocalRecord::id);
        const auto records = random.records(20);
        ASSERT_TRUE(source.changeRecords({.written = records, .removed = old}));
        ASSERT_TRUE(source.saveCompanion(random.companion()));
        ASSERT_TRUE(source.update([&](NativeState &state) -> Result<void> {
            state = random.state();
            return {};
        }));
        if (round % 2 == 0) {
            (void)target.snapshot(); // an import must not trust what was read before
        }
        const std::int64_t revision = target.state().revision;
        const auto snapshot = target.importBackup(backupOf(source));
        ASSERT_TRUE(snapshot) << snapshot.error().message;
        NativeState expected = source.state();
        expected.revision = revision + 1;
        ASSERT_EQ(snapshot->state, expected);
        ASSERT_EQ(snapshot->companion, source.companion());
        auto everything = std::vector{local[0]};
        everything.insert(everything.end(), records.begin(), records.end());
        ASSERT_EQ(recordsOf(target), everything);
    }
    EXPECT_EQ(target.checkIntegrity(), "ok");
}

TEST(Backup, LeavesOutWhatIsBoundToTheMachine)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    ASSERT_TRUE(store.changeRecords(
        {.written = {{.id = "c", .kind = "clipboard", .body = "SEALED"},
                     note("n"),
                     {.id = "s", .kind = "shelf", .body = R"({"text":"SHELF"})"},
                     {.id = "t", .kind = "trash", .body = bodyOf(note("t"))}}}));
    const std::string bytes = backupOf(store);
    EXPECT_EQ(bytes, backupWith({bodyOf(note("n"))}, store.state()));
    EXPECT_THAT(*store.countsReplacedByImport(),
                testing::ElementsAre(testing::Pair("note", 1), testing::Pair("trash", 1)));

    RawFile::insertRecord(folder.database(), "bad", "note", "{");
    const auto refused =
        store.exportBackup(kNow, [](std::string_view) { return Result<void>{}; });
    EXPECT_EQ(refused.error(), KestError::invalidData("Invalid utility record"));
}

TEST(Backup, RefusesWhatIsNotSoundAndChangesNothing)
{
    const std::string good = backupWith({bodyOf(note("a"))});
    const std::string invalid = "Invalid backup";
    const auto timer = bodyOf({.id = "t", .kind = "timer", .body = "{}"});
    auto wrongState = KestCore::defaultNativeState();
    wrongState.revision = -1;
    const auto withKind = [](std::string kind) {
        return backupWith({bodyOf({.id = "k", .kind = std::move(kind), .body = "x"})});
    };
    struct Case {
        const char *name;
        std::string bytes;
        std::string message;
    };
    const std::vector<Case> cases{
        {"nothing", "", invalid},
        {"no JSON", "backup", invalid},
        {"cut off", good.substr(0, good.size() - 1), invalid},
        {"text behind", good + "{}", invalid},
        {"format", replaced(good, "kest-native-backup", "kest-native-backuq"), invalid},
        {"version 2", replaced(good, R"("version":3,"exp)", R"("version":2,"exp)"), invalid},
        {"no companion", replaced(good, "\"companion\"", "\"companioN\""), invalid},
        {"companion", replaced(good, R"({"schemaVersion":1)", R"({"schemaVersion":"1")"),
         invalid},
        {"newer companion", replaced(good, R"({"schemaVersion":1)", R"({"schemaVersion":2)"),
         invalid},
        {"state", replaced(good, R"("revision":0,"migrated")", R"("revision":0,"migrate")"),
         invalid},
        {"records no list", replaced(good, R"("records":[{"id")", R"("records":{"id")"),
         invalid},
        {"a number among the records", backupWith({"1"}), invalid},
        {"a record without a body", backupWith({R"({"id":"a","kind":"note"})"}), invalid},
        {"no comma", replaced(good, "]}", bodyOf(note("b")) + "]}"), invalid},
        {"one id twice", backupWith({bodyOf(note("a")), bodyOf(note("a"))}), invalid},
        {"clipboard", withKind("clipboard"), invalid},
        {"shelf", withKind("shelf"), invalid},
        {"usage", withKind("usage"), invalid},
        {"file", withKind("file"), invalid},
        {"unknown kind", withKind("diary"), invalid},
        {"long body", backupWith({bodyOf(note("a", letters(10'000'000)))}), invalid},
        {"a rule of the state", backupWith({}, wrongState), "Invalid native settings"},
        {"a rule of the state before one of a record", backupWith({timer}, wrongState),
         "Invalid native settings"},
        {"a rule of a record", backupWith({timer, bodyOf(note("a"))}), "Invalid timer"},
        {"a later record before a rule", backupWith({timer, timer}), invalid},
        {"too long", good + std::string(50'000'001 - good.size(), ' '), "Backup exceeds 50 MB"},
    };
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    ASSERT_TRUE(store.upsertRecord(note("mine")));
    const std::string before = RawFile::dump(folder.database());
    const NativeState state = store.state();
    for (const auto &[name, bytes, message] : cases) {
        const auto refused = store.importBackup(bytes);
        ASSERT_FALSE(refused) << name;
        EXPECT_EQ(refused.error(), KestError::invalidData(message)) << name;
        EXPECT_EQ(RawFile::dump(folder.database()), before) << name;
        EXPECT_EQ(store.state(), state) << name;
        EXPECT_EQ(recordsOf(store), std::vector{note("mine")}) << name;
    }
    EXPECT_TRUE(store.importBackup(good));
}

TEST(Backup, AcceptsItsLimits)
{
    const std::string body = letters(9'999'989); // with {"text":""} around it the longest body
    const LocalRecord longest = note("a", body);
    ASSERT_EQ(longest.body.size(), 10'000'000U);
    EXPECT_EQ(Backup::read(backupWith({bodyOf(longest)})).error(),
              KestError::invalidData("Invalid utility record")); // no note is that long
    const std::string good = backupWith({});
    EXPECT_TRUE(Backup::read(good + std::string(50'000'000 - good.size(), ' ')));

    std::vector<std::string> records(100'000);
    for (std::size_t n = 0; n < records.size(); ++n) {
        records[n] = bodyOf(note(std::to_string(n)));
    }
    const auto backup = Backup::read(backupWith(records));
    ASSERT_TRUE(backup);
    EXPECT_THAT(backup->recordCounts(), testing::ElementsAre(testing::Pair("note", 100'000)));
    records.push_back(bodyOf(note("one more")));
    EXPECT_EQ(Backup::read(backupWith(records)).error(),
              KestError::invalidData("Invalid backup"));
}

TEST(Backup, ToolsThatItDoesNotKnowComeLast)
{
    auto state = KestCore::defaultNativeState();
    std::erase(state.order, "weather");
    const auto backup = Backup::read(backupWith({}, state));
    ASSERT_TRUE(backup);
    EXPECT_EQ(backup->state().order.back(), "weather");
}

TEST(Backup, AnIdThatStaysIsNotOverwritten)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    const LocalRecord mine{.id = "a", .kind = "clipboard", .body = "sealed"};
    ASSERT_TRUE(store.upsertRecord(mine));
    const std::string before = RawFile::dump(folder.database());
    const auto refused = store.importBackup(backupWith({bodyOf(note("b")), bodyOf(note("a"))}));
    EXPECT_EQ(refused.error(), KestError::storage("UNIQUE constraint failed: records.id"));
    EXPECT_EQ(RawFile::dump(folder.database()), before);
    EXPECT_EQ(recordsOf(store), std::vector{mine});
}
