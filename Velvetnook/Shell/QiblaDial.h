// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace Velvetnook
{

// A compass card with north at its top and a pointer towards the Kaaba. Never mirrored.
class QiblaDial : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(qreal degrees MEMBER m_degrees NOTIFY changed) // clockwise from north
    Q_PROPERTY(QString north MEMBER m_north NOTIFY changed)   // the letter for north
    Q_PROPERTY(QColor accent MEMBER m_accent NOTIFY changed)
    Q_PROPERTY(QColor ground MEMBER m_ground NOTIFY changed)
    Q_PROPERTY(QColor card MEMBER m_card NOTIFY changed)
    Q_PROPERTY(QColor outline MEMBER m_outline NOTIFY changed)
    Q_PROPERTY(QColor tick MEMBER m_tick NOTIFY changed)
    Q_PROPERTY(QColor letter MEMBER m_letter NOTIFY changed)

public:
    explicit QiblaDial(QQuickItem *parent = nullptr);
    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    void paintCard(QPainter &painter, qreal radius) const;
    void paintPointer(QPainter &painter, qreal radius) const;

    qreal m_degrees = 0;
    QString m_north;
    QColor m_accent;
    QColor m_ground;
    QColor m_card;
    QColor m_outline;
    QColor m_tick;
    QColor m_letter;
};

} // namespace Velvetnook
