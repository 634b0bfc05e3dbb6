// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace Velvetnook
{

// SIGINT, SIGTERM and SIGHUP end the program as its user does: what is being written is saved
// first. A file that may not grow is an error of its writing, and not the end of the program.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject *parent = nullptr);
    ~EndSignals() override;
    EndSignals(const EndSignals &) = delete;
    EndSignals &operator=(const EndSignals &) = delete;

signals:
    void endWanted();

private:
    int m_event = -1; // an eventfd, which the handler may write to
};

} // namespace Velvetnook
