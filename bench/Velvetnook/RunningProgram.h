// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/Velvetnook/XDesktop.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Velvetnook
{

// What all threads of a process have used since it began.
struct Usage {
    double wakeUps{};    // the switches they wanted and those they did not
    double cpuSeconds{}; // to the nanosecond
};

// A program that draws at the middle of the top edge.
class RunningProgram
{
public:
    explicit RunningProgram(const std::string &program) : m_child{{program}} {}

    Usage usage() const;
    // The bytes that are its own, and its part of those that are shared.
    double memory() const;

private:
    Child m_child;
};

// The seconds from the start of the program until its first frame is on the screen.
double secondsToFirstFrame(const std::string &program);

// Has kest do something to the running application; it must succeed.
void askKest(std::vector<std::string> words);

// A store as an ordinary user has it, for the programs that are started from now on, and the
// folders and addresses that keep them away from the user's own session.
void prepareSession(const std::filesystem::path &folder, bool hasMotion);

} // namespace Velvetnook
