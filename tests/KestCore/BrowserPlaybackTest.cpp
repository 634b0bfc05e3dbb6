// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Media/BrowserPlayback.h"

#include "KestCore/Media/BrowserPlaybackScript.h"
#include "KestCore/Media/PlaybackSettings.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace KestCoreTests
{

using namespace KestCore;
using Kind = BrowserPlaybackScript::Action::Kind;
using testing::HasSubstr;

namespace
{

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();

const BrowserPlayback kSample{.title = "A \"track\"",
                              .artist = "\u0641\u064A\u0631\u0648\u0632",
                              .playing = true,
                              .position = 12.5,
                              .duration = 180,
                              .volume = 0.75,
                              .canSeek = true,
                              .canPrevious = true};

constexpr const char *kSampleText =
    R"({"title":"A \"track\"","artist":"فيروز","playing":true,"position":12.5,)"
    R"("duration":180,"volume":0.75,"canSeek":true,"canNext":false,"canPrevious":true})";

BrowserPlayback with(void (*change)(BrowserPlayback &))
{
    BrowserPlayback playback = kSample;
    change(playback);
    return playback;
}

std::string repeated(std::string_view text, std::size_t count)
{
    std::string all;
    for (std::size_t index = 0; index < count; ++index) {
        all += text;
    }
    return all;
}

std::string errorOf(std::string_view response)
{
    const auto playback = BrowserPlayback::parse(response);
    return playback ? "accepted" : playback.error().message;
}

// What stands between the prologue and the epilogue.
std::string commandOf(Kind kind, double value = 0)
{
    const std::string bare = BrowserPlaybackScript::javaScript({});
    const std::string script =
        BrowserPlaybackScript::javaScript({.kind = kind, .value = value});
    const auto [inBare, inScript] = std::ranges::mismatch(bare, script);
    const auto head = static_cast<std::size_t>(inScript - script.begin());
    const std::string command = script.substr(head, script.size() - bare.size());
    EXPECT_EQ(bare.substr(0, head) + command + bare.substr(head), script);
    return command;
}

// The AppleScript with every literal taken out, and the values of those.
struct Taken {
    std::string frame{};
    std::vector<std::string> values{};
};
Taken takeLiterals(std::string_view script)
{
    Taken taken;
    bool isInside = false;
    for (std::size_t at = 0; at < script.size(); ++at) {
        const char c = script[at];
        if (c == '"') {
            isInside = !isInside;
            taken.frame += c;
            if (isInside) {
                taken.values.emplace_back();
            }
        } else if (isInside) {
            at += c == '\\' ? 1 : 0;
            taken.values.back() += script.at(at);
        } else {
            taken.frame += c;
        }
    }
    EXPECT_FALSE(isInside) << "a literal does not end";
    return taken;
}

std::string sayBrowserScript(const std::optional<BrowserPlaybackTarget> &target,
                             std::string_view javaScript)
{
    return *BrowserPlaybackScript::browserScript("com.google.Chrome", target, javaScript);
}

} // namespace

TEST(BrowserPlayback, IsReadFromWhatThePageAnswers)
{
    EXPECT_EQ(*BrowserPlayback::parse(kSampleText), kSample);
    EXPECT_EQ(*Base::json::encode(kSample), kSampleText);
    EXPECT_EQ(*BrowserPlayback::parse("null"), std::nullopt);
}

TEST(BrowserPlayback, IsRefusedBeyondItsBounds)
{
    struct Case {
        const char *name;
        bool isValid;
        void (*change)(BrowserPlayback &);
    };
    for (const auto &[name, isValid, change] : {
             Case{"300 characters", true, [](auto &p) { p.title = repeated("x", 300); }},
             Case{"301 characters", false, [](auto &p) { p.title = repeated("x", 301); }},
             Case{"300 of four bytes", true,
                  [](auto &p) { p.artist = repeated("\U0001F4FF", 300); }},
             Case{"301 of two bytes", false,
                  [](auto &p) { p.artist = repeated("\u0641", 301); }},
             Case{"no texts", true, [](auto &p) { p.title = p.artist = ""; }},
             Case{"position -1", false, [](auto &p) { p.position = -1; }},
             Case{"position behind the end", true, [](auto &p) { p.position = 1e300; }},
             Case{"position infinite", false, [](auto &p) { p.position = kEndless; }},
             Case{"duration -0.001", false, [](auto &p) { p.duration = -0.001; }},
             Case{"duration nan", false, [](auto &p) { p.duration = kNone; }},
             Case{"volume 0", true, [](auto &p) { p.volume = 0; }},
             Case{"volume 1", true, [](auto &p) { p.volume = 1; }},
             Case{"volume 1.5", false, [](auto &p) { p.volume = 1.5; }},
             Case{"volume -0.1", false, [](auto &p) { p.volume = -0.1; }},
             Case{"volume nan", false, [](auto &p) { p.volume = kNone; }},
         }) {
        const BrowserPlayback playback = with(change);
        EXPECT_EQ(playback.validate().has_value(), isValid) << name;
        if (const auto text = Base::json::encode(playback)) {
            EXPECT_EQ(errorOf(*text), isValid ? "accepted" : "Invalid playback details.")
                << name;
        }
    }
}

TEST(BrowserPlayback, IsRefusedWhereTheAnswerIsNone)
{
    const std::string open = R"({"title":"","artist":"","playing":true,"position":0,)"
                             R"("duration":0,"volume":1,"canSeek":true,"canNext":true)";
    const std::string sound = open + R"(,"canPrevious":true})";
    EXPECT_EQ(errorOf(sound), "accepted");
    EXPECT_EQ(errorOf(sound + std::string(8'192 - sound.size(), ' ')), "accepted");
    EXPECT_EQ(errorOf(sound + std::string(8'193 - sound.size(), ' ')),
              "Playback response is too large.");
    EXPECT_EQ(errorOf(repeated("\u0641", 4'097)), "Playback response is too large.");
    for (const std::string &text :
         {open + "}", open + R"(,"canPrevious":1})", open + R"(,"canPrevious":null})",
          sound + "x", std::string{}, std::string{" null"}, std::string{"null\n"},
          std::string{"[]"}, std::string{"\"null\""}, std::string{"undefined"}}) {
        EXPECT_EQ(errorOf(text), "Invalid playback details.") << text;
    }
}

TEST(BrowserPlayback, ComesWithItsTab)
{
    using Texts = std::vector<std::string>;
    const BrowserPlaybackTarget target{.window = "3", .tab = "71"};
    EXPECT_EQ(**BrowserPlaybackReading::parse(Texts{"3", "71", kSampleText}),
              (BrowserPlaybackReading{.target = target, .playback = kSample}));
    EXPECT_EQ(**BrowserPlaybackReading::parse(Texts{"3", "71", "null"}),
              (BrowserPlaybackReading{.target = target}));
    EXPECT_EQ(*BrowserPlaybackReading::parse({}), std::nullopt);
    for (const Texts &wrong :
         {Texts{"3", "71"}, Texts{"3", "71", "{}"}, Texts{"3", "71", ""}}) {
        EXPECT_EQ(BrowserPlaybackReading::parse(wrong).error().message,
                  "Invalid playback details.");
    }
}

TEST(BrowserPlaybackScript, PutsTheCommandBetweenFixedTexts)
{
    const auto seek = [](std::string_view number) {
        return "if(canSeek) m.currentTime = Math.max(m.seekable.start(0), "
               "Math.min(m.seekable.end(m.seekable.length-1), " +
               std::string{number} + "));";
    };
    struct Case {
        Kind kind;
        double value;
        std::string command;
    };
    for (const auto &[kind, value, command] : {
             Case{Kind::read, 0, ""},
             Case{Kind::playPause, 0,
                  "if(m.paused) { m.play().catch(()=>{}); } else { m.pause(); }"},
             Case{Kind::next, 0, "if(next) next.click();"},
             Case{Kind::previous, 0, "if(previous) previous.click();"},
             Case{Kind::seek, 83.25, seek("83.25")},
             Case{Kind::seek, 0.1 + 0.2, seek("0.30000000000000004")},
             Case{Kind::seek, -5, seek("0")},
             Case{Kind::seek, -0.0, seek("0")},
             Case{Kind::seek, 1e21, seek("1e+21")},
             Case{Kind::seek, kEndless, ""},
             Case{Kind::seek, kNone, ""},
             Case{Kind::volume, 0.5, "m.volume = 0.5;"},
             Case{Kind::volume, 2, "m.volume = 1;"},
             Case{Kind::volume, -1, "m.volume = 0;"},
             Case{Kind::volume, 1e-7, "m.volume = 1e-07;"},
             Case{Kind::volume, -kEndless, ""},
             Case{Kind::volume, kNone, ""},
         }) {
        EXPECT_EQ(commandOf(kind, value), command);
    }
}

RC_GTEST_PROP(BrowserPlaybackScript, WritesNumbersThatReadBack, (double value))
{
    const std::string command = commandOf(Kind::seek, value);
    if (!std::isfinite(value)) {
        RC_ASSERT(command.empty());
        return;
    }
    const std::size_t begin = command.rfind(' ') + 1;
    const std::string number = command.substr(begin, command.size() - begin - 3);
    RC_ASSERT(number.find_first_not_of("0123456789.e+-") == std::string::npos);
    RC_ASSERT(std::stod(number) == std::max(value, 0.0));
}

TEST(BrowserPlaybackScript, IsWrappedForTheBrowser)
{
    EXPECT_EQ(sayBrowserScript({}, "say(\"\\n\")"),
              "with timeout of 5 seconds\n"
              "  tell application id \"com.google.Chrome\"\n"
              "    if (count of windows) is 0 then return {}\n"
              "    set w to front window\n"
              "    if mode of w is not \"normal\" then return {}\n"
              "    set t to active tab of w\n"
              "    set payload to execute t javascript \"say(\\\"\\\\n\\\")\"\n"
              "    return {id of w as text, id of t as text, payload}\n"
              "  end tell\n"
              "end timeout");
    EXPECT_THAT(sayBrowserScript(BrowserPlaybackTarget{.window = "1\"", .tab = "2\\"}, "1"),
                HasSubstr("\n    set w to first window whose id is \"1\\\"\"\n"
                          "    if mode of w is not \"normal\" then return {}\n"
                          "    set t to first tab of w whose id is \"2\\\\\"\n"
                          "    set payload to execute t javascript \"1\"\n"));
}

TEST(BrowserPlaybackScript, KnowsFourBrowsers)
{
    for (const char *browser : {"ai.perplexity.comet", "com.google.Chrome",
                                "com.microsoft.edgemac", "com.brave.Browser"}) {
        EXPECT_THAT(*BrowserPlaybackScript::browserScript(browser, {}, ""),
                    HasSubstr(std::string{"application id \""} + browser + "\"\n"));
    }
    for (const char *browser :
         {"", "com.google.chrome", "com.google.Chrome\"", "org.mozilla"}) {
        EXPECT_EQ(BrowserPlaybackScript::browserScript(browser, {}, "").error().message,
                  "Unsupported browser.");
    }
    EXPECT_EQ(BrowserPlaybackScript::refusal().message,
              "Browser access is unavailable. Enable View → Developer → Allow JavaScript from "
              "Apple Events in your browser, then connect a playing tab. Also check macOS "
              "Automation access.");
}

namespace
{

// Texts of any bytes, and often of those that mean something inside a literal.
rc::Gen<std::string> hostileText()
{
    return rc::gen::container<std::string>(rc::gen::oneOf(
        rc::gen::element('"', '\\', '\n', '\r', '{', '}', '\0'), rc::gen::arbitrary<char>()));
}

} // namespace

RC_GTEST_PROP(BrowserPlaybackScript, LetsNothingOutOfALiteral, ())
{
    const BrowserPlaybackTarget target{.window = *hostileText(), .tab = *hostileText()};
    const std::string javaScript = *hostileText();
    const Taken plain =
        takeLiterals(sayBrowserScript(BrowserPlaybackTarget{.window = "w", .tab = "t"}, "j"));
    const Taken hostile = takeLiterals(sayBrowserScript(target, javaScript));
    RC_ASSERT(hostile.frame == plain.frame);
    RC_ASSERT(hostile.values == (std::vector<std::string>{"com.google.Chrome", target.window,
                                                          "normal", target.tab, javaScript}));
}

TEST(PlaybackSettings, CountAsATabOnlyWhenTheyMakeSense)
{
    Settings settings{{"playback.lastPlayer", "radio"}};
    connectTab(settings, {.port = 9222, .tab = "AB12"});
    EXPECT_EQ(connectedTab(settings), (ConnectedTab{.port = 9222, .tab = "AB12"}));
    for (const auto &[port, tab] :
         std::initializer_list<std::pair<const char *, const char *>>{{"0", "AB"},
                                                                      {"65536", "AB"},
                                                                      {"-1", "AB"},
                                                                      {"x", "AB"},
                                                                      {"", "AB"},
                                                                      {"9222", ""}}) {
        EXPECT_EQ(connectedTab({{"playback.port", port}, {"playback.tab", tab}}), std::nullopt);
    }
    disconnectTab(settings);
    EXPECT_EQ(settings, (Settings{{"playback.lastPlayer", "radio"}}));
    EXPECT_EQ(lastPlayer(settings), "radio");
}

} // namespace KestCoreTests
