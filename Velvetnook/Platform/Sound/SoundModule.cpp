// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Sound/SoundOutput.h"

#include <pulse/pulseaudio.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

// The module itself, over libpulse, which PipeWire serves too.
namespace Velvetnook
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{4}; // beyond the sound's own length

struct Release {
    void operator()(pa_mainloop *loop) const { pa_mainloop_free(loop); }
    void operator()(pa_context *context) const
    {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
    void operator()(pa_stream *stream) const
    {
        pa_stream_disconnect(stream);
        pa_stream_unref(stream);
    }
    void operator()(pa_operation *operation) const { pa_operation_unref(operation); }
};
template <class T>
using Owned = std::unique_ptr<T, Release>;

// One connection for one sound. The server is asked in our own loop, so that one that hangs
// costs no more than the time that was set.
class Output
{
public:
    explicit Output(Clock::time_point end) : m_end{end}, m_loop{pa_mainloop_new()} {}

    // Nothing when it was heard to its end, else why not.
    std::optional<std::string> play(const SoundSamples &sound)
    {
        if (!connect()) {
            return problem("There is no sound server in this session");
        }
        if (!openStream(sound.rate)) {
            return problem("The sound server takes no sound");
        }
        const auto bytes = sound.samples.size_bytes();
        if (pa_stream_write(m_stream.get(), sound.samples.data(), bytes, nullptr, 0,
                            PA_SEEK_RELATIVE) < 0) {
            return problem("The sound server takes no sound");
        }
        bool isHeard = false;
        const Owned<pa_operation> draining{pa_stream_drain(
            m_stream.get(),
            [](pa_stream *, int success, void *heard) {
                *static_cast<bool *>(heard) = success != 0;
            },
            &isHeard)};
        if (!draining || !waitUntil([&] { return isHeard; })) {
            return problem("The sound did not come to its end");
        }
        return std::nullopt;
    }

private:
    bool connect()
    {
        m_context.reset(pa_context_new(pa_mainloop_get_api(m_loop.get()), "Velvetnook"));
        if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
            return false;
        }
        return waitUntil(
            [this] { return pa_context_get_state(m_context.get()) == PA_CONTEXT_READY; });
    }

    bool openStream(std::uint32_t rate)
    {
        const pa_sample_spec format{.format = PA_SAMPLE_S16LE, .rate = rate, .channels = 1};
        m_stream.reset(pa_stream_new(m_context.get(), "Sound", &format, nullptr));
        if (!m_stream || pa_stream_connect_playback(m_stream.get(), nullptr, nullptr,
                                                    PA_STREAM_NOFLAGS, nullptr, nullptr) < 0) {
            return false;
        }
        return waitUntil(
            [this] { return pa_stream_get_state(m_stream.get()) == PA_STREAM_READY; });
    }

    // Runs the loop until then. False when the connection breaks or the time is over.
    template <class Condition>
    bool waitUntil(Condition isThere)
    {
        while (!isThere()) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(m_end - Clock::now());
            const bool isBroken =
                !PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context.get())) ||
                (m_stream && !PA_STREAM_IS_GOOD(pa_stream_get_state(m_stream.get())));
            if (left.count() <= 0 || isBroken) {
                return false;
            }
            const auto wait = static_cast<int>(left.count());
            if (pa_mainloop_prepare(m_loop.get(), wait * 1000) < 0 ||
                pa_mainloop_poll(m_loop.get()) < 0 || pa_mainloop_dispatch(m_loop.get()) < 0) {
                return false;
            }
        }
        return true;
    }

    std::string problem(const char *what) const
    {
        return std::string{what} + ": " + pa_strerror(pa_context_errno(m_context.get()));
    }

    Clock::time_point m_end;
    Owned<pa_mainloop> m_loop;
    Owned<pa_context> m_context;
    Owned<pa_stream> m_stream; // after what it plays through
};

} // namespace

} // namespace Velvetnook

extern "C" [[gnu::visibility("default")]] bool
kestPlaySound(const Velvetnook::SoundSamples &sound, Base::KestError &error);

bool kestPlaySound(const Velvetnook::SoundSamples &sound, Base::KestError &error)
{
    using namespace Velvetnook;
    const std::chrono::milliseconds length{1000 * sound.samples.size() / sound.rate};
    Output output{Clock::now() + kPatience + length};
    auto problem = output.play(sound);
    if (problem) {
        error = Base::KestError::unavailable(std::move(*problem));
    }
    return !problem;
}
