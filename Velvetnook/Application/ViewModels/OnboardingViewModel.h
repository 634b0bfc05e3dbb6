// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the first steps. They are shown once: leaving them, at any step, counts
// as having seen them, and what was chosen by then is kept.
class OnboardingViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isNeeded READ isNeeded NOTIFY changed)
    Q_PROPERTY(int step READ step NOTIFY stepChanged) // 0 to 4
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    // [{phrase, arabic, transliteration, translation}]
    Q_PROPERTY(QVariantList phrases READ phrases NOTIFY wordsChanged)
    Q_PROPERTY(QString phrase READ phrase NOTIFY changed)             // the chosen one
    Q_PROPERTY(QVariantList targets READ targets NOTIFY wordsChanged) // [{value, label}]
    Q_PROPERTY(int target READ target NOTIFY changed)                 // 0: open

public:
    static constexpr int kSteps = 5;

    OnboardingViewModel(ApplicationModel &model, const Formatting &formatting,
                        QObject *parent = nullptr);

    bool isNeeded() const;
    int step() const { return m_step; }
    int stepCount() const { return kSteps; }
    QVariantList phrases() const;
    QString phrase() const;
    QVariantList targets() const;
    int target() const;

    // Shows them where they were never seen; for the start of the program.
    void openWhenNeeded();
    Q_INVOKABLE void next(); // of the last step: the end
    Q_INVOKABLE void back();
    Q_INVOKABLE void finish();
    Q_INVOKABLE void choosePhrase(const QString &phrase);
    Q_INVOKABLE void chooseTarget(int target); // 0: open

signals:
    void changed();
    void stepChanged();
    void wordsChanged();
    void openWanted();
    void closeWanted();

private:
    ApplicationModel &m_model;
    const Formatting &m_formatting;
    int m_step = 0;
};

} // namespace Velvetnook
