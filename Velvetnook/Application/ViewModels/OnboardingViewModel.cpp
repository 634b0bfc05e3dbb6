// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/OnboardingViewModel.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Devotional/Counting.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QVariantMap>

namespace Velvetnook
{

namespace
{

constexpr const char *kPhrases[]{"subhanallah", "alhamdulillah", "allahu-akbar",
                                 "astaghfirullah"};
constexpr int kTargets[]{33, 99, 100, 0};

} // namespace

OnboardingViewModel::OnboardingViewModel(ApplicationModel &model, const Formatting &formatting,
                                         QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    connect(&model, &ApplicationModel::stateChanged, this, &OnboardingViewModel::changed);
    connect(&formatting, &Formatting::wordsChanged, this, &OnboardingViewModel::wordsChanged);
}

bool OnboardingViewModel::isNeeded() const
{
    return !m_model.state().devotional.onboardingComplete;
}

QVariantList OnboardingViewModel::phrases() const
{
    const auto &all = KestCore::contentCatalogue().dhikr;
    // Who reads Arabic needs neither its sounds in other letters nor what it means.
    const auto latin = [this](const std::string &text) {
        return m_formatting.isRightToLeft() ? QString{} : QString::fromStdString(text);
    };
    QVariantList list;
    for (const char *id : kPhrases) {
        const KestCore::Phrase &phrase = KestCore::phraseById(id, all, all.front());
        list.push_back(QVariantMap{
            {QStringLiteral("phrase"), QString::fromStdString(phrase.id)},
            {QStringLiteral("arabic"), QString::fromStdString(phrase.arabic)},
            {QStringLiteral("transliteration"), latin(phrase.transliteration)},
            {QStringLiteral("translation"), latin(phrase.translation.value_or(""))}});
    }
    return list;
}

QString OnboardingViewModel::phrase() const
{
    return QString::fromStdString(m_model.state().devotional.selectedDhikrId);
}

int OnboardingViewModel::target() const
{
    return static_cast<int>(m_model.state().devotional.session.target.value_or(0));
}

QVariantList OnboardingViewModel::targets() const
{
    QVariantList list;
    for (const int target : kTargets) {
        list.push_back(QVariantMap{
            {QStringLiteral("value"), target},
            {QStringLiteral("label"), target == 0 ? tr("Open") : m_formatting.number(target)}});
    }
    return list;
}

void OnboardingViewModel::openWhenNeeded()
{
    if (isNeeded()) {
        emit openWanted();
    }
}

void OnboardingViewModel::next()
{
    if (m_step + 1 == kSteps) {
        finish();
        return;
    }
    ++m_step;
    emit stepChanged();
}

void OnboardingViewModel::back()
{
    if (m_step > 0) {
        --m_step;
        emit stepChanged();
    }
}

void OnboardingViewModel::finish()
{
    if (isNeeded()) {
        m_model.changeState([](KestCore::NativeState &state) -> Result<void> {
            state.devotional.onboardingComplete = true;
            return {};
        });
    }
    emit closeWanted();
}

void OnboardingViewModel::choosePhrase(const QString &phrase)
{
    m_model.changeState(
        [id = phrase.toStdString()](KestCore::NativeState &state) -> Result<void> {
            state.devotional.selectedDhikrId = id;
            state.pin = {.tool = "dhikr", .item = id};
            return {};
        });
}

void OnboardingViewModel::chooseTarget(int target)
{
    m_model.changeState([target,
                         now = m_model.now()](KestCore::NativeState &state) -> Result<void> {
        const auto goal = target > 0 ? std::optional<std::int64_t>{target} : std::nullopt;
        KEST_TRY([[maybe_unused]] const bool reached,
                 KestCore::apply(KestCore::SetTarget{.value = goal}, now, state.devotional));
        return {};
    });
}

} // namespace Velvetnook
