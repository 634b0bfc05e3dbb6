// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/Bench.h"

namespace Velvetnook
{

// In this process, in windows on the X server.
std::vector<Bench::Row> clickSuite();
std::vector<Bench::Row> paletteSuite();

// The program as a process of its own, beside one that shows an empty window.
std::vector<Bench::Row> startSuite();
std::vector<Bench::Row> restSuite();
std::vector<Bench::Row> memorySuite();

} // namespace Velvetnook
