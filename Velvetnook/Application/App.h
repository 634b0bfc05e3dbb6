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

namespace Velvetnook
{

class Alarms;

// The root of what QML sees, as the singleton `App`. A view model is made when it is first
// looked at: what nobody opens costs nothing.
class App : public QObject
{
    Q_OBJECT
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

public:
    explicit App(ApplicationModel &model, QObject *parent = nullptr);

    // What happens by itself: made once, by whoever shows it first.
    Alarms &alarms();
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

private:
    template <class T>
    T *made(T *&viewModel);

    ApplicationModel &m_model;
    Formatting m_formatting;
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
};

} // namespace Velvetnook
