// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "Velvetnook/Application/StripContent.h"
#include "Velvetnook/Application/ViewModels/AssistantsViewModel.h"
#include "tests/Velvetnook/RunningModel.h"

#include <QSignalSpy>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <fstream>

using namespace Velvetnook;
using KestCore::AssistantState;

namespace
{

namespace fs = std::filesystem;

constexpr const char *kLog = ".claude/projects/-home-u-nook/one.jsonl";
constexpr const char *kHooks = ".claude/settings.json";

std::string answer(std::string_view id, int tokens, std::string_view time,
                   std::string_view stop = "tool_use")
{
    return fmt::format(
        R"({{"cwd":"/home/u/nook","sessionId":"s-1","message":{{"id":"{}","model":"m",)"
        R"("stop_reason":"{}","usage":{{"input_tokens":{},"output_tokens":0}}}},)"
        R"("type":"assistant","timestamp":"2025-11-14T{}Z"}})"
        "\n",
        id, stop, tokens, time);
}

// A home of the test's own, in which the tools leave what they leave.
class AssistantsTest : public testing::Test
{
protected:
    AssistantsTest()
    {
        setenv("HOME", m_home.path().c_str(), 1);
        m_running = std::make_unique<RunningModel>(
            [](KestCore::NativeState &state) { state.enabled.emplace_back("claude"); });
        m_view =
            std::make_unique<AssistantsViewModel>(m_running->model(), m_running->formatting());
    }

    void write(const fs::path &name, std::string_view text,
               std::ios::openmode mode = std::ios::app) const
    {
        const fs::path file = m_home.path() / name;
        fs::create_directories(file.parent_path());
        std::ofstream{file, mode | std::ios::binary} << text;
    }
    std::string text(const fs::path &name) const
    {
        return Base::readFile(m_home.path() / name).value_or("");
    }
    QString card(const char *key) const
    {
        const QVariantList cards = m_view->cards();
        return cards.isEmpty() ? QString{} : cards.front().toMap().value(key).toString();
    }
    QString row(int at, const char *key) const
    {
        return m_view->sessions().value(at).toMap().value(key).toString();
    }
    void hear(const char *tool, AssistantState state, const char *session = "h-1")
    {
        m_view->take({.tool = tool, .session = session, .state = state, .folder = "shed"});
    }
    bool isAvailable(const char *availability)
    {
        return RunningModel::waitUntil(
            [&] { return m_view->availability() == QLatin1String{availability}; });
    }

    TemporaryFolder m_home;
    std::unique_ptr<RunningModel> m_running;
    std::unique_ptr<AssistantsViewModel> m_view;
};

TEST_F(AssistantsTest, SaysThatThereIsNothingBeforeItShowsWhatCame)
{
    m_view->enter();
    EXPECT_EQ(m_view->availability(), "loading");
    ASSERT_TRUE(isAvailable("unconfigured"));
    EXPECT_TRUE(m_view->cards().isEmpty());
    m_view->leave();
    write(kLog, answer("a", 1500, "13:00:00"));
    m_view->enter();
    ASSERT_TRUE(isAvailable("ready"));
    EXPECT_EQ(card("figure"), "1.5 k");
    EXPECT_EQ(m_view->cards().front().toMap().value("value").toDouble(), -1); // no limit told
    EXPECT_EQ(row(0, "what"), "nook");
    EXPECT_EQ(row(0, "note"), "working · 6 min ago");
}

// Only the system's word brings it: nothing here asks again by itself.
TEST_F(AssistantsTest, ReadsOnWhenALogGrowsAndOnlyWhileItIsSeen)
{
    write(kLog, answer("a", 1000, "13:00:00"));
    m_view->enter();
    ASSERT_TRUE(isAvailable("ready"));
    ASSERT_EQ(card("figure"), "1.0 k");
    write(kLog, answer("b", 4000, "13:05:30", "end_turn"));
    EXPECT_TRUE(RunningModel::waitUntil([&] { return card("figure") == "5.0 k"; }));
    EXPECT_EQ(row(0, "what"), "nook · waiting for your answer");
    write(".claude/projects/-home-u-nook/two.jsonl", answer("c", 5000, "13:05:40"));
    EXPECT_TRUE(RunningModel::waitUntil([&] { return card("figure") == "10.0 k"; }));

    m_view->leave();
    QSignalSpy changes{m_view.get(), &AssistantsViewModel::changed};
    write(kLog, answer("d", 90'000, "13:05:50"));
    EXPECT_FALSE(changes.wait(3000));
    EXPECT_EQ(card("figure"), "10.0 k");
}

TEST_F(AssistantsTest, ShowsTheLimitsThatAreTold)
{
    struct Case {
        const char *window;
        double percent;
        const char *span;
        const char *note;
        bool isHigh;
    };
    const Case cases[]{
        {R"("window_minutes":300,"resets_at":1763136000)", 88.4, "5 h window", "resets 16:00",
         true},
        {R"("window_minutes":10080,"resets_at":1763370000)", 80, "weekly", "resets Mon", false},
        {R"("window_minutes":43200,"resets_at":1764633600)", 3, "monthly", "resets 2 Dec",
         false},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(each.span);
        write(".codex/sessions/2025/11/14/rollout-1.jsonl",
              fmt::format(R"({{"timestamp":"2025-11-14T13:00:00Z","type":"event_msg",)"
                          R"("payload":{{"type":"token_count","info":null,"rate_limits":)"
                          R"({{"primary":{{"used_percent":{},{}}}}}}}}})"
                          "\n",
                          each.percent, each.window));
        m_view->enter();
        EXPECT_TRUE(RunningModel::waitUntil([&] { return card("span") == each.span; }))
            << qPrintable(card("span"));
        EXPECT_EQ(card("note"), each.note);
        EXPECT_EQ(card("unit"), "%");
        EXPECT_EQ(m_view->cards().front().toMap().value("isHigh").toBool(), each.isHigh);
        m_view->leave();
    }
}

TEST_F(AssistantsTest, TellsTheStripWhoWaitsUntilSomebodyLooks)
{
    const auto waiting = [&] {
        const auto who = m_view->waiting();
        return who ? who->title.toStdString() : "";
    };
    EXPECT_EQ(waiting(), "");
    hear("cursor", AssistantState::waiting);
    EXPECT_EQ(waiting(), "Cursor");
    m_running->pass(Base::Seconds{5});
    hear("claude-code", AssistantState::waiting, "h-2");
    EXPECT_EQ(waiting(), "Claude Code"); // who asked last
    hear("claude-code", AssistantState::working, "h-2");
    EXPECT_EQ(waiting(), "Cursor");

    m_view->enter();
    EXPECT_EQ(waiting(), "");
    m_view->leave();
    EXPECT_EQ(waiting(), ""); // it was looked at
    m_running->pass(Base::Seconds{5});
    hear("cursor", AssistantState::working);
    hear("cursor", AssistantState::waiting);
    EXPECT_EQ(waiting(), "Cursor");
    m_view->setSaysWaiting(false);
    m_running->settle();
    EXPECT_EQ(waiting(), "");
    m_view->setSaysWaiting(true);
    m_running->change([](auto &state) { std::erase(state.enabled, "claude"); });
    EXPECT_EQ(waiting(), "");
}

TEST_F(AssistantsTest, TakesTheNewerWordOfASession)
{
    write(kLog, answer("a", 10, "13:05:00"));
    m_view->enter();
    ASSERT_TRUE(isAvailable("ready"));
    hear("claude-code", AssistantState::waiting, "s-1"); // at 13:06
    ASSERT_EQ(m_view->sessions().size(), 1);
    EXPECT_EQ(row(0, "tone"), "warn");
    EXPECT_EQ(row(0, "note"), "just now");
    m_running->pass(Base::Seconds{13 * 3600});
    EXPECT_EQ(row(0, "tone"), "text3"); // nobody waits for so long
    EXPECT_EQ(row(0, "note"), "idle since Fri");
}

class HooksTest : public AssistantsTest
{
protected:
    HooksTest()
    {
        write("bin/kest", "");
        m_page = std::make_unique<HookConnections>(m_home.path(), m_home.path() / "bin/kest");
    }
    QString state(int at)
    {
        m_page->look();
        EXPECT_TRUE(RunningModel::waitUntil([&] { return !m_page->isBusy(); }));
        return m_page->tools().value(at).toMap().value("state").toString();
    }
    bool plan(bool connect)
    {
        m_page->plan("claude-code", connect);
        return RunningModel::waitUntil(
            [&] { return !m_page->lines().isEmpty() || !m_page->problem().isEmpty(); });
    }

    std::unique_ptr<HookConnections> m_page;
};

TEST_F(HooksTest, WritesOnlyWhatWasShownAndTakesItBackToTheByte)
{
    EXPECT_EQ(state(0), "missing");
    const std::string before = "{\n  \"model\": \"m\"\n}\n";
    write(kHooks, before);
    EXPECT_EQ(state(0), "off");
    ASSERT_TRUE(plan(true));
    EXPECT_EQ(m_page->problem(), "");
    EXPECT_EQ(text(kHooks), before); // to look changes nothing
    m_page->cancel();
    m_page->write();
    EXPECT_EQ(text(kHooks), before);

    ASSERT_TRUE(plan(true));
    QSignalSpy told{m_page.get(), &HookConnections::told};
    m_page->write();
    ASSERT_TRUE(told.wait(10'000));
    EXPECT_NE(text(kHooks).find("hook claude-code"), std::string::npos);
    EXPECT_EQ(text(std::string{kHooks} + ".before-velvetnook"), before);
    EXPECT_EQ(state(0), "connected");

    ASSERT_TRUE(plan(false));
    m_page->write();
    ASSERT_TRUE(told.wait(10'000));
    EXPECT_EQ(text(kHooks), before);
    EXPECT_EQ(state(0), "off");
}

TEST_F(HooksTest, TellsWhatBecameOfAWritingWhosePageWasLeft)
{
    for (const bool isRefused : {false, true}) {
        SCOPED_TRACE(isRefused);
        write(kHooks, "{}\n", std::ios::trunc);
        ASSERT_TRUE(plan(true));
        if (isRefused) {
            write(kHooks, "{\"model\": \"m\"}\n", std::ios::trunc);
        }
        QSignalSpy told{m_page.get(), &HookConnections::told};
        m_page->write();
        m_page->close();
        ASSERT_TRUE(told.wait(10'000));
        EXPECT_TRUE(told[0][0].toString().contains(isRefused ? u"It has changed just now"
                                                             : u"Claude Code is connected."));
        EXPECT_EQ(m_page->problem(), "");
        EXPECT_EQ(state(0), isRefused ? "off" : "connected");
    }
}

TEST_F(HooksTest, RefusesAFileThatChangedOrCannotBeUnderstood)
{
    write(kHooks, "{}\n");
    ASSERT_TRUE(plan(true));
    write(kHooks, "{\"model\": \"m\"}\n", std::ios::trunc); // the tool itself, meanwhile
    m_page->write();
    ASSERT_TRUE(RunningModel::waitUntil([&] { return !m_page->problem().isEmpty(); }));
    EXPECT_TRUE(m_page->problem().contains(u"It has changed just now"));
    EXPECT_EQ(text(kHooks), "{\"model\": \"m\"}\n");
    EXPECT_EQ(text(std::string{kHooks} + ".before-velvetnook"), ""); // it would be outdated

    write(kHooks, "{ \"hooks\": [ }", std::ios::trunc);
    EXPECT_EQ(state(0), "error");
    ASSERT_TRUE(plan(true));
    EXPECT_TRUE(m_page->lines().isEmpty());
    EXPECT_TRUE(m_page->problem().contains(u"strict JSON. Nothing was changed"));

    fs::remove(m_home.path() / "bin/kest");
    ASSERT_TRUE(plan(true));
    EXPECT_TRUE(m_page->problem().contains(u"bin/kest"));
}

} // namespace
