// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Store/StateStore.h"
#include "tests/RawFile.h"
#include "tests/Store/FaultVfs.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>

using Base::KestError;
using Base::Result;
using KestCore::LocalRecord;
using KestCore::NativeState;
using KestCore::Snapshot;
using KestCore::StateStore;

namespace
{

struct FaultCase {
    const char *name;
    FaultVfs::Fault fault;
};

constexpr FaultCase kFaults[] = {
    {"disk full", FaultVfs::Fault::diskFull},
    {"write failed", FaultVfs::Fault::writeFailed},
    {"sync failed", FaultVfs::Fault::syncFailed},
    {"short read", FaultVfs::Fault::shortRead},
};

Result<Snapshot> countOnce(StateStore &store)
{
    return store.update([](NativeState &state) -> Result<void> {
        KEST_TRY([[maybe_unused]] const bool reached,
                 KestCore::apply(KestCore::Increment{}, Base::fromSeconds1970(1.7e9),
                                 state.devotional));
        return {};
    });
}

LocalRecord clip(int number, std::size_t size)
{
    return {.id = "clip-" + std::to_string(number),
            .kind = "clipboard",
            .body = std::string(size, 'x'),
            .updated = 1};
}

using Operation = std::function<Result<Snapshot>(StateStore &)>;

// What must hold after an operation that a fault may have struck: memory and file agree, a
// failure has changed neither, and the next operation works.
void strikeOnce(FaultVfs &vfs, const FaultCase &fault, int call,
                const std::filesystem::path &file, const Operation &operation)
{
    auto store = *StateStore::open(file); // anew, so that its page cache is empty
    const NativeState stateBefore = store.state();
    const auto companionBefore = store.companion();
    const std::string before = RawFile::dump(file);
    vfs.arm(fault.fault, call);
    const auto outcome = operation(store);
    vfs.disarm();
    if (outcome) {
        EXPECT_EQ(store.state().revision, stateBefore.revision + 1);
        EXPECT_EQ(outcome->state, store.state());
    } else {
        EXPECT_TRUE(vfs.hasStruck()) << outcome.error().message;
        // SQLite takes some short reads for pages of zeros; then the row does not decode.
        EXPECT_TRUE(outcome.error().kind == KestError::Kind::storage ||
                    fault.fault == FaultVfs::Fault::shortRead)
            << outcome.error().message;
        EXPECT_FALSE(outcome.error().message.empty());
        EXPECT_EQ(store.state(), stateBefore);
        EXPECT_EQ(store.companion(), companionBefore);
        EXPECT_EQ(RawFile::dump(file), before);
    }
    const auto next = countOnce(store);
    EXPECT_TRUE(next.has_value()) << (next ? "" : next.error().message);
    EXPECT_EQ(RawFile::query(file, "SELECT body FROM state").front(),
              *Base::json::encode(store.state()));
    EXPECT_EQ(store.checkIntegrity().value_or("failed"), "ok");
}

// Strikes the calls that the operation makes, one after the other: all of the first ones,
// and of a long row of equal page writes every so many. Gives how often a fault struck.
int strikeCalls(FaultVfs &vfs, const FaultCase &fault, const std::filesystem::path &file,
                const Operation &operation, int stride)
{
    int struck = 0;
    for (int call = 1;; call += call < 40 ? 1 : stride) {
        SCOPED_TRACE(std::string{fault.name} + ", call " + std::to_string(call));
        strikeOnce(vfs, fault, call, file, operation);
        if (!vfs.hasStruck() || ::testing::Test::HasFailure()) {
            return struck;
        }
        ++struck;
    }
}

} // namespace

TEST(StoreFaults, AnUpdateFailsWholeOrNotAtAll)
{
    FaultVfs vfs;
    for (const FaultCase &fault : kFaults) {
        const TemporaryFolder folder;
        const int struck = strikeCalls(vfs, fault, folder.database(), countOnce, 1);
        // What a count needs to read is in memory; every other fault must have had its chance.
        EXPECT_TRUE(struck > 0 || fault.fault == FaultVfs::Fault::shortRead) << fault.name;
    }
}

TEST(StoreFaults, ALargeChangeFailsWholeOrNotAtAll)
{
    FaultVfs vfs;
    for (const FaultCase &fault : kFaults) {
        const TemporaryFolder folder;
        ASSERT_TRUE(StateStore::open(folder.database())->upsertRecord(clip(0, 100'000)));
        // By turns a record that spills out of the page cache, and everything gone.
        int turn = 0;
        const auto replaceAndReset = [&turn](StateStore &store) -> Result<Snapshot> {
            return ++turn % 2 == 1 ? store.upsertRecord(clip(1, 3'000'000)) : store.resetAll();
        };
        EXPECT_GT(strikeCalls(vfs, fault, folder.database(), replaceAndReset, 61), 0)
            << fault.name;
    }
}

TEST(StoreFaults, AnImportFailsWholeOrNotAtAll)
{
    FaultVfs vfs;
    const TemporaryFolder source;
    auto other = *StateStore::open(source.database());
    ASSERT_TRUE(countOnce(other));
    ASSERT_TRUE(other.upsertRecord({.id = "n", .kind = "note", .body = R"({"text":"a"})"}));
    std::string backup;
    ASSERT_TRUE(other.exportBackup({}, [&](std::string_view piece) -> Result<void> {
        backup += piece;
        return {};
    }));
    for (const FaultCase &fault : kFaults) {
        const TemporaryFolder folder;
        ASSERT_TRUE(StateStore::open(folder.database())->upsertRecord(clip(0, 100'000)));
        const auto import = [&](StateStore &store) { return store.importBackup(backup); };
        EXPECT_GT(strikeCalls(vfs, fault, folder.database(), import, 61), 0) << fault.name;
    }
}

TEST(StoreFaults, TheCompanionMigrationFailsWholeOrNotAtAll)
{
    FaultVfs vfs;
    for (const FaultCase &fault : kFaults) {
        for (int call = 1;; ++call) {
            SCOPED_TRACE(std::string{fault.name} + ", call " + std::to_string(call));
            const TemporaryFolder folder;
            ASSERT_TRUE(StateStore::open(folder.database()));
            RawFile::execute(folder.database(), "DROP TABLE companion; PRAGMA user_version=0;");
            const std::string before = RawFile::dump(folder.database());
            vfs.arm(fault.fault, call);
            auto store = StateStore::open(folder.database());
            vfs.disarm();
            if (!vfs.hasStruck()) {
                EXPECT_TRUE(store.has_value());
                EXPECT_GT(call, 1) << "the fault never struck";
                break;
            }
            for (const std::string &name : RawFile::neighbours(folder.database())) {
                EXPECT_FALSE(name.contains(".partial")) << name;
            }
            if (!store) {
                EXPECT_EQ(store.error().kind, KestError::Kind::storage)
                    << store.error().message;
                EXPECT_EQ(RawFile::dump(folder.database()), before);
            }
            store = std::unexpected(KestError{}); // gives the lock back
            ASSERT_TRUE(StateStore::open(folder.database()).has_value());
        }
    }
}
