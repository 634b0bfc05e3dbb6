// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the Friday prompt.
class FridayViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString arabic READ arabic CONSTANT)
    Q_PROPERTY(QString transliteration READ transliteration NOTIFY changed)
    Q_PROPERTY(QString translation READ translation NOTIFY changed)
    Q_PROPERTY(QString weekday READ weekday NOTIFY changed)
    Q_PROPERTY(QString islamicDate READ islamicDate NOTIFY changed)
    Q_PROPERTY(QString dhuhr READ dhuhr NOTIFY changed) // empty where there is none to tell
    Q_PROPERTY(QString dhuhrNote READ dhuhrNote NOTIFY changed)
    Q_PROPERTY(bool isFriday READ isFriday NOTIFY changed)
    Q_PROPERTY(QString footer READ footer NOTIFY changed)

public:
    FridayViewModel(ApplicationModel &model, const Formatting &formatting,
                    QObject *parent = nullptr);

    QString arabic() const;
    QString transliteration() const;
    QString translation() const;
    QString weekday() const;
    QString islamicDate() const;
    QString dhuhr() const;
    QString dhuhrNote() const;
    bool isFriday() const;
    QString footer() const;

    // It is being shown, or the user wants none today: not again before the next Friday.
    Q_INVOKABLE void markShown();
    // Makes the blessings the phrase that is counted.
    Q_INVOKABLE void beginCounting();

signals:
    void changed();

private:
    ApplicationModel &m_model;
    const Formatting &m_formatting;
};

} // namespace Velvetnook
