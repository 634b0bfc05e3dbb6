// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/PulseLock.h"
#include "Velvetnook/Platform/Sound/LoopOutput.h"

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

// The part of the module that plays loops, over libpulse, which PipeWire serves too.
namespace Velvetnook
{

namespace
{

using std::chrono::milliseconds;

constexpr milliseconds kPatience{4000};
constexpr milliseconds kAhead{400}; // of sound that the server holds: few wake-ups, fast hands

struct Voice {
    std::span<const std::int16_t> samples{};
    std::size_t place{};
    float gain{};
    float wanted{};
    float step{}; // of the gain, for each sample
};

class PulseLoops : public LoopOutput
{
public:
    explicit PulseLoops(const LoopSource &source)
        : m_ended{source.ended}, m_rate{source.loops.empty() ? 0 : source.loops.front().rate},
          m_loop{pa_threaded_mainloop_new()}
    {
        for (const SoundSamples &loop : source.loops) {
            m_voices.push_back({.samples = loop.samples});
        }
    }
    ~PulseLoops() override
    {
        pa_threaded_mainloop_stop(m_loop); // no callback from here on
        if (m_stream != nullptr) {
            pa_stream_disconnect(m_stream);
            pa_stream_unref(m_stream);
        }
        if (m_context != nullptr) {
            pa_context_disconnect(m_context);
            pa_context_unref(m_context);
        }
        pa_threaded_mainloop_free(m_loop);
    }

    // Empty when it plays, silently.
    std::string open();
    void fadeTo(std::span<const float> gains, milliseconds time) override;

private:
    std::string connect();
    template <class State>
    bool waitUntil(State isThere);
    std::string problem(const char *what) const
    {
        return std::string{what} + ": " + pa_strerror(pa_context_errno(m_context));
    }
    bool isBroken() const
    {
        return !PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context)) ||
               (m_stream != nullptr && !PA_STREAM_IS_GOOD(pa_stream_get_state(m_stream)));
    }
    void follow();
    void fill(std::size_t bytes);
    void mix(std::span<std::int16_t> into);

    std::function<void(const std::string &)> m_ended;
    std::uint32_t m_rate;
    std::vector<Voice> m_voices;
    pa_threaded_mainloop *m_loop;
    pa_context *m_context = nullptr;
    pa_stream *m_stream = nullptr;
    bool m_isOpen = false;
    bool m_isLate = false;
};

// Woken by each change of a state, and by a timer of the library's when it takes too long.
template <class State>
bool PulseLoops::waitUntil(State isThere)
{
    m_isLate = false;
    pa_time_event *late = pa_context_rttime_new(
        m_context, pa_rtclock_now() + static_cast<pa_usec_t>(kPatience.count()) * 1000,
        [](pa_mainloop_api *, pa_time_event *, const timeval *, void *self) {
            static_cast<PulseLoops *>(self)->m_isLate = true;
            pa_threaded_mainloop_signal(static_cast<PulseLoops *>(self)->m_loop, 0);
        },
        this);
    while (!isThere() && !isBroken() && !m_isLate) {
        pa_threaded_mainloop_wait(m_loop);
    }
    pa_threaded_mainloop_get_api(m_loop)->time_free(late);
    return isThere();
}

std::string PulseLoops::open()
{
    if (m_rate == 0 || pa_threaded_mainloop_start(m_loop) < 0) {
        return "There is no sound to play";
    }
    const PulseLock lock{m_loop};
    std::string problem = connect();
    m_isOpen = problem.empty();
    return problem;
}

std::string PulseLoops::connect()
{
    const auto wake = [](auto *, void *self) { static_cast<PulseLoops *>(self)->follow(); };
    m_context = pa_context_new(pa_threaded_mainloop_get_api(m_loop), "Velvetnook");
    pa_context_set_state_callback(m_context, wake, this);
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0 ||
        !waitUntil([this] { return pa_context_get_state(m_context) == PA_CONTEXT_READY; })) {
        return problem("There is no sound server in this session");
    }
    const pa_sample_spec format{.format = PA_SAMPLE_S16LE, .rate = m_rate, .channels = 2};
    m_stream = pa_stream_new(m_context, "Sounds", &format, nullptr);
    if (m_stream == nullptr) {
        return problem("The sound server takes no sound");
    }
    pa_stream_set_state_callback(m_stream, wake, this);
    pa_stream_set_write_callback(
        m_stream,
        [](pa_stream *, std::size_t bytes, void *self) {
            static_cast<PulseLoops *>(self)->fill(bytes);
        },
        this);
    constexpr auto kAny = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr buffer{.maxlength = kAny,
                                .tlength = static_cast<std::uint32_t>(pa_usec_to_bytes(
                                    static_cast<pa_usec_t>(kAhead.count()) * 1000, &format)),
                                .prebuf = kAny,
                                .minreq = kAny,
                                .fragsize = kAny};
    if (pa_stream_connect_playback(m_stream, nullptr, &buffer, PA_STREAM_ADJUST_LATENCY,
                                   nullptr, nullptr) < 0 ||
        !waitUntil([this] { return pa_stream_get_state(m_stream) == PA_STREAM_READY; })) {
        return problem("The sound server takes no sound");
    }
    return {};
}

void PulseLoops::follow()
{
    pa_threaded_mainloop_signal(m_loop, 0);
    if (m_isOpen && isBroken()) {
        m_isOpen = false;
        m_ended(problem("The sound server has gone"));
    }
}

void PulseLoops::fadeTo(std::span<const float> gains, milliseconds time)
{
    const PulseLock lock{m_loop};
    const float samples =
        std::max(static_cast<float>(time.count()) * static_cast<float>(m_rate) / 1000, 1.0F);
    for (std::size_t at = 0; at < std::min(gains.size(), m_voices.size()); ++at) {
        Voice &voice = m_voices[at];
        voice.wanted = std::clamp(gains[at], 0.0F, 1.0F);
        voice.step = (voice.wanted - voice.gain) / samples;
    }
}

void PulseLoops::fill(std::size_t bytes)
{
    while (bytes > 0) {
        void *memory = nullptr;
        std::size_t room = bytes;
        if (pa_stream_begin_write(m_stream, &memory, &room) < 0 || room < 4) {
            return;
        }
        room -= room % 4;
        mix({static_cast<std::int16_t *>(memory), room / 2});
        pa_stream_write(m_stream, memory, room, nullptr, 0, PA_SEEK_RELATIVE);
        bytes -= std::min(bytes, room);
    }
}

// The other ear hears each loop from its middle on, which makes a room of it.
void PulseLoops::mix(std::span<std::int16_t> into)
{
    for (std::size_t at = 0; at + 1 < into.size(); at += 2) {
        float left = 0;
        float right = 0;
        for (Voice &voice : m_voices) {
            if (voice.gain == 0 && voice.wanted == 0) {
                continue;
            }
            const std::size_t count = voice.samples.size();
            left += voice.gain * static_cast<float>(voice.samples[voice.place]);
            right += voice.gain *
                     static_cast<float>(voice.samples[(voice.place + count / 2) % count]);
            voice.place = (voice.place + 1) % count;
            const float missing = voice.wanted - voice.gain;
            voice.gain = std::abs(missing) <= std::abs(voice.step) ? voice.wanted
                                                                   : voice.gain + voice.step;
        }
        const auto sample = [](float value) {
            return static_cast<std::int16_t>(std::clamp(value, -32'767.0F, 32'767.0F));
        };
        into[at] = sample(left);
        into[at + 1] = sample(right);
    }
}

} // namespace

} // namespace Velvetnook

extern "C" [[gnu::visibility("default")]] Velvetnook::LoopOutput *
kestOpenLoops(const Velvetnook::LoopSource &source, Base::KestError &error);

Velvetnook::LoopOutput *kestOpenLoops(const Velvetnook::LoopSource &source,
                                      Base::KestError &error)
{
    using namespace Velvetnook;
    auto loops = std::make_unique<PulseLoops>(source);
    if (std::string problem = loops->open(); !problem.empty()) {
        error = Base::KestError::unavailable(std::move(problem));
        return nullptr;
    }
    return loops.release();
}
