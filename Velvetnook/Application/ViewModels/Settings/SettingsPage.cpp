// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"

#include <QVariantMap>

namespace Velvetnook
{

SettingsPage::SettingsPage(ApplicationModel &model, const Formatting &formatting,
                           QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &SettingsPage::changed);
    connect(&formatting, &Formatting::wordsChanged, this, &SettingsPage::wordsChanged);
}

QVariantList SettingsPage::options(std::span<const Choice> choices)
{
    QVariantList list;
    for (const Choice &choice : choices) {
        list.push_back(QVariantMap{{QStringLiteral("value"), QString::fromUtf8(choice.value)},
                                   {QStringLiteral("label"), choice.label}});
    }
    return list;
}

QString SettingsPage::setting(std::string_view key, const char *fallback) const
{
    const std::string_view value = m_model.setting(key);
    return fromView(value.empty() ? std::string_view{fallback} : value);
}

bool SettingsPage::isOn(std::string_view key, bool fallback) const
{
    const std::string_view value = m_model.setting(key);
    return value.empty() ? fallback : value == "true";
}

void SettingsPage::set(const char *key, const QString &value)
{
    m_model.changeSetting(key, value.toStdString());
}

void SettingsPage::set(const char *key, bool isOn)
{
    m_model.changeSetting(key, isOn ? "true" : "false");
}

const KestCore::Preferences &SettingsPage::preferences() const
{
    return m_model.state().devotional.preferences;
}

void SettingsPage::changePreferences(std::function<void(KestCore::Preferences &)> change)
{
    m_model.changeState(
        [change = std::move(change)](KestCore::NativeState &state) -> Result<void> {
            change(state.devotional.preferences);
            return {};
        });
}

} // namespace Velvetnook
