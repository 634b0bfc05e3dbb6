// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/CalendarDocument.h"

#include "Base/Text.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace CalendarFiles
{

namespace
{

constexpr std::size_t kLongestTitle = 500; // characters
constexpr std::size_t kDeepest = 8;        // components within components

// The lines of an event that mean something here; the others may be long and are many.
constexpr std::array<std::string_view, 13> kWanted{
    "DTSTART", "DTEND",    "DURATION", "RRULE",    "RDATE",        "EXDATE",    "RECURRENCE-ID",
    "SUMMARY", "LOCATION", "STATUS",   "SEQUENCE", "TZOFFSETFROM", "TZOFFSETTO"};

// Gives the lines of a file one by one, those that were folded whole again.
class ContentLines
{
public:
    explicit ContentLines(std::string_view bytes) : m_rest(bytes)
    {
        if (m_rest.starts_with("\xEF\xBB\xBF")) {
            m_rest.remove_prefix(3);
        }
    }

    // False at the end. Of a line that is too long only the beginning is kept.
    bool next(std::string &line)
    {
        line.clear();
        m_isCut = false;
        if (m_rest.empty()) {
            return false;
        }
        add(line, takePiece());
        while (m_rest.starts_with(' ') || m_rest.starts_with('\t')) {
            add(line, takePiece().substr(1));
        }
        return true;
    }

    bool isCut() const { return m_isCut; }

private:
    std::string_view takePiece()
    {
        const std::size_t end = std::min(m_rest.find('\n'), m_rest.size());
        std::string_view piece = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        while (piece.ends_with('\r')) {
            piece.remove_suffix(1);
        }
        return piece;
    }

    void add(std::string &line, std::string_view piece)
    {
        const std::size_t room = kLongestLine - line.size();
        m_isCut = m_isCut || piece.size() > room;
        line.append(piece.substr(0, room));
    }

    std::string_view m_rest;
    bool m_isCut{};
};

std::string upperAscii(std::string_view text)
{
    std::string upper{text};
    std::ranges::transform(upper, upper.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    return upper;
}

std::string nameOf(std::string_view line)
{
    return upperAscii(line.substr(0, line.find_first_of(":;")));
}

// What follows the colon that is outside of quotation marks.
std::string_view valueOf(std::string_view line)
{
    bool isQuoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '"') {
            isQuoted = !isQuoted;
        } else if (line[at] == ':' && !isQuoted) {
            return line.substr(at + 1);
        }
    }
    return {};
}

// One text on one line, with no bytes that are none and not longer than anybody reads.
std::string shown(const std::string &text)
{
    const std::string printed = Base::printable(Base::trimmed(text));
    return std::string{Base::firstCharacters(printed, kLongestTitle)};
}

// Longer than a hundred years nothing lasts.
bool isLength(const std::optional<EventLength> &length)
{
    constexpr std::int64_t kMostDays = 36'525;
    return !length || (length->days <= kMostDays && length->seconds <= kMostDays * 86'400);
}

// Whether the event's values make sense together.
bool keepsRules(const EventText &event)
{
    const bool isSameClock = event.end && event.end->clock == event.start.clock &&
                             event.end->zone == event.start.zone;
    return isLength(event.length) &&
           std::ranges::all_of(event.extra, isLength, &ExtraDate::length) &&
           !(isSameClock && event.end->wall < event.start.wall);
}

class Reader
{
public:
    explicit Reader(EventParser &parser) : m_parser(parser) {}

    void take(const std::string &line, bool isCut);
    [[nodiscard]] Result<CalendarDocument> finish();

private:
    void begin(std::string component);
    void end(const std::string &component);
    void keep(const std::string &name, const std::string &line, bool isCut);
    void finishEvent();
    void finishZoneRule();
    std::optional<EventText> parsed();
    bool isInside(std::string_view component) const
    {
        return !m_open.empty() && m_open.back() == component;
    }

    EventParser &m_parser;
    CalendarDocument m_document{};
    std::vector<std::string> m_open{}; // the components around the line
    std::size_t m_tooDeep{};           // those that are not looked into
    bool m_isCalendar{};
    std::string m_lines{}; // of the event, as the parser takes them
    std::size_t m_lineCount{};
    bool m_isBroken{};
    std::string m_uid{};
    std::string m_zone{};
    std::vector<EventText> m_zoneRules{};
    bool m_isZoneBroken{};
};

void Reader::take(const std::string &line, bool isCut)
{
    const std::string name = nameOf(line);
    if (name == "BEGIN") {
        begin(upperAscii(Base::trimmed(valueOf(line))));
    } else if (name == "END") {
        end(upperAscii(Base::trimmed(valueOf(line))));
    } else if (m_tooDeep == 0) {
        keep(name, line, isCut);
    }
}

void Reader::begin(std::string component)
{
    if (m_open.size() >= kDeepest) {
        ++m_tooDeep;
        return;
    }
    m_isCalendar = m_isCalendar || component == "VCALENDAR";
    if (isInside("VEVENT") && component == "VEVENT") {
        // The one before was never closed.
        ++m_document.broken;
        m_open.pop_back();
    }
    if (component == "VEVENT" || component == "STANDARD" || component == "DAYLIGHT") {
        m_lines.clear();
        m_lineCount = 0;
        m_isBroken = false;
        m_uid.clear();
    } else if (component == "VTIMEZONE") {
        m_zone.clear();
        m_zoneRules.clear();
        m_isZoneBroken = false;
    }
    m_open.push_back(std::move(component));
}

void Reader::end(const std::string &component)
{
    if (m_tooDeep > 0) {
        --m_tooDeep;
        return;
    }
    if (!isInside(component)) {
        return;
    }
    m_open.pop_back();
    if (component == "VEVENT") {
        finishEvent();
    } else if (component == "STANDARD" || component == "DAYLIGHT") {
        finishZoneRule();
    } else if (component == "VTIMEZONE" && !m_zone.empty() && !m_isZoneBroken &&
               !m_zoneRules.empty() && m_document.zones.size() < kMostZones) {
        m_document.zones.emplace(m_zone, std::move(m_zoneRules));
    }
}

void Reader::keep(const std::string &name, const std::string &line, bool isCut)
{
    const std::string_view value = valueOf(line);
    if (isInside("VCALENDAR") && name == "X-WR-CALNAME") {
        m_document.name = shown(std::string{value});
    } else if (isInside("VTIMEZONE") && name == "TZID") {
        m_zone = value;
    } else if (isInside("VEVENT") && name == "UID") {
        m_uid = value; // as it is: only compared
    } else if ((isInside("VEVENT") || isInside("STANDARD") || isInside("DAYLIGHT")) &&
               !Base::trimmed(value).empty() &&
               std::ranges::find(kWanted, name) != kWanted.end()) {
        m_isBroken = m_isBroken || isCut || ++m_lineCount > kMostLines ||
                     line.find('\0') != std::string::npos;
        if (!m_isBroken) {
            m_lines += line + "\r\n";
        }
    }
}

std::optional<EventText> Reader::parsed()
{
    return m_isBroken ? std::nullopt
                      : m_parser.event("BEGIN:VEVENT\r\n" + m_lines + "END:VEVENT\r\n");
}

void Reader::finishEvent()
{
    if (m_document.events.size() + m_document.broken >= kMostEvents) {
        ++m_document.beyond;
        return;
    }
    auto event = parsed();
    if (!event || !keepsRules(*event)) {
        ++m_document.broken;
        return;
    }
    event->uid = shown(m_uid);
    event->title = shown(event->title);
    event->place = shown(event->place);
    m_document.events.push_back(*std::move(event));
}

void Reader::finishZoneRule()
{
    auto rule = parsed();
    if (!rule || !rule->offsetFrom || !rule->offsetTo || m_zoneRules.size() >= kMostZoneRules) {
        m_isZoneBroken = true;
        return;
    }
    m_zoneRules.push_back(*std::move(rule));
}

// Of several editions of one event, or of one date of a series, the latest.
void keepLatest(std::vector<EventText> &events)
{
    using Key = std::tuple<std::string, std::int64_t, bool>;
    std::map<Key, std::size_t> places;
    std::vector<EventText> latest;
    for (EventText &event : events) {
        const Key key{event.uid, event.replaces ? event.replaces->wall : 0,
                      event.replaces.has_value()};
        const auto [place, isNew] = event.uid.empty() ? std::pair{places.end(), true}
                                                      : places.try_emplace(key, latest.size());
        if (isNew) {
            latest.push_back(std::move(event));
        } else if (event.sequence >= latest[place->second].sequence) {
            latest[place->second] = std::move(event);
        }
    }
    events = std::move(latest);
}

Result<CalendarDocument> Reader::finish()
{
    if (!m_isCalendar) {
        return std::unexpected(KestError::invalidData("it is no calendar"));
    }
    if (std::ranges::find(m_open, "VEVENT") != m_open.end()) {
        ++m_document.broken; // the file ends within it
    }
    keepLatest(m_document.events);
    return std::move(m_document);
}

} // namespace

Result<CalendarDocument> readCalendar(std::string_view bytes, EventParser &parser)
{
    if (bytes.size() > kLargestFile) {
        return std::unexpected(KestError::invalidData("it is larger than 16 MB"));
    }
    ContentLines lines{bytes};
    Reader reader{parser};
    std::string line;
    while (lines.next(line)) {
        reader.take(line, lines.isCut());
    }
    return reader.finish();
}

} // namespace CalendarFiles
