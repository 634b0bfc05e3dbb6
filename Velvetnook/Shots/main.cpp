// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Languages.h"
#include "Velvetnook/Application/ViewModels/StripViewModel.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"
#include "Velvetnook/Shots/Shot.h"

#include <QDir>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <memory>

// VelvetnookShots FOLDER [PATTERN]: draws the shots whose names contain PATTERN, in dark and
// light, English and Arabic; a name ends in its theme and language, as "-dark-en". The scale is
// that of QT_SCALE_FACTOR.
namespace Velvetnook
{

namespace
{

struct Variant {
    const char *theme;
    const char *language;
};
constexpr Variant kVariants[]{{"dark", "en"}, {"light", "en"}, {"dark", "ar"}, {"light", "ar"}};

std::vector<Shot> allShots()
{
    std::vector<Shot> all;
    for (const auto &list :
         {counterShots(), devotionalShots(), prayerShots(), toolShots(), settingsShots(),
          surfaceShots(), paletteShots(), clipboardShots(), monitorShots(), onlineShots(),
          shelfShots(), dockShots(), assistantShots(), galleryShots()}) {
        all.insert(all.end(), list.begin(), list.end());
    }
    return all;
}

Result<KestCore::Snapshot> fill(KestCore::StateStore &store, const Shot &shot,
                                const Variant &variant)
{
    ShotData data{.state = store.state(), .companion = store.companion(), .records = {}};
    data.state.devotional.onboardingComplete = true;
    data.state.settings["appearance.theme"] = variant.theme;
    data.state.settings["appearance.language"] = variant.language;
    data.state.settings["appearance.reduceMotion"] = "true";
    data.state.settings["prayer.latitude"] = "51.5074";
    data.state.settings["prayer.longitude"] = "-0.1278";
    data.state.settings["prayer.timezone"] = "Europe/London";
    data.state.settings["prayer.city"] = "London";
    data.state.settings["prayer.country"] = "GB";
    if (shot.prepare) {
        shot.prepare(data);
    }
    KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
        state = data.state;
        return {};
    }));
    KEST_CHECK(store.changeRecords({.written = data.records, .removed = {}}));
    return store.saveCompanion(data.companion);
}

// Lets the loop run until nothing more arrives and the last fade has ended. In steps: one that
// a slow load has eaten up leaves time for what begins after it.
void settle()
{
    constexpr int kSteps = 4;
    constexpr int kStepMs = 90;
    for (int step = 0; step < kSteps; ++step) {
        QEventLoop loop;
        QTimer::singleShot(kStepMs, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

QString nameOf(const Shot &shot, const Variant &variant)
{
    return QStringLiteral("%1-%2-%3")
        .arg(shot.name, QLatin1String{variant.theme}, QLatin1String{variant.language});
}

bool say(const Shot &shot, const QString &problem)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(shot.name), qPrintable(problem));
    return false;
}

bool save(QQuickItem &surface, const Shot &shot, const Variant &variant, const QDir &folder)
{
    QQuickWindow window;
    window.setColor(QColor{variant.theme == std::string_view{"dark"} ? "#3A4A42" : "#B9C7BD"});
    window.resize(static_cast<int>(surface.implicitWidth()) + 80,
                  static_cast<int>(surface.implicitHeight()) + 80);
    surface.setParentItem(window.contentItem());
    surface.setX(40);
    surface.setSize({surface.implicitWidth(), surface.implicitHeight()});
    window.show();
    settle();
    const QString name = QStringLiteral("%1-%2.png")
                             .arg(nameOf(shot, variant))
                             .arg(qRound(window.devicePixelRatio() * 100));
    const bool isSaved = window.grabWindow().save(folder.filePath(name));
    std::printf("%s%s\n", qPrintable(name), isSaved ? "" : " COULD NOT BE WRITTEN");
    surface.setParentItem(nullptr);
    return isSaved;
}

// The gallery is none of the application's own surfaces.
QString addressOf(const Shot &shot)
{
    const bool isGallery = shot.surface == QLatin1String{"Gallery"};
    return QStringLiteral("qrc:/%1/%2Surface.qml")
        .arg(isGallery ? QStringLiteral("velvetnook/shots")
                       : QStringLiteral("Velvetnook/Shell/Surfaces"),
             shot.surface);
}

bool drawSurface(QQmlEngine &engine, const Shot &shot, const Variant &variant,
                 const QDir &folder)
{
    QQmlComponent component{&engine, addressOf(shot)};
    QVariantMap properties;
    if (!shot.view.isEmpty()) {
        properties.insert(QStringLiteral("view"), shot.view);
    }
    const std::unique_ptr<QObject> made{component.createWithInitialProperties(properties)};
    auto *surface = qobject_cast<QQuickItem *>(made.get());
    return surface == nullptr ? say(shot, component.errorString())
                              : save(*surface, shot, variant, folder);
}

bool draw(const Shot &shot, const Variant &variant, const QDir &folder)
{
    const QTemporaryDir data;
    const std::filesystem::path file =
        data.filePath(QStringLiteral("kest.sqlite")).toStdString();
    auto store = KestCore::StateStore::open(file);
    if (store) {
        store->leaveClipboardOnDisk();
    }
    auto snapshot = store ? fill(*store, shot, variant) : std::unexpected(store.error());
    if (!snapshot) {
        return say(shot, QString::fromStdString(snapshot.error().message));
    }
    ApplicationModel model{std::make_unique<StateKeeper>(file, std::move(*store)),
                           committedAll(std::move(*snapshot)),
                           [&shot] { return kShotTime + shot.later; }};
    App app{model};
    Theme theme{model};
    const Languages languages{model, *app.format()};
    QQmlEngine engine;
    prepareEngine(engine, app, theme);
    app.strip()->setVisible(true);
    if (shot.arrange) {
        shot.arrange(app);
    }
    settle();
    return drawSurface(engine, shot, variant, folder);
}

} // namespace

} // namespace Velvetnook

int main(int argc, char **argv)
{
    using namespace Velvetnook;
    if (argc < 2) {
        std::fputs("VelvetnookShots FOLDER [PATTERN]\n", stderr);
        return 2;
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("TZ", "Europe/London", 1);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    prepareText();
    const QGuiApplication application{argc, argv};
    const QDir folder{QString::fromLocal8Bit(argv[1])};
    folder.mkpath(QStringLiteral("."));
    const QString pattern = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString{};
    bool isWhole = true;
    for (const Shot &shot : allShots()) {
        for (const Variant &variant : kVariants) {
            if (nameOf(shot, variant).contains(pattern)) {
                isWhole = draw(shot, variant, folder) && isWhole;
            }
        }
    }
    return isWhole ? 0 : 1;
}
