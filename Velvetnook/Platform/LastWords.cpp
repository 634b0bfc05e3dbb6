// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/LastWords.h"

#include <QString>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr const char *kNoDisplay =
    "There is no display here that can be used. `kest` works in a terminal.";
constexpr const char *kDisplayGone =
    "The display has gone. What was counted and written is kept.";

LastWords *theOne = nullptr;

} // namespace

LastWords::LastWords() : m_before{qInstallMessageHandler(hear)} { theOne = this; }

LastWords::~LastWords()
{
    displayIsOpen();
    qInstallMessageHandler(m_before);
    theOne = nullptr;
}

void LastWords::displayIsOpen()
{
    m_isOpen = true;
    std::fputs(std::exchange(m_held, {}).c_str(), stderr);
}

void LastWords::hear(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!theOne->m_isOpen) {
        theOne->hearStart(type, text);
        return;
    }
    // Qt says it of its own connection, on the main thread, and ends the program behind it.
    if (text.startsWith(QLatin1String{"The X11 connection broke"}) ||
        text.startsWith(QLatin1String{"The Wayland connection broke"})) {
        if (const auto save = std::exchange(theOne->m_save, {})) {
            save();
        }
        theOne->endWithout(kDisplayGone);
    }
    theOne->m_before(type, context, text);
}

void LastWords::hearStart(QtMsgType type, const QString &text)
{
    m_held += text.toStdString() + "\n";
    if (type == QtFatalMsg) {
        endWithout(kNoDisplay);
    }
}

// At once: what destructors and the ends of libraries do wants the display that is not there.
void LastWords::endWithout(const char *words)
{
    std::fprintf(stderr, "velvetnook: %s\n%s", words, m_held.c_str());
    std::fflush(nullptr);
    std::_Exit(EXIT_FAILURE);
}

} // namespace Velvetnook
