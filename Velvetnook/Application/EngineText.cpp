// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/EngineText.h"

#include "Velvetnook/Application/QtText.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace Velvetnook
{

namespace
{

// Named once more for the translators, who do not read the engines.
[[maybe_unused]] constexpr const char *kTexts[]{
    QT_TRANSLATE_NOOP("Engine", "Sustained disk activity exceeded your threshold."),
    QT_TRANSLATE_NOOP("Engine", "Sustained network activity exceeded your threshold."),
    // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): one text in two lines
    QT_TRANSLATE_NOOP("Engine", "Its process footprint grew over the last hour. Review the app "
                                "to see why."),
    QT_TRANSLATE_NOOP("Engine", "This process has ended already."),
    QT_TRANSLATE_NOOP("Engine", "The system cannot run without this process."),
    QT_TRANSLATE_NOOP("Engine", "This is a part of the system's kernel."),
    QT_TRANSLATE_NOOP("Engine", "This process belongs to another user."),
    QT_TRANSLATE_NOOP("Engine", "Velvetnook itself runs under this process."),
    QT_TRANSLATE_NOOP("Engine", "Your session would end with this process."),
    QT_TRANSLATE_NOOP("Engine", "Target must be between 1 and 1,000,000"),
    QT_TRANSLATE_NOOP("Engine", "Confirm before resetting a nonempty session"),
    QT_TRANSLATE_NOOP("Engine", "This item was removed."),
    QT_TRANSLATE_NOOP("Engine", "Nothing was removed in the last 30 seconds"),
    QT_TRANSLATE_NOOP("Engine", "Total timer duration cannot exceed 365 days."),
    QT_TRANSLATE_NOOP("Engine", "A title is one line of at most 200 characters"),
    QT_TRANSLATE_NOOP("Engine", "A note needs a title or a text"),
    QT_TRANSLATE_NOOP("Engine", "Choose between 1 minute and 365 days."),
    QT_TRANSLATE_NOOP("Engine", "Invalid timer"),
    QT_TRANSLATE_NOOP("Engine", "A stopwatch has no length."),
    QT_TRANSLATE_NOOP("Engine",
                      "Allow location access to calculate prayer times for where you are."),
    QT_TRANSLATE_NOOP("Engine", "Choose a city or use your location."),
    QT_TRANSLATE_NOOP("Engine", "Prayer times are known for dates from 1900 to 2200"),
    QT_TRANSLATE_NOOP("Engine", "The next prayer is too close for this buffer. Try an "
                                "ordinary timer or reduce the buffer."),
    QT_TRANSLATE_NOOP("Engine", "The buffer must be between 0 and 120 minutes"),
    QT_TRANSLATE_NOOP("Engine", "Write a number and two units, such as 5 km to mi"),
    QT_TRANSLATE_NOOP("Engine", "Choose compatible units and a finite number"),
    QT_TRANSLATE_NOOP("Engine", "Invalid backup"),
    QT_TRANSLATE_NOOP("Engine", "Backup exceeds 50 MB"),
    QT_TRANSLATE_NOOP("Engine", "Invalid native settings"),
    QT_TRANSLATE_NOOP("Engine", "database or disk is full"),
    QT_TRANSLATE_NOOP("Engine", "disk I/O error"),
    QT_TRANSLATE_NOOP("Engine", "database is locked"),
    QT_TRANSLATE_NOOP("Engine", "attempt to write a readonly database"),
    QT_TRANSLATE_NOOP("Engine", "The header has room for eight. Take one out first."),
    QT_TRANSLATE_NOOP("Engine", "This workspace is not there any more"),
    QT_TRANSLATE_NOOP("Engine", "This item is not there any more"),
    QT_TRANSLATE_NOOP("Engine", "A workspace has room for 64 items. Take one out first."),
    QT_TRANSLATE_NOOP("Engine", "This is in the workspace already"),
    QT_TRANSLATE_NOOP("Engine", "A name is one line of 1 to 80 characters"),
    QT_TRANSLATE_NOOP("Engine", "There is no such tool"),
    QT_TRANSLATE_NOOP("Engine", "This address is too long"),
    QT_TRANSLATE_NOOP("Engine", "The dock has room for 12 workspaces. Remove one first."),
    QT_TRANSLATE_NOOP("Engine", "The last workspace stays"),
    QT_TRANSLATE_NOOP("Engine", "This application is not installed any more"),
    QT_TRANSLATE_NOOP("Engine", "The application's command line is not valid"),
    QT_TRANSLATE_NOOP("Engine", "It could not be started"),
    QT_TRANSLATE_NOOP("Engine", "No terminal was found to start it in"),
    QT_TRANSLATE_NOOP("Engine", "This file is not there any more"),
    QT_TRANSLATE_NOOP("Engine", "Nothing was found to open it with"),
    QT_TRANSLATE_NOOP("Engine", "This is no web address"),
    QT_TRANSLATE_NOOP("Engine", "A little remembrance"),
    QT_TRANSLATE_NOOP("Engine", "Velvetnook — Preview"),
    QT_TRANSLATE_NOOP("Engine", "A quiet moment for remembrance."),
    QT_TRANSLATE_NOOP("Engine", "Velvetnook timer"),
    QT_TRANSLATE_NOOP("Engine", "A note"),
    QT_TRANSLATE_NOOP("Engine", "The scratchpad"),
    QT_TRANSLATE_NOOP("Engine",
                      "The system's package manager installed Velvetnook and updates it"),
    QT_TRANSLATE_NOOP("Engine", "A development build does not look for updates"),
    QT_TRANSLATE_NOOP("Engine", "This build has no updates"),
    QT_TRANSLATE_NOOP("Engine",
                      "The server of updates did not answer. Please try again tomorrow."),
    QT_TRANSLATE_NOOP("Engine", "What was sent is no signed feed"),
    QT_TRANSLATE_NOOP("Engine", "The signature of the feed does not hold"),
    QT_TRANSLATE_NOOP("Engine", "The feed is signed, but says what it must not"),
    QT_TRANSLATE_NOOP("Engine", "The feed is not meant for this build"),
    QT_TRANSLATE_NOOP("Engine", "The feed is older than one that was seen already"),
    QT_TRANSLATE_NOOP("Engine", "Credential hidden · remove this saved entry"),
    QT_TRANSLATE_NOOP("Engine", "Copied image"),
    QT_TRANSLATE_NOOP("Engine", "This saved image is damaged."),
    QT_TRANSLATE_NOOP("Engine", "This saved entry cannot be opened."),
    QT_TRANSLATE_NOOP("Engine", "The clipboard could not be updated. Try copying again."),
    QT_TRANSLATE_NOOP("Engine", "Clipboard image is too large or could not be read."),
    QT_TRANSLATE_NOOP("Engine", "Clipboard image could not be decoded"),
    QT_TRANSLATE_NOOP("Engine", "Cannot encode clipboard preview"),
    QT_TRANSLATE_NOOP("Engine", "These clipboard file references could not be saved."),
    QT_TRANSLATE_NOOP("Engine", "Invalid clipboard text"),
    QT_TRANSLATE_NOOP("Engine", "The application that copied does not answer."),
    QT_TRANSLATE_NOOP("Engine", "What was copied is too large to keep."),
    QT_TRANSLATE_NOOP("Engine", "The clipboard history has no room for this."),
    QT_TRANSLATE_NOOP("Engine", "There is no keyring here to keep the clipboard's key in"),
    QT_TRANSLATE_NOOP("Engine", "The clipboard's key in the keyring is damaged"),
    QT_TRANSLATE_NOOP("Engine", "The keyring is locked. Unlock it, and try again."),
    QT_TRANSLATE_NOOP("Engine",
                      "There is no keyring (Secret Service) here to keep the key in."),
    QT_TRANSLATE_NOOP("Engine",
                      "There is no default keyring to keep the key in. Make one first."),
    QT_TRANSLATE_NOOP("Engine", "The list of recent files cannot be read."),
    QT_TRANSLATE_NOOP("Engine", "Only http:// and https:// addresses can be saved"),
    QT_TRANSLATE_NOOP("Engine", "An address has no spaces, backslashes or control characters"),
    QT_TRANSLATE_NOOP("Engine", "This address names no website"),
    QT_TRANSLATE_NOOP("Engine", "There is nothing in the text for the shelf"),
    QT_TRANSLATE_NOOP("Engine", "A name has to show something"),
    QT_TRANSLATE_NOOP("Engine", "That calendar is there already"),
};

// Texts with something of the user's in them: how the engine writes them, and how they are
// shown. Each piece is translated by itself where it is one of the texts above.
struct Pattern {
    const char *written;
    const char *shown;
};
constexpr Pattern kPatterns[]{
    {"^There is no unit \"(.*)\"; the nearest (?:is|are) (.*)$",
     QT_TRANSLATE_NOOP("Engine", "There is no unit “%1”; the nearest: %2")},
    {"^There is no unit \"(.*)\"; there are (.*)$",
     QT_TRANSLATE_NOOP("Engine", "There is no unit “%1”; there are: %2")},
    {"^Unknown time zone \"(.*)\"$", QT_TRANSLATE_NOOP("Engine", "There is no time zone “%1”")},
    {"^(.*) holds at most 1,000,000 bytes$",
     QT_TRANSLATE_NOOP("Engine", "%1 holds at most 1,000,000 bytes")},
    {"^The clipboard's key is in use by (.*)$",
     QT_TRANSLATE_NOOP("Engine", "The clipboard’s key is being made by %1. Try again.")},
    {"^(/.*): It is no file of your own$",
     QT_TRANSLATE_NOOP("Engine", "%1: It is no file of your own")},
    {"^(/.*): It is larger than a megabyte$",
     QT_TRANSLATE_NOOP("Engine", "%1: It is larger than a megabyte")},
    {"^(/.*): It has changed just now; try again$",
     QT_TRANSLATE_NOOP("Engine", "%1: It has changed just now; try again")},
    {R"(^(/.*): It is not written as strict JSON\. Nothing was changed$)",
     QT_TRANSLATE_NOOP("Engine", "%1: It is not written as strict JSON. Nothing was changed")},
    {R"(^Check the (.*) key and website selection \(HTTP (.*)\)\.$)",
     QT_TRANSLATE_NOOP("Engine", "Check the %1 key and website selection (HTTP %2).")},
    {"^The player \"(.*)\" cannot do this: (.*)$",
     QT_TRANSLATE_NOOP("Engine", "The player “%1” cannot do this: %2")},
    {"^The player \"(.*)\" does not answer\\.$",
     QT_TRANSLATE_NOOP("Engine", "The player “%1” does not answer.")},
    {"^No browser that may be driven listens on port (.*)\\.$",
     QT_TRANSLATE_NOOP("Engine", "No browser that may be driven listens on port %1.")},
    {"^The browser on port (.*) does not answer\\.$",
     QT_TRANSLATE_NOOP("Engine", "The browser on port %1 does not answer.")},
    {"^A copied file has moved or access was revoked\\. Copy it again from Finder\\.$",
     QT_TRANSLATE_NOOP("Engine", "A copied file has moved or access was revoked. Copy it again "
                                 "from the file manager.")},
    {"^This address is saved already, as \"(.*)\"$",
     QT_TRANSLATE_NOOP("Engine", "This address is saved already, as “%1”")},
    {"^(.*): it is no calendar\\.$", QT_TRANSLATE_NOOP("Engine", "%1: it is no calendar.")},
    {"^(.*): it is not there\\.$", QT_TRANSLATE_NOOP("Engine", "%1: it is not there.")},
    {"^CPU stayed above (.*)% of one core\\.$",
     QT_TRANSLATE_NOOP("Engine", "CPU stayed above %1% of one core.")},
    {"^(.*): high CPU load$", QT_TRANSLATE_NOOP("Engine", "%1: high CPU load")},
    {"^(.*): high disk activity$", QT_TRANSLATE_NOOP("Engine", "%1: high disk activity")},
    {"^(.*): high network activity$", QT_TRANSLATE_NOOP("Engine", "%1: high network activity")},
    {"^(.*): growing memory$", QT_TRANSLATE_NOOP("Engine", "%1: growing memory")},
    {"^(.*) finished\\.$", QT_TRANSLATE_NOOP("Engine", "%1 finished.")},
};

QString translated(const char *text) { return QCoreApplication::translate("Engine", text); }

QString translated(const QString &text) { return translated(text.toUtf8().constData()); }

} // namespace

QString engineText(std::string_view text)
{
    const QString own = fromView(text);
    for (const Pattern &pattern : kPatterns) {
        const QRegularExpression written{QString::fromUtf8(pattern.written),
                                         QRegularExpression::DotMatchesEverythingOption};
        const auto match = written.match(own);
        if (match.lastCapturedIndex() == 0) {
            return translated(pattern.shown);
        }
        if (match.lastCapturedIndex() == 1) {
            return translated(pattern.shown).arg(translated(match.captured(1)));
        }
        if (match.hasMatch()) {
            return translated(pattern.shown)
                .arg(translated(match.captured(1)), match.captured(2));
        }
    }
    return translated(own);
}

} // namespace Velvetnook
