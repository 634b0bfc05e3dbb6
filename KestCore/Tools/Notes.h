// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/RecordList.h"
#include "KestCore/Tools/RecordSearch.h"

#include <optional>

namespace KestCore
{

// Notes: what is new of one, each part as far as it is given.
struct NoteChange {
    std::optional<std::string> title{};
    std::optional<std::string> text{};
};

inline constexpr const char *kNoteKind = "note";

// A note to be added. Without a title it goes by the first line of its text. Fails for a note
// with neither, and for a title or a text that is too long.
[[nodiscard]] Result<LocalRecord> makeNote(const NoteChange &given);

// A title that came from the text goes on following it; an empty one begins to.
[[nodiscard]] Result<void> changeNote(LocalRecord &note, const NoteChange &change);

std::vector<RecordHit> searchNotes(const std::vector<LocalRecord> &notes,
                                   std::string_view query);

// The scratchpad: the one page that is always there, and empty until something is written.
struct ScratchpadPage {
    std::string text{};
    std::optional<Base::Instant> updated{}; // absent: never written
};

[[nodiscard]] Result<ScratchpadPage> readScratchpad(StateStore &store);
// A page that would be too long is refused and the page stays as it was.
[[nodiscard]] Result<void> replaceScratchpad(StateStore &store, std::string text,
                                             Base::Instant now);
// Begins a new line where the page does not end with one.
[[nodiscard]] Result<void> appendToScratchpad(StateStore &store, std::string_view text,
                                              Base::Instant now);

} // namespace KestCore
