// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QJSValue>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of which view the panel shows, its tabs, its footer and what it says.
class PanelViewModel : public QObject
{
    Q_OBJECT
    // The id of the tool that is shown; "history" and "tools" are views of their own.
    Q_PROPERTY(QString tool READ tool NOTIFY toolChanged)
    Q_PROPERTY(QString chosenTab READ chosenTab NOTIFY toolChanged)
    Q_PROPERTY(QString title READ title NOTIFY wordsChanged)
    Q_PROPERTY(QString icon READ icon NOTIFY toolChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY wordsChanged)
    Q_PROPERTY(QString viewName READ viewName NOTIFY toolChanged) // empty: not built yet
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY toolChanged)
    // Where the content comes from when the view changes: 1 from the end, -1 from the start.
    Q_PROPERTY(int direction READ direction NOTIFY toolChanged)
    Q_PROPERTY(
        bool isFrosted READ isFrosted NOTIFY tabsChanged) // the ground lets a little through
    // Maps of id, title and icon; those of allTools also say isBuilt.
    Q_PROPERTY(QVariantList tabs READ tabs NOTIFY tabsChanged)
    Q_PROPERTY(QVariantList allTools READ allTools NOTIFY tabsChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(QString messageAction READ messageAction NOTIFY messageChanged)
    // How many dialogs are open over the panel, or beside it. While there is one it stays.
    Q_PROPERTY(int dialogDepth READ dialogDepth NOTIFY dialogDepthChanged)
    // Whether the panel can be seen. The window says so.
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    PanelViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

    QString tool() const { return m_tool; }
    QString chosenTab() const;
    QString title() const;
    QString icon() const;
    QString summary() const;
    QString viewName() const;
    bool isFrosted() const;
    bool canGoBack() const { return chosenTab() != m_tool; }
    int direction() const { return m_direction; }
    QVariantList tabs() const;
    QVariantList allTools() const;
    QString message() const { return m_message; }
    QString messageAction() const { return m_messageAction; }
    int dialogDepth() const { return m_dialogDepth; }
    bool isOpen() const { return m_isOpen; }

    // Shows the view of the tool; "settings" opens their window instead.
    Q_INVOKABLE void openTool(const QString &id);
    Q_INVOKABLE void openTab(int index);    // counted from 0; one that is not there is ignored
    Q_INVOKABLE void stepTab(int distance); // round and round
    Q_INVOKABLE void showAllTools();
    Q_INVOKABLE void back();

    // In the footer for five seconds, with what can be done about it.
    void showMessage(const QString &text, const QString &actionText,
                     std::function<void()> action);
    Q_INVOKABLE void showMessage(const QString &text, const QString &actionText = {},
                                 const QJSValue &action = {});
    Q_INVOKABLE void takeMessageAction();

    // A dialog over the panel, or a window of the desktop that it has asked for.
    Q_INVOKABLE void beginDialog();
    Q_INVOKABLE void endDialog();

    void setOpen(bool isOpen);

signals:
    void toolChanged();
    void tabsChanged();
    void wordsChanged(); // of what is shown: with another tool or in another language
    void messageChanged();
    void dialogDepthChanged();
    void isOpenChanged();
    // What others ask of the window. Sticky: opened by a key, it stays until it is closed.
    void openWanted(bool sticky);
    void closeWanted();
    void toggleWanted();
    void settingsWanted();

private:
    QStringList tabIds() const;
    void followState();
    void leaveTurnedOff();
    void show(const QString &id);
    void dropMessage();

    ApplicationModel &m_model;
    QStringList m_seen; // what the tabs and the tools were worked out from
    QString m_tool;
    QString m_before; // the tool that the list of all tools covers
    int m_direction = 1;
    QString m_message;
    QString m_messageAction;
    std::function<void()> m_action;
    std::optional<Base::Instant> m_messageEnd;
    int m_dialogDepth = 0;
    bool m_isOpen = false;
};

} // namespace Velvetnook
