// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/LocalRecord.h"
#include "KestCore/Models/NativeState.h"
#include "KestCore/Surfaces/CompanionState.h"

#include <random>
#include <vector>

// Data that keeps every rule and is otherwise as odd as the rules allow.
class RandomData
{
public:
    explicit RandomData(std::uint32_t seed) : m_engine(seed) {}

    KestCore::NativeState state();
    KestCore::CompanionState companion();
    // Of the kinds that travel, each with an id of its own.
    std::vector<KestCore::LocalRecord> records(std::size_t most);

private:
    std::size_t below(std::size_t count);
    bool coin() { return below(2) == 0; }
    double number();
    std::string text(std::size_t most);
    std::vector<std::string> someOf(const std::vector<std::string> &ids);
    KestCore::Session session();
    KestCore::LocalRecord record(std::size_t number);

    std::mt19937 m_engine;
};
