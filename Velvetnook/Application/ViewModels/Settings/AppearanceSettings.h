// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

namespace Velvetnook
{

// How the surfaces look, and what is shown beside a phrase.
class AppearanceSettings : public SettingsPage
{
    Q_OBJECT
    Q_PROPERTY(QString theme READ theme WRITE setTheme NOTIFY changed)
    Q_PROPERTY(QVariantList themes READ themes NOTIFY wordsChanged)
    Q_PROPERTY(QString accent READ accent WRITE setAccent NOTIFY changed)
    Q_PROPERTY(QVariantList accents READ accents NOTIFY wordsChanged)
    Q_PROPERTY(QString material READ material WRITE setMaterial NOTIFY changed)
    Q_PROPERTY(QVariantList materials READ materials NOTIFY wordsChanged)
    Q_PROPERTY(bool reduceMotion READ reduceMotion WRITE setReduceMotion NOTIFY changed)
    Q_PROPERTY(QString textSize READ textSize WRITE setTextSize NOTIFY changed)
    Q_PROPERTY(QVariantList textSizes READ textSizes NOTIFY wordsChanged)
    Q_PROPERTY(
        bool transliteration READ transliteration WRITE setTransliteration NOTIFY changed)
    Q_PROPERTY(bool translation READ translation WRITE setTranslation NOTIFY changed)
    // A phrase to see the choices on.
    Q_PROPERTY(QString sampleArabic READ sampleArabic CONSTANT)
    Q_PROPERTY(QString sampleTransliteration READ sampleTransliteration CONSTANT)
    Q_PROPERTY(QString sampleTranslation READ sampleTranslation CONSTANT)

public:
    using SettingsPage::SettingsPage;

    QString theme() const;
    QVariantList themes() const;
    QString accent() const;
    QVariantList accents() const;
    QString material() const;
    QVariantList materials() const;
    bool reduceMotion() const;
    QString textSize() const;
    QVariantList textSizes() const;
    bool transliteration() const;
    bool translation() const;
    QString sampleArabic() const;
    QString sampleTransliteration() const;
    QString sampleTranslation() const;

    void setTheme(const QString &value);
    void setAccent(const QString &value);
    void setMaterial(const QString &value);
    void setReduceMotion(bool on);
    void setTextSize(const QString &value);
    void setTransliteration(bool on);
    void setTranslation(bool on);
};

} // namespace Velvetnook
