// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/HotkeyState.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <map>
#include <string>

namespace KestCore
{
struct ShortcutBinding;
} // namespace KestCore

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// The keys that work everywhere: which there are, and a recorder for another one. Two of ours
// never share a key; that another program has one is told by who asks the session for it.
class ShortcutSettings : public QObject
{
    Q_OBJECT
    // [{target, title, icon, keys: [text], note, isFull, isSet}]
    Q_PROPERTY(QVariantList rows READ rows NOTIFY changed)
    // What has no key yet, [{value, label}].
    Q_PROPERTY(QVariantList addable READ addable NOTIFY changed)
    Q_PROPERTY(QString recording READ recording NOTIFY recordingChanged) // a target, or empty
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)       // of what was pressed

public:
    ShortcutSettings(ApplicationModel &model, const Formatting &formatting,
                     QObject *parent = nullptr);

    // What the user knows the target as.
    static QString titleOf(const std::string &target);

    QVariantList rows() const;
    QVariantList addable() const;
    QString recording() const { return m_recording; }
    QString refusal() const { return m_refusal; }

    void setState(const std::string &target, const HotkeyState &state);

    // From now on the next key is taken for it.
    Q_INVOKABLE void record(const QString &target);
    Q_INVOKABLE void cancel();
    // Of what was pressed while recording, as QML has it.
    Q_INVOKABLE void press(int key, int modifiers, quint32 scanCode);
    Q_INVOKABLE void remove(const QString &target);

signals:
    void changed();
    void recordingChanged();
    void refusalChanged();

private:
    QString iconOf(const std::string &target) const;
    QVariantMap rowOf(const std::string &target) const;
    const KestCore::ShortcutBinding *bindingOf(const std::string &target) const;
    void keep(const KestCore::ShortcutBinding &binding);
    void refuse(const QString &why);

    ApplicationModel &m_model;
    std::map<std::string, HotkeyState> m_states;
    QString m_recording;
    QString m_refusal;
};

} // namespace Velvetnook
