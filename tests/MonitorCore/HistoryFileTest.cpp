// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorHistoryStore.h"
#include "tests/MonitorCore/Snapshots.h"
#include "tests/RawFile.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <random>

using namespace MonitorCore;
namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

void write(const fs::path &file, const std::string &bytes)
{
    std::ofstream{file, std::ios::binary} << bytes;
}

std::vector<std::string> integrity(const fs::path &file)
{
    return RawFile::query(file, "PRAGMA integrity_check");
}

TEST(HistoryFile, IsPrivateWithItsFolders)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "a" / "Monitor" / "history.sqlite";
    ASSERT_TRUE(Base::makePrivateDirectory(file.parent_path()));
    write(file, "");
    fs::permissions(file, fs::perms::all); // as an old copy may have been put back
    auto store = MonitorHistoryStore::open(file);
    ASSERT_TRUE(store) << store.error().message;
    ASSERT_TRUE(store->record(snapshotAt(60, 1, {{MetricID::cpu, 1}})));
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms::owner_all);
    for (const char *ending : {"", "-wal", "-shm"}) {
        EXPECT_EQ(fs::status(fs::path{file} += ending).permissions(),
                  fs::perms::owner_read | fs::perms::owner_write)
            << ending;
    }
    EXPECT_FALSE(store->takeNotice());
}

TEST(HistoryFile, ThatIsNoHistoryIsSetAsideWhole)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "history.sqlite";
    const fs::path other = folder.path() / "other.sqlite";
    RawFile::execute(other, "CREATE TABLE recipes(name TEXT); INSERT INTO recipes VALUES('x')");
    const std::string foreign = RawFile::bytes(other);
    fs::remove(other);
    int number = 1;
    for (const std::string &bytes :
         {std::string{"not a database, and short"}, std::string(5'000, 'x'), foreign}) {
        write(file, bytes);
        auto store = MonitorHistoryStore::open(file);
        ASSERT_TRUE(store) << store.error().message;
        const std::string name = "history.set-aside-" + std::to_string(number++) + ".sqlite";
        EXPECT_THAT(store->takeNotice().value_or(""), HasSubstr(name));
        EXPECT_FALSE(store->takeNotice());
        EXPECT_EQ(RawFile::bytes(folder.path() / name), bytes);
        EXPECT_TRUE(store->record(snapshotAt(60, 1, {{MetricID::cpu, 1}})));
        EXPECT_THAT(integrity(file), ElementsAre("ok"));
    }
}

// A database of somebody else's, its latest change still in its log.
TEST(HistoryFile, ThatIsAnotherDatabaseKeepsItsLog)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "history.sqlite";
    const fs::path log = fs::path{file} += "-wal";
    RawFile::execute(file, "PRAGMA journal_mode=WAL; CREATE TABLE recipes(name TEXT)");
    auto writer = Base::Database::open(file, "").value();
    writer.leaveLog();
    ASSERT_TRUE(writer.run("INSERT INTO recipes VALUES('soup')"));
    const std::string bytes = RawFile::bytes(file);
    const std::string logBytes = RawFile::bytes(log);
    ASSERT_FALSE(logBytes.empty());
    {
        const auto closed = std::move(writer);
    }
    ASSERT_FALSE(MonitorHistoryStore::openToRead(file));
    EXPECT_EQ(RawFile::bytes(file), bytes);
    EXPECT_EQ(RawFile::bytes(log), logBytes);
    ASSERT_TRUE(MonitorHistoryStore::open(file));
    EXPECT_THAT(RawFile::query(folder.path() / "history.set-aside-1.sqlite",
                               "SELECT name FROM recipes"),
                ElementsAre("soup"));
}

// Only who holds the recorder's lock may move the file, and then only one can write to it.
TEST(HistoryFile, IsNotTouchedByThoseWhoOnlyRead)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "history.sqlite";
    write(file, "my diary");
    const auto foreign = MonitorHistoryStore::openToRead(file);
    ASSERT_FALSE(foreign);
    EXPECT_THAT(foreign.error().message, StartsWith("Monitor history: The file is damaged or"));
    EXPECT_EQ(RawFile::bytes(file), "my diary");

    auto recorder = MonitorHistoryStore::open(file);
    ASSERT_TRUE(recorder) << recorder.error().message;
    const auto second = MonitorHistoryStore::open(file);
    ASSERT_FALSE(second);
    EXPECT_THAT(second.error().message, StartsWith("The monitor's recorder is in use by"));
    ASSERT_TRUE(recorder->record(snapshotAt(60, 1, {{MetricID::cpu, 1}})));
    auto reader = MonitorHistoryStore::openToRead(file);
    ASSERT_TRUE(reader) << reader.error().message;
    EXPECT_TRUE(reader->range().value());
}

TEST(HistoryFile, ThatIsTakenAwayIsBegunAnew)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "history.sqlite";
    auto store = MonitorHistoryStore::open(file);
    ASSERT_TRUE(store);
    ASSERT_TRUE(store->record(snapshotAt(60, 1, {{MetricID::cpu, 1}})));
    for (const char *ending : {"", "-wal", "-shm"}) {
        fs::rename(fs::path{file} += ending, fs::path{folder.path() / "away"} += ending);
    }
    ASSERT_TRUE(store->record(snapshotAt(120, 1, {{MetricID::cpu, 1}})));
    EXPECT_THAT(store->takeNotice().value_or(""), HasSubstr("taken away"));
    EXPECT_THAT(RawFile::query(file, "SELECT t FROM samples"), ElementsAre("60"));
    EXPECT_THAT(RawFile::query(folder.path() / "away", "SELECT t FROM samples"),
                ElementsAre("0"));
}

// Damage deep inside shows only when a page is read; then too nothing is deleted.
TEST(HistoryFile, ThatTurnsOutDamagedIsSetAside)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "history.sqlite";
    {
        auto store = MonitorHistoryStore::open(file);
        for (double time = 60; time < 60'000; time += 60) {
            ASSERT_TRUE(store->record(snapshotAt(time, 60, {{MetricID::cpu, 1}})));
        }
        ASSERT_TRUE(store->maintain(Base::fromSeconds1970(60'000), 30));
    }
    std::string bytes = RawFile::bytes(file);
    ASSERT_GT(bytes.size(), 40'000U);
    std::fill(bytes.begin() + 12'288, bytes.end() - 4'096, '\x55');
    write(file, bytes);
    auto store = MonitorHistoryStore::open(file);
    ASSERT_TRUE(store) << store.error().message;
    const auto all = store->history(kSystemKey, MetricID::cpu, Base::fromSeconds1970(0),
                                    Base::fromSeconds1970(1e9));
    ASSERT_FALSE(all);
    EXPECT_EQ(all.error().message, "Monitor history: Could not read samples");
    EXPECT_THAT(store->takeNotice().value_or(""), HasSubstr("history.set-aside-1.sqlite"));
    EXPECT_EQ(RawFile::bytes(folder.path() / "history.set-aside-1.sqlite").size(),
              bytes.size());
    EXPECT_TRUE(store->record(snapshotAt(60, 1, {{MetricID::cpu, 1}})));
    EXPECT_THAT(integrity(file), ElementsAre("ok"));
}

TEST(HistoryFile, OfANewerBuildOrOutOfReachIsRefusedUntouched)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "history.sqlite";
    ASSERT_TRUE(MonitorHistoryStore::open(file));
    RawFile::execute(file, "ALTER TABLE samples ADD COLUMN more; PRAGMA user_version=2");
    const std::string bytes = RawFile::bytes(file);
    const auto newer = MonitorHistoryStore::open(file);
    ASSERT_FALSE(newer);
    EXPECT_THAT(newer.error().message, StartsWith("Monitor history: the file was saved by a"));
    EXPECT_EQ(RawFile::bytes(file), bytes);

    fs::create_directory(folder.path() / "folder.sqlite");
    const auto noFile = MonitorHistoryStore::open(folder.path() / "folder.sqlite");
    ASSERT_FALSE(noFile);
    EXPECT_EQ(noFile.error(),
              Base::KestError::storage("Monitor history: Could not open local storage"));
    // What the file system refuses is not called a fault of the history.
    const auto noFolder = MonitorHistoryStore::open(file / "Monitor" / "history.sqlite");
    ASSERT_FALSE(noFolder);
    EXPECT_EQ(noFolder.error().kind, Base::KestError::Kind::unavailable);
}

// Starts the victim, lets it record for so many acknowledgements and some microseconds more,
// and kills it; gives how many seconds it acknowledged.
int killOnce(const fs::path &file, double start, unsigned wanted, unsigned microseconds)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        return -1;
    }
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        execl(KEST_VICTIM, KEST_VICTIM, file.c_str(), std::to_string(start).c_str(), nullptr);
        _exit(127);
    }
    close(ends[1]);
    std::FILE *answers = fdopen(ends[0], "r");
    std::array<char, 32> line{};
    unsigned count = 0;
    while (count < wanted && std::fgets(line.data(), line.size(), answers) != nullptr) {
        ++count;
    }
    usleep(microseconds);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    while (std::fgets(line.data(), line.size(), answers) != nullptr) {
        ++count;
    }
    std::fclose(answers);
    return WIFSIGNALED(status) ? static_cast<int>(count) : -1;
}

TEST(HistoryFile, SurvivesTheDeathOfItsRecorder)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "history.sqlite";
    std::mt19937 random{std::random_device{}()};
    const auto moment = [&](unsigned below) { return static_cast<unsigned>(random() % below); };
    for (int round = 1; round <= 40; ++round) {
        const double start = round * 6'000;
        const int acknowledged = killOnce(file, start, moment(50), moment(2'000));
        ASSERT_GE(acknowledged, 0) << "the victim ended by itself";
        auto store = MonitorHistoryStore::open(file);
        ASSERT_TRUE(store) << store.error().message;
        EXPECT_FALSE(store->takeNotice());
        EXPECT_THAT(integrity(file), ElementsAre("ok"));
        for (const std::string app : {"", "app-19"}) {
            double seconds = 0;
            const auto points =
                store->history(app, MetricID::cpu, Base::fromSeconds1970(start - 60),
                               Base::fromSeconds1970(start + 5'000));
            ASSERT_TRUE(points);
            for (const auto &point : *points) {
                seconds += point.coverage;
            }
            EXPECT_GE(seconds, acknowledged) << app;
            EXPECT_LE(seconds, acknowledged + 1) << app; // what was in flight
        }
    }
}

} // namespace
