// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Engine.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shell/ApplicationImages.h"
#include "Velvetnook/Shell/ArtImages.h"
#include "Velvetnook/Shell/Beads.h"
#include "Velvetnook/Shell/DayArc.h"
#include "Velvetnook/Shell/HistoryChart.h"
#include "Velvetnook/Shell/IconImages.h"
#include "Velvetnook/Shell/Picture.h"
#include "Velvetnook/Shell/PreviewImages.h"
#include "Velvetnook/Shell/QiblaDial.h"
#include "Velvetnook/Shell/ShadowImages.h"
#include "Velvetnook/Shell/Sparkline.h"
#include "Velvetnook/Shell/Theme.h"
#include "Velvetnook/Shell/WeatherChart.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QQuickWindow>

#include <fontconfig/fontconfig.h>

namespace Velvetnook
{

namespace
{

template <class T>
void registerSingleton(const char *name, const std::shared_ptr<const Singletons> &singletons,
                       T *Singletons::*which)
{
    qmlRegisterSingletonType<T>(
        "Velvetnook.Application", 1, 0, name, [singletons, which](QQmlEngine *, QJSEngine *) {
            T *singleton = (*singletons).*which;
            QJSEngine::setObjectOwnership(singleton, QJSEngine::CppOwnership);
            return singleton;
        });
}

constexpr const char *kTextVariable = "FREETYPE_PROPERTIES";
constexpr const char *kTextChoice = "cff:darkening-parameters=500,90,1000,70,1667,70,2333,0";

} // namespace

void prepareText()
{
    // Qt has FreeType thicken the stems of such fonts as Inter by more than the eye wants, and
    // light text on dark then looks a weight bolder than it is. The user's own choice stays.
    if (!qEnvironmentVariableIsSet(kTextVariable)) {
        qputenv(kTextVariable, kTextChoice);
    }
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

void endTextPreparation()
{
    if (qgetenv(kTextVariable) == kTextChoice) {
        // It is read with the first text that is measured, and there may have been none yet.
        (void)QFontMetricsF{QGuiApplication::font()}.height();
        qunsetenv(kTextVariable);
    }
}

// Qt finds it read. It takes as long as connecting to the display does.
void readFontList() { FcInit(); }

void prepareEngine(QQmlEngine &engine, const std::shared_ptr<const Singletons> &singletons)
{
    registerSingleton("App", singletons, &Singletons::app);
    registerSingleton("Theme", singletons, &Singletons::theme);
    qmlRegisterType<Beads>("Velvetnook.Application", 1, 0, "Beads");
    qmlRegisterType<DayArc>("Velvetnook.Application", 1, 0, "DayArc");
    qmlRegisterType<HistoryChart>("Velvetnook.Application", 1, 0, "HistoryChart");
    qmlRegisterType<Picture>("Velvetnook.Application", 1, 0, "Picture");
    qmlRegisterType<QiblaDial>("Velvetnook.Application", 1, 0, "QiblaDial");
    qmlRegisterType<Sparkline>("Velvetnook.Application", 1, 0, "Sparkline");
    qmlRegisterType<WeatherChart>("Velvetnook.Application", 1, 0, "WeatherChart");
    engine.addImageProvider(QStringLiteral("art"), new ArtImages);
    engine.addImageProvider(QStringLiteral("application"), new ApplicationImages);
    engine.addImageProvider(QStringLiteral("icon"), new IconImages);
    engine.addImageProvider(QStringLiteral("preview"), new PreviewImages);
    engine.addImageProvider(QStringLiteral("shadow"), new ShadowImages);
    engine.addImportPath(QStringLiteral("qrc:/"));
}

void prepareEngine(QQmlEngine &engine, App &app, Theme &theme)
{
    prepareEngine(engine, std::make_shared<const Singletons>(&app, &theme));
}

} // namespace Velvetnook
