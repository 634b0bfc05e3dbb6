// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"

#include <cstdint>
#include <string>
#include <vector>

namespace KestCore
{

// What the user has decided about the clipboard. A limit that is no number is the default.
struct ClipboardSettings {
    bool enabled{}; // nobody's clipboard is kept unasked
    bool paused{};
    std::vector<std::string> exclusions{}; // applications whose copies are never kept
    std::int64_t maxCount = 500;
    std::int64_t days = 30;
    std::int64_t maxBytes = 100'000'000; // of images and files

    bool operator==(const ClipboardSettings &) const = default;

    bool isRecording() const { return enabled && !paused; }
};

ClipboardSettings clipboardSettings(const Settings &settings);

} // namespace KestCore
