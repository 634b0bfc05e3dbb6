// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QObject>
#include <QQmlPropertyMap>

namespace Velvetnook
{

class ApplicationModel;

// The visual language as QML reads it: colours of the chosen theme and accent, the same of the
// dark theme for what is always dark, fonts, sizes and motion, all from the design tokens.
class Theme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQmlPropertyMap *color READ color CONSTANT)     // Theme.color.text1, .accent …
    Q_PROPERTY(QQmlPropertyMap *onStrip READ onStrip CONSTANT) // the dark theme's colours
    Q_PROPERTY(QQmlPropertyMap *type READ type CONSTANT)       // a font for each role
    Q_PROPERTY(QQmlPropertyMap *radius READ radius CONSTANT)
    Q_PROPERTY(QQmlPropertyMap *motion READ motion CONSTANT) // ms; curves as lists of numbers
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)
    Q_PROPERTY(qreal phraseScale READ phraseScale NOTIFY changed)

public:
    explicit Theme(const ApplicationModel &model, QObject *parent = nullptr);

    QQmlPropertyMap *color() { return &m_color; }
    QQmlPropertyMap *onStrip() { return &m_onStrip; }
    QQmlPropertyMap *type() { return &m_type; }
    QQmlPropertyMap *radius() { return &m_radius; }
    QQmlPropertyMap *motion() { return &m_motion; }
    bool isDark() const { return m_isDark; }
    bool reducedMotion() const { return m_reducedMotion; }
    // What the preference of text size makes of phrases.
    qreal phraseScale() const;

    // What the desktop wants where the user has not chosen.
    void setDesktop(bool isDark, bool reducedMotion);

signals:
    void changed();

private:
    void follow();
    void fillFonts();
    void fillColours(QQmlPropertyMap &into, const QString &theme, const QString &accent);

    const ApplicationModel &m_model;
    QJsonObject m_tokens;
    QQmlPropertyMap m_color;
    QQmlPropertyMap m_onStrip;
    QQmlPropertyMap m_type;
    QQmlPropertyMap m_radius;
    QQmlPropertyMap m_motion;
    bool m_desktopIsDark = true;
    bool m_desktopReducesMotion = false;
    bool m_isDark = true;
    bool m_reducedMotion = false;
};

} // namespace Velvetnook
