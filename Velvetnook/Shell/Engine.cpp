// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Engine.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shell/Beads.h"
#include "Velvetnook/Shell/DayArc.h"
#include "Velvetnook/Shell/IconImages.h"
#include "Velvetnook/Shell/QiblaDial.h"
#include "Velvetnook/Shell/ShadowImages.h"
#include "Velvetnook/Shell/Theme.h"

#include <QQuickWindow>

namespace Velvetnook
{

void prepareText()
{
    // Qt has FreeType thicken the stems of such fonts as Inter by more than the eye wants, and
    // light text on dark then looks a weight bolder than it is.
    if (!qEnvironmentVariableIsSet("FREETYPE_PROPERTIES")) {
        qputenv("FREETYPE_PROPERTIES",
                "cff:darkening-parameters=500,90,1000,70,1667,70,2333,0");
    }
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

void prepareEngine(QQmlEngine &engine, App &app, Theme &theme)
{
    registerForQml(app);
    qmlRegisterSingletonInstance("Velvetnook.Application", 1, 0, "Theme", &theme);
    qmlRegisterType<Beads>("Velvetnook.Application", 1, 0, "Beads");
    qmlRegisterType<DayArc>("Velvetnook.Application", 1, 0, "DayArc");
    qmlRegisterType<QiblaDial>("Velvetnook.Application", 1, 0, "QiblaDial");
    engine.addImageProvider(QStringLiteral("icon"), new IconImages);
    engine.addImageProvider(QStringLiteral("shadow"), new ShadowImages);
    engine.addImportPath(QStringLiteral("qrc:/"));
}

} // namespace Velvetnook
