// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MediaPlayers/PlayerBus.h"

#include <gmock/gmock.h>

#include <limits>

namespace MediaPlayersTests
{

using namespace MediaPlayers;
using Kind = Action::Kind;
using Status = Player::Status;

namespace
{

std::vector<std::string> namesOf(const std::vector<Player> &players)
{
    std::vector<std::string> names;
    std::ranges::transform(players, std::back_inserter(names), &Player::name);
    return names;
}

// Does what it is asked to only after it was looked at a few times, or never.
class SlowBus : public PlayerBus
{
public:
    int looksUntilDone = 3;
    bool isGone{};
    Player player{.name = "slow", .status = Status::paused};

    Result<std::vector<Player>> players() override
    {
        if (--looksUntilDone == 0) {
            player.status = Status::playing;
        }
        return isGone ? std::vector<Player>{} : std::vector{player};
    }
    Result<void> perform(const Player & /*player*/, const Action & /*action*/) override
    {
        return {};
    }
};

} // namespace

TEST(Player, OnePlaybackIsShownOnceHoweverManyTellOfIt)
{
    const auto with = [](std::string name, std::string title, Status status, double position,
                         std::string artist = "One") {
        return Player{.name = std::move(name),
                      .status = status,
                      .title = std::move(title),
                      .artist = std::move(artist),
                      .position = position};
    };
    struct Case {
        const char *name;
        Player other;
        bool isDouble;
    };
    const Player first = with("vlc", "Song", Status::playing, 30);
    for (const auto &[name, other, isDouble] : {
             Case{"a stand-in", with("standin", "Song", Status::playing, 31), true},
             Case{"a browser tells no place",
                  with("firefox.instance_1", "Song", Status::playing, 0), true},
             Case{"elsewhere in it", with("mpd", "Song", Status::playing, 90), false},
             Case{"another state", with("standin", "Song", Status::paused, 30), false},
             Case{"another artist", with("standin", "Song", Status::playing, 30, "Two"), false},
             Case{"another title", with("firefox", "Other", Status::playing, 30), false},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(withoutDoubles({first, other}).size(), isDouble ? 1U : 2U);
        EXPECT_EQ(withoutDoubles({first, other}).front(), first);
    }
    const Player silent = with("a", "", Status::stopped, 0, "");
    const Player alsoSilent = with("b", "", Status::stopped, 0, "");
    EXPECT_EQ(withoutDoubles({silent, alsoSilent}).size(), 2U); // nothing is no same thing
}

TEST(Player, IsBroughtIntoTheBoundsOfAPlayback)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const Player wild{.name = "wild.instance1",
                      .status = Status::playing,
                      .title = std::string(301, 'x'),
                      .position = -3,
                      .duration = kNone,
                      .volume = 1.5,
                      .canSeek = true};
    EXPECT_EQ(
        playbackOf(wild),
        (KestCore::BrowserPlayback{
            .title = std::string(300, 'x'), .playing = true, .volume = 1, .canSeek = true}));
    for (const double number :
         {kNone, -1.0, 0.0, 2.0, 1e308, std::numeric_limits<double>::infinity()}) {
        EXPECT_TRUE(
            playbackOf({.position = number, .duration = number, .volume = number}).validate());
    }
    EXPECT_EQ(playbackOf({.name = "a", .identity = "A Player"}).title, "A Player");
    EXPECT_EQ(playbackOf({.name = "a"}).title, "a");
}

TEST(Players, StandInTheOrderOfTheirUse)
{
    const std::vector<Player> players{{.name = "d", .status = Status::stopped},
                                      {.name = "c", .status = Status::paused},
                                      {.name = "b", .status = Status::paused},
                                      {.name = "e", .status = Status::playing},
                                      {.name = "a", .status = Status::playing}};
    using Names = std::vector<std::string>;
    EXPECT_EQ(namesOf(inOrder(players, "")), (Names{"a", "e", "b", "c", "d"}));
    EXPECT_EQ(namesOf(inOrder(players, "c")), (Names{"a", "e", "c", "b", "d"}));
    EXPECT_EQ(namesOf(inOrder(players, "e")), (Names{"e", "a", "b", "c", "d"}));
}

TEST(Players, AreFoundByTheNamesThatPeopleGiveThem)
{
    const std::vector<Player> players{{.name = "fire.instance_1_2", .identity = "Web Fire"},
                                      {.name = "fire.instance_9", .identity = "Web Fire"},
                                      {.name = "radio", .identity = "Internet Radio"}};
    for (const auto &[wanted, index] :
         std::initializer_list<std::pair<const char *, int>>{{"fire", 0},
                                                             {"fire.instance_9", 1},
                                                             {"FIRE", 0},
                                                             {"web fire", 0},
                                                             {"Radio", 2},
                                                             {"internet radio", 2}}) {
        EXPECT_EQ(find(players, wanted), &players[static_cast<std::size_t>(index)]) << wanted;
    }
    const std::vector<Player> named{{.name = "v.instance7"}, {.name = "v"}};
    EXPECT_EQ(find(named, "v"), &named[1]);
    EXPECT_EQ(find({{.name = "nameless"}}, ""), nullptr);
    for (const char *wanted : {"", "fir", "instance_9", "radio.instance"}) {
        EXPECT_EQ(find(players, wanted), nullptr) << wanted;
    }
}

TEST(Player, ShowsWhetherItHasFollowed)
{
    const Player before{.status = Status::paused,
                        .title = "One",
                        .track = "/1",
                        .position = 60,
                        .duration = 200,
                        .volume = 0.5};
    struct Case {
        Action action;
        void (*change)(Player &);
        bool hasFollowed;
    };
    for (const auto &[action, change, expected] : {
             Case{{Kind::playPause}, [](Player &p) { p.status = Status::playing; }, true},
             Case{{Kind::playPause}, [](Player &p) { p.position = 61; }, false},
             Case{{Kind::next}, [](Player &p) { p.track = "/2"; }, true},
             Case{{Kind::next}, [](Player &p) { p.title = "Two"; }, true},
             Case{{Kind::previous}, [](Player &p) { p.position = 0; }, true},
             Case{{Kind::previous}, [](Player &p) { p.position = 60.2; }, false},
             Case{{Kind::seek, 90}, [](Player &p) { p.position = 90.4; }, true},
             Case{{Kind::seek, 90}, [](Player &p) { p.position = 60; }, false},
             Case{{Kind::seek, -9}, [](Player &p) { p.position = 0; }, true},
             Case{{Kind::seek, 1e300}, [](Player &p) { p.position = 200; }, true},
             Case{{Kind::seek, 61}, [](Player &p) { p.position = 60; }, false},
             Case{{Kind::seek, 61}, [](Player &p) { p.position = 61; }, true},
             Case{{Kind::volume, 0.51}, [](Player &p) { p.volume = 0.5; }, false},
             Case{{Kind::volume, 0.8}, [](Player &p) { p.volume = 0.8; }, true},
             Case{{Kind::volume, 7}, [](Player &p) { p.volume = 1; }, true},
             Case{{Kind::volume, 0.8}, [](Player &p) { p.volume = 0.5; }, false},
         }) {
        Player after = before;
        change(after);
        EXPECT_EQ(hasFollowed(before, after, action), expected);
    }
}

TEST(Players, AreReadAgainUntilTheyHaveFollowed)
{
    SlowBus slow;
    constexpr std::chrono::hours kLong{1};
    EXPECT_EQ(performAndRead(slow, Player{slow.player}, {Kind::playPause}, kLong)->status,
              Status::playing);
    SlowBus stubborn;
    stubborn.looksUntilDone = -1;
    constexpr std::chrono::milliseconds kNone{0};
    EXPECT_EQ(
        performAndRead(stubborn, Player{stubborn.player}, {Kind::playPause}, kNone)->status,
        Status::paused);
    // It says that it cannot, so nobody waits for it.
    EXPECT_EQ(performAndRead(stubborn, Player{stubborn.player}, {Kind::next}, kLong)->status,
              Status::paused);
    SlowBus gone;
    gone.isGone = true;
    EXPECT_EQ(
        performAndRead(gone, Player{gone.player}, {Kind::playPause}, kLong).error().message,
        "The player \"slow\" does not answer any more.");
}

} // namespace MediaPlayersTests
