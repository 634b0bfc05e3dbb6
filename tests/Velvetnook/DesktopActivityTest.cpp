// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/DesktopActivity.h"

#include "Velvetnook/Platform/Xcb.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

#include <string_view>

// What is told of the window in front and of the last touch, by a real X server.
namespace
{

using namespace Velvetnook;

template <class Condition>
bool waitUntil(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 20'000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return condition();
}

xcb_window_t rootWindow(xcb_connection_t *server)
{
    return xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
}

xcb_window_t openWindow(xcb_connection_t *server, std::string_view names)
{
    const xcb_window_t window = xcb_generate_id(server);
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, rootWindow(server), 0, 0, 100, 100,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(names.size()),
                        names.data());
    return window;
}

// As a window manager does it.
void bringToFront(xcb_connection_t *server, xcb_window_t window)
{
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, rootWindow(server),
                        Xcb::atom(server, "_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 32, 1,
                        &window);
    xcb_flush(server);
}

TEST(DesktopActivity, TellsTheApplicationInFrontAsItChanges)
{
    using namespace std::string_view_literals;
    xcb_connection_t *server = Xcb::connection();
    ASSERT_NE(server, nullptr);
    const DesktopActivity activity{nullptr};
    EXPECT_TRUE(activity.problem().isEmpty());
    struct Case {
        std::string_view names;
        const char *id;
        const char *name;
    };
    for (const auto &[names, id, name] : {
             Case{"Navigator\0firefox\0"sv, "firefox", "Firefox"},
             Case{"x\0org.gnome.Nautilus\0"sv, "org.gnome.Nautilus", "Nautilus"},
             Case{"only\0"sv, "only", "Only"},
             Case{"x\0ends.\0"sv, "ends.", "Ends."},
         }) {
        SCOPED_TRACE(id);
        bringToFront(server, openWindow(server, names));
        ASSERT_TRUE(waitUntil([&] {
            const auto front = activity.application();
            return front && front->id == id;
        }));
        EXPECT_EQ(activity.application()->name, name);
    }
    bringToFront(server, XCB_NONE);
    EXPECT_TRUE(waitUntil([&] { return !activity.application(); }));
}

TEST(DesktopActivity, KnowsWhenTheKeyboardWasTouchedLast)
{
    const DesktopActivity activity{nullptr};
    QThread::msleep(400);
    const auto before = activity.idle();
    ASSERT_TRUE(before);
    EXPECT_GE(before->count(), 0.3);
    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"),
                                {QStringLiteral("key"), QStringLiteral("a")}),
              0);
    ASSERT_TRUE(activity.idle());
    EXPECT_LT(activity.idle()->count(), before->count());
}

} // namespace

int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    const QGuiApplication application{argc, argv};
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
