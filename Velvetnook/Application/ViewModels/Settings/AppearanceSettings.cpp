// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/AppearanceSettings.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/DevotionalState.h"

namespace Velvetnook
{

namespace
{

const KestCore::Phrase &sample() { return KestCore::contentCatalogue().dhikr.front(); }

} // namespace

QString AppearanceSettings::theme() const { return setting("appearance.theme", "system"); }

QVariantList AppearanceSettings::themes() const
{
    const Choice choices[]{
        {"dark", tr("Dark")}, {"light", tr("Light")}, {"system", tr("System")}};
    return options(choices);
}

QString AppearanceSettings::accent() const { return setting("appearance.accent", "sage"); }

QVariantList AppearanceSettings::accents() const
{
    const Choice choices[]{{"sage", tr("Sage")},
                           {"sky", tr("Sky")},
                           {"sand", tr("Sand")},
                           {"rose", tr("Rose")},
                           {"iris", tr("Iris")}};
    return options(choices);
}

QString AppearanceSettings::material() const
{
    return setting("appearance.material", "frosted");
}

QVariantList AppearanceSettings::materials() const
{
    const Choice choices[]{{"frosted", tr("Frosted")}, {"solid", tr("Solid")}};
    return options(choices);
}

bool AppearanceSettings::reduceMotion() const { return isOn("appearance.reduceMotion", false); }

QString AppearanceSettings::textSize() const
{
    return QString::fromStdString(preferences().textSize);
}

QVariantList AppearanceSettings::textSizes() const
{
    const Choice choices[]{
        {"small", tr("Small")}, {"medium", tr("Medium")}, {"large", tr("Large")}};
    return options(choices);
}

bool AppearanceSettings::transliteration() const { return preferences().showTransliteration; }
bool AppearanceSettings::translation() const { return preferences().showTranslation; }

QString AppearanceSettings::sampleArabic() const
{
    return QString::fromStdString(sample().arabic);
}

QString AppearanceSettings::sampleTransliteration() const
{
    return QString::fromStdString(sample().transliteration);
}

QString AppearanceSettings::sampleTranslation() const
{
    return QString::fromStdString(sample().translation.value_or(""));
}

void AppearanceSettings::setTheme(const QString &value) { set("appearance.theme", value); }
void AppearanceSettings::setAccent(const QString &value) { set("appearance.accent", value); }

void AppearanceSettings::setMaterial(const QString &value)
{
    set("appearance.material", value);
}

void AppearanceSettings::setReduceMotion(bool on) { set("appearance.reduceMotion", on); }

void AppearanceSettings::setTextSize(const QString &value)
{
    changePreferences([text = value.toStdString()](KestCore::Preferences &chosen) {
        chosen.textSize = text;
    });
}

void AppearanceSettings::setTransliteration(bool on)
{
    changePreferences([on](KestCore::Preferences &chosen) { chosen.showTransliteration = on; });
}

void AppearanceSettings::setTranslation(bool on)
{
    changePreferences([on](KestCore::Preferences &chosen) { chosen.showTranslation = on; });
}

} // namespace Velvetnook
