// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Desktop.h"

#include "Velvetnook/Application/Alarms.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/ViewModels/ClipboardViewModel.h"
#include "Velvetnook/Application/ViewModels/MusicViewModel.h"
#include "Velvetnook/Platform/Activation.h"
#include "Velvetnook/Platform/CapabilityList.h"
#include "Velvetnook/Platform/DesktopServices.h"
#include "Velvetnook/Platform/FileOpening.h"
#include "Velvetnook/Platform/Linux/AutostartFile.h"
#include "Velvetnook/Platform/Linux/BusNotifications.h"
#include "Velvetnook/Platform/Linux/BusTray.h"
#include "Velvetnook/Platform/Linux/ClipboardServices.h"
#include "Velvetnook/Platform/Linux/LoginPower.h"
#include "Velvetnook/Platform/Linux/PortalLook.h"
#include "Velvetnook/Platform/Linux/PulseSounds.h"
#include "Velvetnook/Platform/Linux/SessionProbe.h"
#include "Velvetnook/Platform/StartUp.h"
#include "Velvetnook/Platform/TrayMenu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>

#include <chrono>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr const char *kLaunchAtLogin = "general.launchAtLogin";
// The tray may be this much behind: each of its changes goes over the bus, each count must not.
constexpr std::chrono::seconds kTrayPatience{2};

QList<QImage> trayPictures()
{
    QSvgRenderer drawing{QStringLiteral(":/velvetnook/icons/velvetnook.svg")};
    QList<QImage> pictures;
    for (const int size : {16, 22, 24, 32, 48, 64}) {
        QImage picture{size, size, QImage::Format_ARGB32_Premultiplied};
        picture.fill(Qt::transparent);
        QPainter painter{&picture};
        drawing.render(&painter);
        painter.end();
        pictures.push_back(picture);
    }
    return pictures;
}

std::unique_ptr<Autostart> autostartOfUser()
{
    return std::make_unique<AutostartFile>(
        AutostartFile::userFolder(), applicationId().toStdString(),
        QCoreApplication::applicationFilePath().toStdString());
}

} // namespace

Desktop::Desktop(App &app, ApplicationModel &model, QObject *parent)
    : Desktop{app,
              model,
              QDBusConnection{QString{}},
              QDBusConnection{QString{}},
              autostartOfUser(),
              parent}
{
    m_joinsBuses = true;
}

Desktop::Desktop(App &app, ApplicationModel &model, QDBusConnection session,
                 QDBusConnection system, std::unique_ptr<Autostart> autostart, QObject *parent)
    : QObject{parent}, m_app{app}, m_model{model}, m_session{std::move(session)},
      m_system{std::move(system)}, m_autostart{std::move(autostart)},
      m_capabilities{new CapabilityList{this}}
{
}

Desktop::~Desktop() = default;

void Desktop::begin()
{
    if (m_notifications != nullptr) {
        return;
    }
    if (m_joinsBuses) {
        m_session = QDBusConnection::sessionBus();
        m_system = QDBusConnection::systemBus();
    }
    m_app.setServices(desktopServices(m_session));
    m_power = new LoginPower{m_system, this};
    connect(m_power, &LoginPower::resumed, &m_model.clock(), &DueClock::reschedule);
    m_power->begin();
    followLook();
    followNotifications();
    followSounds();
    followTray();
    followAutostart();
    followCapabilities();
    m_app.music(); // what plays stands in the strip
    new FileOpening{m_app, m_session, this};
    m_app.clipboard()->setDesktop(clipboardServices(this));
    followClipboard();
}

void Desktop::followNotifications()
{
    m_notifications = new BusNotifications{m_session, applicationId(), this};
    const Alarms &alarms = m_app.alarms();
    connect(&alarms, &Alarms::notificationWanted, this, &Desktop::post);
    connect(&alarms, &Alarms::notificationObsolete, m_notifications,
            &BusNotifications::withdraw);
    connect(&alarms, &Alarms::toolWanted, this, &Desktop::openTool);
    connect(m_notifications, &BusNotifications::answered, this, &Desktop::hearAnswer);
    connect(m_notifications, &BusNotifications::actionInvoked, &alarms, &Alarms::act);
    m_notifications->begin();
}

void Desktop::post(const NotificationRequest &request)
{
    if (request.withSound) {
        m_withSound.insert(request.id);
    }
    m_notifications->post(request);
}

void Desktop::hearAnswer(const QString &id, Notifications::Answer answer)
{
    const bool isShown = answer == Notifications::Answer::shown;
    // Where the server plays none we do, except to a room that nobody may be in.
    if (m_withSound.remove(id) && isShown && !m_notifications->playsSounds() &&
        !m_power->isLocked()) {
        m_sounds->play(Sounds::Sound::reminder);
    }
    m_app.alarms().reportShown(id, isShown);
}

void Desktop::followSounds()
{
    m_sounds = new PulseSounds{this};
    connect(m_app.counter(), &CounterViewModel::targetReached, this, [this](bool withSound) {
        if (withSound) {
            m_sounds->play(Sounds::Sound::completion);
        }
    });
}

void Desktop::followTray()
{
    m_prayers = new PrayerWatch{m_model, this};
    m_tray = new BusTray{m_session, applicationId(), trayPictures(), this};
    connect(m_tray, &BusTray::activated, this, [this] { act(QStringLiteral("open")); });
    connect(m_tray, &BusTray::chosen, this, &Desktop::act);
    connect(m_tray, &BusTray::menuWanted, this, &Desktop::showTray);
    const auto showSoon = [this] {
        if (m_tray->state().isReady() && !std::exchange(m_isTrayDue, true)) {
            QTimer::singleShot(kTrayPatience, this, &Desktop::showTray);
        }
    };
    connect(m_prayers, &PrayerWatch::timeCame, this, showSoon);
    connect(m_prayers, &PrayerWatch::inputsChanged, this, showSoon);
    connect(&m_model, &ApplicationModel::stateChanged, this, showSoon);
    connect(&m_model, &ApplicationModel::calendarChanged, this, showSoon);
    showTray();
    m_tray->begin();
}

void Desktop::showTray()
{
    m_isTrayDue = false;
    m_tray->show(trayMenu(m_model, *m_app.format(), *m_prayers),
                 nextPrayerLine(m_model, *m_app.format(), *m_prayers));
}

void Desktop::followLook()
{
    m_look = new PortalLook{m_session, this};
    connect(m_look, &PortalLook::changed, this, [this] {
        const Look look = m_look->look();
        emit lookChanged(look.isDark, look.reducesMotion, look.wantsContrast);
    });
    m_look->begin();
}

// Each text field would ask whoever copied whether there is something to paste, and wait five
// seconds for an answer with everything standing still. Nobody here needs to be told.
void Desktop::followClipboard()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        return; // a program without a display has no clipboard
    }
    QGuiApplication::clipboard()->blockSignals(true);
    m_app.clipboard()->setDesktop(clipboardServices(this));
}

// The file was put there by us or by the desktop's own settings. Where they turned it off,
// that is what the user wants; where it is missing, as in a new home, it is written.
void Desktop::followAutostart()
{
    m_launchAtLogin = m_model.setting(kLaunchAtLogin);
    if (m_launchAtLogin == "true" &&
        m_autostart->standing() == Autostart::Standing::turnedOff) {
        m_launchAtLogin = "false";
        m_model.changeSetting(kLaunchAtLogin, m_launchAtLogin);
    } else if (m_launchAtLogin == "true") {
        carryOutLaunchAtLogin(); // the program may have moved
    }
    connect(&m_model, &ApplicationModel::stateChanged, this, [this] {
        const auto wanted = m_model.setting(kLaunchAtLogin);
        if (wanted != m_launchAtLogin) {
            m_launchAtLogin = wanted;
            carryOutLaunchAtLogin();
        }
    });
}

void Desktop::carryOutLaunchAtLogin()
{
    const auto done = m_autostart->set(m_launchAtLogin == "true");
    m_app.settings()->general()->setLaunchRefusal(done ? QString{}
                                                       : engineText(done.error().message));
}

void Desktop::followCapabilities()
{
    m_probe = new SessionProbe{m_session, m_system, this};
    connect(m_probe, &SessionProbe::done, this, [this] {
        SessionFacts facts = m_probe->facts();
        facts.hotkey = m_app.palette()->hotkey();
        m_capabilities->show(capabilitiesOf(facts));
    });
    SettingsViewModel *settings = m_app.settings();
    settings->about()->setCapabilities(m_capabilities);
    // Asked when somebody looks, and whenever a service comes or goes after that.
    const auto probe = [this, settings] {
        if (settings->page() == u"about") {
            m_probe->begin();
        }
    };
    connect(settings, &SettingsViewModel::pageChanged, this, probe);
    connect(settings, &SettingsViewModel::openWanted, this, probe);
    connect(m_tray, &BusTray::stateChanged, this, probe);
    connect(m_notifications, &BusNotifications::stateChanged, this, probe);
    connect(m_app.palette(), &PaletteViewModel::hotkeyChanged, this, probe);
    // Told in the language of the moment.
    connect(m_app.format(), &Formatting::wordsChanged, this, probe);
}

void Desktop::follow(Activation &activation)
{
    connect(&activation, &Activation::actionWanted, this, &Desktop::act);
}

void Desktop::act(const QString &action)
{
    if (action == u"open") {
        emit m_app.panel()->openWanted(true);
    } else if (action == u"palette") {
        emit m_app.palette()->openWanted();
    } else if (action == u"settings") {
        m_app.settings()->open();
    } else if (action == u"count") {
        count();
    } else if (action == u"prayer") {
        openTool(action);
    } else if (action == u"pause-reminders" || action == u"resume-reminders") {
        pauseReminders(action == u"pause-reminders");
    } else if (action == u"quit") {
        QCoreApplication::quit();
    }
}

void Desktop::openTool(const QString &id)
{
    m_app.panel()->openTool(id);
    emit m_app.panel()->openWanted(true);
}

// Through the counter's own model, so that reaching the target is heard and announced.
void Desktop::count() { m_app.counter()->increment(); }

void Desktop::pauseReminders(bool isPaused)
{
    if (isPaused) {
        m_app.reminders()->pauseForHours(1);
    } else {
        m_app.reminders()->endPause();
    }
}

} // namespace Velvetnook
