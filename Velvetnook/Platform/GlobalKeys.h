// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/CompanionState.h"
#include "Velvetnook/Application/HotkeyState.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class QDBusConnection;
struct xcb_connection_t;
struct xcb_key_press_event_t; // NOLINT(readability-identifier-naming): xcb's own

namespace Velvetnook
{

class ApplicationModel;
class PaletteViewModel;
class PortalKeys;

// The keys that work wherever the user is: the shortcuts of the companion. The one whose target
// is "command" opens the palette. An X server gives such keys, elsewhere a desktop may; what is
// in the way of each, and the way round it, is told.
//
// The server stops the keyboard the moment that a key is pressed. What it summons is asked to
// open, and has the keyboard when that returns; then it goes on. So what is typed meanwhile,
// however soon, lands there. The release of the key is heard wherever the keyboard is then:
// a key that is held repeats itself, and that must not be taken for another press.
class GlobalKeys : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    // `session` is the bus that the desktop is on.
    GlobalKeys(ApplicationModel &model, PaletteViewModel &palette,
               const QDBusConnection &session, QObject *parent = nullptr);
    ~GlobalKeys() override;
    GlobalKeys(const GlobalKeys &) = delete;
    GlobalKeys &operator=(const GlobalKeys &) = delete;

    bool nativeEventFilter(const QByteArray &kind, void *message, qintptr *result) override;

    // Nothing until the server was asked for it.
    HotkeyState stateOf(const std::string &target) const;
    // Lets go of all of them, so that one can be typed into the settings. Those that a desktop
    // has given stay the desktop's, and do nothing meanwhile.
    void setPaused(bool isPaused);

signals:
    // Any but that of the palette, which opens by itself.
    void summoned(const QString &target);
    void statesChanged();

private:
    // What the server was asked for.
    struct Grab {
        std::uint8_t keycode{};
        std::uint16_t modifiers{};

        bool operator==(const Grab &) const = default;
    };

    // A shortcut, and what became of it.
    struct Held {
        KestCore::ShortcutBinding binding{};
        std::optional<Grab> grab{};
        HotkeyState state{};
    };

    void follow();
    void followSoon();
    void askDesktop();
    HotkeyState toldByDesktop(const KestCore::ShortcutBinding &binding) const;
    void release();
    HotkeyState ask(Held &held) const;
    // Whether the server gave all of it.
    bool take(const Grab &grab) const;
    void letGo(const Grab &grab) const;
    void summon(const std::string &target);
    bool press(const xcb_key_press_event_t &event);
    bool whileHeld(const xcb_key_press_event_t &event, bool isPress);
    bool giveBack(const xcb_key_press_event_t &event, bool isPress);
    void goOn(std::uint8_t how, const xcb_key_press_event_t &event);
    void tellPalette();

    ApplicationModel &m_model;
    PaletteViewModel &m_palette;
    xcb_connection_t *m_server;
    PortalKeys *m_portal = nullptr; // where an X server does not have the keyboard
    std::uint32_t m_root = 0;
    std::uint8_t m_keyboardEvents = 0; // of the keyboard extension; 0: none
    std::vector<std::uint16_t> m_locks;
    std::vector<KestCore::ShortcutBinding> m_bindings; // as they are stored
    std::vector<Held> m_held;
    bool m_isPaused = false;
    bool m_isFollowDue = false;
    std::uint8_t m_heldKey = 0;      // down since it was pressed; 0: none
    std::uint32_t m_releaseTime = 0; // when it was let go last
};

} // namespace Velvetnook
