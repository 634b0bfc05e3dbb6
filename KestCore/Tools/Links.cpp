// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Links.h"

#include "Base/Text.h"
#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <arpa/inet.h>

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr std::string_view kSecure = "https://";
constexpr std::string_view kPlain = "http://";

std::unexpected<KestError> refused(const char *message)
{
    return std::unexpected(KestError::invalidData(message));
}

// Of host names, in any script.
std::string inLowerCase(std::string_view host)
{
    std::string lower;
    return icu::UnicodeString::fromUTF8(host)
        .toLower(icu::Locale::getRoot())
        .toUTF8String(lower);
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

bool isPort(std::string_view text)
{
    const bool isNumber = text.find_first_not_of("0123456789") == std::string_view::npos;
    const int port = isNumber ? Base::numberFrom<int>(text).value_or(0) : 0;
    return port >= 1 && port <= 65'535;
}

// The length of "scheme:" at the front, or 0. A name with nothing but a port behind the colon
// is a host, unless what it names is dialled.
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
    if (size == text.size() || text[size] != ':') {
        return 0;
    }
    const std::string_view behind = text.substr(size + 1);
    const std::string name = Base::lowerAscii(text.substr(0, size));
    const bool isDialled = name == "tel" || name == "sms" || name == "fax";
    return !isDialled && isPort(behind.substr(0, behind.find_first_of("/?#"))) ? 0 : size + 1;
}

// The host and its port, with what stands before an @.
std::string_view authorityOf(std::string_view address)
{
    const std::string_view rest = address.substr(address.find("//") + 2);
    return rest.substr(0, rest.find_first_of("/?#"));
}

bool isSoundHost(std::string_view host)
{
    if (host.starts_with('[')) {
        const std::string inner{host.substr(1, host.size() - 2)};
        in6_addr parsed{};
        return inet_pton(AF_INET6, inner.c_str(), &parsed) == 1;
    }
    return host.find_first_not_of(".-") != std::string_view::npos &&
           host.find_first_of("<>[]%\"^`{|}") == std::string_view::npos;
}

// Whether an address names a host, and behind it a port or nothing.
bool namesWebsite(std::string_view address)
{
    const std::string_view host = hostOf(address);
    const std::string_view authority = authorityOf(address);
    const std::string_view behind{host.end(), authority.end()};
    return isSoundHost(host) &&
           (behind.empty() || (behind.starts_with(':') && isPort(behind.substr(1))));
}

// With https:// where there is no scheme, else with the scheme in lower case.
Result<std::string> withScheme(std::string_view text)
{
    const std::size_t size = schemeSize(text);
    if (size == 0) {
        return std::string{kSecure}.append(text);
    }
    std::string address = Base::lowerAscii(text.substr(0, size)).append(text.substr(size));
    if (!address.starts_with(kSecure) && !address.starts_with(kPlain)) {
        return refused("Only http:// and https:// addresses can be saved");
    }
    return address;
}

// Fails when another of these has the address.
Result<void> checkIsFree(std::string_view address, const LocalRecord &link,
                         std::span<const LocalRecord> others)
{
    for (const LocalRecord &other : others) {
        if (other.id != link.id && payloadOf<SavedLink>(other).url == address) {
            return std::unexpected(KestError::invalidData(
                fmt::format("This address is saved already, as \"{}\"", other.title)));
        }
    }
    return {};
}

} // namespace

Result<std::string> normalizedAddress(std::string_view text)
{
    KEST_TRY(std::string address, withScheme(Base::trimmed(text)));
    if (std::ranges::any_of(codePointsOf(address), isForbidden)) {
        return refused("An address has no spaces, backslashes or control characters");
    }
    if (!namesWebsite(address)) {
        return refused("This address names no website");
    }
    const std::string_view host = hostOf(address);
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
        KEST_TRY(const std::string address, normalizedAddress(*change.address));
        // Two that a backup brought stay two, and are changed like any other.
        if (address != saved.url) {
            KEST_CHECK(checkIsFree(address, link, others));
        }
        saved.url = address;
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
    link = std::move(changed);
    return {};
}

std::vector<RecordHit> searchLinks(const std::vector<LocalRecord> &links,
                                   std::string_view query)
{
    return searchRecords(links, query, [](const LocalRecord &record) {
        const auto link = payloadOf<SavedLink>(record);
        return link.url + "\n" + link.note.value_or("");
    });
}

} // namespace KestCore
