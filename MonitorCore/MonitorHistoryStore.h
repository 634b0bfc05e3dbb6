// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileLock.h"
#include "MonitorCore/HistoryFile.h"
#include "MonitorCore/HistoryItems.h"

#include <filesystem>
#include <type_traits>

namespace MonitorCore
{

// One point of a history series.
struct HistoryPoint {
    Base::Instant date{};      // start of the bucket
    double value{};            // mean over the time covered
    double peak{};             // largest value in the bucket
    double coverage{};         // seconds of the bucket that samples cover
    std::int64_t resolution{}; // length of the bucket in seconds: 60 or 900

    bool operator==(const HistoryPoint &) const = default;
};

consteval auto jsonFields(Of<HistoryPoint>)
{
    using R = HistoryPoint;
    return std::tuple{
        json::Field{"date", &R::date},
        json::Field{"value", &R::value},
        json::Field{"peak", &R::peak},
        json::Field{"coverage", &R::coverage},
        json::Field{"resolution", &R::resolution},
    };
}
static_assert(json::coversAllMembers<HistoryPoint>());

// One application's part in a point of the machine's series.
struct HistoryCause {
    std::string app{};
    double value{}; // mean over the time covered
    double peak{};

    bool operator==(const HistoryCause &) const = default;
};

consteval auto jsonFields(Of<HistoryCause>)
{
    using R = HistoryCause;
    return std::tuple{json::Field{"app", &R::app}, json::Field{"value", &R::value},
                      json::Field{"peak", &R::peak}};
}
static_assert(json::coversAllMembers<HistoryCause>());

// One application's part in one minute.
struct HistoryShare {
    std::string app{};
    Base::Instant date{}; // start of the minute
    double value{};       // mean over the time covered
    double coverage{};    // seconds

    bool operator==(const HistoryShare &) const = default;
};

// From the first to the last bucket start that is stored.
struct HistoryRange {
    Base::Instant from{};
    Base::Instant to{};

    bool operator==(const HistoryRange &) const = default;
};

// How large the history may grow: a month in which a dozen applications are busy all the time.
inline constexpr std::int64_t kHistoryByteLimit = 67'108'864;
// The owner maintains the history when it opens it for recording and then this often: a roll-up
// reads every older row, so doing it each quarter of an hour would cost more than it saves.
inline constexpr double kMaintenanceSeconds = 3'600;

// Keeps every metric a minute at a time, folds minutes older than a day into quarters of an
// hour, and holds its file to an age and a size. Has no mutex: for one thread, or in a Serial.
//
// A failure of the database is a MonitorStorageError, which is a KestError of kind storage
// whose message begins "Monitor history: "; it leaves the history as it was. A file that is
// damaged, or is no history, is never deleted: who records sets it aside under a new name, and
// a new history takes its place (see `takeNotice`); who only reads is told, and leaves it.
class MonitorHistoryStore
{
public:
    // For recording; fails with unavailable while another has it open so. Creates the folder
    // and the file when they are missing, readable for the user only.
    [[nodiscard]] static Result<MonitorHistoryStore> open(const std::filesystem::path &url);

    // For looking at what was recorded, also while somebody records.
    [[nodiscard]] static Result<MonitorHistoryStore>
    openToRead(const std::filesystem::path &url);

    MonitorHistoryStore(const MonitorHistoryStore &) = delete;
    MonitorHistoryStore &operator=(const MonitorHistoryStore &) = delete;
    MonitorHistoryStore(MonitorHistoryStore &&) = default;
    MonitorHistoryStore &operator=(MonitorHistoryStore &&) = delete; // wrong order of closing
    ~MonitorHistoryStore() = default;

    // Adds one snapshot's values. One whose interval is 0, or above 90 seconds, is passed over.
    // Begins a new file when somebody has taken the old one away.
    [[nodiscard]] Result<void> record(const MonitorSnapshot &snapshot);

    // One series, oldest first, at most 5,000 points; `app` is kSystemKey for the machine.
    [[nodiscard]] Result<std::vector<HistoryPoint>>
    history(std::string_view app, MetricID metric, Base::Instant from, Base::Instant to);

    // What caused the height of a point: the five applications whose figures went highest in
    // its bucket, highest first. Where the machine's series jumps these are always there, as
    // ordinary application rows of that minute; they go through roll-up and retention like
    // all others. None for a metric that applications have not.
    [[nodiscard]] Result<std::vector<HistoryCause>> causes(MetricID metric,
                                                           const HistoryPoint &point);

    // What every application had of a metric, minute by minute, oldest first. Minutes are kept
    // for a day, so there is none of what is older.
    [[nodiscard]] Result<std::vector<HistoryShare>> shares(MetricID metric, Base::Instant from,
                                                           Base::Instant to);

    [[nodiscard]] Result<std::optional<HistoryRange>> range();

    // Bytes on disk: the database and its two side files.
    std::uintmax_t size() const;

    // Rolls up, deletes what is older than 1 to 30 days, and the oldest until the rest is no
    // more than `byteLimit`.
    [[nodiscard]] Result<void> maintain(Base::Instant now, std::int64_t retentionDays,
                                        std::int64_t byteLimit = kHistoryByteLimit);

    // Deletes all history; the store stays open.
    [[nodiscard]] Result<void> clear();

    // What the user should be told once, such as that an unusable file was set aside, and as
    // what.
    std::optional<std::string> takeNotice() { return std::exchange(m_notice, std::nullopt); }

private:
    explicit MonitorHistoryStore(std::filesystem::path url) : m_url(std::move(url)) {}

    // Runs one operation. Sets the file aside when it turns out to be damaged, and makes a
    // storage error the monitor's own.
    template <class Operation>
    auto guarded(Operation operation) -> std::invoke_result_t<Operation, Base::Database &>;

    Result<void> use(Result<HistoryFile> file);
    void close();
    void setDamagedAside();
    void followTheFile();
    Result<void> write(Base::Database &db, const std::vector<HistoryItem> &items);

    std::filesystem::path m_url;
    std::optional<Base::FileLock> m_lock{}; // who only reads has none
    std::optional<Base::FileIdentity> m_identity{};
    std::optional<Base::Database> m_db{};      // none when its file could not be replaced
    std::optional<Base::Statement> m_insert{}; // goes before the database
    SpikeDetector m_spikes{};
    std::optional<Base::Instant>
        m_lastAdvanced{}; // of the privileged sampler's figures that were stored
    std::optional<std::string> m_notice{};
};

} // namespace MonitorCore
