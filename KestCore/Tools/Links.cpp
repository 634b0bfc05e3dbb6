// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Links.h"

#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>
#include <unicode/uchar.h>

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr std::string_view kSecure = "https://";
constexpr std::string_view kPlain = "http://";

SavedLink linkOf(const LocalRecord &record)
{
    return json::decode<SavedLink>(std::string_view{record.body}).value_or(SavedLink{});
}

std::unexpected<KestError> refused(const char *message)
{
    return std::unexpected(KestError::invalidData(message));
}

std::string inLowerCase(std::string_view ascii)
{
    std::string text{ascii};
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

// What could break a line, hide in an address or turn its direction. The joiners are letters'
// neighbours in Persian and Indian host names.
bool isForbidden(char32_t character)
{
    const auto code = static_cast<UChar32>(character);
    const bool isJoiner = code == 0x200C || code == 0x200D;
    const auto type = u_charType(code);
    return code == '\\' || type == U_CONTROL_CHAR || (type == U_FORMAT_CHAR && !isJoiner) ||
           u_isUWhiteSpace(code) != 0;
}

// The length of "scheme:" at the front, or 0. A name with a number behind the colon is a host
// with its port.
std::size_t schemeSize(std::string_view text)
{
    const auto isLetter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    };
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (text.empty() || !isLetter(text.front())) {
        return 0;
    }
    const auto *const end = std::ranges::find_if_not(text, [&](char c) {
        return isLetter(c) || isDigit(c) || c == '+' || c == '-' || c == '.';
    });
    const auto size = static_cast<std::size_t>(end - text.begin());
    const bool hasPort = size + 1 < text.size() && isDigit(text[size + 1]);
    return size < text.size() && text[size] == ':' && !hasPort ? size + 1 : 0;
}

// The host and its port, with what stands before an @.
std::string_view authorityOf(std::string_view address)
{
    const std::string_view rest = address.substr(address.find("//") + 2);
    return rest.substr(0, rest.find_first_of("/?#"));
}

bool hasSoundPort(std::string_view authority)
{
    const std::string_view host = authority.substr(authority.rfind('@') + 1);
    const std::size_t colon = host.rfind(':');
    if (colon == std::string_view::npos || host.ends_with(']')) {
        return true;
    }
    const std::string_view port = host.substr(colon + 1);
    return !port.empty() && port.size() <= 5 &&
           port.find_first_not_of("0123456789") == std::string_view::npos;
}

// With https:// where there is no scheme, else with the scheme in lower case.
Result<std::string> withScheme(std::string_view text)
{
    const std::size_t size = schemeSize(text);
    if (size == 0) {
        return std::string{kSecure}.append(text);
    }
    std::string address = inLowerCase(text.substr(0, size)).append(text.substr(size));
    if (!address.starts_with(kSecure) && !address.starts_with(kPlain)) {
        return refused("Only http:// and https:// addresses can be saved");
    }
    return address;
}

} // namespace

Result<std::string> normalizedAddress(std::string_view text)
{
    KEST_TRY(std::string address, withScheme(trimmed(text)));
    if (std::ranges::any_of(codePointsOf(address), isForbidden)) {
        return refused("An address has no spaces, backslashes or control characters");
    }
    const std::string_view host = hostOf(address);
    if (host.find_first_not_of(".-") == std::string_view::npos ||
        !hasSoundPort(authorityOf(address))) {
        return refused("This address names no website");
    }
    const auto at = static_cast<std::size_t>(host.data() - address.data());
    address.replace(at, host.size(), inLowerCase(host));
    const bool isBare = authorityOf(address).end() + 1 == std::string_view{address}.end();
    if (isBare && address.back() == '/') {
        address.pop_back();
    }
    if (address.size() > kLongestAddress) {
        return refused("This address is too long to be saved");
    }
    return address;
}

std::string_view hostOf(std::string_view address)
{
    std::string_view host = authorityOf(address);
    host.remove_prefix(host.rfind('@') + 1);
    if (host.starts_with('[')) {
        return host.substr(0, host.find(']') + 1); // an IPv6 address
    }
    return host.substr(0, host.find(':'));
}

Result<void> checkIsOnly(const LocalRecord &link, std::span<const LocalRecord> others)
{
    const std::string address = linkOf(link).url;
    for (const LocalRecord &other : others) {
        if (other.id != link.id && linkOf(other).url == address) {
            return std::unexpected(KestError::invalidData(
                fmt::format("This address is saved already, as \"{}\"", other.title)));
        }
    }
    return {};
}

Result<LocalRecord> makeLink(const LinkChange &given, std::span<const LocalRecord> others)
{
    LocalRecord link;
    KEST_TRY(link.body, json::encode(SavedLink{.url = std::string{kSecure}}));
    KEST_CHECK(changeLink(link, given, others));
    return link;
}

Result<void> changeLink(LocalRecord &link, const LinkChange &change,
                        std::span<const LocalRecord> others)
{
    KEST_TRY(SavedLink saved, json::decode<SavedLink>(std::string_view{link.body}));
    const bool followsAddress = link.title == hostOf(saved.url);
    if (change.address) {
        KEST_TRY(saved.url, normalizedAddress(*change.address));
    }
    if (change.note) {
        KEST_CHECK(checkLength("The note of a link", *change.note));
        saved.note = change.note->empty() ? std::nullopt : change.note;
    }
    std::string title = followsAddress ? "" : link.title;
    if (change.title) {
        KEST_TRY(title, checkedTitle(*change.title));
    }
    LocalRecord changed = link;
    changed.title = title.empty() ? shortened(hostOf(saved.url), kLongestTitle) : title;
    KEST_TRY(changed.body, json::encode(saved));
    KEST_CHECK(checkIsOnly(changed, others));
    link = std::move(changed);
    return {};
}

std::vector<RecordHit> searchLinks(const std::vector<LocalRecord> &links,
                                   std::string_view query)
{
    return searchRecords(links, query, [](const LocalRecord &record) {
        const SavedLink link = linkOf(record);
        return link.url + "\n" + link.note.value_or("");
    });
}

} // namespace KestCore
