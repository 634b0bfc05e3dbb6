// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "KestCore/Store/StoreLocation.h"
#include "Velvetnook/Application/Alarms.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CommandServer.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Languages.h"
#include "Velvetnook/Application/Summons.h"
#include "Velvetnook/Application/ViewModels/AssistantsViewModel.h"
#include "Velvetnook/Application/ViewModels/MonitorViewModel.h"
#include "Velvetnook/Application/ViewModels/OverlayViewModel.h"
#include "Velvetnook/Application/ViewModels/ScreenTimeViewModel.h"
#include "Velvetnook/Dock/DockKeeper.h"
#include "Velvetnook/Notch/KeySummons.h"
#include "Velvetnook/Notch/NotchDriver.h"
#include "Velvetnook/Notch/NotchWindow.h"
#include "Velvetnook/Notch/SurfaceWindow.h"
#include "Velvetnook/Platform/Desktop.h"
#include "Velvetnook/Platform/EndSignals.h"
#include "Velvetnook/Platform/GlobalKeys.h"
#include "Velvetnook/Platform/LastWords.h"
#include "Velvetnook/Platform/Linux/BusActivation.h"
#include "Velvetnook/Platform/Linux/DesktopActivity.h"
#include "Velvetnook/Platform/Linux/KernelLights.h"
#include "Velvetnook/Platform/Linux/LoginPower.h"
#include "Velvetnook/Platform/Linux/MonitorOfHost.h"
#include "Velvetnook/Platform/Linux/PulseServer.h"
#include "Velvetnook/Platform/OverlayWindow.h"
#include "Velvetnook/Platform/PaletteWindow.h"
#include "Velvetnook/Platform/StartUp.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTimer>
#include <QTranslator>

#include <malloc.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace Velvetnook
{

namespace
{

bool isSet(const char *name)
{
    const char *value = std::getenv(name);
    return value != nullptr && *value != '\0';
}

bool hasXServer()
{
    xcb_connection_t *server = xcb_connect(nullptr, nullptr);
    const bool isThere = xcb_connection_has_error(server) == 0;
    xcb_disconnect(server);
    return isThere;
}

// Only an X server, also one inside a Wayland session, lets a window stand at the top edge
// above the others. False when there is nothing to draw on.
bool chooseDisplay(bool &isOurChoice)
{
    isOurChoice = false;
    if (isSet("QT_QPA_PLATFORM")) {
        return true; // the user knows better
    }
    if (isSet("DISPLAY") && hasXServer()) {
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        isOurChoice = true;
        return true;
    }
    return isSet("WAYLAND_DISPLAY");
}

// The surfaces are small and stand still nearly always. Drawing them takes the processor less
// than starting a graphics driver would, which costs every start a quarter of a second and
// more memory than the whole application.
void chooseRenderer()
{
    if (!isSet("QT_QUICK_BACKEND") && !isSet("QSG_RHI_BACKEND")) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

// The program lives for days and holds little: memory that is free goes back to the system
// instead of waiting, by thread, for another burst of work.
void keepMemorySmall()
{
#ifdef __GLIBC__
    constexpr int kLargeBlock = 64 * 1024;
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, kLargeBlock);
    mallopt(M_TRIM_THRESHOLD, 2 * kLargeBlock);
#endif
}

double steadySeconds()
{
    return std::chrono::duration<double>{std::chrono::steady_clock::now().time_since_epoch()}
        .count();
}

// The data could not be opened: says why, and changes nothing.
int showFailure(const KestError &failure, const std::filesystem::path &file,
                BusActivation &activation)
{
    std::fprintf(stderr, "velvetnook: %s (%s)\n", failure.message.c_str(), file.c_str());
    QTranslator words; // what language was chosen lies in that data too
    const bool isArabic = QLocale::system().language() == QLocale::Arabic;
    if (speak(words, isArabic ? QStringLiteral("ar") : QStringLiteral("en"))) {
        QGuiApplication::setLayoutDirection(isArabic ? Qt::RightToLeft : Qt::LeftToRight);
    }
    QQmlEngine engine;
    QQuickView view{&engine, nullptr};
    view.setTitle(QStringLiteral("Velvetnook"));
    view.setInitialProperties(
        {{QStringLiteral("message"), QString::fromStdString(failure.message)},
         {QStringLiteral("place"), QString::fromStdString(file.string())}});
    view.setSource(QUrl{QStringLiteral("qrc:/Velvetnook/Shell/Surfaces/FailureSurface.qml")});
    if (view.rootObject() == nullptr) {
        return 1;
    }
    QObject::connect(view.rootObject(), SIGNAL(closeWanted()), qGuiApp, SLOT(quit()));
    QGuiApplication::setQuitOnLastWindowClosed(true); // this is the only one
    view.show();
    // Another start asks this process to come forward: this is all that there is to show.
    QObject::connect(&activation, &Activation::actionWanted, &view,
                     [&view](const QString &action) {
                         if (action == QLatin1String{"quit"}) {
                             QCoreApplication::quit();
                         }
                         view.raise();
                         view.requestActivate();
                     });
    activation.begin();
    QGuiApplication::exec();
    return 1;
}

// The engine, compiling what is shown first while the data is read.
struct FirstSurface {
    FirstSurface()
    {
        prepareEngine(*engine, singletons);
        component = std::make_unique<QQmlComponent>(engine.get(), NotchWindow::surface(),
                                                    QQmlComponent::Asynchronous);
    }

    std::shared_ptr<Singletons> singletons = std::make_shared<Singletons>();
    std::unique_ptr<QQmlEngine> engine = std::make_unique<QQmlEngine>();
    std::unique_ptr<QQmlComponent> component{};
};

// Everything that stands while the application runs. What can wait is made after the strip has
// been drawn for the first time.
class Running
{
public:
    Running(FirstSurface surface, const std::filesystem::path &file, KestCore::StateStore store,
            KestCore::Snapshot first);

    // Empty, or why nothing can be shown. `activation` is what other starts speak to; a quiet
    // start opens nothing by itself.
    QString begin(BusActivation &activation, bool isQuiet);
    // What is being written, in the store before this returns.
    void save();

private:
    void needTheRest();
    void followWishes();
    void listen();
    void nameWindows(); // in the language of the moment
    void openSettings();
    void openOnboarding();
    void followLevels();

    std::filesystem::path m_file; // the database
    ApplicationModel m_model;
    App m_app;
    Languages m_languages; // before the view models, which word themselves
    Theme m_theme;
    FirstSurface m_surface;
    QQmlEngine &m_engine;
    NotchDriver m_driver;
    CommandServer m_commands;
    std::unique_ptr<NotchWindow> m_notch;
    std::unique_ptr<PaletteWindow> m_palette;
    std::unique_ptr<GlobalKeys> m_keys;
    std::unique_ptr<DockKeeper> m_dock;
    std::unique_ptr<OverlayWindow> m_overlay;
    std::weak_ptr<SoundServer> m_sound; // while somebody asks it
    Desktop m_desktop;
    std::unique_ptr<SurfaceWindow> m_settings;
    std::unique_ptr<SurfaceWindow> m_onboarding;
    BusActivation *m_activation = nullptr;
    bool m_isQuiet = false;
    bool m_hasRest = false;
};

Running::Running(FirstSurface surface, const std::filesystem::path &file,
                 KestCore::StateStore store, KestCore::Snapshot first)
    : m_file{file}, m_model{std::make_unique<StateKeeper>(file, std::move(store)),
                            committedAll(std::move(first)), Base::wallClock},
      m_app{m_model}, m_languages{m_model, *m_app.format()}, m_theme{m_model},
      m_surface{std::move(surface)}, m_engine{*m_surface.engine},
      m_driver{m_model, m_app, steadySeconds}, m_commands{m_model, file},
      m_desktop{m_app, m_model}
{
    *m_surface.singletons = {.app = &m_app, .theme = &m_theme};
    QObject::connect(&m_languages, &Languages::changed, &m_engine, &QQmlEngine::retranslate);
    QObject::connect(&m_languages, &Languages::changed, &m_engine, [this] { nameWindows(); });
}

QString Running::begin(BusActivation &activation, bool isQuiet)
{
    m_isQuiet = isQuiet;
    m_notch = std::make_unique<NotchWindow>(m_engine, m_model, m_driver);
    if (!m_notch->problem().isEmpty()) {
        return m_notch->problem();
    }
    m_activation = &activation;
    listen(); // kest finds the data taken from now on
    const auto rest = [this] { needTheRest(); };
    m_notch->begin();
    QObject::connect(
        m_notch.get(), &QQuickWindow::frameSwapped, qGuiApp, rest,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    // Kept away from the screen, or hidden before its first frame: none will come.
    constexpr std::chrono::seconds kLongestFrame{2};
    QTimer::singleShot(m_notch->isVisible() ? kLongestFrame : std::chrono::seconds{}, qGuiApp,
                       rest);
    return {};
}

void Running::followWishes()
{
    QObject::connect(m_app.panel(), &PanelViewModel::settingsWanted, m_app.settings(),
                     [this] { m_app.settings()->open(); });
    QObject::connect(m_app.settings(), &SettingsViewModel::openWanted, qGuiApp, [this] {
        emit m_app.panel()->closeWanted(); // it would lie over them
        openSettings();
    });
    QObject::connect(m_app.onboarding(), &OnboardingViewModel::openWanted, qGuiApp,
                     [this] { openOnboarding(); });
    QObject::connect(&m_app.alarms(), &Alarms::emphasisWanted, m_app.strip(),
                     &StripViewModel::emphasise);
    QObject::connect(&m_desktop, &Desktop::lookChanged, &m_theme,
                     [this](bool isDark, bool reducesMotion, bool wantsContrast) {
                         m_theme.setDesktop(isDark, reducesMotion);
                         m_theme.setMoreContrast(wantsContrast);
                     });
}

void Running::needTheRest()
{
    if (std::exchange(m_hasRest, true)) {
        return;
    }
    endTextPreparation();
    followWishes();
    m_desktop.begin();
    m_app.monitor()->begin(monitorOfHost(m_file.parent_path()));
    m_app.screenTime()->service().begin(
        [this] { return std::make_unique<DesktopActivity>(m_desktop.power()); });
    followLevels();
    m_app.followEvents();
    m_desktop.follow(*m_activation);
    m_activation->begin();
    if (!m_isQuiet) {
        m_app.onboarding()->openWhenNeeded();
    }
    // Who was not asked at login is asked at the first start by hand.
    QObject::connect(m_activation, &Activation::actionWanted, m_app.onboarding(),
                     [onboarding = m_app.onboarding()](const QString &action) {
                         if (action == QLatin1String{"open"}) {
                             onboarding->openWhenNeeded();
                         }
                     });
    // Made before they are wanted, while nothing else is to be done.
    QTimer::singleShot(1000, qGuiApp, [this] { m_driver.prepare(); });
    m_palette = std::make_unique<PaletteWindow>(m_engine, m_app);
    m_keys =
        std::make_unique<GlobalKeys>(m_model, *m_app.palette(), QDBusConnection::sessionBus());
    followKeys(*m_keys, m_model, m_app);
    QTimer::singleShot(1500, qGuiApp, [this] { m_palette->prepare(); });
    m_dock = std::make_unique<DockKeeper>(m_engine, m_model, m_app, steadySeconds);
}

// One connection to the sound server for all who ask it, and none while nobody does.
void Running::followLevels()
{
    const auto sound = [this] {
        auto server = m_sound.lock();
        if (!server) {
            server = std::make_shared<PulseServer>();
            m_sound = server;
        }
        return std::shared_ptr<SoundServer>{std::move(server)};
    };
    m_app.monitor()->mixer()->begin(sound);
    m_overlay = std::make_unique<OverlayWindow>(m_engine, m_app, m_model);
    m_app.overlay()->begin([sound] {
        return LevelSources{.sound = sound(),
                            .lights = std::make_unique<KernelLights>(QStringLiteral("/sys"))};
    });
}

void Running::save()
{
    m_app.saveOpenWork();
    m_model.keeper().finish();
}

// What kest asks of the surfaces while the application runs.
void Running::listen()
{
    QObject::connect(
        &m_commands, &CommandServer::assistantTold, qGuiApp,
        [this](const KestCore::AssistantEvent &event) { m_app.assistants()->take(event); });
    QObject::connect(
        &m_commands, &CommandServer::surfaceWanted, qGuiApp,
        [this](KestCore::QuickSurface surface, KestCore::SurfaceStep how, const QString &tool) {
            needTheRest();
            summon(m_app, surface, how, tool);
        });
    if (const auto listening = m_commands.listen(); !listening) {
        m_model.say(engineText(listening.error().message));
    }
}

void Running::nameWindows()
{
    if (m_settings) {
        m_settings->setTitle(QGuiApplication::translate("Windows", "Velvetnook Settings"));
    }
    if (m_onboarding) {
        m_onboarding->setTitle(QGuiApplication::translate("Windows", "Welcome to Velvetnook"));
    }
}

void Running::openSettings()
{
    if (!m_settings) {
        m_settings = std::make_unique<SurfaceWindow>(m_engine, QStringLiteral("Settings"),
                                                     QSize{760, 520});
        nameWindows();
    }
    m_settings->present();
}

void Running::openOnboarding()
{
    if (!m_onboarding) {
        m_onboarding = std::make_unique<SurfaceWindow>(m_engine, QStringLiteral("Onboarding"));
        nameWindows();
        QObject::connect(m_app.onboarding(), &OnboardingViewModel::closeWanted,
                         m_onboarding.get(), &QWindow::close);
    }
    m_onboarding->present();
}

int run(const Launch &launch, BusActivation &activation, LastWords &lastWords,
        std::jthread fonts)
{
    FirstSurface surface;
    const std::filesystem::path file = KestCore::dataDirectory() / KestCore::kDatabaseName;
    auto store = KestCore::StateStore::open(file);
    if (store) {
        store->leaveClipboardOnDisk();
    }
    auto first = store ? store->snapshot() : std::unexpected(store.error());
    fonts.join();
    if (!first) {
        return showFailure(first.error(), file, activation);
    }
    Running running{std::move(surface), file, std::move(*store), std::move(*first)};
    if (const QString problem = running.begin(activation, launch.isQuiet); !problem.isEmpty()) {
        std::fprintf(stderr, "velvetnook: %s\n", qPrintable(problem));
        return 1;
    }
    lastWords.saveWith([&running] { running.save(); });
    const int status = QGuiApplication::exec();
    lastWords.saveWith({});
    return status;
}

} // namespace

} // namespace Velvetnook

int main(int argc, char **argv)
{
    using namespace Velvetnook;
    const std::vector<const char *> words{argv + (argc > 0 ? 1 : 0), argv + argc};
    const Launch launch = Launch::from(words);
    if (const auto status = answerWithoutWindow(launch, argc, argv)) {
        return *status;
    }
    bool isOurDisplay = false;
    if (!chooseDisplay(isOurDisplay)) {
        std::fputs("velvetnook: There is no display here. `kest` works in a terminal.\n",
                   stderr);
        return 1;
    }
    keepMemorySmall();
    chooseRenderer();
    prepareText();
    std::jthread fonts{readFontList};
    LastWords lastWords;
    QGuiApplication application{argc, argv};
    if (isOurDisplay) {
        qunsetenv("QT_QPA_PLATFORM"); // what is started from here chooses for itself
    }
    lastWords.displayIsOpen();
    QGuiApplication::setApplicationName(QStringLiteral("velvetnook"));
    QGuiApplication::setApplicationVersion(QStringLiteral(KEST_VERSION));
    QGuiApplication::setDesktopFileName(applicationId());
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const EndSignals ends;
    QObject::connect(&ends, &EndSignals::endWanted, &application, &QCoreApplication::quit);
    const auto activation = makeActivation();
    if (const auto status = claim(*activation, launch)) {
        return *status;
    }
    return run(launch, *activation, lastWords, std::move(fonts));
}
