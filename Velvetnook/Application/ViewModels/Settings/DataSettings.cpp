// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/DataSettings.h"

#include "Base/File.h"
#include "KestCore/Store/Backup.h"
#include "KestCore/Store/StoreLocation.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"

#include <QCoreApplication>
#include <QPointer>
#include <QStandardPaths>
#include <QThreadPool>

#include <numeric>
#include <optional>

namespace Velvetnook
{

namespace
{

using KestCore::StateStore;

// Written out below, as the translators' tool reads only what stands in a call.
static_assert(KestCore::kReplaceTitle == "Replace local data?");
static_assert(KestCore::kReplaceText == "This replaces devotional and portable tool data.");

constexpr std::size_t kPieceSize = std::size_t{256} * 1024;

struct Exported {
    std::int64_t records{};
    std::size_t bytes{};
};

// Gathers small pieces, as most records are much smaller than a write is dear.
Result<Exported> writeBackup(StateStore &store, const std::filesystem::path &target,
                             Base::Instant now)
{
    KEST_TRY(auto file, Base::ReplacingFile::create(target));
    std::string gathered;
    Exported exported;
    const auto flush = [&]() -> Result<void> {
        exported.bytes += gathered.size();
        KEST_CHECK(file.write(gathered));
        gathered.clear();
        return {};
    };
    KEST_TRY(exported.records, store.exportBackup(now, [&](std::string_view piece) {
        gathered += piece;
        return gathered.size() < kPieceSize ? Result<void>{} : flush();
    }));
    KEST_CHECK(flush());
    KEST_CHECK(file.commit());
    return exported;
}

Result<std::shared_ptr<const KestCore::Backup>> readBackup(const std::filesystem::path &file)
{
    KEST_TRY(std::string bytes, Base::readFile(file, KestCore::kLargestBackup));
    KEST_TRY(auto backup, KestCore::Backup::read(std::move(bytes)));
    return std::make_shared<const KestCore::Backup>(std::move(backup));
}

std::int64_t sum(const std::map<std::string, std::int64_t> &counts)
{
    return std::accumulate(
        counts.begin(), counts.end(), std::int64_t{0},
        [](std::int64_t total, const auto &entry) { return total + entry.second; });
}

QString messageOf(const Result<void> &result)
{
    return result ? QString{} : engineText(result.error().message);
}

} // namespace

// What an import would replace, and by what.
struct DataSettings::Reading {
    std::shared_ptr<const KestCore::Backup> backup{};
    std::int64_t recordsHere{};
    std::int64_t sessionsHere{};
};

DataSettings::DataSettings(ApplicationModel &model, const Formatting &formatting,
                           QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
}

DataSettings::~DataSettings() = default;

QString DataSettings::folder() const
{
    return QString::fromStdString(KestCore::dataDirectory().string());
}

QUrl DataSettings::suggestedFile() const
{
    const QString documents =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QUrl::fromLocalFile(documents + u'/' + fromView(KestCore::kBackupName));
}

QString DataSettings::questionTitle() const
{
    if (m_question == QLatin1String{"import"}) {
        return tr("Replace local data?");
    }
    return m_question == QLatin1String{"clear"} ? tr("Clear the history?")
                                                : tr("Reset everything?");
}

QString DataSettings::questionBody() const
{
    if (m_question == QLatin1String{"import"}) {
        return m_importBody;
    }
    return m_question == QLatin1String{"clear"}
               ? tr("Finished sessions are forgotten, and what was copied, completed and "
                    "used. This cannot be taken back.")
               : tr("Your counts, notes, timers and workspaces are removed. Settings, tools "
                    "and their order stay. This cannot be taken back.");
}

QString DataSettings::acceptText() const
{
    if (m_question == QLatin1String{"import"}) {
        return tr("Replace");
    }
    return m_question == QLatin1String{"clear"} ? tr("Clear") : tr("Reset");
}

void DataSettings::ask(const QString &question)
{
    m_question = question;
    emit questionChanged();
}

void DataSettings::accept()
{
    const QString question = std::exchange(m_question, {});
    emit questionChanged();
    if (question == QLatin1String{"import"}) {
        importBackup();
    } else if (question == QLatin1String{"clear"}) {
        clearHistory();
    } else if (question == QLatin1String{"reset"}) {
        resetAll();
    }
}

void DataSettings::decline()
{
    m_backup.reset();
    ask({});
    finish(tr("Nothing was changed."), false);
}

void DataSettings::begin()
{
    m_isBusy = true;
    m_message.clear();
    emit changed();
}

void DataSettings::finish(const QString &message, bool isFailure)
{
    m_isBusy = false;
    m_message = message;
    m_isFailure = isFailure;
    emit changed();
}

void DataSettings::exportTo(const QUrl &file)
{
    begin();
    const auto exported = std::make_shared<Exported>();
    const std::filesystem::path target = file.toLocalFile().toStdString();
    m_model.perform(
        [=, now = m_model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(*exported, writeBackup(store, target, now));
            return Committed{};
        },
        [this, exported, file](const Result<void> &result) {
            if (!result) {
                finish(messageOf(result), true);
                return;
            }
            const bool isTooLarge = exported->bytes > KestCore::kLargestBackup ||
                                    exported->records > KestCore::kMostBackupRecords;
            const QString written = tr("%n record(s) and the settings are in %1", nullptr,
                                       static_cast<int>(exported->records))
                                        .arg(file.toLocalFile());
            finish(isTooLarge ? tr("%1. It is larger than what an import accepts.").arg(written)
                              : written,
                   false);
        });
}

void DataSettings::openBackup(const QUrl &file)
{
    begin();
    // Away from the store's thread, on which the counts would wait for a large file.
    QThreadPool::globalInstance()->start(
        [self = QPointer{this}, source = file.toLocalFile().toStdString()] {
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [self, read = readBackup(source)] {
                    if (self == nullptr) {
                        return;
                    }
                    if (read) {
                        self->compare(*read);
                    } else {
                        self->finish(messageOf(std::unexpected(read.error())), true);
                    }
                },
                Qt::QueuedConnection);
        });
}

void DataSettings::compare(std::shared_ptr<const KestCore::Backup> backup)
{
    const auto reading = std::make_shared<Reading>();
    reading->backup = std::move(backup);
    m_model.perform(
        [=](StateStore &store) -> Result<Committed> {
            KEST_TRY(const auto here, store.countsReplacedByImport());
            reading->recordsHere = sum(here);
            reading->sessionsHere =
                static_cast<std::int64_t>(store.state().devotional.records.size());
            return Committed{};
        },
        [this, reading](const Result<void> &result) {
            if (!result) {
                finish(messageOf(result), true);
                return;
            }
            askToImport(*reading);
        });
}

void DataSettings::askToImport(const Reading &reading)
{
    m_backup = reading.backup;
    const KestCore::Backup &backup = *m_backup;
    const auto number = [this](std::int64_t value) { return m_formatting.number(value); };
    m_importBody =
        tr("This replaces devotional and portable tool data.") + u'\n' +
        tr("Records: %1 here, %2 in the backup. Finished sessions: %3 here, %4 in the backup.")
            .arg(number(reading.recordsHere), number(sum(backup.recordCounts())),
                 number(reading.sessionsHere),
                 number(static_cast<std::int64_t>(backup.state().devotional.records.size()))) +
        u'\n' +
        tr("The backup was made on %1 at %2.")
            .arg(m_formatting.date(backup.exportedAt()),
                 m_formatting.time(backup.exportedAt()));
    finish({}, false);
    ask(QStringLiteral("import"));
}

void DataSettings::importBackup()
{
    const auto backup = std::exchange(m_backup, nullptr);
    begin();
    m_model.perform(
        [backup](StateStore &store) -> Result<Committed> {
            KEST_CHECK(store.restore(*backup));
            KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
            return committedAll(std::move(snapshot));
        },
        [this, count = sum(backup->recordCounts())](const Result<void> &result) {
            finish(result ? tr("%n record(s) and the settings were imported.", nullptr,
                               static_cast<int>(count))
                          : messageOf(result),
                   !result.has_value());
        });
}

void DataSettings::clearHistory()
{
    begin();
    m_model.perform(
        [](StateStore &store) -> Result<Committed> {
            KEST_TRY(KestCore::Snapshot snapshot, store.clearHistory());
            return committedAll(std::move(snapshot));
        },
        [this](const Result<void> &result) {
            finish(result ? tr("The history is empty.") : messageOf(result),
                   !result.has_value());
        });
}

void DataSettings::resetAll()
{
    begin();
    m_model.perform(
        [](StateStore &store) -> Result<Committed> {
            KEST_TRY(KestCore::Snapshot reset, store.resetAll());
            // Whoever resets knows the program: the first steps are not shown again. Where that
            // cannot be saved the data is reset all the same, and that is what is shown.
            auto known = store.update([](KestCore::NativeState &state) -> Result<void> {
                state.devotional.onboardingComplete = true;
                return {};
            });
            return committedAll(known ? *std::move(known) : std::move(reset));
        },
        [this](const Result<void> &result) {
            finish(result ? tr("Everything was reset.") : messageOf(result),
                   !result.has_value());
        });
}

} // namespace Velvetnook
