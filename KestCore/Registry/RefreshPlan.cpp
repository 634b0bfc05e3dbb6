// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Registry/RefreshPlan.h"

#include <algorithm>
#include <utility>

namespace KestCore
{

std::optional<RefreshPlan::Start> RefreshPlan::request(const std::string &key,
                                                       Base::Instant now,
                                                       Base::Seconds lifetime, Waiter waiter)
{
    Entry &entry = m_entries[key];
    const Base::Seconds age = now - entry.cachedAt;
    if (entry.cached && age >= Base::Seconds{0} && age < lifetime) {
        waiter(entry.cached);
        return std::nullopt;
    }
    entry.waiters.push_back(std::move(waiter));
    if (entry.running) {
        return std::nullopt;
    }
    return Start{entry.generation, entry.running.emplace().get_token()};
}

void RefreshPlan::finish(const std::string &key, std::uint64_t generation,
                         Result<Base::Bytes> result, Base::Instant now)
{
    const auto found = m_entries.find(key);
    if (found == m_entries.end() || found->second.generation != generation) {
        return;
    }
    Entry &entry = found->second;
    entry.running.reset();
    if (!result) {
        answer(entry, std::unexpected(result.error()));
        return;
    }
    entry.cached = std::make_shared<const Base::Bytes>(*std::move(result));
    entry.cachedAt = now;
    answer(entry, entry.cached);
    trimCache();
}

void RefreshPlan::cancel(const std::string &key)
{
    const auto found = m_entries.find(key);
    if (found != m_entries.end()) {
        stop(found->second);
    }
}

void RefreshPlan::cancelAll()
{
    for (auto &[key, entry] : m_entries) {
        stop(entry);
    }
}

void RefreshPlan::stop(Entry &entry)
{
    ++entry.generation;
    if (entry.running) {
        entry.running->request_stop();
        entry.running.reset();
    }
    answer(entry, std::unexpected(Base::KestError::unavailable("The refresh was cancelled.")));
}

// A waiter may ask again at once, so it must find no list that is being walked.
void RefreshPlan::answer(Entry &entry, const FetchAnswer &result)
{
    auto waiters = std::exchange(entry.waiters, {});
    for (Waiter &waiter : waiters) {
        waiter(result);
    }
}

// The oldest go first. Their entries stay: a generation must never start again from zero
// while a cancelled fetch may still come back.
void RefreshPlan::trimCache()
{
    std::vector<Entry *> cached;
    std::size_t bytes = 0;
    for (auto &[key, entry] : m_entries) {
        if (entry.cached) {
            cached.push_back(&entry);
            bytes += entry.cached->size();
        }
    }
    std::ranges::sort(cached, {}, &Entry::cachedAt);
    std::size_t count = cached.size();
    for (Entry *entry : cached) {
        if (count <= kMostCached && bytes <= kMostCachedBytes) {
            break;
        }
        bytes -= entry->cached->size();
        --count;
        entry->cached.reset();
    }
}

} // namespace KestCore
