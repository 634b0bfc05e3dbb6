// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Notes.h"

#include "Base/Uuid.h"
#include "KestCore/Tools/Texts.h"

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr const char *kScratchpadKind = "scratchpad";

// Whatever its id, as another build or a backup may have brought it. Of several, which none of
// ours writes, the newest.
Result<std::optional<LocalRecord>> scratchpadRecord(StateStore &store)
{
    KEST_TRY(auto records, store.recordsOfKind(kScratchpadKind));
    const auto newest = std::ranges::max_element(records, {}, &LocalRecord::updated);
    return newest == records.end() ? std::nullopt : std::optional{std::move(*newest)};
}

} // namespace

Result<LocalRecord> makeNote(const NoteChange &given)
{
    LocalRecord note;
    KEST_TRY(note.body, json::encode(Note{}));
    KEST_CHECK(changeNote(note, given));
    return note;
}

Result<void> changeNote(LocalRecord &note, const NoteChange &change)
{
    KEST_TRY(const auto before, json::decode<Note>(std::string_view{note.body}));
    const bool followsText = note.title == titleFromText(before.text);
    const Note after{.text = change.text.value_or(before.text)};
    KEST_CHECK(checkLength("A note", after.text));
    std::string title = followsText ? "" : note.title;
    if (change.title) {
        KEST_TRY(title, checkedTitle(*change.title));
    }
    if (title.empty()) {
        title = titleFromText(after.text);
    }
    if (title.empty()) {
        return std::unexpected(KestError::invalidData("A note needs a title or a text"));
    }
    KEST_TRY(note.body, json::encode(after));
    note.title = std::move(title);
    return {};
}

std::vector<RecordHit> searchNotes(const std::vector<LocalRecord> &notes,
                                   std::string_view query)
{
    return searchRecords(
        notes, query, [](const LocalRecord &record) { return payloadOf<Note>(record).text; });
}

Result<ScratchpadPage> readScratchpad(StateStore &store)
{
    KEST_TRY(const auto record, scratchpadRecord(store));
    if (!record) {
        return ScratchpadPage{};
    }
    KEST_TRY(auto page, json::decode<Scratchpad>(std::string_view{record->body}));
    return ScratchpadPage{.text = std::move(page.text),
                          .updated = Base::fromMilliseconds1970(record->updated)};
}

Result<void> replaceScratchpad(StateStore &store, std::string text, Base::Instant now)
{
    KEST_CHECK(checkLength("The scratchpad", text));
    KEST_TRY(const auto before, scratchpadRecord(store));
    LocalRecord record = before.value_or(
        LocalRecord{.id = Base::makeUuid(), .kind = kScratchpadKind, .title = "Scratchpad"});
    KEST_TRY(record.body, json::encode(Scratchpad{.text = std::move(text)}));
    record.updated = Base::milliseconds1970(now);
    return store.changeRecords({.written = {std::move(record)}});
}

Result<void> appendToScratchpad(StateStore &store, std::string_view text, Base::Instant now)
{
    KEST_TRY(ScratchpadPage page, readScratchpad(store));
    if (!page.text.empty() && !page.text.ends_with('\n')) {
        page.text += '\n';
    }
    page.text += text;
    return replaceScratchpad(store, std::move(page.text), now);
}

} // namespace KestCore
