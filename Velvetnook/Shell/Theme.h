// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Shell/ArabicInk.h"

#include <QColor>
#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QQmlPropertyMap>

#include <optional>

class QQuickTextDocument;

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
    Q_PROPERTY(QQmlPropertyMap *lineHeight READ lineHeight CONSTANT) // px for each role
    Q_PROPERTY(QQmlPropertyMap *radius READ radius CONSTANT)
    Q_PROPERTY(QQmlPropertyMap *motion READ motion CONSTANT) // ms; curves as lists of numbers
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)
    Q_PROPERTY(qreal phraseScale READ phraseScale NOTIFY changed)
    Q_PROPERTY(Velvetnook::ArabicInk *ink READ ink CONSTANT)
    Q_PROPERTY(qreal outline READ outline CONSTANT) // a strong outline, in whole pixels
    Q_PROPERTY(QString arabicFamily READ arabicFamily CONSTANT)

public:
    explicit Theme(const ApplicationModel &model, QObject *parent = nullptr);

    QQmlPropertyMap *color() { return &m_color; }
    QQmlPropertyMap *onStrip() { return &m_onStrip; }
    QQmlPropertyMap *type() { return &m_type; }
    QQmlPropertyMap *lineHeight() { return &m_lineHeight; }
    QQmlPropertyMap *radius() { return &m_radius; }
    QQmlPropertyMap *motion() { return &m_motion; }
    bool isDark() const { return m_isDark; }
    bool reducedMotion() const { return m_reducedMotion; }
    // What the preference of text size makes of phrases.
    qreal phraseScale() const;
    ArabicInk *ink() { return &m_ink; }
    QString arabicFamily() const { return m_ink.family(); }

    static qreal outline();
    // The stroke of an icon of that size, in units of its 24 grid.
    Q_INVOKABLE static qreal strokeFor(int size);
    // The parts of a role's font. Reading them from the font itself, through the map, ends Qt
    // 6.4 now and then in a crash.
    Q_INVOKABLE QString familyOf(const QString &role) const;
    Q_INVOKABLE int weightOf(const QString &role) const;
    Q_INVOKABLE int pixelSizeOf(const QString &role) const;
    // The colour of one of the accents in the present theme, chosen or not.
    Q_INVOKABLE QColor accentOf(const QString &accent) const;
    // How far the shadow of a step reaches around its surface.
    Q_INVOKABLE static int shadowReach(const QString &step);
    // Where the baseline is in a line of that height, with the letters in its middle.
    Q_INVOKABLE qreal baseline(const QString &role, qreal pixelSize, qreal lineHeight) const;
    // Gives the lines of a document more air. To be called again when its text was replaced.
    Q_INVOKABLE static void spaceLines(QQuickTextDocument *document, qreal extra);
    // The cell of a digit or colon in a number that changes; 0: the letter's own width.
    Q_INVOKABLE qreal cellWidth(const QString &role, const QString &letter,
                                qreal pixelSize) const;

    // What the desktop wants where the user has not chosen.
    void setDesktop(bool isDark, bool reducedMotion);
    // Stronger outlines and notes, where the desktop asks for more contrast.
    void setMoreContrast(bool moreContrast);

signals:
    void changed();

private:
    // What the colours and the motion come from.
    struct Look {
        bool isDark{};
        bool reducedMotion{};
        bool moreContrast{};
        qreal phraseScale{};
        QString accent{};

        bool operator==(const Look &) const = default;
    };

    void follow();
    void fillFonts();
    QPair<qreal, qreal> extentsOf(const QString &role) const;
    void fillColours(QQmlPropertyMap &into, const QString &theme, const QString &accent);

    const ApplicationModel &m_model;
    QJsonObject m_tokens;
    QQmlPropertyMap m_color;
    QQmlPropertyMap m_onStrip;
    QQmlPropertyMap m_type;
    QQmlPropertyMap m_lineHeight;
    // Of each role in em: ascent and descent, measured when they are first wanted.
    mutable QHash<QString, QPair<qreal, qreal>> m_extents;
    QQmlPropertyMap m_radius;
    QQmlPropertyMap m_motion;
    ArabicInk m_ink;
    bool m_desktopIsDark = true;
    bool m_desktopReducesMotion = false;
    bool m_moreContrast = false;
    std::optional<Look> m_look; // that the colours were filled for
    bool m_isDark = true;
    bool m_reducedMotion = false;
};

} // namespace Velvetnook
