// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Notes/NoteList.h"

#include <array>

namespace Velvetnook
{

namespace
{

// In the order of the roles.
constexpr std::array kRoles{
    RowRole<NoteRow>{"noteId", [](const NoteRow &row) { return QVariant{row.id}; }},
    RowRole<NoteRow>{"title", [](const NoteRow &row) { return QVariant{row.title}; }},
    RowRole<NoteRow>{"excerpt", [](const NoteRow &row) { return QVariant{row.excerpt}; }},
    RowRole<NoteRow>{"when", [](const NoteRow &row) { return QVariant{row.when}; }},
    RowRole<NoteRow>{"pinned", [](const NoteRow &row) { return QVariant{row.isPinned}; }},
    RowRole<NoteRow>{"scratchpad",
                     [](const NoteRow &row) { return QVariant{row.isScratchpad}; }},
};

} // namespace

NoteList::NoteList() : RowList{kRoles} {}

} // namespace Velvetnook
