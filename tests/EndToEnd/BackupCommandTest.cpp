// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Store/Backup.h"
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <random>

namespace
{

using KestCore::Backup;
using KestCore::StateStore;
using testing::HasSubstr;

// A store whose every part says whose it is.
void fill(const std::filesystem::path &database, const std::string &owner, int notes)
{
    auto store = StateStore::open(database).value();
    KestCore::RecordChanges changes;
    for (int n = 0; n < notes; ++n) {
        changes.written.push_back(
            {.id = owner + std::to_string(n),
             .kind = "note",
             .title = owner,
             .body = Base::json::encode(KestCore::Note{.text = owner}).value()});
    }
    ASSERT_TRUE(store.changeRecords(changes));
    ASSERT_TRUE(store.change([&](KestCore::NativeState &state) -> Base::Result<void> {
        state.settings["owner"] = owner;
        return {};
    }));
    auto companion = store.companion();
    companion.workspaces[0].name = owner;
    ASSERT_TRUE(store.saveCompanion(companion));
}

// Whose data it is, when all of it is of one owner.
std::string ownerOf(const std::filesystem::path &folder, std::size_t notes)
{
    auto store = StateStore::open(folder / "kest.sqlite");
    if (!store || store->checkIntegrity() != "ok") {
        return "a damaged store";
    }
    const auto snapshot = store->snapshot().value();
    std::string owner = snapshot.state.settings.at("owner");
    if (snapshot.companion->workspaces[0].name != owner || snapshot.records.size() != notes) {
        return "a mixture";
    }
    for (const auto &record : snapshot.records) {
        if (record->title != owner) {
            return "a mixture";
        }
    }
    return owner;
}

std::string exported(const std::filesystem::path &folder, const std::string &name)
{
    const auto file = folder / name;
    EXPECT_EQ(runKest(folder, {"backup", "export", file.string()}).status, 0);
    return file.string();
}

} // namespace

TEST(BackupCommand, CarriesTheDataToAnotherFolder)
{
    const TemporaryFolder here;
    const TemporaryFolder there;
    fill(here.database(), "A", 3);
    const auto answer =
        runKest(here.path(), {"--json", "backup", "export", here.path().string()});
    EXPECT_EQ(answer.out, "{\"records\":3,\"revision\":3}\n");
    const auto file = here.path() / "Velvetnook-backup.json";
    struct stat info{};
    ASSERT_EQ(::stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);

    const auto refused = runKest(there.path(), {"backup", "import", file.string()});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.out, HasSubstr("note records       0     3\n"));
    EXPECT_EQ(refused.err, "kest: This replaces devotional and portable tool data. "
                           "Say --yes to do it; nothing was changed.\n");
    EXPECT_EQ(runKest(there.path(), {"records"}).out, "No records.\n");

    const auto imported =
        runKest(there.path(), {"--json", "backup", "import", "-", "--yes"}, file);
    EXPECT_EQ(imported.out, "{\"records\":3,\"revision\":1}\n");
    EXPECT_EQ(ownerOf(there.path(), 3), "A");

    const auto piped = runKest(there.path(), {"backup", "export", "-"});
    const auto again = Backup::read(piped.out);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->recordCounts().at("note"), 3);
}

TEST(BackupCommand, RefusesAndKeepsWhatIsThere)
{
    const TemporaryFolder folder;
    fill(folder.database(), "A", 1);
    const auto bad = folder.path() / "bad.json";
    std::ofstream{bad} << R"({"format":"kest-native-backup"})";
    const auto large = folder.path() / "large.json";
    std::ofstream{large}.seekp(50'000'000).put(' ');
    const auto missing = (folder.path() / "none" / "x.json").string();
    struct Case {
        std::vector<std::string> words;
        std::string message;
    };
    for (const auto &[words, message] : {
             Case{{"import", bad.string(), "--yes"}, "Invalid backup"},
             Case{{"import", large.string(), "--yes"}, "Backup exceeds 50 MB"},
             Case{{"import", missing, "--yes"}, missing + ": No such file or directory"},
             Case{{"export", missing}, missing + ": No such file or directory"},
         }) {
        auto arguments = words;
        arguments.insert(arguments.begin(), "backup");
        const auto outcome = runKest(folder.path(), arguments);
        EXPECT_EQ(outcome.status, 1) << message;
        EXPECT_EQ(outcome.err, "kest: " + message + "\n");
        EXPECT_EQ(ownerOf(folder.path(), 1), "A") << message;
    }
    EXPECT_EQ(runKest(folder.path(), {"backup"}).status, 2);
    EXPECT_EQ(runKest(folder.path(), {"backup", "import"}).status, 2);
}

TEST(BackupCommand, FollowsLinksAndReplacesOnlyFiles)
{
    const TemporaryFolder folder;
    fill(folder.database(), "A", 1);
    const auto target = folder.path() / "target.json";
    const auto link = folder.path() / "link.json";
    std::filesystem::create_symlink("target.json", link);
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(runKest(folder.path(), {"backup", "export", link.string()}).status, 0);
        EXPECT_TRUE(std::filesystem::is_symlink(link));
        EXPECT_TRUE(Backup::read(*Base::readFile(target)));
    }
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const auto refused = runKest(folder.path(), {"backup", "export", pipe.string()});
    EXPECT_EQ(refused.err, "kest: " + pipe.string() + ": This is no regular file\n");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST(BackupCommand, SaysEverythingThatAnImportTakesAway)
{
    const TemporaryFolder folder;
    fill(folder.database(), "A", 1);
    const auto file = exported(folder.path(), "a.json");
    {
        auto store = StateStore::open(folder.database()).value();
        ASSERT_TRUE(store.changeRecords(
            {.written = {{.id = "d", .kind = "diary"},
                         {.id = "f", .kind = "file", .body = R"({"path":"/a","pinned":true})"},
                         {.id = "c", .kind = "clipboard", .body = "sealed"}}}));
    }
    const auto summary = runKest(folder.path(), {"backup", "import", file}).out;
    EXPECT_THAT(summary, HasSubstr("diary records      1     0\n"));
    EXPECT_THAT(summary, HasSubstr("file records       1     0\n"));
    EXPECT_THAT(summary, testing::Not(HasSubstr("clipboard")));
}

TEST(BackupCommand, AKilledImportLeavesTheOldOrTheNew)
{
    constexpr int kNotes = 3'000;
    const TemporaryFolder folder;
    const TemporaryFolder other;
    fill(other.database(), "B", kNotes);
    fill(folder.database(), "A", kNotes);
    const std::string files[] = {exported(folder.path(), "a.json"),
                                 exported(other.path(), "b.json")};
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    ASSERT_EQ(runKest(folder.path(), {"backup", "import", files[0], "--yes"}).status, 0);
    const auto whole =
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);

    std::mt19937 random{std::random_device{}()};
    std::string owner = "A";
    int changed = 0;
    int killed = 0;
    for (int round = 0; round < 60; ++round) {
        const pid_t process = startKest(
            folder.path(), {"backup", "import", files[owner == "A" ? 1 : 0], "--yes"});
        ::usleep(static_cast<useconds_t>(random() % static_cast<unsigned>(whole.count())));
        ::kill(process, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(process, &status, 0), process);
        killed += WIFSIGNALED(status) ? 1 : 0;
        const std::string now = ownerOf(folder.path(), kNotes);
        ASSERT_TRUE(now == "A" || now == "B") << now << " in round " << round;
        changed += now != owner ? 1 : 0;
        owner = now;
    }
    // Kills that came all too early or all too late would prove nothing.
    EXPECT_GT(killed, 10);
    RecordProperty("killed", killed);
    RecordProperty("changed", changed);
}
