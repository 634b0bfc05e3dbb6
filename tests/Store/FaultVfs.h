// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

// A file layer under SQLite that fails on demand. While an object of this class lives, every
// connection that is opened goes through it.
class FaultVfs
{
public:
    enum class Fault : std::uint8_t {
        diskFull,    // a write finds no room
        writeFailed, // a write fails
        syncFailed,  // the disk does not confirm
        shortRead,   // a read ends early
    };

    FaultVfs();
    ~FaultVfs();
    FaultVfs(const FaultVfs &) = delete;
    FaultVfs &operator=(const FaultVfs &) = delete;

    // The `call`-th call from now (1 is the next) that this fault can hit fails, once.
    void arm(Fault fault, int call);
    void disarm();
    // Whether the armed fault has struck.
    bool hasStruck() const;
};
