// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/CommandServer.h"

#include "KestCore/Devotional/Counting.h"
#include "KestCore/Surfaces/ApplicationCommand.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/AssistantActivity.h"
#include "Velvetnook/Application/QtText.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <fstream>
#include <thread>

namespace
{

using namespace Velvetnook;

constexpr int kPatienceMs = 30'000;

// Lets the loop run until this holds; a test that waits in vain fails.
template <class Condition>
bool waitUntil(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > kPatienceMs) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}

// A caller that says what it likes.
class Caller
{
public:
    explicit Caller(const std::filesystem::path &database)
        : m_socket{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)}
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strcpy(address.sun_path, KestCore::applicationSocket(database).c_str());
        m_isConnected = connect(m_socket.get(), reinterpret_cast<sockaddr *>(&address),
                                sizeof address) == 0;
    }

    bool isConnected() const { return m_isConnected; }

    // False when the other side has closed.
    bool say(std::string_view text)
    {
        while (!text.empty()) {
            const ssize_t sent = send(m_socket.get(), text.data(), text.size(), MSG_NOSIGNAL);
            if (sent > 0) {
                text.remove_prefix(static_cast<std::size_t>(sent));
            } else if (errno != EAGAIN) {
                return false;
            }
            QCoreApplication::processEvents();
        }
        return true;
    }

    // The next line; "end" once the other side has closed.
    std::string hear()
    {
        std::string line;
        waitUntil([&] {
            char byte = 0;
            const ssize_t count = recv(m_socket.get(), &byte, 1, 0);
            if (count == 0 || (count < 0 && errno != EAGAIN)) {
                line = "end";
                return true;
            }
            line += count == 1 ? std::string{byte} : "";
            return line.ends_with('\n');
        });
        return line;
    }

private:
    Base::FileDescriptor m_socket;
    bool m_isConnected = false;
};

class CommandServerTest : public testing::Test
{
protected:
    CommandServerTest()
    {
        setenv("XDG_RUNTIME_DIR", m_runtime.path().c_str(), 1);
        auto store = KestCore::StateStore::open(database()).value();
        auto first = committedAll(store.snapshot().value());
        m_model = std::make_unique<ApplicationModel>(
            std::make_unique<StateKeeper>(database(), std::move(store)), std::move(first),
            Base::wallClock);
        m_server = std::make_unique<CommandServer>(*m_model, database());
        EXPECT_TRUE(m_server->listen());
    }

    std::filesystem::path database() const { return m_folder.database(); }
    std::int64_t shown() const { return m_model->state().devotional.session.count; }

    // As a click in the panel does.
    void count()
    {
        m_model->changeState([](KestCore::NativeState &state) -> Result<void> {
            KEST_CHECK(
                KestCore::apply(KestCore::Increment{}, Base::wallClock(), state.devotional));
            return {};
        });
    }

    // kest while the loop goes on.
    Outcome run(const std::vector<std::string> &arguments,
                const std::filesystem::path &input = "/dev/null")
    {
        Outcome outcome;
        std::atomic<bool> isDone = false;
        std::jthread thread{[&] {
            outcome = runKest(m_folder.path(), arguments, input);
            isDone = true;
        }};
        EXPECT_TRUE(waitUntil([&] { return isDone.load(); }));
        thread.join();
        return outcome;
    }

    TemporaryFolder m_folder;
    TemporaryFolder m_runtime;
    std::unique_ptr<ApplicationModel> m_model;
    std::unique_ptr<CommandServer> m_server;
};

TEST_F(CommandServerTest, LendsTheStoreToKestAndShowsWhatItLeft)
{
    count();
    ASSERT_TRUE(waitUntil([&] { return shown() == 1; }));
    const Outcome counted = run({"count", "2"});
    EXPECT_EQ(counted.status, 0) << counted.err;
    EXPECT_TRUE(waitUntil([&] { return shown() == 3; }));
    EXPECT_TRUE(run({"settings", "set", "appearance.theme", "light"}).status == 0);
    EXPECT_TRUE(waitUntil([&] { return m_model->setting("appearance.theme") == "light"; }));
    const Outcome told = run({"--json", "show"});
    EXPECT_TRUE(told.out.contains("\"count\":3")) << told.out;
}

TEST_F(CommandServerTest, CommitsWhatWasClickedDuringALoan)
{
    QSignalSpy said{m_model.get(), &ApplicationModel::said};
    std::optional<Caller> caller{database()};
    caller->say("{\"do\":\"borrow\"}\n");
    ASSERT_EQ(caller->hear(), "{\"lent\":true}\n");
    count();
    count();
    {
        auto borrowed = KestCore::StateStore::open(database());
        ASSERT_TRUE(borrowed) << borrowed.error().message;
        ASSERT_TRUE(borrowed->change([](KestCore::NativeState &state) -> Result<void> {
            KEST_CHECK(
                KestCore::apply(KestCore::Increment{}, Base::wallClock(), state.devotional));
            return {};
        }));
        ASSERT_TRUE(waitUntil([&] { return said.count() == 1; })); // it lasts: that is told
        EXPECT_EQ(shown(), 0);
    }
    caller.reset();
    EXPECT_TRUE(waitUntil([&] { return shown() == 3; }));
    EXPECT_EQ(said.count(), 1);
}

TEST_F(CommandServerTest, TakesTheStoreBackFromABorrowerThatIsKilled)
{
    const pid_t kest = startKest(m_folder.path(), {"count", "1000000"});
    ASSERT_TRUE(waitUntil([&] { return m_model->keeper().isLent(); }));
    count();
    // Some steps later, in the middle of another.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds{300};
    ASSERT_TRUE(waitUntil([&] { return std::chrono::steady_clock::now() > deadline; }));
    kill(kest, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(kest, &status, 0), kest);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(waitUntil([&] { return !m_model->keeper().isLent() && shown() > 1; }));
    const std::int64_t before = shown();
    count();
    ASSERT_TRUE(waitUntil([&] { return shown() >= before + 1; }));
    EXPECT_TRUE(run({"--json", "show"}).out.contains("\"count\":" + std::to_string(shown())));
}

TEST_F(CommandServerTest, LosesNoCountWhenManyBorrowAtOnce)
{
    constexpr int kPrograms = 6;
    constexpr int kSteps = 20;
    std::vector<pid_t> programs;
    for (int program = 0; program < kPrograms; ++program) {
        programs.push_back(startKest(m_folder.path(), {"count", std::to_string(kSteps)}));
        count();
    }
    for (const pid_t program : programs) {
        int status = 0;
        ASSERT_TRUE(waitUntil([&] { return waitpid(program, &status, WNOHANG) == program; }));
        EXPECT_EQ(status, 0);
    }
    EXPECT_TRUE(waitUntil([&] { return shown() == kPrograms * kSteps + kPrograms; }))
        << shown();
}

TEST_F(CommandServerTest, RefusesWhatIsNoCommandAndGoesOn)
{
    struct Case {
        const char *name;
        std::string said;
        const char *answer;
    };
    const std::string deep = std::string(60'000, '[');
    const Case cases[] = {
        {"no JSON", "hello", "error"},
        {"an unknown request", R"({"do":"format"})", "error"},
        {"no step", R"({"do":"palette"})", "error"},
        {"an unknown step", R"({"do":"palette","how":"explode"})", "error"},
        {"an unknown tool", R"({"do":"notch","how":"open","tool":"../x"})", "error"},
        {"a tool of the palette", R"({"do":"palette","how":"open","tool":"prayer"})", "error"},
        {"a borrower with a step", R"({"do":"borrow","how":"open"})", "error"},
        {"deeply nested", deep, "error"},
        {"bytes that are no text", std::string{"\xFF\x00\x80{", 4}, "error"},
        {"an empty line", "", "error"},
        {"two documents", R"({"do":"borrow"}{"do":"borrow"})", "error"},
        {"a whole one", R"({"do":"palette","how":"toggle"})", "done"},
    };
    QSignalSpy wanted{m_server.get(), &CommandServer::surfaceWanted};
    for (const auto &[name, said, answer] : cases) {
        SCOPED_TRACE(name);
        Caller caller{database()};
        EXPECT_TRUE(caller.say(said + "\n"));
        EXPECT_TRUE(caller.hear().contains(answer));
    }
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_FALSE(m_model->keeper().isLent());
}

TEST_F(CommandServerTest, ClosesOnCallersThatOnlyMakeNoise)
{
    Caller endless{database()};
    const std::string piece(100'000, 'x');
    bool isOpen = true;
    for (int round = 0; round < 20 && isOpen; ++round) {
        isOpen = endless.say(piece);
    }
    EXPECT_EQ(endless.hear(), "end");

    Caller nonsense{database()};
    nonsense.say("\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n");
    std::string last;
    while (last != "end") {
        const std::string line = nonsense.hear();
        ASSERT_FALSE(line.empty());
        last = line;
    }

    std::vector<std::unique_ptr<Caller>> silent;
    for (int caller = 0; caller < 40; ++caller) {
        silent.push_back(std::make_unique<Caller>(database()));
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(run({"palette", "open"}).status, 0);
    EXPECT_EQ(run({"count"}).status, 0);
    EXPECT_TRUE(waitUntil([&] { return shown() == 1; }));
}

TEST_F(CommandServerTest, OpensSurfacesForKest)
{
    QStringList asked;
    QObject::connect(m_server.get(), &CommandServer::surfaceWanted, m_model.get(),
                     [&asked](KestCore::QuickSurface surface, KestCore::SurfaceStep how,
                              const QString &tool) {
                         asked += fromView(Base::textOf(surface)) + QLatin1Char{' '} +
                                  fromView(Base::textOf(how)) + QLatin1Char{' '} + tool;
                     });
    EXPECT_EQ(run({"palette", "toggle"}).status, 0);
    EXPECT_EQ(run({"--json", "palette", "close"}).out, "{\"done\":true}\n");
    EXPECT_EQ(run({"notch", "open", "prayer"}).status, 0);
    EXPECT_EQ(run({"notch", "open", "nothing"}).status, 1);
    const Outcome off = run({"dock", "open"});
    EXPECT_EQ(off.status, 1);
    EXPECT_TRUE(off.err.contains("The dock is turned off")) << off.err;
    m_model->changeCompanion(
        [](KestCore::CompanionState &companion) { companion.dock.enabled = true; });
    EXPECT_TRUE(waitUntil([&] { return m_model->companion().dock.enabled; }));
    EXPECT_EQ(run({"dock", "open"}).status, 0);
    EXPECT_EQ(asked, (QStringList{"command toggle ", "command close ", "notch open prayer",
                                  "dock open "}));

    m_server.reset();
    const Outcome alone = run({"palette", "toggle"});
    EXPECT_EQ(alone.status, 1);
    EXPECT_TRUE(alone.err.contains("Velvetnook is not running")) << alone.err;
}

// As when kest comes between the application's taking of the data and its first listening.
TEST_F(CommandServerTest, LendsToOneThatCameBeforeItListened)
{
    m_server.reset();
    std::atomic<bool> isDone = false;
    Outcome outcome;
    const std::jthread kest{[&] {
        outcome = runKest(m_folder.path(), {"count"});
        isDone = true;
    }};
    std::this_thread::sleep_for(std::chrono::seconds{1});
    m_server = std::make_unique<CommandServer>(*m_model, database());
    ASSERT_TRUE(m_server->listen());
    ASSERT_TRUE(waitUntil([&] { return isDone.load(); }));
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_TRUE(waitUntil([&] { return shown() == 1; }));
}

// Without a free descriptor a caller cannot be let in: it waits, and so does the loop.
TEST_F(CommandServerTest, SleepsWhileThereIsNoDescriptorForACaller)
{
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const Caller caller{database()};
    ASSERT_TRUE(caller.isConnected());
    const int next = dup(0);
    ASSERT_GE(next, 0);
    close(next);
    rlimit full = before;
    full.rlim_cur = static_cast<rlim_t>(next);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &full), 0);
    constexpr int kRounds = 1000;
    int rounds = 0;
    QEventLoop loop;
    while (rounds < kRounds && loop.processEvents()) {
        ++rounds;
    }
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_LT(rounds, kRounds) << "the loop goes round and round";
    Caller again{database()};
    ASSERT_TRUE(again.say("{\"do\":\"borrow\"}\n"));
    EXPECT_EQ(again.hear(), "{\"lent\":true}\n");
}

TEST_F(CommandServerTest, HearsTheHooksOfAssistants)
{
    AssistantActivity activity{Base::wallClock};
    QObject::connect(m_server.get(), &CommandServer::assistantTold, &activity,
                     &AssistantActivity::take);
    const auto input = m_folder.path() / "hook.json";
    const auto hook = [&](std::string_view text) {
        std::ofstream{input} << text;
        return run({"hook", "claude-code"}, input);
    };
    const char *const kWaits =
        R"({"session_id":"s","cwd":"/srv/nook","hook_event_name":"Stop","message":"secret"})";
    EXPECT_EQ(hook(kWaits).out, "");
    ASSERT_EQ(activity.sessions().size(), 1U);
    EXPECT_EQ(activity.sessions()[0].last,
              (KestCore::AssistantEvent{.tool = "claude-code",
                                        .session = "s",
                                        .state = KestCore::AssistantState::waiting,
                                        .folder = "nook"}));

    // Whatever goes wrong is no concern of the tool that runs the hook.
    Caller caller{database()};
    caller.say(R"({"do":"hook","event":{"tool":"x","session":"","state":"waiting"}})"
               "\n");
    EXPECT_TRUE(caller.hear().contains("error"));
    m_server.reset();
    for (const char *text : {kWaits, "", "nonsense"}) {
        const Outcome alone = hook(text);
        EXPECT_EQ(alone.status, 0);
        EXPECT_EQ(alone.out + alone.err, "");
    }
    const Outcome wrong = run({"hook", "--bogus", "x"});
    EXPECT_EQ(wrong.status, 0);
    EXPECT_TRUE(wrong.err.contains("usage")) << wrong.err;
}

TEST_F(CommandServerTest, IsAloneAtItsPlaceAndOpenToItsUserOnly)
{
    struct stat info{};
    const auto file = KestCore::applicationSocket(database());
    ASSERT_EQ(stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);

    CommandServer second{*m_model, database()};
    EXPECT_FALSE(second.listen());

    // What a killed application leaves behind is in nobody's way.
    const auto kept = file.string() + ".kept";
    std::filesystem::rename(file, kept);
    m_server.reset();
    std::filesystem::rename(kept, file);
    CommandServer third{*m_model, database()};
    EXPECT_TRUE(third.listen());

    TemporaryFolder other;
    EXPECT_NE(KestCore::applicationSocket(other.database()), file);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application{argc, argv};
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
