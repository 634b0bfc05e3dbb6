// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Notes.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ViewModels/Notes/NoteStorage.h"
#include "Velvetnook/Application/ViewModels/NotesViewModel.h"

#include <QPointer>

#include <algorithm>

// What the view model of the notes does to the list of them.
namespace Velvetnook
{

using KestCore::LocalRecord;
using KestCore::RecordList;

void NotesViewModel::change(Change change, Done done)
{
    m_model.perform(
        [change = std::move(change),
         now = m_model.now()](KestCore::StateStore &store) -> Base::Result<Committed> {
            RecordList list{store, KestCore::kNoteKind, now};
            KEST_CHECK(change(list));
            KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
            return committedAll(std::move(snapshot));
        },
        [self = QPointer{this}, done = std::move(done)](const Base::Result<void> &result) {
            if (!self) {
                return;
            }
            if (!result) {
                self->m_model.say(engineText(result.error().message));
            } else if (done) {
                done();
            }
        });
}

void NotesViewModel::setPinned(const QString &id, bool pinned)
{
    change([id = id.toStdString(), pinned](RecordList &list) -> Base::Result<void> {
        KEST_TRY([[maybe_unused]] const LocalRecord record, list.pin(id, pinned));
        return {};
    });
}

void NotesViewModel::move(const QString &id, int lines)
{
    const auto ordered = notesIn(m_model.records());
    const auto found = std::ranges::find(ordered, id.toStdString(), &LocalRecord::id);
    if (found == ordered.end()) {
        return;
    }
    const auto at = static_cast<int>(std::distance(ordered.begin(), found));
    const auto to = std::clamp(at + lines, 0, static_cast<int>(ordered.size()) - 1);
    change([id = id.toStdString(),
            to = static_cast<std::size_t>(to)](RecordList &list) -> Base::Result<void> {
        KEST_TRY([[maybe_unused]] const LocalRecord record, list.move(id, to));
        return {};
    });
}

void NotesViewModel::remove(const QString &id)
{
    if (id == u"scratchpad" || id.isEmpty()) {
        return;
    }
    if (id == m_open.id) {
        save();
    }
    change(
        [id = id.toStdString()](RecordList &list) -> Base::Result<void> {
            KEST_TRY([[maybe_unused]] const LocalRecord record, list.remove(id));
            return {};
        },
        [this] { emit removed(tr("Note removed")); });
}

void NotesViewModel::restore()
{
    const auto restored = std::make_shared<std::string>();
    change(
        [restored](RecordList &list) -> Base::Result<void> {
            KEST_TRY(const auto records, list.restore());
            *restored = records.front().id;
            return {};
        },
        [this, restored] { choose(QString::fromStdString(*restored)); });
}

} // namespace Velvetnook
