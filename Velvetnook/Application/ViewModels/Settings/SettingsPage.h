// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace KestCore
{
struct Preferences;
} // namespace KestCore

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// One page of the settings. It shows what is committed and writes a choice at once; a choice
// that the store refuses is told by the model, and the page goes on showing what is there.
class SettingsPage : public QObject
{
    Q_OBJECT

public:
    SettingsPage(ApplicationModel &model, const Formatting &formatting,
                 QObject *parent = nullptr);

signals:
    void changed();
    // The words of the interface are others now. Apart from `changed`, as a list of choices
    // that is told anew loses the focus.
    void wordsChanged();

protected:
    struct Choice {
        const char *value;
        QString label;
    };
    // [{value, label}], as pickers and segments read it.
    static QVariantList options(std::span<const Choice> choices);

    ApplicationModel &model() const { return m_model; }
    const Formatting &formatting() const { return m_formatting; }

    QString setting(std::string_view key, const char *fallback) const;
    bool isOn(std::string_view key, bool fallback) const;
    void set(const char *key, const QString &value);
    void set(const char *key, bool isOn);
    const KestCore::Preferences &preferences() const;
    void changePreferences(std::function<void(KestCore::Preferences &)> change);

private:
    ApplicationModel &m_model;
    const Formatting &m_formatting;
};

} // namespace Velvetnook
