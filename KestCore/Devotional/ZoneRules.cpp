// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/ZoneRules.h"

#include "Base/File.h"
#include "Base/Text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <utility>

namespace KestCore
{

namespace
{

namespace chrono = std::chrono;

using YearlyDay = ZoneRules::YearlyDay;
using Tail = ZoneRules::Tail;

constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads the rule text at the end of a zone file, such as "EET-2EEST,M4.5.5/0,M10.5.4/24",
// which TZ may hold too. Any mismatch sticks.
class RuleReader
{
public:
    explicit RuleReader(std::string_view text) : m_rest(text) {}

    std::optional<Tail> tail()
    {
        skipName();
        Tail tail{.standardOffset = -signedTime()};
        tail.summerOffset = tail.standardOffset;
        if (!m_failed && !m_rest.empty()) {
            skipName();
            const bool saysOffset = !m_rest.empty() && m_rest.front() != ',';
            tail.summerOffset = saysOffset ? -signedTime() : tail.standardOffset + 3600;
            expect(',');
            tail.summerBegins = yearlyDay();
            expect(',');
            tail.summerEnds = yearlyDay();
        }
        return m_failed || !m_rest.empty() ? std::nullopt : std::optional{tail};
    }

private:
    void skipName()
    {
        const bool isQuoted = accept('<');
        std::size_t size = 0;
        while (size < m_rest.size() &&
               (isQuoted ? m_rest[size] != '>' : isLetter(m_rest[size]))) {
            ++size;
        }
        m_failed = m_failed || size < 3;
        m_rest.remove_prefix(size);
        if (isQuoted) {
            expect('>');
        }
    }

    std::int32_t signedTime()
    {
        const int sign = accept('-') ? -1 : 1;
        if (sign > 0) {
            accept('+');
        }
        std::int32_t seconds = number(167) * 3600;
        if (accept(':')) {
            seconds += number(59) * 60;
            if (accept(':')) {
                seconds += number(59);
            }
        }
        return sign * seconds;
    }

    YearlyDay yearlyDay()
    {
        YearlyDay day{.second = 2 * 3600};
        if (accept('M')) {
            day.month = number(12);
            expect('.');
            day.week = number(5);
            expect('.');
            day.day = number(6);
            m_failed = m_failed || day.month == 0 || day.week == 0;
        } else if (accept('J')) {
            day.kind = YearlyDay::Kind::dayWithoutLeap;
            day.day = number(365);
            m_failed = m_failed || day.day == 0;
        } else {
            day.kind = YearlyDay::Kind::dayOfYear;
            day.day = number(365);
        }
        if (accept('/')) {
            day.second = signedTime();
        }
        return day;
    }

    int number(int highest)
    {
        int value = 0;
        m_failed = m_failed || m_rest.empty() || !isDigit(m_rest.front());
        while (!m_rest.empty() && isDigit(m_rest.front()) && value <= highest) {
            value = value * 10 + (m_rest.front() - '0');
            m_rest.remove_prefix(1);
        }
        m_failed = m_failed || value > highest;
        return value;
    }

    bool accept(char c)
    {
        const bool isThere = m_rest.starts_with(c);
        m_rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    void expect(char c) { m_failed = !accept(c) || m_failed; }

    std::string_view m_rest;
    bool m_failed = false;
};

// The second on the zone's own clock at which the day of that year brings its change.
std::int64_t localSecond(const YearlyDay &day, chrono::year year)
{
    chrono::sys_days date = year / chrono::January / 1;
    switch (day.kind) {
    case YearlyDay::Kind::weekdayOfMonth: {
        const auto month = year / chrono::month{static_cast<unsigned>(day.month)};
        const chrono::weekday weekday{static_cast<unsigned>(day.day)};
        date = day.week == 5
                   ? chrono::sys_days{month / weekday[chrono::last]}
                   : chrono::sys_days{month / weekday[static_cast<unsigned>(day.week)]};
        break;
    }
    case YearlyDay::Kind::dayWithoutLeap:
        date += chrono::days{day.day - (year.is_leap() && day.day >= 60 ? 0 : 1)};
        break;
    case YearlyDay::Kind::dayOfYear:
        date += chrono::days{day.day};
        break;
    }
    return chrono::seconds{date.time_since_epoch()}.count() + day.second;
}

// Big-endian fields of a zone file, one after the other.
class FieldReader
{
public:
    explicit FieldReader(std::string_view bytes) : m_rest(bytes) {}

    template <class T>
    T next()
    {
        T value{};
        if (m_rest.size() < sizeof value) {
            m_failed = true;
            return value;
        }
        for (std::size_t at = 0; at < sizeof value; ++at) {
            value = static_cast<T>(static_cast<std::make_unsigned_t<T>>(value) << 8U |
                                   static_cast<unsigned char>(m_rest[at]));
        }
        m_rest.remove_prefix(sizeof value);
        return value;
    }

    void skip(std::size_t size)
    {
        m_failed = m_failed || size > m_rest.size();
        m_rest.remove_prefix(std::min(size, m_rest.size()));
    }

    std::string_view rest() const { return m_rest; }
    bool failed() const { return m_failed; }

private:
    std::string_view m_rest;
    bool m_failed = false;
};

struct Header {
    char version{};
    std::size_t universals{}, standards{}, leaps{}, times{}, types{}, letters{};

    std::size_t blockSize(std::size_t timeSize) const
    {
        return times * (timeSize + 1) + types * 6 + letters + leaps * (timeSize + 4) +
               standards + universals;
    }
};

std::optional<Header> readHeader(FieldReader &fields)
{
    if (!fields.rest().starts_with("TZif")) {
        return std::nullopt;
    }
    fields.skip(4);
    Header header{.version = static_cast<char>(fields.next<std::uint8_t>())};
    fields.skip(15);
    for (std::size_t *count : {&header.universals, &header.standards, &header.leaps,
                               &header.times, &header.types, &header.letters}) {
        *count = fields.next<std::uint32_t>();
    }
    return fields.failed() ? std::nullopt : std::optional{header};
}

struct Record {
    std::vector<ZoneRules::Change> changes{};
    std::int32_t firstOffset{};
};

// The block of 64-bit times that follows its header. Nothing when it is not sound.
std::optional<Record> readRecord(FieldReader &fields, const Header &header)
{
    // Files that count leap seconds tell another time than everybody's clock.
    if (header.leaps != 0 || header.types == 0 || header.blockSize(8) > fields.rest().size()) {
        return std::nullopt;
    }
    Record record;
    record.changes.resize(header.times);
    for (ZoneRules::Change &change : record.changes) {
        change.at = fields.next<std::int64_t>();
    }
    std::vector<std::uint8_t> typeOfChange(header.times);
    for (std::uint8_t &type : typeOfChange) {
        type = fields.next<std::uint8_t>();
    }
    std::vector<std::int32_t> offsets(header.types);
    for (std::int32_t &offset : offsets) {
        offset = fields.next<std::int32_t>();
        fields.skip(2);
    }
    for (std::size_t at = 0; at < typeOfChange.size(); ++at) {
        if (typeOfChange[at] >= offsets.size()) {
            return std::nullopt;
        }
        record.changes[at].offset = offsets[typeOfChange[at]];
    }
    record.firstOffset = offsets.front();
    fields.skip(header.letters + header.standards + header.universals);
    const bool isSorted = std::ranges::is_sorted(record.changes, {}, &ZoneRules::Change::at);
    return isSorted ? std::optional{std::move(record)} : std::nullopt;
}

// Words between slashes, so that none leads out of the folder of zones.
bool isIdentifier(std::string_view text)
{
    const auto pieces = Base::split(text, '/');
    return std::ranges::all_of(pieces, [](std::string_view piece) {
        return !piece.empty() && std::ranges::all_of(piece, [](char c) {
            return isLetter(c) || isDigit(c) || c == '_' || c == '-' || c == '+';
        });
    });
}

std::filesystem::path zoneFolder()
{
    const char *chosen = std::getenv("TZDIR");
    return chosen != nullptr && *chosen != 0 ? chosen : "/usr/share/zoneinfo";
}

std::string fileBytes(const std::filesystem::path &file)
{
    std::error_code error;
    return std::filesystem::is_regular_file(file, error)
               ? Base::readFile(file).value_or(std::string{})
               : std::string{};
}

} // namespace

Result<ZoneRules> ZoneRules::ofIdentifier(std::string_view identifier)
{
    if (isIdentifier(identifier)) {
        if (auto rules = fromFile(fileBytes(zoneFolder() / identifier))) {
            return *std::move(rules);
        }
    }
    return std::unexpected(
        KestError::invalidData("Unknown time zone \"" + std::string{identifier} + "\""));
}

ZoneRules ZoneRules::ofHost()
{
    const char *chosen = std::getenv("TZ");
    if (chosen == nullptr) {
        return fromFile(fileBytes("/etc/localtime")).value_or(ZoneRules{});
    }
    std::string_view name = chosen;
    name.remove_prefix(name.starts_with(':') ? 1 : 0);
    if (name.starts_with('/')) {
        return fromFile(fileBytes(name)).value_or(ZoneRules{});
    }
    if (auto rules = ofIdentifier(name)) {
        return *std::move(rules);
    }
    ZoneRules rules;
    rules.m_tail = RuleReader{name}.tail().value_or(Tail{});
    return rules;
}

// Two blocks, the first with times of 32 bits for old readers, then the rule text in a line.
std::optional<ZoneRules> ZoneRules::fromFile(std::string_view bytes)
{
    FieldReader fields{bytes};
    const auto narrow = readHeader(fields);
    if (!narrow || narrow->version < '2') {
        return std::nullopt;
    }
    fields.skip(narrow->blockSize(4));
    const auto header = readHeader(fields);
    auto record = header ? readRecord(fields, *header) : std::nullopt;
    std::string_view line = fields.rest();
    if (!record || line.size() < 2 || !line.starts_with('\n') || !line.ends_with('\n')) {
        return std::nullopt;
    }

    ZoneRules rules;
    rules.m_changes = std::move(record->changes);
    rules.m_firstOffset = record->firstOffset;
    const std::int32_t last =
        rules.m_changes.empty() ? rules.m_firstOffset : rules.m_changes.back().offset;
    rules.m_tail = {.standardOffset = last, .summerOffset = last};
    line = line.substr(1, line.size() - 2);
    if (!line.empty()) {
        const auto tail = RuleReader{line}.tail();
        if (!tail) {
            return std::nullopt;
        }
        rules.m_tail = *tail;
    }
    return rules;
}

ZoneRules::Span ZoneRules::spanAt(std::int64_t second) const
{
    const auto next = std::ranges::upper_bound(m_changes, second, {}, &Change::at);
    if (next == m_changes.end()) {
        return tailSpanAt(second);
    }
    const bool isFirst = next == m_changes.begin();
    return {.offset = isFirst ? m_firstOffset : std::prev(next)->offset, .end = next->at};
}

ZoneRules::Span ZoneRules::tailSpanAt(std::int64_t second) const
{
    if (!m_tail.summerBegins || !m_tail.summerEnds) {
        return {.offset = m_tail.standardOffset, .end = kNever};
    }
    const auto day = chrono::floor<chrono::days>(chrono::sys_seconds{chrono::seconds{second}});
    const chrono::year year = chrono::year_month_day{day}.year();
    std::array<Change, 10> changes{};
    std::size_t size = 0;
    for (const int step : {-2, -1, 0, 1, 2}) {
        const chrono::year near = year + chrono::years{step};
        changes[size++] = {.at =
                               localSecond(*m_tail.summerBegins, near) - m_tail.standardOffset,
                           .offset = m_tail.summerOffset};
        changes[size++] = {.at = localSecond(*m_tail.summerEnds, near) - m_tail.summerOffset,
                           .offset = m_tail.standardOffset};
    }
    // Where summer time ends in the moment that it begins again, it goes on.
    std::ranges::sort(changes, {}, [&](const Change &change) {
        return std::pair{change.at, change.offset == m_tail.summerOffset};
    });
    // Rules may reach into the years beside their own, but never two years far: the first
    // changes are past and the last are to come.
    const auto *const next = std::ranges::upper_bound(changes, second, {}, &Change::at);
    return {.offset = std::prev(next)->offset, .end = next->at};
}

} // namespace KestCore
