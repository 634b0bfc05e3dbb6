// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SharedList.h"
#include "KestCore/Models/LocalRecord.h"
#include "KestCore/Models/NativeState.h"
#include "KestCore/Surfaces/CompanionState.h"

#include <memory>
#include <optional>

namespace KestCore
{

// A record that snapshots share: a row can hold megabytes.
using RecordRef = std::shared_ptr<const LocalRecord>;

// What the store hands out in one piece: all that is on disk at one revision.
struct Snapshot {
    std::optional<CompanionState> companion{};
    NativeState state{};
    Base::SharedList<RecordRef> records{}; // in insertion order
};

} // namespace KestCore
