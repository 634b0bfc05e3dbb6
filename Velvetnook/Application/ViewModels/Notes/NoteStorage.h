// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SharedList.h"
#include "KestCore/Models/Snapshot.h"
#include "KestCore/Store/StateStore.h"
#include "KestCore/Tools/RecordSearch.h"

#include <QString>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

// How notes are found among the records, and how one that is being written is kept.
namespace Velvetnook
{

class ApplicationModel;
class Formatting;

using Records = Base::SharedList<KestCore::RecordRef>;

// In the order shown, without their texts, which can be large.
std::vector<KestCore::LocalRecord> notesIn(const Records &records);
std::size_t noteCount(const Records &records);
std::optional<KestCore::LocalRecord> noteIn(const Records &records, std::string_view id);
// An empty one, never written, where there is none.
KestCore::LocalRecord scratchpadIn(const Records &records);
// The scratchpad and the notes, or those of them with these words.
std::vector<KestCore::RecordHit> foundNotes(const Records &records, std::string_view query);

// A note as it stands in the editor.
struct NoteText {
    std::shared_ptr<std::string> id{}; // empty: a new one; set when it is stored
    std::string text{};
    std::string title{}; // empty while it goes by its text
    bool isTitleEdited{};
};

// Writes the note, a new one where it has no id yet or was removed meanwhile, so that nothing
// that was typed is lost. For the store's thread.
[[nodiscard]] Base::Result<void> storeNote(KestCore::StateStore &store, const NoteText &note,
                                           Base::Instant now);

// "13:05" of today, "Thu" of the last days, else "11 Nov".
QString whenText(const Formatting &formatting, const ApplicationModel &model, double updatedMs);

} // namespace Velvetnook
