// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlEngine>

#include <memory>

namespace Velvetnook
{

class App;
class Theme;

// What the singletons App and Theme are, as far as they have been made.
struct Singletons {
    App *app = nullptr;
    Theme *theme = nullptr;
};

// Sets how text is drawn; before the QGuiApplication is made.
void prepareText();
// Takes back what was put into the environment for it, before another program is started.
void endTextPreparation();

// Has the list of the installed fonts read, which can be done while the QGuiApplication is
// made, and on another thread; it must be there before the first font is asked for.
void readFontList();

// Makes the singletons App and Theme and the icons known to what `engine` loads. It can compile
// before the two are there, and makes objects only then.
void prepareEngine(QQmlEngine &engine, const std::shared_ptr<const Singletons> &singletons);
void prepareEngine(QQmlEngine &engine, App &app, Theme &theme);

} // namespace Velvetnook
