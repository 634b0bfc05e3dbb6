// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/ShelfViewModel.h"

#include "KestCore/Tools/RecordOrder.h"
#include "KestCore/Tools/Shelf.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QFileInfo>

#include <array>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::LocalRecord;
using KestCore::ShelfItem;
using KestCore::ShelfPlace;

constexpr std::array kRoles{
    RowRole<ShelfRow>{"shelfId", [](const ShelfRow &row) { return QVariant{row.id}; }},
    RowRole<ShelfRow>{"title", [](const ShelfRow &row) { return QVariant{row.title}; }},
    RowRole<ShelfRow>{"note", [](const ShelfRow &row) { return QVariant{row.note}; }},
    RowRole<ShelfRow>{"family", [](const ShelfRow &row) { return QVariant{row.family}; }},
    RowRole<ShelfRow>{"badge", [](const ShelfRow &row) { return QVariant{row.badge}; }},
    RowRole<ShelfRow>{"preview", [](const ShelfRow &row) { return QVariant{row.preview}; }},
    RowRole<ShelfRow>{"words", [](const ShelfRow &row) { return QVariant{row.words}; }},
    RowRole<ShelfRow>{"path", [](const ShelfRow &row) { return QVariant{row.path}; }},
    RowRole<ShelfRow>{"dragData", [](const ShelfRow &row) { return QVariant{row.dragData}; }},
};

constexpr qsizetype kShownOfText = 200; // characters on a card

} // namespace

ShelfViewModel::ShelfViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_list{kRoles}
{
    connect(&model, &ApplicationModel::recordsChanged, this, &ShelfViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, &ShelfViewModel::show);
    connect(&m_watch, &FileWatch::changed, this, &ShelfViewModel::look);
    show();
}

ShelfViewModel::~ShelfViewModel() = default;

QString ShelfViewModel::footer() const
{
    const auto isFile = [](const ShelfRow &row) {
        return row.family != u"words" && row.family != u"link";
    };
    if (count() == 0) {
        return tr("What you put here stays on this computer");
    }
    const QString counted = std::ranges::all_of(rows(), isFile)
                                ? tr("%n file(s) · stays on this computer", nullptr, count())
                                : tr("%n thing(s) · stays on this computer", nullptr, count());
    return m_formatting.digits(counted);
}

void ShelfViewModel::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) == isShown) {
        return;
    }
    emit isShownChanged();
    if (isShown) {
        look();
        sweep();
    } else {
        m_watch.stop();
    }
}

void ShelfViewModel::follow()
{
    std::vector<std::string> bodies;
    for (const LocalRecord &record : m_model.recordsOfKind(KestCore::kShelfKind)) {
        bodies.push_back(record.id + record.body);
    }
    show();
    if (m_isShown && bodies != m_looked) {
        look();
    }
}

// Looks for the files, on the other thread, and watches the folders that they are in.
void ShelfViewModel::look()
{
    std::vector<std::string> ids;
    std::vector<ShelfItem> items;
    QStringList folders;
    m_looked.clear();
    for (const LocalRecord &record : m_model.recordsOfKind(KestCore::kShelfKind)) {
        m_looked.push_back(record.id + record.body);
        auto item = KestCore::payloadOf<ShelfItem>(record);
        if (item.path) {
            folders.push_back(QFileInfo{QString::fromStdString(*item.path)}.path());
            ids.push_back(record.id);
            items.push_back(std::move(item));
        }
    }
    if (!m_isShown) {
        return;
    }
    m_watch.watch(folders);
    m_side.ask(
        this,
        [ids = std::move(ids), items = std::move(items)](std::monostate &) {
            Sight sight;
            const auto places = KestCore::placesOf(items);
            for (std::size_t at = 0; at < items.size(); ++at) {
                const auto path =
                    QString::fromStdString(places[at].path.value_or(*items[at].path));
                sight[ids[at]] = {.glance = glanceAt(path),
                                  .isMissing = places[at].state == ShelfPlace::State::missing};
            }
            return sight;
        },
        [this](Sight sight) {
            m_sight = std::move(sight);
            show();
        });
}

void ShelfViewModel::describe(ShelfRow &row, const Seen &seen) const
{
    row.family = seen.isMissing ? QStringLiteral("missing") : seen.glance.family;
    row.badge = seen.glance.badge;
    if (seen.isMissing) {
        row.note = tr("Not where it was");
        return;
    }
    row.path = seen.glance.path;
    row.preview = previewOf(seen.glance);
    row.dragData = dragDataOf(row.path);
    row.note = seen.glance.family == u"folder" ? tr("Folder")
                                               : sizeText(m_formatting, seen.glance.size);
}

ShelfRow ShelfViewModel::rowOf(const LocalRecord &record) const
{
    const auto item = KestCore::payloadOf<ShelfItem>(record);
    ShelfRow row{.id = QString::fromStdString(record.id),
                 .title = QString::fromStdString(record.title)};
    if (item.text) {
        const bool isLink = KestCore::isWebAddress(*item.text);
        const QString text = QString::fromStdString(*item.text);
        row.family = isLink ? QStringLiteral("link") : QStringLiteral("words");
        row.note = isLink ? tr("Link") : tr("Text");
        row.words = text.left(kShownOfText);
        row.dragData = {{QStringLiteral("text/plain"), text}};
        if (isLink) {
            row.dragData.insert(QStringLiteral("text/uri-list"), text + QStringLiteral("\r\n"));
        }
        return row;
    }
    if (const auto seen = m_sight.find(record.id); seen != m_sight.end()) {
        describe(row, seen->second);
    } else {
        const auto glance = glanceByName(QString::fromStdString(item.path.value_or("")));
        row.family = glance.family;
        row.badge = glance.badge;
    }
    return row;
}

void ShelfViewModel::show()
{
    std::vector<ShelfRow> rows;
    for (const LocalRecord &record :
         KestCore::inOrder(m_model.recordsOfKind(KestCore::kShelfKind))) {
        rows.push_back(rowOf(record));
    }
    m_list.show(rows);
    emit listChanged();
}

} // namespace Velvetnook
