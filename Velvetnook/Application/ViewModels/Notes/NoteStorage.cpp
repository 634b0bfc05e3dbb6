// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Notes/NoteStorage.h"

#include "KestCore/Tools/Notes.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QDate>

#include <algorithm>

namespace Velvetnook
{

using KestCore::LocalRecord;

namespace
{

constexpr std::string_view kScratchpadKind = "scratchpad";

bool isNote(const KestCore::RecordRef &record) { return record->kind == KestCore::kNoteKind; }

} // namespace

std::size_t noteCount(const Records &records)
{
    return static_cast<std::size_t>(std::ranges::count_if(records, isNote));
}

std::vector<LocalRecord> notesIn(const Records &records)
{
    std::vector<LocalRecord> notes;
    for (const KestCore::RecordRef &record : records) {
        if (isNote(record)) {
            notes.push_back({.id = record->id,
                             .kind = record->kind,
                             .title = record->title,
                             .body = {},
                             .updated = record->updated,
                             .extra = record->extra});
        }
    }
    return KestCore::inOrder(std::move(notes));
}

std::optional<LocalRecord> noteIn(const Records &records, std::string_view id)
{
    for (const KestCore::RecordRef &record : records) {
        if (record->kind == KestCore::kNoteKind && record->id == id) {
            return *record;
        }
    }
    return std::nullopt;
}

LocalRecord scratchpadIn(const Records &records)
{
    LocalRecord newest{.kind = std::string{kScratchpadKind}};
    for (const KestCore::RecordRef &record : records) {
        if (record->kind == kScratchpadKind && record->updated >= newest.updated) {
            newest = *record;
        }
    }
    return newest;
}

std::vector<KestCore::RecordHit> foundNotes(const Records &records, std::string_view query)
{
    std::vector<LocalRecord> all{scratchpadIn(records)};
    std::vector<LocalRecord> notes;
    if (query.empty()) {
        notes = notesIn(records);
    } else {
        for (const KestCore::RecordRef &record : records) {
            if (isNote(record)) {
                notes.push_back(*record); // with its text
            }
        }
        notes = KestCore::inOrder(std::move(notes));
    }
    std::ranges::move(notes, std::back_inserter(all));
    if (!query.empty()) {
        return KestCore::searchNotes(all, query);
    }
    std::vector<KestCore::RecordHit> hits;
    for (LocalRecord &record : all) {
        hits.push_back({.record = std::move(record), .excerpt = {}});
    }
    return hits;
}

Base::Result<void> storeNote(KestCore::StateStore &store, const NoteText &note,
                             Base::Instant now)
{
    KestCore::NoteChange change{.title = {}, .text = note.text};
    if (note.isTitleEdited) {
        change.title = note.title;
    }
    KestCore::RecordList list{store, KestCore::kNoteKind, now};
    KEST_TRY(const auto kept, store.record(*note.id));
    if (kept && kept->kind == KestCore::kNoteKind) {
        KEST_TRY([[maybe_unused]] const LocalRecord edited,
                 list.edit(*note.id, [&](LocalRecord &record) {
                     return KestCore::changeNote(record, change);
                 }));
        return {};
    }
    if (!note.title.empty()) {
        change.title = note.title;
    }
    KEST_TRY(LocalRecord added, KestCore::makeNote(change));
    KEST_TRY(added, list.add(std::move(added), KestCore::ListEnd::front));
    *note.id = added.id;
    return {};
}

QString whenText(const Formatting &formatting, const ApplicationModel &model, double updatedMs)
{
    const Base::Instant instant = Base::fromMilliseconds1970(updatedMs);
    const KestCore::Calendar &calendar = model.calendar();
    const auto days = calendar.dayNumber(model.now()) - calendar.dayNumber(instant);
    if (days == 0) {
        return formatting.time(instant);
    }
    const KestCore::LocalTime local = calendar.at(instant);
    const QDate date{local.year, local.month, local.day};
    const bool isOfThisWeek = days > 0 && days < 7;
    return formatting.digits(formatting.locale().toString(
        date, isOfThisWeek ? QStringLiteral("ddd") : QStringLiteral("d MMM")));
}

} // namespace Velvetnook
