// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/NotesViewModel.h"

#include "KestCore/Tools/Notes.h"
#include "KestCore/Tools/Texts.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ViewModels/Notes/NoteStorage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

#include <algorithm>
#include <chrono>

namespace Velvetnook
{

namespace
{

using KestCore::LocalRecord;
using KestCore::RecordList;
using namespace std::chrono_literals;

const QString kScratchpad = QStringLiteral("scratchpad");

// Words are counted with each key only where that takes no time that anybody feels.
constexpr qsizetype kCountedAtOnce = 20'000;

} // namespace

NotesViewModel::NotesViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(700ms);
    m_longest.setSingleShot(true);
    m_longest.setInterval(3000ms);
    connect(&m_pause, &QTimer::timeout, this, &NotesViewModel::save);
    connect(&m_longest, &QTimer::timeout, this, &NotesViewModel::save);
    connect(&model, &ApplicationModel::recordsChanged, this, &NotesViewModel::follow);
    connect(&model, &ApplicationModel::calendarChanged, this, &NotesViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, [this] {
        follow();
        emit statusChanged(); // also of what is being written
    });
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            &NotesViewModel::leave);
    m_list.show(rows());
    m_open = opened(scratchpadIn(m_model.records()));
}

NotesViewModel::~NotesViewModel() { leave(); }

bool NotesViewModel::isScratchpad() const { return m_open.id == kScratchpad; }

NoteRow NotesViewModel::rowOf(const LocalRecord &record, const std::string &excerpt) const
{
    const bool isPage = record.kind != KestCore::kNoteKind;
    return {.id = isPage ? kScratchpad : QString::fromStdString(record.id),
            .title = isPage ? tr("Scratchpad") : QString::fromStdString(record.title),
            .excerpt = QString::fromStdString(excerpt),
            .when = record.updated > 0 ? whenText(m_formatting, m_model, record.updated)
                                       : QString{},
            .isPinned = KestCore::isPinned(record),
            .isScratchpad = isPage};
}

std::vector<NoteRow> NotesViewModel::rows() const
{
    std::vector<NoteRow> rows;
    for (const Open &refused : m_refused) {
        if (refused.id.isEmpty()) {
            rows.push_back({.id = refused.key, .title = titleOf(refused), .when = notSaved()});
        }
    }
    for (const auto &hit : foundNotes(m_model.records(), m_query.toStdString())) {
        rows.push_back(rowOf(hit.record, hit.excerpt));
        if (std::ranges::find(m_refused, rows.back().id, &Open::key) != m_refused.end()) {
            rows.back().when = notSaved();
        }
    }
    return rows;
}

void NotesViewModel::follow()
{
    m_list.show(rows());
    emit listChanged();
    followOpen();
}

// What another program or another part of this one did to what is open. What is typed here
// and not durable yet is never overwritten.
void NotesViewModel::followOpen()
{
    if (m_open.isEdited || m_saving > 0 || !isKept()) {
        return;
    }
    const auto record = isScratchpad() ? std::optional{scratchpadIn(m_model.records())}
                                       : noteIn(m_model.records(), m_open.id.toStdString());
    if (!record) {
        open(opened(scratchpadIn(m_model.records())));
        return;
    }
    Open now = opened(*record);
    if (now.text != m_open.text || now.title != m_open.title) {
        open(std::move(now));
        return;
    }
    m_open.saved = now.saved;
    emit statusChanged();
}

NotesViewModel::Open NotesViewModel::opened(const LocalRecord &record) const
{
    Open open;
    if (record.updated > 0) {
        open.saved = record.updated;
    }
    const std::string text = KestCore::payloadOf<KestCore::Note>(record).text;
    open.text = QString::fromStdString(text);
    if (record.kind != KestCore::kNoteKind) {
        open.id = kScratchpad;
        return open;
    }
    *open.storeId = record.id;
    open.id = QString::fromStdString(record.id);
    if (record.title != KestCore::titleFromText(text)) {
        open.title = QString::fromStdString(record.title);
    }
    return open;
}

void NotesViewModel::open(Open next)
{
    m_open = std::move(next);
    emit currentChanged();
    emit loaded();
    emit statusChanged();
    emit listChanged();
}

void NotesViewModel::choose(const QString &id)
{
    if (id == m_open.id && !id.isEmpty()) {
        return;
    }
    leave();
    const auto refused = std::ranges::find(m_refused, id, &Open::key);
    if (refused != m_refused.end()) {
        Open next = std::move(*refused);
        m_refused.erase(refused);
        m_list.show(rows());
        open(std::move(next));
        return;
    }
    const auto record = id == kScratchpad ? std::optional{scratchpadIn(m_model.records())}
                                          : noteIn(m_model.records(), id.toStdString());
    if (record) {
        open(opened(*record));
    }
}

void NotesViewModel::chooseScratchpad() { choose(kScratchpad); }

void NotesViewModel::create()
{
    leave();
    open({});
}

void NotesViewModel::edit(const QString &text)
{
    if (text != m_open.text) {
        m_open.text = text;
        touch();
    }
}

void NotesViewModel::editTitle(const QString &title)
{
    if (title != m_open.title && !isScratchpad()) {
        m_open.title = title;
        m_open.isTitleEdited = true;
        touch();
    }
}

void NotesViewModel::touch()
{
    m_open.isEdited = true;
    m_open.refusal.clear();
    m_pause.start();
    if (!m_longest.isActive()) {
        m_longest.start();
    }
    emit statusChanged();
}

// Whether nothing of it can be seen, so that there is nothing to keep.
bool NotesViewModel::isBlank() const
{
    return !isScratchpad() && KestCore::titleFromText(m_open.text.toStdString()).empty() &&
           !KestCore::isVisible(m_open.title.toStdString());
}

void NotesViewModel::save()
{
    m_pause.stop();
    m_longest.stop();
    if (!m_open.isEdited || isBlank()) {
        return;
    }
    m_open.isEdited = false;
    store(m_open);
    emit statusChanged();
}

void NotesViewModel::store(const Open &text)
{
    ++m_saving;
    const auto storedId = std::make_shared<std::string>();
    m_model.perform(
        [text = NoteText{.id = text.storeId,
                         .text = text.text.toStdString(),
                         .title = text.title.toStdString(),
                         .isTitleEdited = text.isTitleEdited},
         storedId, isPage = text.id == kScratchpad,
         now = m_model.now()](KestCore::StateStore &store) -> Base::Result<Committed> {
            KEST_CHECK(isPage ? KestCore::replaceScratchpad(store, text.text, now)
                              : storeNote(store, text, now));
            *storedId = *text.id;
            KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
            return committedAll(std::move(snapshot));
        },
        // It may be asked for by a view model that is about to go.
        [self = QPointer{this}, storedId, saved = text](const Base::Result<void> &result) {
            if (self) {
                --self->m_saving;
                self->saveFinished(saved, QString::fromStdString(*storedId), result);
            }
        });
}

void NotesViewModel::saveFinished(const Open &saved, const QString &id,
                                  const Base::Result<void> &result)
{
    const bool isOpen = saved.storeId == m_open.storeId;
    if (!result && isOpen) {
        m_open.isEdited = true;
        m_open.refusal = engineText(result.error().message);
    } else if (!result) {
        keepRefused(saved, engineText(result.error().message));
    } else if (isOpen) {
        m_open.saved = Base::milliseconds1970(m_model.now());
        m_open.refusal.clear();
        m_open.isEdited = m_open.text != saved.text || m_open.title != saved.title;
        if (!isScratchpad() && m_open.id != id) {
            m_open.id = id;
            emit currentChanged();
            emit listChanged();
        }
    } else if (std::erase_if(m_refused, [&saved](const Open &refused) {
                   return refused.storeId == saved.storeId;
               }) > 0) {
        m_list.show(rows());
        emit listChanged();
    }
    followOpen();
    emit statusChanged();
}

// It has a line of its own until it can be kept, and is tried again whenever one is left.
void NotesViewModel::keepRefused(Open refused, const QString &reason)
{
    std::erase_if(m_refused, [&](const Open &each) { return each.storeId == refused.storeId; });
    if (refused.refusal != reason) {
        m_model.say(reason);
    }
    if (refused.key.isEmpty()) {
        refused.key =
            refused.id.isEmpty() ? QStringLiteral("unsaved-%1").arg(++m_unsaved) : refused.id;
    }
    refused.isEdited = true;
    refused.refusal = reason;
    m_refused.push_back(std::move(refused));
    m_list.show(rows());
    emit listChanged();
}

QString NotesViewModel::titleOf(const Open &note)
{
    const std::string first = KestCore::titleFromText(note.text.toStdString());
    return note.title.isEmpty() ? QString::fromStdString(first) : note.title;
}

QString NotesViewModel::notSaved() { return tr("not saved"); }

void NotesViewModel::leave()
{
    for (const Open &refused : m_refused) {
        store(refused);
    }
    if (m_open.isEdited && isBlank() && isKept()) {
        m_open.isEdited = false;
        remove(m_open.id); // emptied by its owner, who can have it back
        return;
    }
    save();
}

void NotesViewModel::copy() const
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::clipboard()->setText(m_open.text);
    }
}

QString NotesViewModel::titleHint() const
{
    const std::string first = KestCore::titleFromText(m_open.text.left(1000).toStdString());
    return first.empty() ? tr("Title") : QString::fromStdString(first);
}

bool NotesViewModel::isPinned() const
{
    const auto &rows = m_list.rows();
    const auto found = std::ranges::find(rows, m_open.id, &NoteRow::id);
    return found != rows.end() && found->isPinned;
}

QString NotesViewModel::findings() const
{
    return m_query.isEmpty() || !m_list.rows().empty() ? QString{}
                                                       : tr("No note has these words");
}

QString NotesViewModel::footer() const
{
    const auto count = static_cast<int>(noteCount(m_model.records()));
    return count == 0 ? tr("Notes stay on this computer")
                      : m_formatting.digits(tr("%n note(s) on this computer", nullptr, count));
}

QString NotesViewModel::status() const
{
    QString saved;
    if (m_open.isEdited || m_saving > 0) {
        saved = tr("saving…");
    } else if (m_open.saved) {
        saved = tr("saved %1").arg(whenText(m_formatting, m_model, *m_open.saved));
    }
    if (m_open.isEdited && m_open.text.size() > kCountedAtOnce) {
        return saved;
    }
    const QString text = m_open.text;
    const auto count = static_cast<int>(KestCore::wordsOf(text.toStdString()).size());
    const QString words = m_formatting.digits(tr("%n word(s)", nullptr, count));
    return saved.isEmpty() ? words : tr("%1 · %2").arg(words, saved);
}

void NotesViewModel::setQuery(const QString &query)
{
    if (query != m_query) {
        m_query = query;
        emit queryChanged();
        m_list.show(rows());
        emit listChanged();
    }
}

} // namespace Velvetnook
