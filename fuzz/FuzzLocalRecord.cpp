// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/LocalRecord.h"
#include "fuzz/RoundTrip.h"

// The body of a record is a document of its own, so the bytes are tried as each of them too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (const auto record = roundTrip<KestCore::LocalRecord>(data, size)) {
        (void)KestCore::validate(*record);
    }
    const std::string body{reinterpret_cast<const char *>(data), size};
    for (const char *kind :
         {"link", "timer", "note", "scratchpad", "emoji", "shortcut", "message", "prayer",
          "completion", "usage", "shelf", "file", "trash"}) {
        (void)KestCore::validate(KestCore::LocalRecord{.kind = kind, .body = body});
    }
    return 0;
}
