// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"

#include "Velvetnook/Application/Alarms.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EventWatch.h"
#include "Velvetnook/Application/Summons.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/AssistantsViewModel.h"
#include "Velvetnook/Application/ViewModels/CalendarPageViewModel.h"
#include "Velvetnook/Application/ViewModels/ClipboardViewModel.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"
#include "Velvetnook/Application/ViewModels/EmojiViewModel.h"
#include "Velvetnook/Application/ViewModels/FilesViewModel.h"
#include "Velvetnook/Application/ViewModels/InsightsViewModel.h"
#include "Velvetnook/Application/ViewModels/LinksViewModel.h"
#include "Velvetnook/Application/ViewModels/MonitorViewModel.h"
#include "Velvetnook/Application/ViewModels/MusicViewModel.h"
#include "Velvetnook/Application/ViewModels/OverlayViewModel.h"
#include "Velvetnook/Application/ViewModels/ScreenTimeViewModel.h"
#include "Velvetnook/Application/ViewModels/ShelfViewModel.h"
#include "Velvetnook/Application/ViewModels/SoundMixViewModel.h"
#include "Velvetnook/Application/ViewModels/WeatherViewModel.h"

#include <QDesktopServices>
#include <QUrl>

namespace Velvetnook
{

App::App(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{model},
      m_services{std::make_shared<const ToolServices>()}
{
}

void App::setServices(ToolServices services)
{
    m_services = std::make_shared<const ToolServices>(std::move(services));
}

template <class T>
T *App::made(T *&viewModel)
{
    if (viewModel == nullptr) {
        viewModel = new T{m_model, m_formatting, this};
    }
    return viewModel;
}

Alarms &App::alarms()
{
    if (m_alarms == nullptr) {
        m_alarms = new Alarms{m_model, this};
        connect(m_alarms, &Alarms::fridayBegun, this, [this] { friday()->beginCounting(); });
        connect(m_alarms, &Alarms::finishWanted, this, [this] { counter()->finish(); });
        m_alarms->follow({.phrase = [this] { return strip()->showsPin(); },
                          .panel = [this] { return panel()->isOpen(); }});
    }
    return *m_alarms;
}

void App::followEvents()
{
    auto *const events = new EventWatch{m_model, this};
    connect(events, &EventWatch::changed, this,
            [this, events] { strip()->setNextEvent(events->next()); });
}

void App::saveOpenWork()
{
    if (m_notes != nullptr) {
        m_notes->leave();
    }
    if (m_screenTime != nullptr) {
        m_screenTime->service().write();
    }
}

PanelViewModel *App::panel() { return made(m_panel); }
StripViewModel *App::strip() { return made(m_strip); }
HomeViewModel *App::home() { return made(m_home); }
CounterViewModel *App::counter() { return made(m_counter); }
HistoryViewModel *App::history() { return made(m_history); }
NamesViewModel *App::names() { return made(m_names); }
PrayerViewModel *App::prayer() { return made(m_prayer); }
RemindersViewModel *App::reminders()
{
    if (m_reminders == nullptr) {
        m_reminders = new RemindersViewModel{m_model, m_formatting, alarms(), this};
    }
    return m_reminders;
}

FridayViewModel *App::friday() { return made(m_friday); }

// A removal is told, and can be taken back, also when its view has gone.
TimersViewModel *App::timers()
{
    if (m_timers == nullptr) {
        connect(made(m_timers), &TimersViewModel::removed, this, [this](const QString &title) {
            panel()->showMessage(tr("%1 removed.").arg(title), tr("Undo"),
                                 [this] { m_timers->restore(); });
        });
    }
    return m_timers;
}

UnitsViewModel *App::units() { return made(m_units); }

NotesViewModel *App::notes()
{
    if (m_notes == nullptr) {
        connect(made(m_notes), &NotesViewModel::removed, this, [this](const QString &message) {
            panel()->showMessage(message, tr("Undo"), [this] { m_notes->restore(); });
        });
    }
    return m_notes;
}

SettingsViewModel *App::settings()
{
    if (m_settings == nullptr) {
        made(m_settings);
        m_settings->clipboard()->setApplications([this] {
            const auto &desktop = clipboard()->desktop();
            return desktop.applications ? desktop.applications() : QStringList{};
        });
        connect(m_settings->clipboard(), &ClipboardPage::clearWanted, this,
                [this] { clipboard()->clear(); });
    }
    return m_settings;
}
OnboardingViewModel *App::onboarding() { return made(m_onboarding); }
PaletteViewModel *App::palette()
{
    if (m_palette == nullptr) {
        m_palette = new PaletteViewModel{*this, m_model, m_formatting};
    }
    return m_palette;
}

ClipboardViewModel *App::clipboard()
{
    if (m_clipboard == nullptr) {
        made(m_clipboard);
        connect(m_clipboard, &ClipboardViewModel::copied, this,
                [this] { panel()->showMessage(tr("Copied")); });
        connect(m_clipboard, &ClipboardViewModel::used, this,
                [this] { emit panel() -> closeWanted(); });
        connect(m_clipboard, &ClipboardViewModel::removed, this, [this] {
            panel()->showMessage(tr("Removed from the history."), tr("Undo"),
                                 [this] { m_clipboard->restore(); });
        });
    }
    return m_clipboard;
}

EmojiViewModel *App::emoji()
{
    if (m_emoji == nullptr) {
        made(m_emoji);
        m_emoji->setPasting({.isPossible = [this] { return clipboard()->pastes(); },
                             .begin = [this] { clipboard()->desktop().paste(); }});
        connect(m_emoji, &EmojiViewModel::copied, this, [this](const QString &text) {
            panel()->showMessage(tr("Copied %1").arg(text));
        });
        connect(m_emoji, &EmojiViewModel::used, this,
                [this] { emit panel() -> closeWanted(); });
    }
    return m_emoji;
}

ShelfViewModel *App::shelf()
{
    if (m_shelf == nullptr) {
        connect(made(m_shelf), &ShelfViewModel::changed, this,
                [this](const QString &message, const std::function<void()> &undo) {
                    panel()->showMessage(message, tr("Undo"), undo);
                });
        connect(m_shelf, &ShelfViewModel::openWanted, this, &App::openWanted);
        connect(m_shelf, &ShelfViewModel::revealWanted, this, &App::revealWanted);
    }
    return m_shelf;
}

FilesViewModel *App::files()
{
    if (m_files == nullptr) {
        connect(made(m_files), &FilesViewModel::changed, this,
                [this](const QString &message, const std::function<void()> &undo) {
                    panel()->showMessage(message, tr("Undo"), undo);
                });
        connect(m_files, &FilesViewModel::openWanted, this, &App::openWanted);
        connect(m_files, &FilesViewModel::revealWanted, this, &App::revealWanted);
    }
    return m_files;
}

LinksViewModel *App::links()
{
    if (m_links == nullptr) {
        connect(made(m_links), &LinksViewModel::changed, this,
                [this](const QString &message, const std::function<void()> &undo) {
                    panel()->showMessage(message, tr("Undo"), undo);
                });
        connect(m_links, &LinksViewModel::openWanted, this, &App::openWanted);
    }
    return m_links;
}

CalendarPageViewModel *App::calendar()
{
    if (m_calendar == nullptr) {
        connect(made(m_calendar), &CalendarPageViewModel::told, this,
                [this](const QString &message, const std::function<void()> &undo) {
                    panel()->showMessage(message, tr("Undo"), undo);
                });
    }
    return m_calendar;
}

WeatherViewModel *App::weather()
{
    if (m_weather == nullptr) {
        m_weather = new WeatherViewModel{m_model, m_formatting, m_services, this};
    }
    return m_weather;
}

InsightsViewModel *App::insights()
{
    if (m_insights == nullptr) {
        m_insights = new InsightsViewModel{m_model, m_formatting, m_services, this};
    }
    return m_insights;
}

MusicViewModel *App::music()
{
    if (m_music == nullptr) {
        m_music = new MusicViewModel{m_model, m_formatting, m_services, this};
        const auto tellStrip = [this] { strip()->setNowPlaying(m_music->nowPlaying()); };
        connect(m_music, &MusicViewModel::nowPlayingChanged, this, tellStrip);
        connect(m_music, &MusicViewModel::failed, this,
                [this](const QString &message) { m_model.say(message); });
        tellStrip();
    }
    return m_music;
}

SoundMixViewModel *App::sounds()
{
    if (m_sounds == nullptr) {
        m_sounds = new SoundMixViewModel{m_model, m_formatting, m_services, this};
    }
    return m_sounds;
}

OverlayViewModel *App::overlay() { return made(m_overlay); }
MonitorViewModel *App::monitor()
{
    if (m_monitor == nullptr) {
        made(m_monitor);
        connect(m_monitor, &MonitorViewModel::said, this,
                [this](const QString &message) { panel()->showMessage(message, {}); });
        connect(m_monitor, &MonitorViewModel::imageSaved, this,
                [this](const QString &message, const QUrl &folder) {
                    panel()->showMessage(message, tr("Show", "the folder of a file"),
                                         [folder] { QDesktopServices::openUrl(folder); });
                });
        connect(m_monitor, &MonitorViewModel::notificationWanted, this,
                [this](const NotificationRequest &request) {
                    const bool isInView =
                        panel()->isOpen() && panel()->tool() == QLatin1String{"stats"};
                    if (!isInView) {
                        emit alarms().notificationWanted(request);
                    }
                });
        connect(m_monitor, &MonitorViewModel::notificationObsolete, this,
                [this](const QString &id) { emit alarms().notificationObsolete(id); });
    }
    return m_monitor;
}

ScreenTimeViewModel *App::screenTime()
{
    if (m_screenTime == nullptr) {
        connect(made(m_screenTime), &ScreenTimeViewModel::excludedNow, this,
                [this](const QString &application) {
                    panel()->showMessage(
                        tr("%1 is counted no more.").arg(application), tr("Undo"),
                        [this, application] { m_screenTime->include(application); });
                });
    }
    return m_screenTime;
}

AssistantsViewModel *App::assistants()
{
    if (m_assistants == nullptr) {
        connect(made(m_assistants), &AssistantsViewModel::waitingChanged, this,
                [this] { strip()->showWaiting(m_assistants->waiting()); });
    }
    return m_assistants;
}

DockViewModel *App::dock()
{
    if (m_dock == nullptr) {
        connect(made(m_dock), &DockViewModel::toolWanted, this, [this](const QString &tool) {
            summon(*this, KestCore::QuickSurface::notch, KestCore::SurfaceStep::open, tool);
        });
        connect(m_dock, &DockViewModel::settingsWanted, this,
                [this] { settings()->open(QStringLiteral("dock")); });
    }
    return m_dock;
}

} // namespace Velvetnook
