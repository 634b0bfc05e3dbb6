// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QQmlEngine;

namespace Velvetnook
{

class App;
class ApplicationLauncher;
class ApplicationModel;
class DockDriver;
class DockWindow;

// Has the dock come and go as the user turns it on and off: while it is off nothing of it is
// there.
class DockKeeper : public QObject
{
    Q_OBJECT

public:
    DockKeeper(QQmlEngine &engine, ApplicationModel &model, App &app,
               std::function<double()> steady, QObject *parent = nullptr);
    ~DockKeeper() override;
    DockKeeper(const DockKeeper &) = delete;
    DockKeeper &operator=(const DockKeeper &) = delete;

private:
    void follow();
    void make();
    void drop();

    QQmlEngine &m_engine;
    ApplicationModel &m_model;
    App &m_app;
    std::function<double()> m_steady;
    std::unique_ptr<ApplicationLauncher> m_launcher;
    std::unique_ptr<DockDriver> m_driver;
    std::unique_ptr<DockWindow> m_window;
    bool m_hasFailed = false; // to make it
    bool m_isFollowing = false;
};

} // namespace Velvetnook
