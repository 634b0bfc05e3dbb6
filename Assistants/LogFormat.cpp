// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/LogFormat.h"

#include <array>

namespace Assistants
{

std::span<const LogFormat *const> logFormats()
{
    static const std::array<const LogFormat *, 2> kFormats{&claudeCodeLogs(), &codexLogs()};
    return kFormats;
}

std::string folderName(std::string_view path) { return KestCore::assistantFolder(path); }

std::string cleanName(std::string_view name) { return KestCore::assistantName(name); }

Result<Base::Instant> loggedInstant(std::string_view text)
{
    constexpr double kYear2001 = Base::kReferenceDateSince1970;
    constexpr double kYear2200 = 7'258'118'400.0;
    KEST_TRY(const Base::Instant at, Base::fromIso8601(text));
    const double seconds = Base::seconds1970(at);
    if (seconds < kYear2001 || seconds > kYear2200) {
        return std::unexpected(KestError::invalidData("no time of an assistant"));
    }
    return at;
}

} // namespace Assistants
