// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/ScreenTimeTotals.h"

#include "Base/Text.h"
#include "KestCore/Models/UtilityPayloads.h"

#include <algorithm>

namespace KestCore
{

namespace
{

namespace chrono = std::chrono;

constexpr const char *kKind = "usage";
constexpr const char *kStretch = "longestStretch"; // whole seconds
constexpr double kLongestDay = 25.0 * 3600.0;      // a day on the way west may hold more
constexpr std::size_t kLongestName = 200;          // characters

std::string dayText(std::int64_t day)
{
    // The date as ISO 8601 has it, of an instant of that day.
    const auto noon = Base::fromSeconds1970(static_cast<double>(day) * 86'400 + 43'200);
    return Base::toIso8601(noon).value_or(std::string(10, '0')).substr(0, 10);
}

double stretchOf(const LocalRecord &record)
{
    const auto found = record.extra.find(kStretch);
    return found == record.extra.end() ? 0
                                       : Base::numberFrom<double>(found->second).value_or(0);
}

// What one record says.
struct Usage {
    ApplicationUsage usage{};
    std::string name{};
    double stretch{};
};

std::vector<Usage> usagesOf(std::span<const LocalRecord> records)
{
    std::vector<Usage> read;
    for (const LocalRecord &record : records) {
        if (record.kind == kKind) {
            read.push_back({.usage = payloadOf<ApplicationUsage>(record),
                            .name = record.title,
                            .stretch = stretchOf(record)});
        }
    }
    return read;
}

LocalRecord recordFor(std::span<const LocalRecord> stored, const UsagePiece &piece)
{
    const std::string application{
        Base::firstCharacters(Base::printable(piece.application.id), kLongestName)};
    const std::string name{
        Base::firstCharacters(Base::printable(piece.application.name), kLongestName)};
    const std::string day = dayText(piece.day);
    const std::string id = "usage:" + day + ":" + application;
    const auto known = std::ranges::find(stored, id, &LocalRecord::id);
    LocalRecord record = known == stored.end() ? LocalRecord{.id = id, .kind = kKind} : *known;
    record.title = name.empty() ? application : name;
    ApplicationUsage usage = payloadOf<ApplicationUsage>(record);
    usage.application = application;
    usage.day = day;
    usage.seconds = std::min(kLongestDay, usage.seconds + piece.seconds.count());
    record.body = json::encode(usage).value_or(record.body);
    const double stretch = std::max(stretchOf(record), piece.stretch.count());
    record.extra[kStretch] = std::to_string(static_cast<std::int64_t>(stretch));
    return record;
}

void addTo(std::vector<ApplicationTotal> &totals, const Usage &usage)
{
    const auto known =
        std::ranges::find(totals, usage.usage.application, &ApplicationTotal::application);
    if (known == totals.end()) {
        totals.push_back({.application = usage.usage.application,
                          .name = usage.name,
                          .seconds = usage.usage.seconds});
    } else {
        known->seconds += usage.usage.seconds;
    }
}

void sortByTime(std::vector<ApplicationTotal> &totals)
{
    std::ranges::sort(totals, [](const ApplicationTotal &a, const ApplicationTotal &b) {
        return a.seconds != b.seconds ? a.seconds > b.seconds : a.application < b.application;
    });
}

// The seconds of some days, and nothing where nothing is known of them.
std::optional<double> secondsOf(const std::vector<Usage> &usages, std::int64_t first,
                                std::int64_t last)
{
    std::optional<double> seconds;
    for (const Usage &usage : usages) {
        if (usage.usage.day >= dayText(first) && usage.usage.day <= dayText(last)) {
            seconds = seconds.value_or(0) + usage.usage.seconds;
        }
    }
    return seconds;
}

std::int64_t numberOf(LocalDate date)
{
    return chrono::sys_days{date}.time_since_epoch().count();
}

} // namespace

RecordChanges usageChanges(std::span<const LocalRecord> stored,
                           std::span<const UsagePiece> pieces, std::int64_t today,
                           Base::Instant now)
{
    RecordChanges changes;
    for (const UsagePiece &piece : pieces) {
        LocalRecord record = recordFor(stored, piece);
        record.updated = Base::milliseconds1970(now);
        changes.written.push_back(std::move(record));
    }
    const std::string earliest = dayText(today - kKeptUsageDays);
    for (const LocalRecord &record : stored) {
        if (record.kind == kKind && payloadOf<ApplicationUsage>(record).day < earliest) {
            changes.removed.push_back(record.id);
        }
    }
    return changes;
}

std::vector<UsageDay> usageDays(std::span<const LocalRecord> records, LocalDate last, int count)
{
    const auto usages = usagesOf(records);
    std::vector<UsageDay> days;
    for (std::int64_t number = numberOf(last) - count + 1; number <= numberOf(last); ++number) {
        UsageDay day{.date = chrono::sys_days{chrono::days{number}}};
        const std::string text = dayText(number);
        for (const Usage &usage : usages) {
            if (usage.usage.day == text) {
                day.seconds += usage.usage.seconds;
                day.longestStretch = std::max(day.longestStretch, usage.stretch);
                addTo(day.applications, usage);
            }
        }
        sortByTime(day.applications);
        if (const auto before = secondsOf(usages, number - 1, number - 1)) {
            day.change = day.seconds - *before;
        }
        days.push_back(std::move(day));
    }
    return days;
}

UsageTotal usageTotal(std::span<const LocalRecord> records, LocalDate last, int count,
                      int daysBack)
{
    const auto usages = usagesOf(records);
    const std::int64_t end = numberOf(last);
    const std::int64_t begin = end - count + 1;
    UsageTotal total{.seconds = secondsOf(usages, begin, end).value_or(0)};
    for (const Usage &usage : usages) {
        if (usage.usage.day >= dayText(begin) && usage.usage.day <= dayText(end)) {
            addTo(total.applications, usage);
        }
    }
    sortByTime(total.applications);
    if (const auto before = secondsOf(usages, begin - daysBack, end - daysBack)) {
        total.change = total.seconds - *before;
    }
    return total;
}

} // namespace KestCore
