// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/RawFile.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace
{

// kest counter on a terminal of its own.
class CounterOnATerminal
{
public:
    explicit CounterOnATerminal(const std::filesystem::path &folder)
    {
        winsize size{.ws_row = 24, .ws_col = 80, .ws_xpixel = 0, .ws_ypixel = 0};
        m_process = forkpty(&m_terminal, nullptr, nullptr, &size);
        if (m_process == 0) {
            setenv("TERM", "xterm-256color", 1);
            setenv("LC_ALL", "C.UTF-8", 1);
            execl(KEST_PROGRAM, KEST_PROGRAM, "--data-dir", folder.c_str(), "counter", nullptr);
            _exit(127);
        }
    }
    ~CounterOnATerminal()
    {
        if (m_process > 0) {
            kill(m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
        close(m_terminal);
    }

    void type(std::string_view keys) const
    {
        ASSERT_EQ(write(m_terminal, keys.data(), keys.size()),
                  static_cast<ssize_t>(keys.size()));
    }

    // Reads what is printed until the text has come; false when it has not in ten seconds. A
    // screen prints only what changes, so this is for the first picture.
    bool shows(std::string_view text)
    {
        while (!m_screen.contains(text)) {
            pollfd ready{.fd = m_terminal, .events = POLLIN, .revents = 0};
            char piece[4096];
            if (poll(&ready, 1, 10'000) <= 0) {
                return false;
            }
            const ssize_t size = read(m_terminal, piece, sizeof piece);
            if (size <= 0) {
                return false;
            }
            m_screen.append(piece, static_cast<std::size_t>(size));
        }
        return true;
    }

    int wait()
    {
        int status = 0;
        shows("\x01"); // never comes: what is still printed must be read, or the end waits
        waitpid(m_process, &status, 0);
        m_process = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t m_process = -1;
    int m_terminal = -1;
    std::string m_screen;
};

// Whether the stored session comes to look like this within ten seconds.
bool comesTo(const std::filesystem::path &file, std::string_view session)
{
    for (int tries = 0; tries < 1000; ++tries) {
        const auto rows = RawFile::query(file, "SELECT body FROM state");
        if (!rows.empty() && rows.front().contains(session)) {
            return true;
        }
        usleep(10'000);
    }
    return false;
}

} // namespace

TEST(TerminalCounter, CountsOnKeysAndLetsOthersIn)
{
    const TemporaryFolder folder;
    CounterOnATerminal counter{folder.path()};
    ASSERT_TRUE(counter.shows("0 of 33"));
    counter.type("   u");
    ASSERT_TRUE(comesTo(folder.database(), R"("count":2,"target":33)"));
    counter.type("t12\r");
    ASSERT_TRUE(comesTo(folder.database(), R"("count":2,"target":12)"));
    // Left alone, it gives the store to whoever asks, and goes on from what they did.
    const auto other = runKest(folder.path(), {"count", "5"});
    EXPECT_EQ(other.status, 0) << other.err;
    EXPECT_EQ(other.out, "7 of 12\n");
    counter.type(" pq");
    EXPECT_EQ(counter.wait(), 0);
    const auto store = *KestCore::StateStore::open(folder.database());
    const auto &session = store.state().devotional.session;
    EXPECT_EQ(session.count, 8);
    EXPECT_EQ(session.target, 12);
    EXPECT_TRUE(session.isPaused);
}

TEST(TerminalCounter, AKillInTheMiddleLosesNothing)
{
    const TemporaryFolder folder;
    {
        CounterOnATerminal counter{folder.path()};
        ASSERT_TRUE(counter.shows("0 of 33"));
        counter.type("     ");
        ASSERT_TRUE(comesTo(folder.database(), R"("count":5,"target":33)"));
    }
    const auto store = *KestCore::StateStore::open(folder.database());
    EXPECT_EQ(store.state().devotional.session.count, 5);
}
