// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace Velvetnook
{

// Tells when the light of the screen or of the keyboard is made another, from 0 to 1.
class LightWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void screenChanged(double share);
    void keyboardChanged(double share);
};

} // namespace Velvetnook
