// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Sound/SoundOutput.h"

#include <chrono>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace Velvetnook
{

// Loops that are heard together, on a thread of the sound library's own. Its end is the end of
// the sound.
class LoopOutput
{
public:
    LoopOutput() = default;
    virtual ~LoopOutput() = default;
    LoopOutput(const LoopOutput &) = delete;
    LoopOutput &operator=(const LoopOutput &) = delete;

    // How loud each loop is to be, from 0 to 1; each gets there evenly in that time.
    virtual void fadeTo(std::span<const float> gains, std::chrono::milliseconds time) = 0;
};

struct LoopSource {
    // All of one rate. They stay where they are for as long as the output lives.
    std::span<const SoundSamples> loops{};
    // Called once, on that thread, when the sound server has gone.
    std::function<void(const std::string &problem)> ended{};
};

// What the module exports under the name kestOpenLoops; the caller owns the output, which is
// silent at first. Takes some seconds at most. On failure null, and the reason in `error`.
using OpenLoops = LoopOutput *(const LoopSource &source, Base::KestError &error);

} // namespace Velvetnook
