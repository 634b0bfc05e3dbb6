// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QQuickWindow>

// An empty window of Qt Quick at the top edge, made and drawn as the application makes its own:
// the floor of what a start, a rest and the memory can be.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application{argc, argv};
    QQmlEngine engine;
    QQuickView view{&engine, nullptr};
    view.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    view.setSource(QUrl{QStringLiteral("qrc:/bench/EmptyWindow.qml")});
    view.setPosition(510, 0);
    view.show();
    return QGuiApplication::exec();
}
