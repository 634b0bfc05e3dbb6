// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// A command of kest on a terminal of its own.
class TerminalProgram
{
public:
    TerminalProgram(const std::filesystem::path &folder, std::vector<std::string> words)
    {
        words.insert(words.begin(), {KEST_PROGRAM, "--data-dir", folder.string()});
        std::vector<char *> arguments;
        for (std::string &word : words) {
            arguments.push_back(word.data());
        }
        arguments.push_back(nullptr);
        winsize size{.ws_row = 24, .ws_col = 80, .ws_xpixel = 0, .ws_ypixel = 0};
        m_process = forkpty(&m_terminal, nullptr, nullptr, &size);
        if (m_process == 0) {
            setenv("TERM", "xterm-256color", 1);
            setenv("LC_ALL", "C.UTF-8", 1);
            execv(KEST_PROGRAM, arguments.data());
            _exit(127);
        }
    }
    ~TerminalProgram()
    {
        if (m_process > 0) {
            kill(m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
        close(m_terminal);
    }

    TerminalProgram(const TerminalProgram &) = delete;
    TerminalProgram &operator=(const TerminalProgram &) = delete;

    void type(std::string_view keys) const
    {
        ASSERT_EQ(write(m_terminal, keys.data(), keys.size()),
                  static_cast<ssize_t>(keys.size()));
    }

    // What was shown so far no longer counts.
    void forget() { m_screen.clear(); }

    // Reads what is printed until the text has come; false when it has not in half a minute. A
    // screen prints only what changes, so this is for what is new on it.
    bool shows(std::string_view text)
    {
        const auto giveUpAt = std::chrono::steady_clock::now() + std::chrono::seconds{30};
        while (!m_screen.contains(text)) {
            pollfd ready{.fd = m_terminal, .events = POLLIN, .revents = 0};
            char piece[4096];
            // A program that prints all the time must not keep this waiting for ever.
            if (poll(&ready, 1, 10'000) <= 0 || std::chrono::steady_clock::now() > giveUpAt) {
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

    // All that was printed, as far as it was read.
    const std::string &screen() const { return m_screen; }

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
