// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/FridayViewModel.h"

#include "KestCore/Prayer/PrayerCalculator.h"
#include "KestCore/Prayer/PrayerInputs.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/FridayPrompt.h"
#include "Velvetnook/Application/LocalDay.h"

namespace Velvetnook
{

namespace
{

constexpr std::string_view kBlessings = "salawat"; // the phrase of a Friday

} // namespace

FridayViewModel::FridayViewModel(ApplicationModel &model, const Formatting &formatting,
                                 QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    connect(&m_model, &ApplicationModel::choicesChanged, this, &FridayViewModel::changed);
    connect(&m_model, &ApplicationModel::calendarChanged, this, &FridayViewModel::changed);
}

QString FridayViewModel::arabic() const
{
    return QString::fromStdString(phraseOf(kBlessings).arabic);
}

QString FridayViewModel::transliteration() const
{
    return m_formatting.isRightToLeft() ? QString{} : phraseTitle(phraseOf(kBlessings));
}

QString FridayViewModel::translation() const
{
    const auto &text = phraseOf(kBlessings).translation;
    return m_formatting.isRightToLeft() || !text ? QString{} : QString::fromStdString(*text);
}

QString FridayViewModel::weekday() const
{
    return weekdayText(m_model.now(), m_model.calendar(), m_formatting);
}

QString FridayViewModel::islamicDate() const { return islamicDateText(m_model, m_formatting); }

QString FridayViewModel::dhuhr() const
{
    const auto inputs = KestCore::prayerInputs(m_model.state().settings);
    if (!inputs) {
        return {};
    }
    const auto today = KestCore::PrayerCalculator::comingDays(*inputs, m_model.now(), 1);
    const auto times = today.empty() ? std::nullopt : today.front().times;
    return times ? m_formatting.timeIn(inputs->calendar, times->dhuhr) : QString{};
}

QString FridayViewModel::dhuhrNote() const
{
    const auto inputs = KestCore::prayerInputs(m_model.state().settings);
    if (!inputs) {
        return engineText(inputs.error().message);
    }
    return dhuhr().isEmpty() ? tr("No times on this date here.")
                             : tr("Your mosque may differ.");
}

bool FridayViewModel::isFriday() const
{
    return m_model.calendar().at(m_model.now()).weekday == 5;
}

QString FridayViewModel::footer() const
{
    return m_model.isOn("friday.enabled") ? tr("Shown once each Friday, quietly")
                                          : tr("Not shown by itself on Fridays");
}

void FridayViewModel::markShown()
{
    const std::string today = dateText(m_model.now(), m_model.calendar());
    if (isFriday() && m_model.setting("friday.lastShown") != today) {
        m_model.changeSetting("friday.lastShown", today);
    }
}

void FridayViewModel::beginCounting()
{
    markShown();
    selectPhrase(m_model, kBlessings);
}

} // namespace Velvetnook
