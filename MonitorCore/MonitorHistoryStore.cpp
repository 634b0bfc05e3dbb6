// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorHistoryStore.h"

#include "Base/JsonWriter.h"
#include "MonitorCore/CounterRate.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace Base::json
{

using namespace MonitorCore;
template Result<std::string> encode(const HistoryPoint &);
template Result<std::string> encode(const std::vector<HistoryPoint> &);
template Result<std::string> encode(const std::vector<HistoryCause> &);

} // namespace Base::json

namespace MonitorCore
{

namespace fs = std::filesystem;

using Base::KestError;

namespace
{

constexpr std::string_view kInsert =
    "INSERT INTO samples(t,res,app,metric,total,weight,peak) VALUES(?,60,?,?,?,?,?) ON "
    "CONFLICT(t,res,app,metric) DO UPDATE SET "
    "total=total+excluded.total,weight=weight+excluded.weight,peak=MAX(peak,excluded.peak)";
constexpr std::string_view kReadSeries =
    "SELECT t,total/weight,peak,weight,res FROM samples WHERE app=? AND metric=? AND t>=? AND "
    "t<=? AND weight>0 ORDER BY t LIMIT 5000";
constexpr std::string_view kReadCauses =
    "SELECT app,total/weight,peak FROM samples WHERE t=? AND res=? AND app<>'' AND metric=? "
    "AND weight>0 ORDER BY peak DESC,app LIMIT ?";
constexpr std::string_view kReadShares =
    "SELECT app,t,total/weight,weight FROM samples WHERE app<>'' AND metric=? AND res=60 AND "
    "t>=? AND t<=? AND weight>0 ORDER BY t,app";
constexpr std::string_view kReadRange = "SELECT MIN(t),MAX(t) FROM samples";
constexpr std::string_view kReadUsedBytes =
    "SELECT (page_count-freelist_count)*page_size FROM "
    "pragma_page_count(),pragma_freelist_count(),pragma_page_size()";
constexpr const char *kDeleteOldest =
    "DELETE FROM samples WHERE t IN (SELECT DISTINCT t FROM samples ORDER BY t LIMIT 60)";
constexpr const char *kShrink =
    "PRAGMA wal_checkpoint(TRUNCATE); PRAGMA incremental_vacuum; PRAGMA "
    "wal_checkpoint(TRUNCATE)";
constexpr const char *kClear = "DELETE FROM samples; PRAGMA wal_checkpoint(TRUNCATE); VACUUM;";

constexpr std::string_view kSetAside =
    "Monitor history: The file could not be used. It was set aside as {} and a new history "
    "was begun.";
constexpr std::string_view kTakenAway =
    "Monitor history: The file was taken away. A new history was begun.";
constexpr std::string_view kErrorPrefix = "Monitor history: ";
constexpr std::string_view kRecorder = "The monitor's recorder";
constexpr std::string_view kCannotSave = "Could not save a sample";
constexpr std::string_view kCannotRead = "Could not read samples";

// Makes a failure of the database a MonitorStorageError. What the file system said is told
// apart by its kind and handed on as it stands.
KestError monitorStorageError(KestError error)
{
    if (error.kind == KestError::Kind::storage) {
        error.message.insert(0, kErrorPrefix);
    }
    return error;
}

// What `make` makes of each row.
template <class Make>
auto collect(Base::Statement &rows, Make make)
    -> Result<std::vector<std::invoke_result_t<Make, Base::Statement &>>>
{
    std::vector<std::invoke_result_t<Make, Base::Statement &>> all;
    auto hasRow = rows.step();
    for (; hasRow && *hasRow; hasRow = rows.step()) {
        all.push_back(make(rows));
    }
    if (!hasRow) {
        return historyFailure(kCannotRead);
    }
    return all;
}

// Shares the item out among the minutes that it covers.
Result<void> writeItem(Base::Statement &insert, const HistoryItem &item)
{
    double position = item.end - item.duration;
    if (!(item.duration > 0 && item.duration <= kLongestGapSeconds && position < item.end)) {
        return {};
    }
    const std::string_view metric = Base::textOf(item.metric);
    while (position < item.end) {
        const double bucket = std::floor(position / 60) * 60;
        const double covered = std::min(bucket + 60, item.end) - position;
        if (covered <= 0) {
            break;
        }
        insert.bind(static_cast<std::int64_t>(bucket), item.app, metric, item.value * covered,
                    covered, item.value);
        if (const auto stepped = insert.step(); !stepped || *stepped) {
            return historyFailure(kCannotSave);
        }
        position += covered;
    }
    return {};
}

Result<void> rollUp(Base::Database &db, Base::Instant now, std::int64_t retentionDays)
{
    constexpr double kDay = 86'400;
    const double seconds = Base::seconds1970(now);
    const auto days = static_cast<double>(std::clamp<std::int64_t>(retentionDays, 1, 30));
    const auto keepFrom = static_cast<std::int64_t>(std::floor(seconds - days * kDay));
    const auto rollUpBefore =
        static_cast<std::int64_t>(std::floor((seconds - kDay) / 900) * 900);
    KEST_CHECK(db.runScript("BEGIN IMMEDIATE"));
    auto outcome = db.runScript(
        fmt::format("DELETE FROM samples WHERE t<{0}; INSERT INTO "
                    "samples(t,res,app,metric,total,weight,peak) SELECT "
                    "(t/900)*900,900,app,metric,SUM(total),SUM(weight),MAX(peak) FROM samples "
                    "WHERE res=60 AND t<{1} GROUP BY (t/900)*900,app,metric ON "
                    "CONFLICT(t,res,app,metric) DO UPDATE SET "
                    "total=total+excluded.total,weight=weight+excluded.weight,"
                    "peak=MAX(peak,excluded.peak); DELETE FROM samples WHERE res=60 AND "
                    "t<{1}; COMMIT;",
                    keepFrom, rollUpBefore)
            .c_str());
    if (!outcome) {
        db.rollBack();
    }
    return outcome;
}

Result<bool> fits(Base::Database &db, std::int64_t byteLimit)
{
    KEST_TRY(auto rows, db.prepare(kReadUsedBytes, kCannotPrepare));
    KEST_TRY(const bool hasRow, rows.step());
    return byteLimit >= (hasRow ? rows.integer(0) : 0);
}

Result<void> holdToSize(Base::Database &db, std::int64_t byteLimit)
{
    while (true) {
        KEST_TRY(const bool isHeld, fits(db, byteLimit));
        const std::int64_t changesBefore = db.totalChanges();
        if (isHeld) {
            return {};
        }
        KEST_CHECK(db.runScript(kDeleteOldest));
        if (db.totalChanges() == changesBefore) {
            return {}; // an empty history is as small as it can be
        }
    }
}

} // namespace

Result<MonitorHistoryStore> MonitorHistoryStore::open(const fs::path &url)
{
    MonitorHistoryStore store{url};
    KEST_CHECK(Base::makePrivateDirectory(url.parent_path()));
    KEST_TRY(store.m_lock, Base::FileLock::take(url.parent_path() / kRecorderLockName,
                                                kRecorder, std::chrono::milliseconds{0}));
    if (auto opened = store.use(openOrReplaceHistoryFile(url)); !opened) {
        return std::unexpected(monitorStorageError(std::move(opened).error()));
    }
    return store;
}

Result<MonitorHistoryStore> MonitorHistoryStore::openToRead(const fs::path &url)
{
    MonitorHistoryStore store{url};
    if (auto opened = store.use(openHistoryFile(url)); !opened) {
        return std::unexpected(monitorStorageError(std::move(opened).error()));
    }
    return store;
}

Result<void> MonitorHistoryStore::use(Result<HistoryFile> file)
{
    if (!file) {
        return std::unexpected(std::move(file).error());
    }
    m_db = std::move(file->database);
    m_identity = Base::fileIdentity(m_url);
    if (!file->setAside.empty()) {
        m_notice = fmt::format(kSetAside, file->setAside);
    }
    return {};
}

// Before the file is moved, or after: neither it nor a log of its name is to be changed now.
void MonitorHistoryStore::close()
{
    if (m_db) {
        m_db->leaveLog();
    }
    m_insert.reset();
    m_db.reset();
}

// Without a new file every later operation says that there is none.
void MonitorHistoryStore::setDamagedAside()
{
    close();
    if (const auto replaced = use(replaceHistoryFile(m_url)); !replaced) {
        m_notice = monitorStorageError(replaced.error()).message;
    }
}

// A file that was renamed or removed would be written to for ever, and nobody would find it.
void MonitorHistoryStore::followTheFile()
{
    if (m_db && Base::fileIdentity(m_url) == m_identity) {
        return;
    }
    close();
    if (use(openOrReplaceHistoryFile(m_url)) && !m_notice) {
        m_notice = kTakenAway;
    }
}

template <class Operation>
auto MonitorHistoryStore::guarded(Operation operation)
    -> std::invoke_result_t<Operation, Base::Database &>
{
    if (!m_db) {
        return std::unexpected(monitorStorageError(historyFailure(kCannotOpen).error()));
    }
    auto result = operation(*m_db);
    if (!result) {
        if (m_db->isDamaged()) {
            if (!m_lock) {
                return std::unexpected(monitorStorageError(historyFailure(kUnusable).error()));
            }
            setDamagedAside();
        }
        return std::unexpected(monitorStorageError(std::move(result).error()));
    }
    return result;
}

Result<void> MonitorHistoryStore::record(const MonitorSnapshot &snapshot)
{
    if (!(snapshot.interval > 0 && snapshot.interval <= kLongestGapSeconds)) {
        return {};
    }
    followTheFile();
    const auto items = historyItems(snapshot, m_spikes.update(snapshot), m_lastAdvanced);
    KEST_CHECK(guarded([&](Base::Database &db) { return write(db, items); }));
    if (snapshot.advancedTimestamp) {
        m_lastAdvanced = snapshot.advancedTimestamp;
    }
    return {};
}

Result<void> MonitorHistoryStore::write(Base::Database &db,
                                        const std::vector<HistoryItem> &items)
{
    if (!m_insert) {
        KEST_TRY(Base::Statement prepared, db.prepare(kInsert, kCannotPrepare));
        m_insert.emplace(std::move(prepared));
    }
    Base::Statement &insert = *m_insert;
    return db.transaction([&]() -> Result<void> {
        for (const HistoryItem &item : items) {
            KEST_CHECK(writeItem(insert, item));
        }
        return {};
    });
}

Result<std::vector<HistoryPoint>> MonitorHistoryStore::history(std::string_view app,
                                                               MetricID metric,
                                                               Base::Instant from,
                                                               Base::Instant to)
{
    return guarded([&](Base::Database &db) -> Result<std::vector<HistoryPoint>> {
        KEST_TRY(auto rows, db.prepare(kReadSeries, kCannotPrepare));
        rows.bind(app, Base::textOf(metric), Base::seconds1970(from), Base::seconds1970(to));
        return collect(rows, [](const Base::Statement &row) {
            return HistoryPoint{.date =
                                    Base::fromSeconds1970(static_cast<double>(row.integer(0))),
                                .value = row.real(1),
                                .peak = row.real(2),
                                .coverage = row.real(3),
                                .resolution = row.integer(4)};
        });
    });
}

Result<std::vector<HistoryCause>> MonitorHistoryStore::causes(MetricID metric,
                                                              const HistoryPoint &point)
{
    return guarded([&](Base::Database &db) -> Result<std::vector<HistoryCause>> {
        KEST_TRY(auto rows, db.prepare(kReadCauses, kCannotPrepare));
        rows.bind(static_cast<std::int64_t>(Base::seconds1970(point.date)), point.resolution,
                  Base::textOf(metric), static_cast<std::int64_t>(kCausesKept));
        return collect(rows, [](const Base::Statement &row) {
            return HistoryCause{
                .app = std::string{row.text(0)}, .value = row.real(1), .peak = row.real(2)};
        });
    });
}

Result<std::vector<HistoryShare>>
MonitorHistoryStore::shares(MetricID metric, Base::Instant from, Base::Instant to)
{
    return guarded([&](Base::Database &db) -> Result<std::vector<HistoryShare>> {
        KEST_TRY(auto rows, db.prepare(kReadShares, kCannotPrepare));
        rows.bind(Base::textOf(metric), Base::seconds1970(from), Base::seconds1970(to));
        return collect(rows, [](const Base::Statement &row) {
            return HistoryShare{.app = std::string{row.text(0)},
                                .date =
                                    Base::fromSeconds1970(static_cast<double>(row.integer(1))),
                                .value = row.real(2),
                                .coverage = row.real(3)};
        });
    });
}

Result<std::optional<HistoryRange>> MonitorHistoryStore::range()
{
    return guarded([&](Base::Database &db) -> Result<std::optional<HistoryRange>> {
        KEST_TRY(auto rows, db.prepare(kReadRange, kCannotPrepare));
        KEST_TRY(const bool hasRow, rows.step());
        if (!hasRow || rows.isNull(0)) {
            return std::nullopt;
        }
        return HistoryRange{.from = Base::fromSeconds1970(static_cast<double>(rows.integer(0))),
                            .to = Base::fromSeconds1970(static_cast<double>(rows.integer(1)))};
    });
}

std::uintmax_t MonitorHistoryStore::size() const
{
    std::uintmax_t bytes = 0;
    for (const char *ending : kHistoryFileEndings) {
        std::error_code error;
        const auto size = fs::file_size(fs::path{m_url} += ending, error);
        bytes += error ? 0 : size;
    }
    return bytes;
}

Result<void> MonitorHistoryStore::maintain(Base::Instant now, std::int64_t retentionDays,
                                           std::int64_t byteLimit)
{
    return guarded([&](Base::Database &db) -> Result<void> {
        KEST_CHECK(rollUp(db, now, retentionDays));
        KEST_CHECK(holdToSize(db, byteLimit));
        return db.runScript(kShrink);
    });
}

Result<void> MonitorHistoryStore::clear()
{
    return guarded([&](Base::Database &db) { return db.runScript(kClear); });
}

} // namespace MonitorCore
