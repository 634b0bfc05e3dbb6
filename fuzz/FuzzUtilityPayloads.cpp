// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/LocalRecord.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/Links.h"
#include "KestCore/Tools/Shelf.h"
#include "fuzz/RoundTrip.h"

namespace
{

// A payload that decodes comes back the same, and goes by the same rules as the record that
// carries it.
template <class Payload>
std::optional<Payload> tried(const char *kind, const std::uint8_t *data, std::size_t size)
{
    const auto payload = roundTrip<Payload>(data, size);
    const KestCore::LocalRecord record{.kind = kind,
                                       .body{reinterpret_cast<const char *>(data), size}};
    const bool isSound = payload && keepsRules(*payload);
    if (KestCore::validate(record).has_value() != isSound) {
        std::abort();
    }
    return isSound ? payload : std::nullopt;
}

// What an address is normalised to is kept as it is, and may be saved.
void tryAddress(const std::string &text)
{
    const auto address = KestCore::normalizedAddress(text);
    if (address && (KestCore::normalizedAddress(*address) != address ||
                    !keepsRules(KestCore::SavedLink{.url = *address}))) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace KestCore;
    if (const auto link = tried<SavedLink>("link", data, size)) {
        tryAddress(link->url);
    }
    if (const auto item = tried<ShelfItem>("shelf", data, size)) {
        // The folder is there, so that the mark is compared with those of files.
        (void)placeOf({.path = "/not-at-all", .bookmark = item->bookmark});
    }
    tried<Note>("note", data, size);
    tried<Scratchpad>("scratchpad", data, size);
    tried<EmojiUse>("emoji", data, size);
    tried<QuickShortcut>("shortcut", data, size);
    tried<StripMessage>("message", data, size);
    tried<Completion>("completion", data, size);
    tried<ApplicationUsage>("usage", data, size);
    tried<FileItem>("file", data, size);
    tryAddress({reinterpret_cast<const char *>(data), size});
    return 0;
}
