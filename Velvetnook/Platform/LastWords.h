// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>
#include <string>

class QString;

namespace Velvetnook
{

// Qt ends a program itself when there is no display to draw on, or when the display goes away,
// and in words that tell its user nothing. While this lives the program's own words come first
// and the end is orderly. There is one at a time; lives on the main thread.
class LastWords
{
public:
    LastWords();
    ~LastWords();
    LastWords(const LastWords &) = delete;
    LastWords &operator=(const LastWords &) = delete;

    // The display is open: passes on what Qt had to say until then.
    void displayIsOpen();
    // Called when the display has gone, before the program ends: saves what is not saved yet.
    void saveWith(std::function<void()> save) { m_save = std::move(save); }

private:
    static void hear(QtMsgType type, const QMessageLogContext &context, const QString &text);
    void hearStart(QtMsgType type, const QString &text);
    [[noreturn]] void endWithout(const char *words);

    QtMessageHandler m_before;
    std::function<void()> m_save;
    std::string m_held; // what Qt said before it was known whether there is a display
    bool m_isOpen = false;
};

} // namespace Velvetnook
