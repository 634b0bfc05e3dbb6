// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/LinksViewModel.h"

#include "KestCore/Tools/Links.h"
#include "KestCore/Tools/RecordOrder.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ListChange.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

using KestCore::LinkChange;
using KestCore::LocalRecord;
using KestCore::RecordList;
using KestCore::SavedLink;

constexpr std::array kRoles{
    RowRole<LinkRow>{"linkId", [](const LinkRow &row) { return QVariant{row.id}; }},
    RowRole<LinkRow>{"title", [](const LinkRow &row) { return QVariant{row.title}; }},
    RowRole<LinkRow>{"host", [](const LinkRow &row) { return QVariant{row.host}; }},
    RowRole<LinkRow>{"letter", [](const LinkRow &row) { return QVariant{row.letter}; }},
    RowRole<LinkRow>{"url", [](const LinkRow &row) { return QVariant{row.url}; }},
    RowRole<LinkRow>{"note", [](const LinkRow &row) { return QVariant{row.note}; }},
};

std::vector<LocalRecord> linksOf(const ApplicationModel &model)
{
    return KestCore::inOrder(model.recordsOfKind(KestCore::kLinkKind));
}

QString firstLetter(const QString &title)
{
    const auto *const found =
        std::ranges::find_if(title, [](QChar c) { return c.isLetterOrNumber(); });
    return found == title.end() ? QStringLiteral("·") : QString{*found}.toUpper();
}

LinkRow rowOf(const LocalRecord &record)
{
    const auto link = KestCore::payloadOf<SavedLink>(record);
    const std::string_view host = KestCore::hostOf(link.url);
    LinkRow row{.id = QString::fromStdString(record.id),
                .title = QString::fromStdString(record.title),
                .host = QString::fromUtf8(host.data(), static_cast<qsizetype>(host.size())),
                .url = QString::fromStdString(link.url),
                .note = QString::fromStdString(link.note.value_or(""))};
    row.letter = firstLetter(row.title);
    return row;
}

bool isSecure(const QString &address)
{
    return address.trimmed().startsWith(u"https://", Qt::CaseInsensitive);
}

Result<void> store(RecordList &list, const std::string &id, const LinkChange &change)
{
    KEST_TRY(const auto others, list.items());
    if (id.empty()) {
        KEST_TRY(LocalRecord link, KestCore::makeLink(change, others));
        KEST_TRY(link, list.add(std::move(link), KestCore::ListEnd::back));
        return {};
    }
    KEST_TRY([[maybe_unused]] const auto link, list.edit(id, [&](LocalRecord &record) {
        return KestCore::changeLink(record, change, others);
    }));
    return {};
}

} // namespace

LinksViewModel::LinksViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_list{kRoles}
{
    connect(&model, &ApplicationModel::recordsChanged, this, &LinksViewModel::show);
    connect(&formatting, &Formatting::wordsChanged, this, &LinksViewModel::show);
    show();
}

void LinksViewModel::show()
{
    const auto links = linksOf(m_model);
    m_count = static_cast<int>(links.size());
    std::vector<LinkRow> rows;
    if (m_query.isEmpty()) {
        std::ranges::transform(links, std::back_inserter(rows), rowOf);
    } else {
        for (const auto &hit : KestCore::searchLinks(links, m_query.toStdString())) {
            rows.push_back(rowOf(hit.record));
        }
    }
    m_list.show(rows);
    emit listChanged();
}

QString LinksViewModel::footer() const
{
    return m_count == 0 ? tr("No bookmarks yet")
                        : m_formatting.digits(tr("%n bookmark(s)", nullptr, m_count));
}

void LinksViewModel::setQuery(const QString &query)
{
    if (query != m_query) {
        m_query = query;
        emit queryChanged();
        show();
    }
}

QString LinksViewModel::heldAddress() const
{
    const QString held = QGuiApplication::clipboard()->text().trimmed();
    return isSecure(held) && KestCore::isWebAddress(held.toStdString()) ? held : QString{};
}

void LinksViewModel::refuse(const QString &reason)
{
    if (reason != m_refusal) {
        m_refusal = reason;
        emit refusalChanged();
    }
}

void LinksViewModel::dropRefusal() { refuse({}); }

void LinksViewModel::save(const QString &id, const QString &url, const QString &title,
                          const QString &note)
{
    if (!isSecure(url)) {
        refuse(tr("Use a source URL beginning with https://"));
        return;
    }
    const LinkChange change{.address = url.toStdString(),
                            .title = title.toStdString(),
                            .note = note.trimmed().toStdString()};
    changeList(
        m_model, this, KestCore::kLinkKind,
        [id = id.toStdString(), change](RecordList &list) { return store(list, id, change); },
        [this](const Result<void> &result) {
            refuse(result ? QString{} : engineText(result.error().message));
            if (result) {
                emit saved();
            }
        });
}

void LinksViewModel::open(const QString &id)
{
    if (const LinkRow *row = m_list.find(id); row != nullptr) {
        emit openWanted(QUrl{row->url});
    }
}

void LinksViewModel::copy(const QString &id)
{
    if (const LinkRow *row = m_list.find(id); row != nullptr) {
        QGuiApplication::clipboard()->setText(row->url);
        m_model.say(tr("Copied"));
    }
}

void LinksViewModel::move(const QString &id, int lines)
{
    const auto links = linksOf(m_model);
    const auto found = std::ranges::find(links, id.toStdString(), &LocalRecord::id);
    if (found == links.end() || !m_query.isEmpty()) {
        return;
    }
    const auto at = static_cast<int>(std::distance(links.begin(), found));
    const auto to = std::clamp(at + lines, 0, m_count - 1);
    changeList(m_model, this, KestCore::kLinkKind,
               [id = id.toStdString(),
                to = static_cast<std::size_t>(to)](RecordList &list) -> Result<void> {
                   KEST_TRY([[maybe_unused]] const auto record, list.move(id, to));
                   return {};
               });
}

void LinksViewModel::remove(const QString &id)
{
    changeListThen(
        m_model, this, KestCore::kLinkKind,
        [id = id.toStdString()](RecordList &list) -> Result<void> {
            KEST_TRY([[maybe_unused]] const auto record, list.remove(id));
            return {};
        },
        [this] { emit changed(tr("Bookmark removed"), [this] { restore(); }); });
}

void LinksViewModel::restore()
{
    changeList(m_model, this, KestCore::kLinkKind, [](RecordList &list) -> Result<void> {
        KEST_TRY([[maybe_unused]] const auto records, list.restore());
        return {};
    });
}

} // namespace Velvetnook
