// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Platform/GlobalKeys.h"
#include "Velvetnook/Platform/PaletteWindow.h"
#include "Velvetnook/Platform/WindowShape.h"
#include "Velvetnook/Platform/Xcb.h"
#include "Velvetnook/Shell/Engine.h"
#include "Velvetnook/Shell/Theme.h"
#include "bench/XKeys.h"
#include "tests/TemporaryFolder.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>
#include <set>

// The palette's key and window on a real X server.
namespace
{

using namespace Velvetnook;

constexpr std::uint32_t kControl = 0xFFE3;
constexpr std::uint32_t kAlt = 0xFFE9;
constexpr std::uint32_t kShift = 0xFFE1;
constexpr std::uint32_t kEscape = 0xFF1B;
constexpr std::uint32_t kCapsLock = 0xFFE5;
constexpr std::uint32_t kNumLock = 0xFF7F;

template <class Condition>
bool waitUntil(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 10'000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return condition();
}

void settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

// A window of another program, which has the keyboard and counts what it gets.
class OtherProgram
{
public:
    OtherProgram()
        : m_server{xcb_connect(nullptr, nullptr)}, m_window{xcb_generate_id(m_server)}
    {
        const auto *screen = xcb_setup_roots_iterator(xcb_get_setup(m_server)).data;
        m_root = screen->root;
        const std::uint32_t values[]{1, XCB_EVENT_MASK_KEY_PRESS};
        xcb_create_window(m_server, XCB_COPY_FROM_PARENT, m_window, m_root, 0, 0, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                          XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_map_window(m_server, m_window);
        takeKeyboard();
    }
    ~OtherProgram() { xcb_disconnect(m_server); }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    void takeKeyboard()
    {
        xcb_set_input_focus(m_server, XCB_INPUT_FOCUS_PARENT, m_window, XCB_CURRENT_TIME);
        finish();
    }
    void grab(std::uint8_t keycode, std::uint16_t modifiers)
    {
        xcb_grab_key(m_server, 1, m_root, modifiers, keycode, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
        finish();
    }
    quint32 window() const { return m_window; }

    int keysSeen()
    {
        finish();
        int seen = 0;
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_server)) {
            const auto *key = reinterpret_cast<const xcb_key_press_event_t *>(event);
            const bool isLetter = (event->response_type & 0x7F) == XCB_KEY_PRESS &&
                                  (key->state & XCB_MOD_MASK_CONTROL) == 0 &&
                                  key->detail != 37 && key->detail != 50;
            seen += isLetter ? 1 : 0;
            std::free(event);
        }
        return seen;
    }

private:
    void finish()
    {
        std::free(xcb_get_input_focus_reply(m_server, xcb_get_input_focus(m_server), nullptr));
    }

    xcb_connection_t *m_server;
    xcb_window_t m_window;
    xcb_window_t m_root{};
};

class PaletteKeysTest : public testing::Test
{
protected:
    PaletteKeysTest()
    {
        auto store = KestCore::StateStore::open(m_folder.database()).value();
        auto first = committedAll(store.snapshot().value());
        m_model = std::make_unique<ApplicationModel>(
            std::make_unique<StateKeeper>(m_folder.database(), std::move(store)),
            std::move(first), Base::wallClock);
        m_app = std::make_unique<App>(*m_model);
        m_theme = std::make_unique<Theme>(*m_model);
        m_engine = std::make_unique<QQmlEngine>();
        prepareEngine(*m_engine, *m_app, *m_theme);
        m_window = std::make_unique<PaletteWindow>(*m_engine, *m_app);
        EXPECT_TRUE(m_window->prepare());
    }

    void listen()
    {
        m_hotkey = std::make_unique<GlobalKeys>(*m_model, *m_app->palette(),
                                                QDBusConnection::sessionBus());
    }
    void pressHotkey()
    {
        m_keys.press(kControl);
        m_keys.press(kShift);
        m_keys.tap(' ');
        m_keys.release(kShift);
        m_keys.release(kControl);
    }
    QString query() { return m_app->palette()->query(); }

    TemporaryFolder m_folder;
    OtherProgram m_other;
    XKeys m_keys;
    std::unique_ptr<ApplicationModel> m_model;
    std::unique_ptr<App> m_app;
    std::unique_ptr<Theme> m_theme;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<PaletteWindow> m_window;
    std::unique_ptr<GlobalKeys> m_hotkey;
};

TEST_F(PaletteKeysTest, LosesNoKeyThatIsTypedRightBehindItsOwn)
{
    listen();
    EXPECT_EQ(m_app->palette()->hotkeyText(), "Ctrl+Shift+Space");
    ASSERT_TRUE(m_app->palette()->isHotkeyFull());
    for (int round = 0; round < 20; ++round) {
        // All of it waits at the server before the application sees the first of it.
        pressHotkey();
        for (const char key : {'p', 'r', 'a', 'y', 'e', 'r'}) {
            m_keys.tap(static_cast<std::uint32_t>(key));
        }
        EXPECT_TRUE(waitUntil([&] { return query() == u"prayer"; })) << qPrintable(query());
        EXPECT_TRUE(m_window->isVisible());
        m_keys.tap(kEscape);
        m_keys.tap(kEscape);
        ASSERT_TRUE(waitUntil([&] { return !m_window->isVisible(); }));
        EXPECT_TRUE(waitUntil([&] { return focusedWindow() == m_other.window(); }));
    }
    EXPECT_EQ(m_other.keysSeen(), 0);
    m_keys.tap('z');
    settle(100);
    EXPECT_EQ(m_other.keysSeen(), 1);
}

TEST_F(PaletteKeysTest, TogglesWithItsKeyAndGoesWhenAnotherWindowIsChosen)
{
    listen();
    for (const bool isOpen : {true, false, true}) {
        pressHotkey();
        EXPECT_TRUE(waitUntil([&] { return m_window->isVisible() == isOpen; }));
        settle(200);
        EXPECT_EQ(m_window->isVisible(), isOpen);
    }
    EXPECT_NE(focusedWindow(), m_other.window());
    m_other.takeKeyboard();
    EXPECT_TRUE(waitUntil([&] { return !m_window->isVisible(); }));
    EXPECT_EQ(focusedWindow(), m_other.window());
}

// That the other one got the keyboard is heard when it has it no longer.
TEST_F(PaletteKeysTest, StaysWhenItIsOpenedAgainAtOnceOverAnotherWindowOfOurs)
{
    QQuickWindow ours;
    ours.setFlag(Qt::BypassWindowManagerHint);
    ours.show();
    giveFocusTo(static_cast<quint32>(ours.winId()));
    ASSERT_TRUE(waitUntil([&] { return ours.isActive(); }));
    emit m_app->palette()->toggleWanted();
    ASSERT_TRUE(waitUntil([&] { return m_window->isActive(); }));
    emit m_app->palette()->toggleWanted();
    emit m_app->palette()->toggleWanted();
    settle(200);
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(m_window->isActive());
    giveFocusTo(static_cast<quint32>(ours.winId()));
    EXPECT_TRUE(waitUntil([&] { return !m_window->isVisible(); }));
}

// A key that is held repeats itself, which must not close the palette again.
TEST_F(PaletteKeysTest, StaysOpenWhileItsKeyIsHeld)
{
    listen();
    m_keys.press(kControl);
    m_keys.press(kShift);
    m_keys.press(' ');
    EXPECT_TRUE(waitUntil([&] { return m_window->isVisible(); }));
    settle(1200);
    EXPECT_TRUE(m_window->isVisible());
    m_keys.release(' ');
    m_keys.release(kShift);
    m_keys.release(kControl);
    settle(100);
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(query().isEmpty());
}

// As when the key was changed while it was on its way: the server has stopped the keyboard for
// a key that nobody waits for any more.
TEST_F(PaletteKeysTest, GivesTheKeyboardBackForAKeyThatItNoLongerHas)
{
    listen();
    constexpr std::uint8_t kLetterK = 45;
    xcb_connection_t *server = Xcb::connection();
    xcb_grab_key(server, 1, xcb_setup_roots_iterator(xcb_get_setup(server)).data->root, 0,
                 kLetterK, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
    xcb_flush(server);
    settle(100);
    m_keys.tap('k');
    m_keys.tap('z');
    int seen = 0;
    EXPECT_TRUE(waitUntil([&] {
        seen += m_other.keysSeen();
        return seen >= 2;
    }));
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(PaletteKeysTest, WorksWithCapsLockAndNumLock)
{
    listen();
    for (const std::uint32_t lock : {kCapsLock, kNumLock}) {
        m_keys.tap(lock);
        pressHotkey();
        EXPECT_TRUE(waitUntil([&] { return m_window->isVisible(); })) << lock;
        m_keys.tap(lock);
        m_keys.tap(kEscape);
        EXPECT_TRUE(waitUntil([&] { return !m_window->isVisible(); }));
    }
}

TEST_F(PaletteKeysTest, NamesTheKeyThatAnotherProgramHas)
{
    constexpr std::uint8_t kSpaceBar = 65;
    m_other.grab(kSpaceBar, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT);
    listen();
    const QString state = m_app->palette()->hotkeyProblem();
    EXPECT_EQ(m_app->palette()->hotkey().level, HotkeyState::Level::degraded);
    EXPECT_TRUE(state.contains(u"Ctrl+Shift+Space"));
    EXPECT_TRUE(state.contains(u"kest palette toggle"));

    // The user chooses another.
    m_model->changeCompanion([](KestCore::CompanionState &companion) {
        companion.shortcuts.front().modifiers = {KestCore::ShortcutModifier::control,
                                                 KestCore::ShortcutModifier::option};
    });
    EXPECT_TRUE(waitUntil([&] { return m_app->palette()->isHotkeyFull(); }));
    EXPECT_EQ(m_app->palette()->hotkeyText(), "Ctrl+Alt+Space");
}

// Each key summons its own, and none does while one is typed into the settings.
TEST_F(PaletteKeysTest, SummonsWhatEachKeyIsFor)
{
    m_model->changeCompanion([](KestCore::CompanionState &companion) {
        const std::set held{KestCore::ShortcutModifier::control,
                            KestCore::ShortcutModifier::option};
        companion.shortcuts.push_back(
            {.id = "notes", .target = "notes", .keyCode = 45, .modifiers = held});
        companion.shortcuts.push_back(
            {.id = "units", .target = "units", .keyCode = 45, .modifiers = held});
    });
    ASSERT_TRUE(waitUntil([&] { return m_model->companion().shortcuts.size() == 3; }));
    listen();
    QStringList summoned;
    QObject::connect(m_hotkey.get(), &GlobalKeys::summoned,
                     [&](const QString &target) { summoned.append(target); });
    const auto pressN = [&] {
        m_keys.press(kControl);
        m_keys.press(kAlt);
        m_keys.tap('n');
        m_keys.release(kAlt);
        m_keys.release(kControl);
    };
    EXPECT_EQ(m_hotkey->stateOf("notes").level, HotkeyState::Level::full);
    EXPECT_EQ(m_hotkey->stateOf("units").level, HotkeyState::Level::degraded);
    pressN();
    EXPECT_TRUE(waitUntil([&] { return summoned == QStringList{QStringLiteral("notes")}; }));
    EXPECT_FALSE(m_window->isVisible());
    m_hotkey->setPaused(true);
    pressN();
    settle(200);
    EXPECT_EQ(summoned.size(), 1);
    m_hotkey->setPaused(false);
    pressHotkey();
    EXPECT_TRUE(waitUntil([&] { return m_window->isVisible(); }));
}

} // namespace

int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("XDG_SESSION_TYPE", "x11", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application{argc, argv};
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
