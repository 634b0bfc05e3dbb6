// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MediaPlayers/BusMessage.h"
#include "MediaPlayers/PlayerBus.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <deque>
#include <limits>

// The module itself, over the bus library of systemd, which needs no systemd to run.
namespace MediaPlayers
{

namespace
{

using Base::KestError;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::microseconds kPatience{1'000'000};
constexpr std::string_view kPrefix = "org.mpris.MediaPlayer2.";
constexpr const char *kPath = "/org/mpris/MediaPlayer2";
constexpr const char *kRoot = "org.mpris.MediaPlayer2";
constexpr const char *kPlayer = "org.mpris.MediaPlayer2.Player";
constexpr const char *kProperties = "org.freedesktop.DBus.Properties";
constexpr double kMicroseconds = 1e6; // the bus's unit of time in a second

struct Unreference {
    void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
    void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot *slot) const { sd_bus_slot_unref(slot); }
};
template <class T>
using Owned = std::unique_ptr<T, Unreference>;

// Receives an error of the bus.
class Problem
{
public:
    Problem() = default;
    ~Problem() { sd_bus_error_free(&m_error); }
    Problem(const Problem &) = delete;
    Problem &operator=(const Problem &) = delete;

    sd_bus_error *receive() { return &m_error; }

    KestError of(const Player &player) const
    {
        std::string said = "The player \"" + player.name + "\" ";
        if (sd_bus_error_has_name(&m_error, SD_BUS_ERROR_NO_REPLY) != 0 ||
            sd_bus_error_has_name(&m_error, SD_BUS_ERROR_TIMEOUT) != 0) {
            return KestError::unavailable(said + "does not answer.");
        }
        said += "cannot do this: ";
        said += m_error.message == nullptr ? "it gives no reason" : m_error.message;
        return KestError::unavailable(std::move(said));
    }

private:
    sd_bus_error m_error{};
};

// A player whose two answers are on their way.
struct Asked {
    Player player{};
    bool isDescribed{};
    int answers{}; // of two; errors count
    Owned<sd_bus_slot> describing{};
    Owned<sd_bus_slot> naming{};
};

void describe(Player &player, const BusMap &map)
{
    const auto isTrue = [&](const char *key) { return valueOr(map, key, false); };
    const BusMap metadata = valueOr(map, "Metadata", BusMap{});
    const std::string status = valueOr(map, "PlaybackStatus", std::string{});
    using enum Player::Status;
    if (status == "Playing") {
        player.status = playing;
    } else {
        player.status = status == "Paused" ? paused : stopped;
    }
    player.title = valueOr(metadata, "xesam:title", std::string{});
    player.artist = valueOr(metadata, "xesam:artist", std::string{});
    player.art = valueOr(metadata, "mpris:artUrl", std::string{});
    player.track = valueOr(metadata, "mpris:trackid", std::string{});
    player.duration = valueOr(metadata, "mpris:length", 0.0) / kMicroseconds;
    player.position = valueOr(map, "Position", 0.0) / kMicroseconds;
    player.volume = valueOr(map, "Volume", std::numeric_limits<double>::quiet_NaN());
    const bool canControl = valueOr(map, "CanControl", true);
    player.canSeek = canControl && isTrue("CanSeek");
    player.canNext = canControl && isTrue("CanGoNext");
    player.canPrevious = canControl && isTrue("CanGoPrevious");
}

int takeDescription(sd_bus_message *message, void *asked, sd_bus_error * /*error*/)
{
    auto *const it = static_cast<Asked *>(asked);
    BusMap map;
    ++it->answers;
    it->isDescribed =
        sd_bus_message_is_method_error(message, nullptr) == 0 && readMap(message, map);
    describe(it->player, map);
    return 0;
}

// A player without a name for people is shown by its name on the bus.
int takeIdentity(sd_bus_message *message, void *asked, sd_bus_error * /*error*/)
{
    auto *const it = static_cast<Asked *>(asked);
    ++it->answers;
    BusValue value;
    if (sd_bus_message_is_method_error(message, nullptr) == 0 && readVariant(message, value)) {
        const auto *const text = std::get_if<std::string>(&value.value);
        it->player.identity = text == nullptr ? "" : *text;
    }
    return 0;
}

class SessionBus : public PlayerBus
{
public:
    explicit SessionBus(Owned<sd_bus> bus) : m_bus(std::move(bus)) {}

    Result<std::vector<Player>> players() override;
    Result<void> perform(const Player &player, const Action &action) override;

private:
    [[nodiscard]] Result<std::vector<std::string>> names();
    void ask(Asked &asked);
    void waitFor(const std::deque<Asked> &asked);
    template <class... Arguments>
    [[nodiscard]] Result<void> call(const Player &player, const char *method, const char *types,
                                    Arguments... arguments);
    [[nodiscard]] Result<void> seek(const Player &player, double seconds);
    [[nodiscard]] Result<void> setVolume(const Player &player, double level);

    Owned<sd_bus> m_bus;
};

Result<std::vector<std::string>> SessionBus::names()
{
    char **list = nullptr;
    if (sd_bus_list_names(m_bus.get(), &list, nullptr) < 0) {
        return std::unexpected(KestError::unavailable("The session bus does not answer."));
    }
    std::vector<std::string> names;
    for (char **name = list; name != nullptr && *name != nullptr; ++name) {
        if (std::string_view{*name}.starts_with(kPrefix)) {
            names.emplace_back(*name);
        }
        std::free(*name);
    }
    std::free(static_cast<void *>(list));
    return names;
}

void SessionBus::ask(Asked &asked)
{
    const std::string name = std::string{kPrefix} + asked.player.name;
    sd_bus_slot *slot = nullptr;
    if (sd_bus_call_method_async(m_bus.get(), &slot, name.c_str(), kPath, kProperties, "GetAll",
                                 takeDescription, &asked, "s", kPlayer) >= 0) {
        asked.describing.reset(slot);
    }
    slot = nullptr;
    if (sd_bus_call_method_async(m_bus.get(), &slot, name.c_str(), kPath, kProperties, "Get",
                                 takeIdentity, &asked, "ss", kRoot, "Identity") >= 0) {
        asked.naming.reset(slot);
    }
}

// All are asked at once, so that several that hang cost no more than one.
void SessionBus::waitFor(const std::deque<Asked> &asked)
{
    const auto end = Clock::now() + kPatience;
    const auto isReady = [](const Asked &it) { return it.answers == 2; };
    while (!std::ranges::all_of(asked, isReady)) {
        const int done = sd_bus_process(m_bus.get(), nullptr);
        const auto left =
            std::chrono::duration_cast<std::chrono::microseconds>(end - Clock::now()).count();
        if (done < 0 || left <= 0) {
            return;
        }
        if (done == 0 && sd_bus_wait(m_bus.get(), static_cast<std::uint64_t>(left)) < 0) {
            return;
        }
    }
}

Result<std::vector<Player>> SessionBus::players()
{
    KEST_TRY(const auto found, names());
    std::deque<Asked> asked; // whose items stay where they are: answers point at them
    for (const std::string &name : found) {
        ask(asked.emplace_back(Asked{.player = {.name = name.substr(kPrefix.size())}}));
    }
    waitFor(asked);
    std::vector<Player> players;
    for (Asked &it : asked) {
        if (it.isDescribed) {
            players.push_back(std::move(it.player));
        }
    }
    return players;
}

template <class... Arguments>
Result<void> SessionBus::call(const Player &player, const char *method, const char *types,
                              Arguments... arguments)
{
    Problem problem;
    const std::string name = std::string{kPrefix} + player.name;
    const int code = sd_bus_call_method(m_bus.get(), name.c_str(), kPath, kPlayer, method,
                                        problem.receive(), nullptr, types, arguments...);
    return code < 0 ? Result<void>{std::unexpected(problem.of(player))} : Result<void>{};
}

// To a place in the track that the player has named; where it names none, by as much as lies
// between.
Result<void> SessionBus::seek(const Player &player, double seconds)
{
    const double wanted = reachable(player, seconds);
    const auto ticks = static_cast<std::int64_t>(std::llround(wanted * kMicroseconds));
    if (sd_bus_object_path_is_valid(player.track.c_str()) != 0) {
        return call(player, "SetPosition", "ox", player.track.c_str(), ticks);
    }
    const double now = reachable(player, player.position);
    return call(player, "Seek", "x", ticks - std::llround(now * kMicroseconds));
}

Result<void> SessionBus::setVolume(const Player &player, double level)
{
    Problem problem;
    const std::string name = std::string{kPrefix} + player.name;
    const int code = sd_bus_set_property(m_bus.get(), name.c_str(), kPath, kPlayer, "Volume",
                                         problem.receive(), "d", std::clamp(level, 0.0, 1.0));
    return code < 0 ? Result<void>{std::unexpected(problem.of(player))} : Result<void>{};
}

Result<void> SessionBus::perform(const Player &player, const Action &action)
{
    using Kind = Action::Kind;
    if (!canDo(player, action)) {
        return {};
    }
    switch (action.kind) {
    case Kind::seek:
        return seek(player, action.value);
    case Kind::volume:
        return setVolume(player, action.value);
    case Kind::playPause:
        return call(player, "PlayPause", "");
    case Kind::next:
        return call(player, "Next", "");
    case Kind::previous:
        return call(player, "Previous", "");
    case Kind::read:
        break;
    }
    return {};
}

// What listens may take the connection and say nothing; the library itself would wait for a
// minute and a half.
bool becomesReady(sd_bus *bus)
{
    const auto end = Clock::now() + kPatience;
    while (sd_bus_is_ready(bus) == 0) {
        const int done = sd_bus_process(bus, nullptr);
        const auto left =
            std::chrono::duration_cast<std::chrono::microseconds>(end - Clock::now()).count();
        if (done < 0 || left <= 0 ||
            (done == 0 && sd_bus_wait(bus, static_cast<std::uint64_t>(left)) < 0)) {
            return false;
        }
    }
    return sd_bus_is_ready(bus) > 0;
}

} // namespace

} // namespace MediaPlayers

extern "C" [[gnu::visibility("default")]] MediaPlayers::PlayerBus *
kestOpenPlayerBus(Base::KestError &error);

MediaPlayers::PlayerBus *kestOpenPlayerBus(Base::KestError &error)
{
    using namespace MediaPlayers;
    sd_bus *bus = nullptr;
    const bool isThere = sd_bus_open_user(&bus) >= 0;
    Owned<sd_bus> owned{bus};
    if (!isThere || !becomesReady(bus)) {
        error = Base::KestError::unavailable(
            isThere ? "The session bus does not answer."
                    : "There is no session bus here, so no player can be asked.");
        return nullptr;
    }
    sd_bus_set_method_call_timeout(bus, static_cast<std::uint64_t>(kPatience.count()));
    return new SessionBus{std::move(owned)};
}
