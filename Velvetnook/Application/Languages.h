// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTranslator>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// Takes the texts of a language ("en", "ar") into use until `translator` goes; false where they
// are missing.
bool speak(QTranslator &translator, const QString &language);

// Gives the application the texts and the direction of the interface's language, also when it
// is changed. To be made before the view models: they word anew when the state changes, and
// then the texts must be there.
class Languages : public QObject
{
    Q_OBJECT

public:
    Languages(const ApplicationModel &model, const Formatting &formatting,
              QObject *parent = nullptr);
    ~Languages() override;
    Languages(const Languages &) = delete;
    Languages &operator=(const Languages &) = delete;

signals:
    // What QML has worded is to be worded anew.
    void changed();

private:
    void follow();

    const Formatting &m_formatting;
    QTranslator m_translator;
    QString m_language;
};

} // namespace Velvetnook
