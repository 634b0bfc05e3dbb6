// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/GeneralSettings.h"

#include "KestCore/Models/DevotionalState.h"
#include "Velvetnook/Application/Formatting.h"

namespace Velvetnook
{

bool GeneralSettings::launchAtLogin() const { return isOn("general.launchAtLogin", false); }

QString GeneralSettings::language() const { return setting("appearance.language", "system"); }

QVariantList GeneralSettings::languages() const
{
    // A language goes by its own name, so that whoever reads no other finds it.
    const Choice choices[]{{"system", tr("System")},
                           {"en", QStringLiteral("English")},
                           {"ar", QStringLiteral("العربية")}};
    return options(choices);
}

QString GeneralSettings::digits() const { return setting("appearance.digits", "language"); }

QVariantList GeneralSettings::digitChoices() const
{
    const Choice choices[]{{"language", tr("As the language")},
                           {"latin", QStringLiteral("123")},
                           {"arabic", QStringLiteral("١٢٣")}};
    return options(choices);
}

QString GeneralSettings::clock() const { return setting("appearance.clock", "system"); }

QVariantList GeneralSettings::clocks() const
{
    const Choice choices[]{{"system", tr("System")},
                           {"24", formatting().digits(QStringLiteral("13:48"))},
                           {"12", formatting().digits(tr("1:48 pm"))}};
    return options(choices);
}

bool GeneralSettings::keepsHistory() const { return preferences().historyEnabled; }

bool GeneralSettings::completionSound() const
{
    return preferences().soundEnabled && preferences().completionSound;
}

void GeneralSettings::setLaunchAtLogin(bool on) { set("general.launchAtLogin", on); }

void GeneralSettings::setLanguage(const QString &value) { set("appearance.language", value); }
void GeneralSettings::setDigits(const QString &value) { set("appearance.digits", value); }
void GeneralSettings::setClock(const QString &value) { set("appearance.clock", value); }

void GeneralSettings::setKeepsHistory(bool on)
{
    changePreferences([on](KestCore::Preferences &chosen) { chosen.historyEnabled = on; });
}

void GeneralSettings::setCompletionSound(bool on)
{
    changePreferences([on](KestCore::Preferences &chosen) {
        chosen.completionSound = on;
        if (on && !chosen.soundEnabled) {
            chosen.soundEnabled = true;
            chosen.reminderSound = false; // it was not heard, and is shown as off
        }
    });
}

void GeneralSettings::setLaunchRefusal(const QString &message)
{
    m_launchRefusal = message;
    emit changed();
}

} // namespace Velvetnook
