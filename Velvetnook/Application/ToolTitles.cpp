// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ToolTitles.h"

#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/Formatting.h"

#include <QCoreApplication>

#include <algorithm>

namespace Velvetnook
{

namespace
{

// Named once more for the translators, who read this file and not the catalogue.
[[maybe_unused]] constexpr const char *kTitles[]{
    QT_TRANSLATE_NOOP("Tools", "Home"),        QT_TRANSLATE_NOOP("Tools", "Counter"),
    QT_TRANSLATE_NOOP("Tools", "Prayer"),      QT_TRANSLATE_NOOP("Tools", "Names"),
    QT_TRANSLATE_NOOP("Tools", "Tasbih"),      QT_TRANSLATE_NOOP("Tools", "Friday"),
    QT_TRANSLATE_NOOP("Tools", "Timers"),      QT_TRANSLATE_NOOP("Tools", "Scratchpad"),
    QT_TRANSLATE_NOOP("Tools", "Notes"),       QT_TRANSLATE_NOOP("Tools", "Clipboard"),
    QT_TRANSLATE_NOOP("Tools", "Shelf"),       QT_TRANSLATE_NOOP("Tools", "Files"),
    QT_TRANSLATE_NOOP("Tools", "Bookmarks"),   QT_TRANSLATE_NOOP("Tools", "Emoji"),
    QT_TRANSLATE_NOOP("Tools", "Units"),       QT_TRANSLATE_NOOP("Tools", "Calendar"),
    QT_TRANSLATE_NOOP("Tools", "Weather"),     QT_TRANSLATE_NOOP("Tools", "Music"),
    QT_TRANSLATE_NOOP("Tools", "Sounds"),      QT_TRANSLATE_NOOP("Tools", "Monitor"),
    QT_TRANSLATE_NOOP("Tools", "Screen time"), QT_TRANSLATE_NOOP("Tools", "Assistants"),
    QT_TRANSLATE_NOOP("Tools", "Revenue"),     QT_TRANSLATE_NOOP("Tools", "Analytics"),
    QT_TRANSLATE_NOOP("Tools", "Settings"),
};
[[maybe_unused]] constexpr const char *kSummaries[]{
    QT_TRANSLATE_NOOP("ToolSummaries", "What matters right now, on one calm page."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Count a phrase bead by bead, with a target, undo and a quiet history."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Today’s prayer times and the Qibla, worked out on this computer."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "The Names in Arabic with their meaning, and one for each day."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Your count on a full ring of beads, with nothing else in view."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "One quiet invitation each Friday to send blessings upon the Prophet."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Focus, countdown, stopwatch and a gentle nudge to drink water."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "One sheet for whatever is on your mind, saved as you type."),
    QT_TRANSLATE_NOOP("ToolSummaries", "Short notes you can find again by any word in them."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "What you copied, encrypted on this computer, with the favourites kept."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "A place to set files down for a moment and pick them up elsewhere."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "The files and folders you come back to, one step away."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Your own dua bookmarks, each a link to a source you chose."),
    QT_TRANSLATE_NOOP("ToolSummaries", "Find an emoji by its name and copy it with one key."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Convert length, mass, temperature and more as you type."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "The month to look at, with each day’s events and its Islamic date."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Temperature, rain and wind for your place, from MET Norway."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "See what is playing and steer it, in a player or a browser tab."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Rain, wind and other soft sounds to mix, with a time to fall silent."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Processor, memory, disk and network, and which applications use them."),
    QT_TRANSLATE_NOOP(
        "ToolSummaries",
        "How long you have been at the screen today, known only to this computer."),
    QT_TRANSLATE_NOOP(
        "ToolSummaries",
        "What is left of your coding assistants’ limits, and which one waits for you."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Payments, refunds, fees and payouts from your own Stripe account."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "Visitors, top pages and referrers of your website, from DataFast."),
    QT_TRANSLATE_NOOP("ToolSummaries",
                      "How Velvetnook looks, when it speaks up and which tools stay close."),
};

const KestCore::ToolDescriptor *toolOf(const QString &id)
{
    const auto &tools = KestCore::ToolRegistry::tools();
    const auto found =
        std::ranges::find(tools, id.toStdString(), &KestCore::ToolDescriptor::id);
    return found == tools.end() ? nullptr : &*found;
}

} // namespace

QString toolTitle(const QString &id)
{
    const auto *tool = toolOf(id);
    return tool == nullptr ? QString{}
                           : QCoreApplication::translate("Tools", tool->title.c_str());
}

QString toolSummary(const QString &id)
{
    const auto *tool = toolOf(id);
    return tool == nullptr
               ? QString{}
               : QCoreApplication::translate("ToolSummaries", tool->summary.c_str());
}

QString timerTitle(const KestCore::Timer &timer, const Formatting &formatting)
{
    QString own = QString::fromStdString(timer.record.title);
    const std::string given{KestCore::displayTitle(timer.state.mode)};
    const QString usual = QString::fromStdString(given);
    bool isNumber = own.isEmpty() || own == usual;
    const qlonglong number = isNumber || !own.startsWith(usual)
                                 ? 0
                                 : own.mid(usual.size() + 1).toLongLong(&isNumber);
    if (!isNumber) {
        return own;
    }
    const QString translated =
        QCoreApplication::translate("Velvetnook::TimersViewModel", given.c_str());
    return number == 0 ? translated
                       : QStringLiteral("%1 %2").arg(translated, formatting.number(number));
}

} // namespace Velvetnook
