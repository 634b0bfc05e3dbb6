// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QRectF>
#include <QString>

namespace Velvetnook
{

// Where the ink of an Arabic text is. Its marks reach further above and below the baseline than
// the font's own line says, so such a text is placed by what is measured here.
class ArabicInk : public QObject
{
    Q_OBJECT

public:
    explicit ArabicInk(QString family, QObject *parent = nullptr);

    const QString &family() const { return m_family; }

    // The room that any text of that size needs over and under its baseline.
    Q_INVOKABLE static qreal above(qreal pixelSize) { return kAbove * pixelSize; }
    Q_INVOKABLE static qreal below(qreal pixelSize) { return kBelow * pixelSize; }

    Q_INVOKABLE qreal advance(const QString &text, qreal pixelSize) const;
    // The ink of the one line, seen from the start of its baseline.
    Q_INVOKABLE QRectF bounds(const QString &text, qreal pixelSize) const;
    // How far the ink hangs over the text's own advance, as the tail of a last letter does.
    Q_INVOKABLE qreal overhang(const QString &text, qreal pixelSize) const;
    // The room of the one line, with that on both its sides.
    Q_INVOKABLE qreal width(const QString &text, qreal pixelSize) const;
    // The largest size, in steps of 2 down to 24, at which the text fits in one line; where
    // none does, the smallest of them. A text that is smaller from the start keeps its size.
    Q_INVOKABLE qreal fittedSize(const QString &text, qreal wanted, qreal maximumWidth) const;

private:
    static constexpr qreal kAbove = 1.48;
    static constexpr qreal kBelow = 0.67;

    struct Measure {
        qreal advance{};
        QRectF ink{};
    };
    Measure measure(const QString &text, qreal pixelSize) const;

    QString m_family;
    mutable QHash<QString, Measure> m_known; // measured at one size; all else is to scale
};

} // namespace Velvetnook
