// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/FilesViewModel.h"

#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/SearchForm.h"
#include "KestCore/Tools/RecordList.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ListChange.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/RecentFiles.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::FileItem;
using KestCore::LocalRecord;
using KestCore::RecordList;

constexpr const char *kFileKind = "file";
constexpr std::size_t kMostRecent = 60;

constexpr std::array kRoles{
    RowRole<FileRow>{"path", [](const FileRow &row) { return QVariant{row.id}; }},
    RowRole<FileRow>{"title", [](const FileRow &row) { return QVariant{row.title}; }},
    RowRole<FileRow>{"note", [](const FileRow &row) { return QVariant{row.note}; }},
    RowRole<FileRow>{"when", [](const FileRow &row) { return QVariant{row.when}; }},
    RowRole<FileRow>{"family", [](const FileRow &row) { return QVariant{row.family}; }},
    RowRole<FileRow>{"badge", [](const FileRow &row) { return QVariant{row.badge}; }},
    RowRole<FileRow>{"preview", [](const FileRow &row) { return QVariant{row.preview}; }},
    RowRole<FileRow>{"dragData", [](const FileRow &row) { return QVariant{row.dragData}; }},
    RowRole<FileRow>{"isPinned", [](const FileRow &row) { return QVariant{row.isPinned}; }},
};

std::vector<LocalRecord> pinnedOf(const ApplicationModel &model)
{
    return KestCore::inOrder(model.recordsOfKind(kFileKind));
}

Result<void> pin(RecordList &list, const std::vector<std::string> &paths)
{
    KEST_TRY(const auto items, list.items());
    std::vector<LocalRecord> added;
    for (const std::string &path : paths) {
        const bool isThere = std::ranges::any_of(items, [&path](const LocalRecord &record) {
            return KestCore::payloadOf<FileItem>(record).path == path;
        });
        if (!isThere) {
            LocalRecord record{.title = std::filesystem::path{path}.filename().string()};
            KEST_TRY(record.body, Base::json::encode(FileItem{.path = path, .pinned = true}));
            added.push_back(std::move(record));
        }
    }
    KEST_TRY(added, list.addAll(std::move(added), KestCore::ListEnd::back));
    return {};
}

} // namespace

FilesViewModel::FilesViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_list{kRoles}
{
    connect(&model, &ApplicationModel::recordsChanged, this, &FilesViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, &FilesViewModel::show);
    connect(&m_watch, &FileWatch::changed, this, &FilesViewModel::look);
    show();
}

QString FilesViewModel::section() const
{
    return m_showsPinned ? QStringLiteral("pinned") : QStringLiteral("recent");
}

void FilesViewModel::setSection(const QString &section)
{
    m_showsPinned = section == u"pinned";
    show();
}

void FilesViewModel::setQuery(const QString &query)
{
    if (query != m_query) {
        m_query = query;
        emit queryChanged();
        show();
    }
}

QStringList FilesViewModel::pinnedPaths() const
{
    QStringList paths;
    for (const LocalRecord &record : pinnedOf(m_model)) {
        paths.push_back(QString::fromStdString(KestCore::payloadOf<FileItem>(record).path));
    }
    return paths;
}

QString FilesViewModel::availability() const
{
    if (!m_isSeen) {
        return QStringLiteral("loading");
    }
    if (!m_showsPinned && !m_sight.failure.isEmpty()) {
        return QStringLiteral("error");
    }
    return m_list.rows().empty() ? QStringLiteral("empty") : QStringLiteral("ready");
}

QString FilesViewModel::message() const
{
    const QString state = availability();
    if (state == u"error") {
        return m_sight.failure;
    }
    if (state != u"empty") {
        return {};
    }
    if (!m_query.isEmpty()) {
        return tr("No file here has this name");
    }
    return m_showsPinned ? tr("Nothing pinned yet") : tr("Nothing was opened lately");
}

QString FilesViewModel::note() const
{
    if (availability() != u"empty" || !m_query.isEmpty()) {
        return {};
    }
    return m_showsPinned ? tr("Drop files and folders here, or pin what you opened lately.")
                         : tr("What your programs open appears here.");
}

QString FilesViewModel::footer() const
{
    return m_showsPinned ? tr("Pinned files stay where they are")
                         : tr("From the list that your programs keep");
}

void FilesViewModel::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) == isShown) {
        return;
    }
    emit isShownChanged();
    if (isShown) {
        look();
    } else {
        m_watch.stop();
    }
}

void FilesViewModel::follow()
{
    show();
    if (m_isShown && pinnedPaths() != m_pinned) {
        look();
    }
}

FilesViewModel::Sight FilesViewModel::see(const QStringList &pinned)
{
    Sight sight;
    const auto recent = readRecentFiles(recentFileList(), kMostRecent);
    if (!recent) {
        sight.failure = engineText(recent.error().message);
    } else {
        for (const RecentFile &file : *recent) {
            FileGlance glance = glanceAt(file.path);
            if (glance.isThere) {
                sight.recent.push_back({.glance = std::move(glance), .usedMs = file.usedMs});
            }
        }
    }
    for (const QString &path : pinned) {
        sight.pinned.emplace(path, glanceAt(path));
    }
    return sight;
}

void FilesViewModel::look()
{
    if (!m_isShown) {
        return;
    }
    m_pinned = pinnedPaths();
    QStringList places{recentFileList(), QFileInfo{recentFileList()}.path()};
    for (const QString &path : m_pinned) {
        places.push_back(QFileInfo{path}.path());
    }
    m_watch.watch(places);
    m_side.ask(
        this, [pinned = m_pinned](std::monostate &) { return see(pinned); },
        [this](Sight sight) {
            m_sight = std::move(sight);
            m_isSeen = true;
            show();
        });
}

FileRow FilesViewModel::rowOf(const FileGlance &glance, bool isPinned) const
{
    const QString name = QFileInfo{glance.path}.fileName();
    return {.id = glance.path,
            .title = name.isEmpty() ? glance.path : name,
            .note = folderText(glance.path),
            .family = glance.family,
            .badge = glance.badge,
            .preview = previewOf(glance),
            .dragData = dragDataOf(glance.path),
            .isPinned = isPinned};
}

bool FilesViewModel::matches(const FileRow &row) const
{
    const std::string text =
        KestCore::looseSearchForm((row.title + u' ' + row.note).toStdString());
    const QStringList words = m_query.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(words, [&text](const QString &word) {
        return text.contains(KestCore::looseSearchForm(word.toStdString()));
    });
}

void FilesViewModel::show()
{
    std::vector<FileRow> rows;
    const QStringList pinned = pinnedPaths();
    if (m_showsPinned) {
        for (const QString &path : pinned) {
            const auto seen = m_sight.pinned.find(path);
            const bool isSeen = seen != m_sight.pinned.end();
            FileRow row = rowOf(isSeen ? seen->second : glanceByName(path), true);
            if (isSeen && !seen->second.isThere) {
                row.family = QStringLiteral("missing");
                row.note = tr("Not where it was");
                row.dragData.clear();
            }
            rows.push_back(std::move(row));
        }
    } else {
        for (const Recent &recent : m_sight.recent) {
            rows.push_back(rowOf(recent.glance, pinned.contains(recent.glance.path)));
            if (recent.usedMs > 0) {
                rows.back().when =
                    momentText(Base::fromMilliseconds1970(static_cast<double>(recent.usedMs)),
                               m_model, m_formatting);
            }
        }
    }
    std::erase_if(rows, [this](const FileRow &row) { return !matches(row); });
    m_list.show(rows);
    emit listChanged();
}

void FilesViewModel::open(const QString &path)
{
    const FileRow *row = m_list.find(path);
    if (row != nullptr && row->family == u"missing") {
        m_model.say(tr("%1 is not where it was.").arg(row->title));
    } else if (row != nullptr) {
        emit openWanted(QUrl::fromLocalFile(path));
    }
}

void FilesViewModel::reveal(const QString &path)
{
    if (m_list.find(path) != nullptr) {
        emit revealWanted(path);
    }
}

void FilesViewModel::copyPath(const QString &path)
{
    QGuiApplication::clipboard()->setText(path);
    m_model.say(tr("Path copied"));
}

QString FilesViewModel::idOf(const QString &path) const
{
    for (const LocalRecord &record : pinnedOf(m_model)) {
        if (KestCore::payloadOf<FileItem>(record).path == path.toStdString()) {
            return QString::fromStdString(record.id);
        }
    }
    return {};
}

void FilesViewModel::pinUrls(const QList<QUrl> &urls)
{
    std::vector<std::string> paths;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) {
            paths.push_back(url.adjusted(QUrl::StripTrailingSlash).toLocalFile().toStdString());
        }
    }
    changeList(m_model, this, kFileKind,
               [paths](RecordList &list) { return pin(list, paths); });
}

void FilesViewModel::setPinned(const QString &path, bool isPinned)
{
    if (isPinned) {
        pinUrls({QUrl::fromLocalFile(path)});
        return;
    }
    changeListThen(
        m_model, this, kFileKind,
        [id = idOf(path).toStdString()](RecordList &list) -> Result<void> {
            KEST_TRY([[maybe_unused]] const auto record, list.remove(id));
            return {};
        },
        [this] { emit changed(tr("No longer pinned"), [this] { restore(); }); });
}

void FilesViewModel::restore()
{
    changeList(m_model, this, kFileKind, [](RecordList &list) -> Result<void> {
        KEST_TRY([[maybe_unused]] const auto records, list.restore());
        return {};
    });
}

void FilesViewModel::move(const QString &path, int lines)
{
    const QStringList paths = pinnedPaths();
    const auto at = static_cast<int>(paths.indexOf(path));
    if (at < 0 || !m_showsPinned) {
        return;
    }
    const auto to = std::clamp(at + lines, 0, static_cast<int>(paths.size()) - 1);
    changeList(m_model, this, kFileKind,
               [id = idOf(path).toStdString(),
                to = static_cast<std::size_t>(to)](RecordList &list) -> Result<void> {
                   KEST_TRY([[maybe_unused]] const auto record, list.move(id, to));
                   return {};
               });
}

} // namespace Velvetnook
