// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Engine.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shell/IconImages.h"
#include "Velvetnook/Shell/ShadowImages.h"
#include "Velvetnook/Shell/Theme.h"

namespace Velvetnook
{

void prepareEngine(QQmlEngine &engine, App &app, Theme &theme)
{
    registerForQml(app);
    qmlRegisterSingletonInstance("Velvetnook.Application", 1, 0, "Theme", &theme);
    engine.addImageProvider(QStringLiteral("icon"), new IconImages);
    engine.addImageProvider(QStringLiteral("shadow"), new ShadowImages);
    engine.addImportPath(QStringLiteral("qrc:/"));
}

} // namespace Velvetnook
