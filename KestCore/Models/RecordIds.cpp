// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/RecordIds.h"

#include "Base/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace KestCore
{

namespace
{

bool tellsApart(std::span<const std::string> ids, std::size_t length)
{
    std::set<std::string> seen;
    return std::ranges::all_of(ids, [&](const std::string &id) {
        return seen.insert(Base::lowerAscii(std::string_view{id}.substr(0, length))).second;
    });
}

} // namespace

Result<std::size_t> findByIdPrefix(std::span<const std::string> ids, std::string_view typed,
                                   std::string_view what)
{
    const std::string wanted = Base::lowerAscii(typed);
    std::vector<std::size_t> found;
    for (std::size_t at = 0; at < ids.size(); ++at) {
        if (ids[at] == typed) {
            return at;
        }
        if (!wanted.empty() && Base::lowerAscii(ids[at]).starts_with(wanted)) {
            found.push_back(at);
        }
    }
    if (found.empty()) {
        return std::unexpected(
            KestError::invalidData(fmt::format("No {} has the id \"{}\"", what, typed)));
    }
    if (found.size() > 1) {
        return std::unexpected(KestError::invalidData(fmt::format(
            "{} ids begin with \"{}\"; write more of the id", found.size(), typed)));
    }
    return found.front();
}

std::size_t shortIdLength(std::span<const std::string> ids)
{
    std::size_t longest = 0;
    for (const std::string &id : ids) {
        longest = std::max(longest, id.size());
    }
    std::size_t length = 4;
    while (length < longest && !tellsApart(ids, length)) {
        ++length;
    }
    return length;
}

} // namespace KestCore
