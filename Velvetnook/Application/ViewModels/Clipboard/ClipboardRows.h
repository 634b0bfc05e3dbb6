// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardHistory.h"
#include "Velvetnook/Application/ViewModels/Clipboard/ClipboardList.h"

#include <QStringList>

namespace Velvetnook
{

class Formatting;

// What only an entry's content tells, for its card.
struct ClipboardDetail {
    QImage preview{};
    QStringList files{};
};

// How an entry looks as a card.
ClipboardRow clipboardRow(const KestCore::ClipboardListing &listing,
                          const ClipboardDetail &detail, Base::Instant now,
                          const Formatting &formatting);

// "42 items", in the words of the interface.
QString clipboardCount(int count, const Formatting &formatting);

} // namespace Velvetnook
