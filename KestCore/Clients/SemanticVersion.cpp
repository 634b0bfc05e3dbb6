// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/SemanticVersion.h"

#include "Base/Text.h"

#include <limits>
#include <tuple>

namespace KestCore
{

namespace
{

std::optional<std::uint32_t> numberIn(std::string_view text)
{
    const bool isPlain = !text.starts_with('+') && (text == "0" || !text.starts_with('0'));
    return isPlain ? Base::numberFrom<std::uint32_t>(text) : std::nullopt;
}

} // namespace

std::strong_ordering SemanticVersion::operator<=>(const SemanticVersion &other) const
{
    const auto rank = [](const SemanticVersion &version) {
        // The version itself comes after all that were to become it.
        const std::uint64_t last = std::numeric_limits<std::uint64_t>::max();
        return std::tuple{version.major, version.minor, version.patch,
                          version.candidate ? std::uint64_t{*version.candidate} : last};
    };
    return rank(*this) <=> rank(other);
}

std::optional<SemanticVersion> semanticVersion(std::string_view text)
{
    SemanticVersion version;
    const std::size_t hyphen = text.find('-');
    if (hyphen != std::string_view::npos) {
        constexpr std::string_view kMark = "-rc.";
        const std::string_view rest = text.substr(hyphen);
        version.candidate =
            rest.starts_with(kMark) ? numberIn(rest.substr(kMark.size())) : std::nullopt;
        if (!version.candidate) {
            return std::nullopt;
        }
    }
    const auto parts = Base::split(text.substr(0, hyphen), '.');
    if (parts.size() != 3) {
        return std::nullopt;
    }
    const auto major = numberIn(parts[0]);
    const auto minor = numberIn(parts[1]);
    const auto patch = numberIn(parts[2]);
    if (!major || !minor || !patch) {
        return std::nullopt;
    }
    version.major = *major;
    version.minor = *minor;
    version.patch = *patch;
    return version;
}

} // namespace KestCore
