// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ViewModels/CounterViewModel.h"
#include "Velvetnook/Application/ViewModels/FridayViewModel.h"
#include "Velvetnook/Application/ViewModels/HistoryViewModel.h"
#include "Velvetnook/Application/ViewModels/HomeViewModel.h"
#include "Velvetnook/Application/ViewModels/NamesViewModel.h"
#include "Velvetnook/Application/ViewModels/NotesViewModel.h"
#include "Velvetnook/Application/ViewModels/OnboardingViewModel.h"
#include "Velvetnook/Application/ViewModels/PaletteViewModel.h"
#include "Velvetnook/Application/ViewModels/PanelViewModel.h"
#include "Velvetnook/Application/ViewModels/PrayerViewModel.h"
#include "Velvetnook/Application/ViewModels/RemindersViewModel.h"
#include "Velvetnook/Application/ViewModels/SettingsViewModel.h"
#include "Velvetnook/Application/ViewModels/StripViewModel.h"
#include "Velvetnook/Application/ViewModels/TimersViewModel.h"
#include "Velvetnook/Application/ViewModels/UnitsViewModel.h"

#include <QObject>
#include <QUrl>

#include <memory>

namespace Velvetnook
{

class Alarms;
class AssistantsViewModel;
class CalendarPageViewModel;
class ClipboardViewModel;
class DockViewModel;
class EmojiViewModel;
class FilesViewModel;
class InsightsViewModel;
class LinksViewModel;
class MonitorViewModel;
class OverlayViewModel;
class MusicViewModel;
class ScreenTimeViewModel;
class ShelfViewModel;
class SoundMixViewModel;
struct ToolServices;
class WeatherViewModel;

// The root of what QML sees, as the singleton `App`. A view model is made when it is first
// looked at: what nobody opens costs nothing.
class App : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/AssistantsViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/CalendarPageViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/ClipboardViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/DockViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/EmojiViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/FilesViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/InsightsViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/LinksViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/MonitorViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/OverlayViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/MusicViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/ScreenTimeViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/ShelfViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/SoundMixViewModel.h")
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/WeatherViewModel.h")
    Q_PROPERTY(Velvetnook::Formatting *format READ format CONSTANT)
    Q_PROPERTY(Velvetnook::PanelViewModel *panel READ panel CONSTANT)
    Q_PROPERTY(Velvetnook::StripViewModel *strip READ strip CONSTANT)
    Q_PROPERTY(Velvetnook::HomeViewModel *home READ home CONSTANT)
    Q_PROPERTY(Velvetnook::CounterViewModel *counter READ counter CONSTANT)
    Q_PROPERTY(Velvetnook::HistoryViewModel *history READ history CONSTANT)
    Q_PROPERTY(Velvetnook::NamesViewModel *names READ names CONSTANT)
    Q_PROPERTY(Velvetnook::PrayerViewModel *prayer READ prayer CONSTANT)
    Q_PROPERTY(Velvetnook::RemindersViewModel *reminders READ reminders CONSTANT)
    Q_PROPERTY(Velvetnook::FridayViewModel *friday READ friday CONSTANT)
    Q_PROPERTY(Velvetnook::TimersViewModel *timers READ timers CONSTANT)
    Q_PROPERTY(Velvetnook::UnitsViewModel *units READ units CONSTANT)
    Q_PROPERTY(Velvetnook::NotesViewModel *notes READ notes CONSTANT)
    Q_PROPERTY(Velvetnook::SettingsViewModel *settings READ settings CONSTANT)
    Q_PROPERTY(Velvetnook::OnboardingViewModel *onboarding READ onboarding CONSTANT)
    Q_PROPERTY(Velvetnook::PaletteViewModel *palette READ palette CONSTANT)
    Q_PROPERTY(Velvetnook::ClipboardViewModel *clipboard READ clipboard CONSTANT)
    Q_PROPERTY(Velvetnook::EmojiViewModel *emoji READ emoji CONSTANT)
    Q_PROPERTY(Velvetnook::ShelfViewModel *shelf READ shelf CONSTANT)
    Q_PROPERTY(Velvetnook::FilesViewModel *files READ files CONSTANT)
    Q_PROPERTY(Velvetnook::LinksViewModel *links READ links CONSTANT)
    Q_PROPERTY(Velvetnook::CalendarPageViewModel *calendar READ calendar CONSTANT)
    Q_PROPERTY(Velvetnook::WeatherViewModel *weather READ weather CONSTANT)
    Q_PROPERTY(Velvetnook::InsightsViewModel *insights READ insights CONSTANT)
    Q_PROPERTY(Velvetnook::MusicViewModel *music READ music CONSTANT)
    Q_PROPERTY(Velvetnook::SoundMixViewModel *sounds READ sounds CONSTANT)
    Q_PROPERTY(Velvetnook::OverlayViewModel *overlay READ overlay CONSTANT)
    Q_PROPERTY(Velvetnook::MonitorViewModel *monitor READ monitor CONSTANT)
    Q_PROPERTY(Velvetnook::ScreenTimeViewModel *screenTime READ screenTime CONSTANT)
    Q_PROPERTY(Velvetnook::AssistantsViewModel *assistants READ assistants CONSTANT)
    Q_PROPERTY(Velvetnook::DockViewModel *dock READ dock CONSTANT)

public:
    explicit App(ApplicationModel &model, QObject *parent = nullptr);

    // What happens by itself: made once, by whoever shows it first.
    Alarms &alarms();
    // Has the strip tell of the next event from now on.
    void followEvents();
    // What the tools reach the world with, before the first of them is made.
    void setServices(ToolServices services);
    // Hands the store what is being written and waits for a pause.
    void saveOpenWork();

    Formatting *format() { return &m_formatting; }
    PanelViewModel *panel();
    StripViewModel *strip();
    HomeViewModel *home();
    CounterViewModel *counter();
    HistoryViewModel *history();
    NamesViewModel *names();
    PrayerViewModel *prayer();
    RemindersViewModel *reminders();
    FridayViewModel *friday();
    TimersViewModel *timers();
    UnitsViewModel *units();
    NotesViewModel *notes();
    SettingsViewModel *settings();
    OnboardingViewModel *onboarding();
    PaletteViewModel *palette();
    ClipboardViewModel *clipboard();
    EmojiViewModel *emoji();
    ShelfViewModel *shelf();
    FilesViewModel *files();
    LinksViewModel *links();
    CalendarPageViewModel *calendar();
    WeatherViewModel *weather();
    InsightsViewModel *insights();
    MusicViewModel *music();
    SoundMixViewModel *sounds();
    OverlayViewModel *overlay();
    MonitorViewModel *monitor();
    ScreenTimeViewModel *screenTime();
    AssistantsViewModel *assistants();
    DockViewModel *dock();

signals:
    // Something to be opened by the program for it, or shown where it lies.
    void openWanted(const QUrl &url);
    void revealWanted(const QString &path);

private:
    template <class T>
    T *made(T *&viewModel);

    ApplicationModel &m_model;
    Formatting m_formatting;
    std::shared_ptr<const ToolServices> m_services;
    Alarms *m_alarms = nullptr;
    PanelViewModel *m_panel = nullptr;
    StripViewModel *m_strip = nullptr;
    HomeViewModel *m_home = nullptr;
    CounterViewModel *m_counter = nullptr;
    HistoryViewModel *m_history = nullptr;
    NamesViewModel *m_names = nullptr;
    PrayerViewModel *m_prayer = nullptr;
    RemindersViewModel *m_reminders = nullptr;
    FridayViewModel *m_friday = nullptr;
    TimersViewModel *m_timers = nullptr;
    UnitsViewModel *m_units = nullptr;
    NotesViewModel *m_notes = nullptr;
    SettingsViewModel *m_settings = nullptr;
    OnboardingViewModel *m_onboarding = nullptr;
    PaletteViewModel *m_palette = nullptr;
    ClipboardViewModel *m_clipboard = nullptr;
    EmojiViewModel *m_emoji = nullptr;
    ShelfViewModel *m_shelf = nullptr;
    FilesViewModel *m_files = nullptr;
    LinksViewModel *m_links = nullptr;
    CalendarPageViewModel *m_calendar = nullptr;
    WeatherViewModel *m_weather = nullptr;
    InsightsViewModel *m_insights = nullptr;
    MusicViewModel *m_music = nullptr;
    SoundMixViewModel *m_sounds = nullptr;
    OverlayViewModel *m_overlay = nullptr;
    MonitorViewModel *m_monitor = nullptr;
    ScreenTimeViewModel *m_screenTime = nullptr;
    AssistantsViewModel *m_assistants = nullptr;
    DockViewModel *m_dock = nullptr;
};

} // namespace Velvetnook
