// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/DesktopFile.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// What is read is one line everywhere, and what is started is a program and not an option, an
// assignment or a code that was never filled in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace MonitorLinux;
    const std::string_view text{reinterpret_cast<const char *>(data), size};
    const auto entry = parseLaunchEntry(text, "pt_BR");
    if (!entry) {
        return 0;
    }
    const auto isOneLine = [](std::string_view line) {
        return std::ranges::none_of(
            line, [](char letter) { return static_cast<unsigned char>(letter) < ' '; });
    };
    if (!isOneLine(entry->name) || !isOneLine(entry->exec) || !isOneLine(entry->icon) ||
        !isOneLine(entry->folder)) {
        std::abort();
    }
    const std::vector<std::string> addresses{"file:///tmp/a%20b", "https://example.org/"};
    const auto words = commandWords(*entry, "/usr/share/applications/a.desktop", addresses);
    if (words && (words->empty() || words->front().empty() || words->front().contains('=') ||
                  words->front().starts_with('-'))) {
        std::abort();
    }
    return 0;
}
