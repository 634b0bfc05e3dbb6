// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RunningModel.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <memory>

// A window with QML in it, drawn by the software renderer without a screen. The program's main
// function makes the QGuiApplication.
class Stage
{
public:
    explicit Stage(const RunningModel::Prepare &prepare = {})
        : m_running{prepare}, m_app{m_running.model()}, m_theme{m_running.model()}
    {
        Velvetnook::prepareEngine(m_engine, m_app, m_theme);
        m_window.resize(800, 600);
        m_window.setColor(Qt::black);
    }

    // Puts the QML of one item into the window and gives it the focus.
    QQuickItem *show(const QByteArray &qml)
    {
        QQmlComponent component{&m_engine};
        component.setData("import QtQuick\nimport Velvetnook.Application\n"
                          "import Velvetnook.Shell\n" +
                              qml,
                          QUrl{});
        m_root.reset(component.create());
        EXPECT_TRUE(component.errors().isEmpty()) << qPrintable(component.errorString());
        auto *item = qobject_cast<QQuickItem *>(m_root.get());
        if (item == nullptr) {
            return nullptr;
        }
        item->setParentItem(m_window.contentItem());
        m_window.show();
        m_window.requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        item->forceActiveFocus(Qt::TabFocusReason);
        return item;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&m_window, key, modifiers);
    }
    void click(const QQuickItem *item)
    {
        QTest::mouseClick(
            &m_window, Qt::LeftButton, Qt::NoModifier,
            item->mapToScene(QPointF{item->width() / 2, item->height() / 2}).toPoint());
    }

    QQuickWindow &window() { return m_window; }
    Velvetnook::Theme &theme() { return m_theme; }
    QQmlEngine &engine() { return m_engine; }
    RunningModel &running() { return m_running; }

private:
    RunningModel m_running;
    Velvetnook::App m_app;
    Velvetnook::Theme m_theme;
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QObject> m_root;
};
