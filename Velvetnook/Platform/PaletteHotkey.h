// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/CompanionState.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <cstdint>
#include <optional>
#include <vector>

struct xcb_connection_t;
struct xcb_key_press_event_t; // NOLINT(readability-identifier-naming): xcb's own

namespace Velvetnook
{

class ApplicationModel;
class PaletteViewModel;
struct HotkeyState;

// The key that opens the palette wherever the user is: the shortcut of the companion whose
// target is "command". Only an X server gives it; what is in the way, and the way round it,
// is told to the palette's model.
//
// The server stops the keyboard the moment that the key is pressed. The palette is asked to
// open, and has the keyboard when that returns; then it goes on. So what is typed meanwhile,
// however soon, lands there. The release of the key is heard wherever the keyboard is then:
// a key that is held repeats itself, and that must not be taken for another press.
class PaletteHotkey : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    PaletteHotkey(ApplicationModel &model, PaletteViewModel &palette,
                  QObject *parent = nullptr);
    ~PaletteHotkey() override;
    PaletteHotkey(const PaletteHotkey &) = delete;
    PaletteHotkey &operator=(const PaletteHotkey &) = delete;

    bool nativeEventFilter(const QByteArray &kind, void *message, qintptr *result) override;

private:
    // What the server was asked for.
    struct Grab {
        std::uint8_t keycode{};
        std::uint16_t modifiers{};

        bool operator==(const Grab &) const = default;
    };

    std::optional<KestCore::ShortcutBinding> storedBinding() const;
    void follow();
    void followSoon();
    void release();
    // Whether the server gave all of it.
    bool take(const Grab &grab, std::uint16_t numLock);
    bool press(const xcb_key_press_event_t &event);
    bool whileHeld(const xcb_key_press_event_t &event, bool isPress);
    bool letGo(const xcb_key_press_event_t &event, bool isPress);
    void goOn(std::uint8_t how, const xcb_key_press_event_t &event);
    void tell(const QString &text, const HotkeyState &state);

    ApplicationModel &m_model;
    PaletteViewModel &m_palette;
    xcb_connection_t *m_server;
    std::uint32_t m_root = 0;
    std::uint8_t m_keyboardEvents = 0; // of the keyboard extension; 0: none
    std::vector<std::uint16_t> m_locks;
    std::optional<KestCore::ShortcutBinding> m_binding;
    std::optional<Grab> m_grab;
    bool m_isFollowDue = false;
    std::uint8_t m_heldKey = 0;      // down since it was pressed; 0: none
    std::uint32_t m_releaseTime = 0; // when it was let go last
};

} // namespace Velvetnook
