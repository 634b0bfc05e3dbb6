// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Clipboard/ClipboardRows.h"

#include "KestCore/Clipboard/ClipboardPrivacy.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"

#include <QCoreApplication>
#include <QUrl>

#include <algorithm>

namespace Velvetnook
{

namespace
{

using KestCore::ClipboardKind;
using KestCore::ClipboardListing;

QString words(const char *text, int count = -1)
{
    return QCoreApplication::translate("Clipboard", text, nullptr, count);
}

QString ageOf(Base::Instant then, Base::Instant now, const Formatting &formatting)
{
    constexpr double kMinute = 60;
    constexpr double kHour = 3'600;
    constexpr double kDay = 86'400;
    const double age = (now - then).count();
    const auto number = [&](double unit) {
        return formatting.number(static_cast<qlonglong>(age / unit));
    };
    if (age < kMinute) {
        return words(QT_TRANSLATE_NOOP("Clipboard", "now"));
    }
    if (age < kHour) {
        return words(QT_TRANSLATE_NOOP("Clipboard", "%1 min")).arg(number(kMinute));
    }
    return age < kDay ? words(QT_TRANSLATE_NOOP("Clipboard", "%1 h")).arg(number(kHour))
                      : words(QT_TRANSLATE_NOOP("Clipboard", "%1 d")).arg(number(kDay));
}

// Commands and code are read better in letters of one width.
bool looksLikeCode(const QString &text)
{
    constexpr const char *kSigns[]{"::",  "->", "=>", "&&", "||", "();", "{", "}",
                                   " --", "</", "==", "$(", "#!", "/>",  "*/"};
    constexpr const char *kStarts[]{"git ", "sudo ", "cd ", "ls ", "./", "/usr/", "~/"};
    return std::ranges::any_of(
               kSigns, [&](const char *sign) { return text.contains(QLatin1String{sign}); }) ||
           std::ranges::any_of(kStarts, [&](const char *start) {
               return text.startsWith(QLatin1String{start});
           });
}

QString kindWord(const ClipboardListing &listing, const ClipboardDetail &detail,
                 const Formatting &formatting)
{
    switch (listing.entry.kind) {
    case ClipboardKind::link:
        return words(QT_TRANSLATE_NOOP("Clipboard", "Link"));
    case ClipboardKind::image:
        return words(QT_TRANSLATE_NOOP("Clipboard", "Image"));
    case ClipboardKind::files:
        return detail.files.isEmpty()
                   ? words(QT_TRANSLATE_NOOP("Clipboard", "Files"))
                   : formatting.digits(words(QT_TRANSLATE_N_NOOP("Clipboard", "%n file(s)"),
                                             static_cast<int>(detail.files.size())));
    case ClipboardKind::text:
        break;
    }
    return words(QT_TRANSLATE_NOOP("Clipboard", "Text"));
}

QString iconOf(const ClipboardListing &listing, bool isHidden)
{
    if (isHidden) {
        return QStringLiteral("lock");
    }
    switch (listing.entry.kind) {
    case ClipboardKind::link:
        return QStringLiteral("links");
    case ClipboardKind::image:
        return QStringLiteral("image");
    case ClipboardKind::files:
        return QStringLiteral("files");
    case ClipboardKind::text:
        break;
    }
    return QStringLiteral("text");
}

// The host above, what is on it below.
void splitLink(ClipboardRow &row)
{
    const QUrl address{row.title.trimmed()};
    const QString rest = address.path() +
                         (address.hasQuery() ? u'?' + address.query() : QString{}) +
                         (address.hasFragment() ? u'#' + address.fragment() : QString{});
    if (!address.host().isEmpty()) {
        row.title = address.host();
        row.detail = rest == u"/" ? QString{} : rest;
        row.isWhole = false;
    }
}

void nameFiles(ClipboardRow &row, const QStringList &files)
{
    row.isWhole = false;
    if (!files.isEmpty()) {
        row.title = files.front();
        const auto more = static_cast<int>(files.size()) - 1;
        row.detail = more == 0 ? QString{}
                               : words(QT_TRANSLATE_N_NOOP("Clipboard", "and %n more"), more);
    }
}

} // namespace

ClipboardRow clipboardRow(const ClipboardListing &listing, const ClipboardDetail &detail,
                          Base::Instant now, const Formatting &formatting)
{
    const KestCore::ClipboardEntry &entry = listing.entry;
    const QString kind = QString::fromUtf8(Base::textOf(entry.kind).data());
    ClipboardRow row{.id = QString::fromStdString(entry.id),
                     .kind = kind,
                     .title = QString::fromStdString(listing.display),
                     .preview = detail.preview,
                     .isFavourite = entry.favourite,
                     .isWhole = true};
    row.isHidden =
        !listing.isReadable || listing.display == KestCore::ClipboardPrivacy::kHidden;
    row.icon = iconOf(listing, row.isHidden);
    row.meta = QStringLiteral("%1 · %2").arg(kindWord(listing, detail, formatting),
                                             ageOf(entry.createdAt, now, formatting));
    if (row.isHidden) {
        row.title = engineText(listing.display);
    } else if (entry.kind == ClipboardKind::link) {
        splitLink(row);
    } else if (entry.kind == ClipboardKind::image) {
        row.title = engineText(listing.display);
        row.isWhole = false;
    } else if (entry.kind == ClipboardKind::files) {
        nameFiles(row, detail.files);
        row.detail = formatting.digits(row.detail);
    } else {
        row.isCode = looksLikeCode(row.title);
        row.title = row.title.trimmed();
    }
    return row;
}

QString clipboardCount(int count, const Formatting &formatting)
{
    return formatting.digits(words(QT_TRANSLATE_N_NOOP("Clipboard", "%n item(s)"), count));
}

} // namespace Velvetnook
