// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/GlobalKeys.h"

#include "KestCore/Surfaces/NotchInteraction.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/ShortcutKeys.h"
#include "Velvetnook/Application/ViewModels/PaletteViewModel.h"
#include "Velvetnook/Application/ViewModels/Settings/ShortcutSettings.h"
#include "Velvetnook/Platform/Linux/PortalKeys.h"
#include "Velvetnook/Platform/Linux/SessionProbe.h"
#include "Velvetnook/Platform/XKeyboard.h"
#include "Velvetnook/Platform/Xcb.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <algorithm>
#include <array>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::ShortcutBinding;
using KestCore::ShortcutModifier;
using Level = HotkeyState::Level;

constexpr std::uint16_t kLocks = XCB_MOD_MASK_LOCK;
constexpr std::uint16_t kSeen =
    XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

std::uint16_t masksOf(const ShortcutBinding &binding)
{
    constexpr std::array kMasks{std::pair{ShortcutModifier::control, XCB_MOD_MASK_CONTROL},
                                std::pair{ShortcutModifier::option, XCB_MOD_MASK_1},
                                std::pair{ShortcutModifier::command, XCB_MOD_MASK_4},
                                std::pair{ShortcutModifier::shift, XCB_MOD_MASK_SHIFT}};
    unsigned mask = 0;
    for (const auto &[modifier, bit] : kMasks) {
        mask |= binding.modifiers.contains(modifier) ? static_cast<unsigned>(bit) : 0U;
    }
    return static_cast<std::uint16_t>(mask);
}

// What summons the same from a terminal.
QString commandOf(const std::string &target)
{
    if (target == "command") {
        return QStringLiteral("kest palette toggle");
    }
    return Base::fromText<KestCore::QuickSurface>(target)
               ? QStringLiteral("kest %1 toggle").arg(QString::fromStdString(target))
               : QStringLiteral("kest notch open %1").arg(QString::fromStdString(target));
}

} // namespace

GlobalKeys::GlobalKeys(ApplicationModel &model, PaletteViewModel &palette,
                       const QDBusConnection &session, QObject *parent)
    : QObject{parent}, m_model{model}, m_palette{palette}, m_server{Xcb::connection()}
{
    if (m_server != nullptr) {
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_server)).data->root;
        constexpr std::string_view kExtension = "XKEYBOARD";
        const auto extension = Xcb::reply(
            xcb_query_extension_reply, m_server,
            xcb_query_extension(m_server, static_cast<std::uint16_t>(kExtension.size()),
                                kExtension.data()));
        m_keyboardEvents =
            extension && extension->present != 0 ? extension->first_event : std::uint8_t{0};
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
    if (m_server == nullptr || sessionType() == QLatin1String{"wayland"}) {
        m_portal = new PortalKeys{session, this};
        connect(m_portal, &PortalKeys::stateChanged, this, &GlobalKeys::followSoon);
        connect(m_portal, &PortalKeys::activated, this, [this](const QString &target) {
            if (!m_isPaused) {
                summon(target.toStdString());
            }
        });
    }
    connect(&model, &ApplicationModel::companionChanged, this, [this] {
        if (m_model.companion().shortcuts != m_bindings) {
            follow();
        }
    });
    follow();
}

GlobalKeys::~GlobalKeys()
{
    if (m_server != nullptr) {
        QCoreApplication::instance()->removeNativeEventFilter(this);
        release();
        xcb_ungrab_keyboard(m_server, XCB_CURRENT_TIME);
        xcb_flush(m_server);
    }
}

HotkeyState GlobalKeys::stateOf(const std::string &target) const
{
    const auto found = std::ranges::find(
        m_held, target, [](const Held &held) -> const auto & { return held.binding.target; });
    return found == m_held.end() ? HotkeyState{} : found->state;
}

void GlobalKeys::setPaused(bool isPaused)
{
    if (std::exchange(m_isPaused, isPaused) != isPaused) {
        follow();
    }
}

void GlobalKeys::follow()
{
    release();
    m_bindings = m_model.companion().shortcuts;
    m_held.clear();
    if (m_isPaused) {
        return;
    }
    if (m_server != nullptr) {
        const std::uint16_t numLock = XKeyboard::read(m_server).numLockMask(m_server);
        m_locks = {0, kLocks, numLock, static_cast<std::uint16_t>(kLocks | numLock)};
    }
    if (m_portal != nullptr) {
        askDesktop();
    }
    for (const ShortcutBinding &binding : m_bindings) {
        Held held{.binding = binding};
        held.state = ask(held);
        m_held.push_back(std::move(held));
    }
    tellPalette();
    emit statesChanged();
}

HotkeyState GlobalKeys::ask(Held &held) const
{
    if (m_portal != nullptr) {
        return toldByDesktop(held.binding);
    }
    const QString text = shortcutText(held.binding);
    const XKeyboard keyboard = XKeyboard::read(m_server);
    const auto key = shortcutKey(held.binding.keyCode);
    const std::uint8_t keycode = key ? keyboard.keycodeOf(key->keysym) : std::uint8_t{0};
    if (keycode == 0) {
        return {.level = Level::degraded,
                .reason = tr("This keyboard has no such key. Choose another.")};
    }
    const Grab grab{.keycode = keycode, .modifiers = masksOf(held.binding)};
    const auto same = std::ranges::find(m_held, std::optional{grab}, &Held::grab);
    if (same != m_held.end()) {
        return {.level = Level::degraded,
                .reason = tr("%1 is another shortcut's already. Choose another.").arg(text)};
    }
    if (!take(grab)) {
        return {.level = Level::degraded,
                .reason = tr("Another program has %1. Choose another key, or bind one to “%2” "
                             "in the desktop's keyboard settings.")
                              .arg(text, commandOf(held.binding.target))};
    }
    held.grab = grab;
    return {.level = Level::full, .reason = {}};
}

void GlobalKeys::askDesktop()
{
    std::vector<PortalKey> wished;
    for (const ShortcutBinding &binding : m_bindings) {
        wished.push_back({.target = QString::fromStdString(binding.target),
                          .title = ShortcutSettings::titleOf(binding.target),
                          .trigger = shortcutTrigger(binding)});
    }
    m_portal->ask(wished);
}

HotkeyState GlobalKeys::toldByDesktop(const ShortcutBinding &binding) const
{
    const QString text = shortcutText(binding);
    const QString command = commandOf(binding.target);
    const auto given = m_portal->givenTo(QString::fromStdString(binding.target));
    switch (m_portal->state()) {
    case PortalKeys::State::asking:
        return {.level = Level::untried,
                .reason = tr("The desktop is asked for %1.").arg(text)};
    case PortalKeys::State::absent:
        return {.level = Level::degraded,
                .reason = tr("This kind of session gives no program a key of its own. Bind %1 "
                             "to “%2” in the desktop's keyboard settings.")
                              .arg(text, command)};
    case PortalKeys::State::given:
        if (given) {
            return {.level = Level::full,
                    .reason = given->isEmpty()
                                  ? QString{}
                                  : tr("The desktop has it under: %1", "a key").arg(*given)};
        }
        break;
    case PortalKeys::State::refused:
        break;
    }
    return {.level = Level::degraded,
            .reason = tr("The desktop did not give %1. Its keyboard settings can bind a key to "
                         "“%2”.")
                          .arg(text, command)};
}

// A change of the layout comes as many events.
void GlobalKeys::followSoon()
{
    if (!std::exchange(m_isFollowDue, true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isFollowDue = false;
                follow();
            },
            Qt::QueuedConnection);
    }
}

void GlobalKeys::tellPalette()
{
    const auto found = std::ranges::find(m_bindings, "command", &ShortcutBinding::target);
    const bool isSet = found != m_bindings.end();
    const HotkeyState state =
        isSet ? stateOf("command")
              : HotkeyState{.level = Level::off, .reason = tr("No key is set.")};
    // A desktop may have given another than was wished for.
    const bool isAsWished =
        m_portal == nullptr || (state.level == Level::full && state.reason.isEmpty());
    const QString text = isSet && isAsWished ? shortcutText(*found) : QString{};
    if (m_palette.hotkeyText() != text || m_palette.hotkey() != state) {
        m_palette.setHotkey(text, state);
    }
}

bool GlobalKeys::take(const Grab &grab) const
{
    std::vector<xcb_void_cookie_t> asked;
    for (const std::uint16_t locks : m_locks) {
        asked.push_back(xcb_grab_key_checked(
            m_server, 1, m_root, static_cast<std::uint16_t>(grab.modifiers | locks),
            grab.keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC));
    }
    bool isGiven = true;
    for (const xcb_void_cookie_t cookie : asked) {
        const Xcb::Owned<xcb_generic_error_t> refusal{xcb_request_check(m_server, cookie)};
        isGiven = isGiven && !refusal;
    }
    if (!isGiven) {
        letGo(grab);
    }
    return isGiven;
}

void GlobalKeys::letGo(const Grab &grab) const
{
    for (const std::uint16_t locks : m_locks) {
        xcb_ungrab_key(m_server, grab.keycode, m_root,
                       static_cast<std::uint16_t>(grab.modifiers | locks));
    }
    xcb_flush(m_server);
}

void GlobalKeys::release()
{
    for (Held &held : m_held) {
        if (held.grab) {
            letGo(*held.grab);
            held.grab.reset();
        }
    }
}

bool GlobalKeys::nativeEventFilter(const QByteArray &kind, void *message, qintptr *)
{
    if (kind != "xcb_generic_event_t") {
        return false;
    }
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const auto type = static_cast<std::uint8_t>(event->response_type & 0x7FU);
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
        const auto &key = *static_cast<const xcb_key_press_event_t *>(message);
        const bool isPress = type == XCB_KEY_PRESS;
        if (m_heldKey != 0) {
            return whileHeld(key, isPress);
        }
        return (isPress && press(key)) || giveBack(key, isPress);
    }
    // Another layout may have the key elsewhere. Its first two events tell of one.
    const bool isNewLayout =
        m_keyboardEvents != 0 && type == m_keyboardEvents && event->pad0 <= 1;
    if (type == XCB_MAPPING_NOTIFY || isNewLayout) {
        followSoon();
    }
    return false;
}

void GlobalKeys::summon(const std::string &target)
{
    if (target == "command") {
        emit m_palette.toggleWanted();
    } else {
        emit summoned(QString::fromStdString(target));
    }
}

bool GlobalKeys::press(const xcb_key_press_event_t &event)
{
    const Grab grab{.keycode = event.detail,
                    .modifiers = static_cast<std::uint16_t>(event.state & kSeen)};
    const auto held = std::ranges::find(m_held, std::optional{grab}, &Held::grab);
    if (held == m_held.end()) {
        return false;
    }
    // A server that is busy tells a repetition as a release and a press of one moment.
    const bool isRepetition = event.time == m_releaseTime;
    m_heldKey = event.detail;
    if (!isRepetition) {
        summon(held->binding.target);
    }
    goOn(XCB_ALLOW_SYNC_KEYBOARD, event);
    return true;
}

// A key of ours that is the wrong one when it arrives, as the grab was changed while it was on
// its way: the keyboard of every program stands still until the server hears of it.
bool GlobalKeys::giveBack(const xcb_key_press_event_t &event, bool isPress)
{
    if (event.event != m_root) {
        return false;
    }
    goOn(isPress ? XCB_ALLOW_REPLAY_KEYBOARD : XCB_ALLOW_ASYNC_KEYBOARD, event);
    return true;
}

// The server stops at each key until this one is released, and says all of them here.
bool GlobalKeys::whileHeld(const xcb_key_press_event_t &event, bool isPress)
{
    const bool isOurs = event.detail == m_heldKey;
    if (isPress && !isOurs) {
        m_heldKey = 0; // typed on: a key that is pressed later repeats in its place
        goOn(XCB_ALLOW_REPLAY_KEYBOARD, event);
        return true;
    }
    if (!isPress && isOurs) {
        m_heldKey = 0;
        m_releaseTime = event.time;
    }
    goOn(XCB_ALLOW_SYNC_KEYBOARD, event);
    return true;
}

void GlobalKeys::goOn(std::uint8_t how, const xcb_key_press_event_t &event)
{
    xcb_allow_events(m_server, how, event.time);
    xcb_flush(m_server);
}

} // namespace Velvetnook
