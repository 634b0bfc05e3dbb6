// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/HistoryTotals.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr std::array<std::int64_t, HistoryTotals::kPeriods - 1> kDaysOf{1, 7, 30};

using Totals = std::array<PeriodTotal, HistoryTotals::kPeriods>;

void add(Totals &totals, std::int64_t age, std::int64_t count)
{
    for (std::size_t period = 0; period < totals.size(); ++period) {
        if (period >= kDaysOf.size() || age < kDaysOf.at(period)) {
            totals.at(period).count += count;
            ++totals.at(period).sessions;
        }
    }
}

// Sessions come in the order of time, so the date is looked up once a day and not once each.
class DayFinder
{
public:
    explicit DayFinder(const KestCore::Calendar &calendar) : m_calendar{calendar} {}

    std::int64_t dayOf(Base::Instant instant)
    {
        if (instant < m_begin || instant >= m_end) {
            m_day = m_calendar.dayNumber(instant);
            m_begin = instant;
            m_end = m_calendar.nextDateChange(instant);
        }
        return m_day;
    }

private:
    const KestCore::Calendar &m_calendar;
    std::int64_t m_day = 0;
    Base::Instant m_begin{};
    Base::Instant m_end{};
};

} // namespace

HistoryTotals historyTotals(const Base::SharedList<KestCore::SessionRecord> &records,
                            const KestCore::Calendar &calendar, Base::Instant now)
{
    HistoryTotals result;
    std::unordered_map<std::string_view, Totals> phrases;
    DayFinder days{calendar};
    const std::int64_t today = calendar.dayNumber(now);
    for (const KestCore::SessionRecord &record : records) {
        const std::int64_t day = days.dayOf(Base::fromMilliseconds1970(record.endedAt));
        const std::int64_t age = std::max(today - day, std::int64_t{0});
        add(result.total, age, record.count);
        add(phrases[record.dhikrId], age, record.count);
        if (age < std::ssize(result.days)) {
            result.days.at(result.days.size() - 1 - static_cast<std::size_t>(age)) +=
                record.count;
        }
    }
    for (std::size_t period = 0; period < result.byPhrase.size(); ++period) {
        auto &list = result.byPhrase.at(period);
        for (const auto &[id, totals] : phrases) {
            if (totals.at(period).sessions > 0) {
                list.push_back({.phraseId = std::string{id}, .total = totals.at(period)});
            }
        }
        std::ranges::sort(list, [](const PhraseTotal &one, const PhraseTotal &other) {
            return std::pair{-one.total.count, std::string_view{one.phraseId}} <
                   std::pair{-other.total.count, std::string_view{other.phraseId}};
        });
    }
    return result;
}

} // namespace Velvetnook
