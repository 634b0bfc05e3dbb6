// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <systemd/sd-bus.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

// A player for tests: TestPlayer NAME KIND. It owns org.mpris.MediaPlayer2.NAME, prints every
// call that it gets, and ends when it is killed. KIND: sound, or
//   wild   its types are not those that were agreed on, it has no track's name and no volume
//   bare   it has almost no properties and refuses everything
//   deaf   it has the name and never answers
namespace
{

constexpr const char *kPath = "/org/mpris/MediaPlayer2";
constexpr std::int64_t kSecond = 1'000'000;

struct State {
    std::string kind{};
    bool playing{};
    int track = 1;
    std::int64_t position = 30 * kSecond;
    double volume = 0.5;
};

void say(const std::string &line) { std::printf("%s\n", line.c_str()); }

int replyEmpty(sd_bus_message *message) { return sd_bus_reply_method_return(message, ""); }

int control(sd_bus_message *message, void *data, sd_bus_error *error)
{
    auto &state = *static_cast<State *>(data);
    const std::string member = sd_bus_message_get_member(message);
    say(member);
    if (state.kind == "bare") {
        return sd_bus_error_set(error, SD_BUS_ERROR_NOT_SUPPORTED, "not today");
    }
    if (member == "PlayPause") {
        state.playing = !state.playing;
    } else {
        state.track += member == "Next" ? 1 : -1;
        state.position = 0;
    }
    sd_bus_emit_signal(sd_bus_message_get_bus(message), kPath,
                       "org.freedesktop.DBus.Properties", "PropertiesChanged", "sa{sv}as",
                       "org.mpris.MediaPlayer2.Player", 0, 1, "PlaybackStatus");
    return replyEmpty(message);
}

int setPosition(sd_bus_message *message, void *data, sd_bus_error * /*error*/)
{
    auto &state = *static_cast<State *>(data);
    const char *track = nullptr;
    std::int64_t position = 0;
    sd_bus_message_read(message, "ox", &track, &position);
    say("SetPosition " + std::string{track} + " " + std::to_string(position));
    state.position = position;
    return replyEmpty(message);
}

int seek(sd_bus_message *message, void *data, sd_bus_error * /*error*/)
{
    auto &state = *static_cast<State *>(data);
    std::int64_t offset = 0;
    sd_bus_message_read(message, "x", &offset);
    say("Seek " + std::to_string(offset));
    state.position += offset;
    return replyEmpty(message);
}

int identity(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
             const char * /*property*/, sd_bus_message *reply, void * /*data*/,
             sd_bus_error * /*error*/)
{
    return sd_bus_message_append(reply, "s", "The Test Player");
}

int status(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
           const char * /*property*/, sd_bus_message *reply, void *data,
           sd_bus_error * /*error*/)
{
    return sd_bus_message_append(reply, "s",
                                 static_cast<State *>(data)->playing ? "Playing" : "Paused");
}

int metadata(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
             const char * /*property*/, sd_bus_message *reply, void *data,
             sd_bus_error * /*error*/)
{
    const auto &state = *static_cast<State *>(data);
    const std::string track = "/track/" + std::to_string(state.track);
    const std::string title = "Song " + std::to_string(state.track);
    if (state.kind == "wild") {
        return sd_bus_message_append(reply, "a{sv}", 5, "mpris:trackid", "s", "no path",
                                     "mpris:length", "u", 90'000'000U, "xesam:title", "s",
                                     title.c_str(), "xesam:artist", "s", "One \033[31mText",
                                     "xesam:odd", "(ay)", 1, 7);
    }
    return sd_bus_message_append(reply, "a{sv}", 4, "mpris:trackid", "o", track.c_str(),
                                 "mpris:length", "x", 200 * kSecond, "xesam:title", "s",
                                 title.c_str(), "xesam:artist", "as", 2, "One", "Two");
}

int position(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
             const char * /*property*/, sd_bus_message *reply, void *data,
             sd_bus_error * /*error*/)
{
    return sd_bus_message_append(reply, "x", static_cast<State *>(data)->position);
}

int smallPosition(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
                  const char * /*property*/, sd_bus_message *reply, void *data,
                  sd_bus_error * /*error*/)
{
    return sd_bus_message_append(
        reply, "i", static_cast<std::int32_t>(static_cast<State *>(data)->position));
}

int yes(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
        const char * /*property*/, sd_bus_message *reply, void * /*data*/,
        sd_bus_error * /*error*/)
{
    return sd_bus_message_append(reply, "b", 1);
}

int volume(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
           const char * /*property*/, sd_bus_message *reply, void *data,
           sd_bus_error * /*error*/)
{
    return sd_bus_message_append(reply, "d", static_cast<State *>(data)->volume);
}

int setVolume(sd_bus * /*bus*/, const char * /*path*/, const char * /*interface*/,
              const char * /*property*/, sd_bus_message *value, void *data,
              sd_bus_error * /*error*/)
{
    auto &state = *static_cast<State *>(data);
    sd_bus_message_read(value, "d", &state.volume);
    say("Volume " + std::to_string(state.volume));
    return 0;
}

const sd_bus_vtable kRoot[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_PROPERTY("Identity", "s", identity, 0, 0),
    SD_BUS_VTABLE_END,
};

const sd_bus_vtable kSound[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("PlayPause", "", "", control, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Next", "", "", control, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Previous", "", "", control, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("SetPosition", "ox", "", setPosition, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("PlaybackStatus", "s", status, 0, 0),
    SD_BUS_PROPERTY("Metadata", "a{sv}", metadata, 0, 0),
    SD_BUS_PROPERTY("Position", "x", position, 0, 0),
    SD_BUS_PROPERTY("CanSeek", "b", yes, 0, 0),
    SD_BUS_PROPERTY("CanGoNext", "b", yes, 0, 0),
    SD_BUS_PROPERTY("CanGoPrevious", "b", yes, 0, 0),
    SD_BUS_WRITABLE_PROPERTY("Volume", "d", volume, setVolume, 0, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};

const sd_bus_vtable kWild[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("PlayPause", "", "", control, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Seek", "x", "", seek, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("PlaybackStatus", "s", status, 0, 0),
    SD_BUS_PROPERTY("Metadata", "a{sv}", metadata, 0, 0),
    SD_BUS_PROPERTY("Position", "i", smallPosition, 0, 0),
    SD_BUS_PROPERTY("CanSeek", "b", yes, 0, 0),
    SD_BUS_VTABLE_END,
};

const sd_bus_vtable kBare[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("PlayPause", "", "", control, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Next", "", "", control, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY("CanGoPrevious", "b", yes, 0, 0),
    SD_BUS_VTABLE_END,
};

void addObject(sd_bus *bus, State &state)
{
    if (state.kind != "bare") {
        sd_bus_add_object_vtable(bus, nullptr, kPath, "org.mpris.MediaPlayer2", kRoot, &state);
    }
    const sd_bus_vtable *table = kSound;
    if (state.kind != "sound") {
        table = state.kind == "wild" ? kWild : kBare;
    }
    sd_bus_add_object_vtable(bus, nullptr, kPath, "org.mpris.MediaPlayer2.Player", table,
                             &state);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        return 2;
    }
    State state{.kind = argv[2]};
    sd_bus *bus = nullptr;
    const std::string name = std::string{"org.mpris.MediaPlayer2."} + argv[1];
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (sd_bus_open_user(&bus) < 0) {
        return 1;
    }
    addObject(bus, state);
    if (sd_bus_request_name(bus, name.c_str(), 0) < 0) {
        return 1;
    }
    say("ready");
    if (state.kind == "deaf") {
        pause();
    }
    while (true) {
        if (sd_bus_process(bus, nullptr) == 0 && sd_bus_wait(bus, UINT64_MAX) < 0) {
            return 1;
        }
    }
}
