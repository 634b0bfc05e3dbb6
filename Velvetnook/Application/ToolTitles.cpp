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

} // namespace

QString toolTitle(const QString &id)
{
    const auto &tools = KestCore::ToolRegistry::tools();
    const auto found =
        std::ranges::find(tools, id.toStdString(), &KestCore::ToolDescriptor::id);
    return found == tools.end() ? QString{}
                                : QCoreApplication::translate("Tools", found->title.c_str());
}

QString timerTitle(const KestCore::Timer &timer, const Formatting &formatting)
{
    const QString own = QString::fromStdString(timer.record.title);
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
