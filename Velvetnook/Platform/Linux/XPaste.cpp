// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/XPaste.h"

#include "Velvetnook/Platform/Linux/XApplications.h"

#include <QGuiApplication>
#include <QWindow>

#include <xcb/xtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <span>

namespace Velvetnook
{

using namespace std::chrono_literals;

namespace
{

constexpr auto kStep = 30ms;
constexpr int kTries = 30;

constexpr xcb_keysym_t kControl = 0xffe3;
constexpr xcb_keysym_t kShift = 0xffe1;
constexpr xcb_keysym_t kLetterV = 0x76;
constexpr xcb_keycode_t kUsualV = 55; // its place, where the layout has no Latin letters

// In a terminal the shorter keys mean something else.
constexpr std::array kTerminals{
    "gnome-terminal", "konsole",   "xfce4-terminal", "terminator", "tilix",
    "kitty",          "alacritty", "foot",           "lxterminal", "mate-terminal",
    "qterminal",      "kgx",       "guake",          "yakuake"};

struct Key {
    std::uint8_t kind;
    xcb_keycode_t code;
};

xcb_keycode_t codeOf(xcb_connection_t *server, xcb_keysym_t symbol)
{
    const auto *setup = xcb_get_setup(server);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto map = Xcb::reply(xcb_get_keyboard_mapping_reply, server,
                                xcb_get_keyboard_mapping(server, setup->min_keycode, count));
    if (!map || map->keysyms_per_keycode == 0) {
        return 0;
    }
    const std::span symbols{
        xcb_get_keyboard_mapping_keysyms(map.get()),
        static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(map.get()))};
    const auto found = std::ranges::find(symbols, symbol);
    return found == symbols.end()
               ? xcb_keycode_t{}
               : static_cast<xcb_keycode_t>(setup->min_keycode + (found - symbols.begin()) /
                                                                     map->keysyms_per_keycode);
}

bool isOurs(xcb_window_t window)
{
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), [&](QWindow *each) {
        return each->handle() != nullptr && each->winId() == window;
    });
}

bool isTerminal(const std::optional<std::string> &application)
{
    const QString name = QString::fromStdString(application.value_or(""));
    return std::ranges::any_of(kTerminals, [&](const char *each) {
        return name.startsWith(QLatin1String{each}, Qt::CaseInsensitive);
    });
}

bool isKeyHeld(xcb_connection_t *server, xcb_window_t root)
{
    constexpr std::uint16_t kHeld = XCB_KEY_BUT_MASK_SHIFT | XCB_KEY_BUT_MASK_CONTROL |
                                    XCB_KEY_BUT_MASK_MOD_1 | XCB_KEY_BUT_MASK_MOD_4;
    const auto pointer =
        Xcb::reply(xcb_query_pointer_reply, server, xcb_query_pointer(server, root));
    return pointer && (pointer->mask & kHeld) != 0;
}

void press(xcb_connection_t *server, xcb_window_t root, bool withShift)
{
    const xcb_keycode_t letter = codeOf(server, kLetterV);
    const xcb_keycode_t control = codeOf(server, kControl);
    const xcb_keycode_t shift = withShift ? codeOf(server, kShift) : xcb_keycode_t{};
    if (control == 0) {
        return;
    }
    const xcb_keycode_t pasting = letter == 0 ? kUsualV : letter;
    for (const auto &[kind, code] :
         {Key{XCB_KEY_PRESS, control}, Key{XCB_KEY_PRESS, shift}, Key{XCB_KEY_PRESS, pasting},
          Key{XCB_KEY_RELEASE, pasting}, Key{XCB_KEY_RELEASE, shift},
          Key{XCB_KEY_RELEASE, control}}) {
        if (code != 0) {
            xcb_test_fake_input(server, kind, code, XCB_CURRENT_TIME, root, 0, 0, 0);
        }
    }
    xcb_flush(server);
}

xcb_window_t rootOf(xcb_connection_t *server)
{
    return xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
}

} // namespace

XPaste::XPaste(QObject *parent) : QObject{parent}
{
    m_timer.setInterval(kStep);
    connect(&m_timer, &QTimer::timeout, this, &XPaste::tryNow);
}

bool XPaste::isPossible()
{
    xcb_connection_t *server = Xcb::connection();
    if (server == nullptr) {
        return false;
    }
    const auto *extension = xcb_get_extension_data(server, &xcb_test_id);
    return extension != nullptr && extension->present != 0;
}

void XPaste::begin()
{
    m_triesLeft = kTries;
    m_timer.start();
}

void XPaste::tryNow()
{
    xcb_connection_t *server = Xcb::connection();
    if (server == nullptr || --m_triesLeft < 0) {
        m_timer.stop();
        return;
    }
    const auto focus =
        Xcb::reply(xcb_get_input_focus_reply, server, xcb_get_input_focus(server));
    const xcb_window_t root = rootOf(server);
    const bool isWindow = focus && focus->focus > XCB_INPUT_FOCUS_POINTER_ROOT;
    if (!isWindow || isOurs(focus->focus) || isKeyHeld(server, root)) {
        return;
    }
    m_timer.stop();
    press(server, root, isTerminal(applicationOf(server, root, focus->focus)));
}

} // namespace Velvetnook
