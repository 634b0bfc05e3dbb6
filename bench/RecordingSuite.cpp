// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/HistoryItems.h"
#include "MonitorCore/MonitorHistoryStore.h"
#include "MonitorLinux/LinuxCollector.h"
#include "bench/Bench.h"
#include "bench/RawHistory.h"

#include <malloc.h>
#include <sys/resource.h>

namespace Bench
{

namespace
{

using MonitorCore::MonitorHistoryStore;

constexpr double kStart = 1'699'920'000; // a midnight
constexpr double kPace = 10;             // seconds between two samples
constexpr double kMostOfACore = 0.001;
constexpr int kWarmUp = 20'000; // more than two days: the history's own cache is full then
constexpr int kSamples = 100'000;
constexpr int kFloorSamples = 1'000;
constexpr std::int64_t kDaysKept = 1;

double heldBytes() { return static_cast<double>(::mallinfo2().uordblks); }

// Records this machine in the background as if time flew, with the maintenance of each hour.
class Recorder
{
public:
    explicit Recorder(const std::filesystem::path &file)
        : m_store(must(MonitorHistoryStore::open(file)))
    {
    }

    void record(int samples)
    {
        for (int at = 0; at < samples; ++at) {
            m_time += kPace;
            m_last = m_collector
                         .sample(MonitorCore::SampleScope::system,
                                 Base::fromSeconds1970(kStart + m_time))
                         .snapshot;
            must(m_store.record(m_last));
            if (m_time - m_maintained >= MonitorCore::kMaintenanceSeconds) {
                must(m_store.maintain(m_last.timestamp, kDaysKept));
                m_maintained = m_time;
            }
        }
    }

    const MonitorCore::MonitorSnapshot &last() const { return m_last; }

private:
    MonitorHistoryStore m_store;
    double m_time{};
    double m_maintained{};
    MonitorCore::MonitorSnapshot m_last{};
    MonitorLinux::LinuxCollector m_collector{"/", [this] { return m_time; }};
};

// The floor: bare inserts of the rows of one sample.
double cpuOfInserts(const MonitorCore::MonitorSnapshot &snapshot)
{
    RawHistory raw{freshFolder("inserts") / "raw.sqlite"};
    std::vector<RawHistory::Row> rows;
    for (const auto &item : MonitorCore::historyItems(snapshot, {}, {})) {
        rows.push_back({.bucket = static_cast<std::int64_t>(item.end) / 60 * 60,
                        .app = item.app,
                        .metric = Base::textOf(item.metric),
                        .value = item.value,
                        .covered = item.duration});
    }
    const double start = cpuSeconds(RUSAGE_SELF);
    for (int at = 0; at < kFloorSamples; ++at) {
        raw.insert(rows);
    }
    return (cpuSeconds(RUSAGE_SELF) - start) / kFloorSamples;
}

} // namespace

std::vector<Row> recordingSuite()
{
    Recorder recorder{freshFolder("recording") / "history.sqlite"};
    recorder.record(kWarmUp);
    const double held = heldBytes();
    const double start = cpuSeconds(RUSAGE_SELF);
    recorder.record(kSamples);
    const double cpu = (cpuSeconds(RUSAGE_SELF) - start) / kSamples;
    const double grown = std::max(0.0, heldBytes() - held);
    return {durationRow("cpu of recording the machine, a sample each 10 s",
                        {.value = cpu, .floor = cpuOfInserts(recorder.last())},
                        kMostOfACore * kPace),
            memoryRow("growth of memory over 100,000 of them", grown, held, 100'000)};
}

} // namespace Bench
