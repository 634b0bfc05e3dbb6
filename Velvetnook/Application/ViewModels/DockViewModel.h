// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/CompanionLayout.h"
#include "Velvetnook/Application/DockDesktop.h"
#include "Velvetnook/Application/ViewModels/Dock/DockApplications.h"
#include "Velvetnook/Application/ViewModels/Dock/DockItems.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QRectF>
#include <QUrl>
#include <QVariantList>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
class HomeViewModel;

// What QML shows of the dock: a tab at an edge of the screen with the workspaces on it, and the
// panel of the one that is open. It is made when the dock is first turned on.
class DockViewModel : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("Velvetnook/Application/ViewModels/HomeViewModel.h")
    // Where it stands on the screen, from the screen's upper left corner.
    Q_PROPERTY(QSizeF screenSize READ screenSize NOTIFY placeChanged)
    Q_PROPERTY(QRectF tab READ tab NOTIFY placeChanged)
    Q_PROPERTY(QRectF panel READ panel NOTIFY placeChanged)
    Q_PROPERTY(double pointerShare READ pointerShare NOTIFY placeChanged) // along the panel
    // From the tab's upper or left end to the middle of the open slot.
    Q_PROPERTY(double anchor READ anchor WRITE setAnchor NOTIFY placeChanged)
    Q_PROPERTY(QString edge READ edge NOTIFY placeChanged)
    Q_PROPERTY(bool isFloating READ isFloating NOTIFY placeChanged)
    Q_PROPERTY(bool isFrosted READ isFrosted NOTIFY placeChanged)
    Q_PROPERTY(bool isMagnifying READ isMagnifying NOTIFY placeChanged)

    Q_PROPERTY(bool isOpen READ isOpen NOTIFY openChanged)
    Q_PROPERTY(bool isTabShown READ isTabShown NOTIFY openChanged)
    Q_PROPERTY(int dialogDepth READ dialogDepth NOTIFY dialogDepthChanged)

    Q_PROPERTY(
        QVariantList workspaces READ workspaces NOTIFY workspacesChanged) // {title, icon}
    Q_PROPERTY(int current READ current NOTIFY workspacesChanged)
    Q_PROPERTY(QString title READ title NOTIFY workspacesChanged)
    Q_PROPERTY(bool canAddWorkspace READ canAddWorkspace NOTIFY workspacesChanged)
    Q_PROPERTY(Velvetnook::DockItems *items READ items CONSTANT)
    Q_PROPERTY(QVariantList widgets READ widgets NOTIFY widgetsChanged) // {tool, title, …}
    Q_PROPERTY(Velvetnook::HomeViewModel *values READ values CONSTANT)  // of the widgets

    // What can be added: {tool, title, icon, isOn}.
    Q_PROPERTY(QVariantList toolChoices READ toolChoices NOTIFY widgetsChanged)
    Q_PROPERTY(QVariantList widgetChoices READ widgetChoices NOTIFY widgetsChanged)
    Q_PROPERTY(Velvetnook::DockApplications *applications READ applications CONSTANT)

    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(QString messageAction READ messageAction NOTIFY messageChanged)

public:
    DockViewModel(ApplicationModel &model, const Formatting &formatting,
                  QObject *parent = nullptr);
    void setDesktop(DockDesktop desktop) { m_desktop = std::move(desktop); }
    // Whether it is on, and could be made.
    bool isThere() const { return m_desktop.open != nullptr; }

    // The screen, and the room on it that no bar of the desktop takes.
    void setScreen(const QSizeF &screen, const QRectF &room);
    QSizeF screenSize() const { return m_screen; }
    QRectF tab() const;
    QRectF panel() const;
    double pointerShare() const;
    double anchor() const { return m_anchor; }
    void setAnchor(double anchor);
    QString edge() const;
    bool isFloating() const;
    bool isFrosted() const;
    bool isMagnifying() const;

    bool isOpen() const { return m_isOpen; }
    void setOpen(bool isOpen);
    // Whether the pointer is near, which brings out a tab that hides.
    void setNear(bool isNear);
    bool hides() const;
    bool isTabShown() const { return !hides() || m_isNear || m_isOpen; }
    bool opensByHover() const;
    int dialogDepth() const { return m_dialogDepth; }
    Q_INVOKABLE void beginDialog();
    Q_INVOKABLE void endDialog();

    QVariantList workspaces() const;
    int current() const;
    QString title() const;
    bool canAddWorkspace() const;
    DockItems *items() { return &m_items; }
    QVariantList widgets() const;
    QVariantList toolChoices() const;
    QVariantList widgetChoices() const;
    HomeViewModel *values();
    DockApplications *applications() { return &m_applications; }
    QString message() const { return m_message; }
    QString messageAction() const { return m_undo ? tr("Undo") : QString{}; }
    Q_INVOKABLE void takeMessageAction();

    // Shows the workspace; it is the one that opens next, too.
    Q_INVOKABLE void select(int workspace);
    // The slot of a workspace was pressed, or the pointer is on it (-1: on none).
    Q_INVOKABLE void activate(int workspace);
    Q_INVOKABLE void point(int workspace);
    Q_INVOKABLE void addWorkspace();
    Q_INVOKABLE bool renameWorkspace(const QString &name);
    Q_INVOKABLE void moveWorkspace(int by);
    Q_INVOKABLE void removeWorkspace();
    Q_INVOKABLE void setWidget(const QString &tool, bool isOn);

    Q_INVOKABLE void openItem(const QString &id);
    // Files that were dropped on an application are opened with it. False where the item is
    // none that takes files.
    Q_INVOKABLE bool openWith(const QString &id, const QList<QUrl> &files);
    Q_INVOKABLE void addTool(const QString &tool);
    Q_INVOKABLE void addApplication(const QString &id);
    Q_INVOKABLE void addDivider();
    // Empty, or why the address is none.
    Q_INVOKABLE QString addLink(const QString &address, const QString &title);
    // What was dropped or chosen: files, folders, applications and links. Behind the place of
    // the last one it goes to the end. False where nothing of it can lie here.
    Q_INVOKABLE bool drop(int workspace, const QList<QUrl> &addresses, const QString &text,
                          int place = -1);
    Q_INVOKABLE void loadApplications();

    Q_INVOKABLE void moveItem(const QString &id, int place);
    Q_INVOKABLE void moveItemTo(const QString &id, int workspace);
    Q_INVOKABLE bool renameItem(const QString &id, const QString &title);
    Q_INVOKABLE void setLifetime(const QString &id, const QString &lifetime);
    Q_INVOKABLE void removeItem(const QString &id);

signals:
    void placeChanged();
    void openChanged();
    void dialogDepthChanged();
    void workspacesChanged();
    void widgetsChanged();
    void messageChanged();
    // What others ask of the window. Sticky: it stays until it is closed.
    void openWanted(bool isSticky);
    void closeWanted();
    void toggleWanted();
    void activated(int workspace);
    void pointed(int workspace);
    void toolWanted(const QString &tool);
    void settingsWanted();

private:
    using Edit = std::function<Base::Result<void>(KestCore::CompanionState &)>;

    const KestCore::DockPreferences &preferences() const;
    const KestCore::Workspace *workspace() const;
    std::string workspaceId(int index) const;
    KestCore::EdgeFrames frames() const;
    QRectF onScreen(const KestCore::Rect &rect) const;
    DockRow rowOf(const KestCore::DockItem &item) const;
    void follow();
    void showItems();
    void inspect();
    void followClock();
    void dropExpired(Base::Instant now);
    // Refuses at once what cannot be done with what is there; false then, and told.
    bool change(const Edit &edit);
    void say(const QString &message, std::function<void()> undo = {});
    void add(const std::string &workspace, KestCore::DockItem item, std::size_t place);
    KestCore::DockItem newItem(KestCore::DockItemKind kind, const QString &title,
                               const QString &target) const;
    bool addAddress(const std::string &workspace, const QUrl &address, std::size_t place);
    void addFile(const std::string &workspace, const QString &path, std::size_t place);
    void addFound(const std::string &workspace, const DockApplication &application,
                  std::size_t place);
    void open(const KestCore::DockItem &item, const QStringList &addresses);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    DockDesktop m_desktop;
    DockItems m_items;
    DockApplications m_applications;
    HomeViewModel *m_values = nullptr;
    QHash<QString, DockFinding> m_findings; // by the item's id, of the workspace that is shown
    const std::string m_session;            // this run of the application
    std::string m_workspace;                // that is shown
    QSizeF m_screen{1280, 800};
    QRectF m_room{0, 0, 1280, 800};
    double m_anchor = -1; // below 0: the middle of the tab
    bool m_isOpen = false;
    bool m_isNear = false;
    int m_dialogDepth = 0;
    QString m_message;
    std::function<void()> m_undo;
    std::optional<Base::Instant> m_messageEnd;
    Base::Instant m_lastClearing{}; // when what had expired was last taken out
};

} // namespace Velvetnook
