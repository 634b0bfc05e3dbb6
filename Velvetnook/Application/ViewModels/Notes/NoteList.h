// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/RowList.h"

#include <QString>

namespace Velvetnook
{

// One line of the list of notes.
struct NoteRow {
    QString id{};
    QString title{};
    QString excerpt{}; // what a search found in its text
    QString when{};
    bool isPinned{};
    bool isScratchpad{};

    bool operator==(const NoteRow &) const = default;
};

// The lines as they are shown.
class NoteList : public RowList<NoteRow>
{
public:
    enum Role : std::uint16_t {
        noteId = Qt::UserRole,
        title,
        excerpt,
        when,
        pinned,
        scratchpad
    };

    NoteList();
};

} // namespace Velvetnook
