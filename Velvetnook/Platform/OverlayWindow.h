// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickView>

#include <memory>

namespace Velvetnook
{

class App;
class ApplicationModel;

// The level overlay at the top edge of the screen of the notch. The pointer goes through it,
// and it never has the keyboard. It is made when there is something to show for the first time.
class OverlayWindow : public QObject
{
    Q_OBJECT

public:
    OverlayWindow(QQmlEngine &engine, App &app, const ApplicationModel &model);
    ~OverlayWindow() override;
    OverlayWindow(const OverlayWindow &) = delete;
    OverlayWindow &operator=(const OverlayWindow &) = delete;

private:
    void follow();
    bool prepare();

    QQmlEngine &m_engine;
    App &m_app;
    const ApplicationModel &m_model;
    std::unique_ptr<QQuickView> m_view;
};

} // namespace Velvetnook
