// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/RecordList.h"
#include "KestCore/Tools/RecordSearch.h"

#include <optional>
#include <span>

namespace KestCore
{

inline constexpr const char *kLinkKind = "link";

// The address as it is kept: with https:// where no scheme was written, scheme and host in
// lower case, no slash behind a bare host. Host names in any script stay as they are. Fails
// for schemes other than http and https, for white space and control characters, and for a
// text that names no host, or one with signs that no host has or a port from nowhere.
[[nodiscard]] Result<std::string> normalizedAddress(std::string_view text);

// The host of a kept address, without its port.
std::string_view hostOf(std::string_view address);

// What is new of a link, each part as far as it is given.
struct LinkChange {
    std::optional<std::string> address{};
    std::optional<std::string> title{};
    std::optional<std::string> note{}; // an empty one takes the note away
};

// A link to be added beside `others`. Without a title it goes by its host. An address that is
// saved already is refused, as two links that differ only in their notes would be a trap.
[[nodiscard]] Result<LocalRecord> makeLink(const LinkChange &given,
                                           std::span<const LocalRecord> others);
// A title that came from the address goes on following it; an empty one begins to. Only a new
// address is compared with the others'.
[[nodiscard]] Result<void> changeLink(LocalRecord &link, const LinkChange &change,
                                      std::span<const LocalRecord> others);

// In the title, the address and the note.
std::vector<RecordHit> searchLinks(const std::vector<LocalRecord> &links,
                                   std::string_view query);

} // namespace KestCore
