// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/PaletteIndex.h"

#include <cstdint>
#include <cstdlib>

// A query and, behind the first line, titles: what was found is there, and the marks lie
// within the title, one after the other.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::string_view query = bytes.substr(0, end);
    const std::string_view title = bytes.substr(std::min(end + 1, bytes.size()));
    KestCore::PaletteIndex index;
    index.add({.title = title});
    index.add({.title = query, .names = {}, .keywords = title});
    for (const auto &match : index.search(query)) {
        if (match.item >= index.size()) {
            std::abort();
        }
    }
    std::size_t last = 0;
    for (const auto &span : KestCore::matchedSpans(title, query)) {
        if (span.begin < last || span.size == 0 || span.begin + span.size > title.size()) {
            std::abort();
        }
        last = span.begin + span.size;
    }
    return 0;
}
