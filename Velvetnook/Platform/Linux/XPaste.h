// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace Velvetnook
{

// Presses the keys that paste, in the window that has the keyboard once it is none of ours and
// the user holds no other key down. Gives up when that does not come soon.
class XPaste : public QObject
{
    Q_OBJECT

public:
    explicit XPaste(QObject *parent = nullptr);

    // Whether this X server lets a program press keys.
    static bool isPossible();

    void begin();

private:
    void tryNow();

    QTimer m_timer;
    int m_triesLeft = 0;
};

} // namespace Velvetnook
