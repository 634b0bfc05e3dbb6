// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlEngine>

namespace Velvetnook
{

class App;
class Theme;

// Sets how text is drawn; before the QGuiApplication is made.
void prepareText();

// Makes the singletons App and Theme and the icons known to what `engine` loads.
void prepareEngine(QQmlEngine &engine, App &app, Theme &theme);

} // namespace Velvetnook
