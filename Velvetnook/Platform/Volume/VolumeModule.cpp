// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/PulseLock.h"
#include "Velvetnook/Platform/Volume/VolumeLink.h"

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

// The module itself, over libpulse, which PipeWire serves too.
namespace Velvetnook
{

namespace
{

// A server that is not there is asked for less and less often.
constexpr pa_usec_t kFirstWait = PA_USEC_PER_SEC;
constexpr pa_usec_t kLongestWait = 60 * PA_USEC_PER_SEC;
constexpr double kLoudest = 1.5;

double levelOf(const pa_cvolume &volume)
{
    return static_cast<double>(pa_cvolume_max(&volume)) / PA_VOLUME_NORM;
}

std::string property(const pa_proplist *list, const char *key)
{
    const char *text = list == nullptr ? nullptr : pa_proplist_gets(list, key);
    return text == nullptr ? std::string{} : std::string{text};
}

class PulseLink : public VolumeLink
{
public:
    explicit PulseLink(VolumeListener listener) : m_listener{std::move(listener)} {}
    ~PulseLink() override
    {
        if (m_isRunning) {
            pa_threaded_mainloop_stop(m_loop);
        }
        dropContext();
        if (m_loop != nullptr) {
            pa_threaded_mainloop_free(m_loop);
        }
    }
    PulseLink(const PulseLink &) = delete;
    PulseLink &operator=(const PulseLink &) = delete;

    bool start()
    {
        m_loop = pa_threaded_mainloop_new();
        if (m_loop == nullptr) {
            return false;
        }
        connect();
        m_isRunning = pa_threaded_mainloop_start(m_loop) == 0;
        return m_isRunning;
    }

    void setLevel(std::uint32_t stream, double level) override
    {
        const PulseLock lock{m_loop};
        const auto known = m_streams.find(stream);
        if (known == m_streams.end() || !isReady()) {
            return;
        }
        const double wanted = std::clamp(level, 0.0, kLoudest);
        pa_cvolume volume = known->second.volume;
        // All of its channels in their proportion; from silence there is none.
        pa_cvolume_scale(&volume, static_cast<pa_volume_t>(wanted * PA_VOLUME_NORM));
        drop(pa_context_set_sink_input_volume(m_context, stream, &volume, nullptr, nullptr));
    }
    void setMuted(std::uint32_t stream, bool isMuted) override
    {
        const PulseLock lock{m_loop};
        if (isReady()) {
            drop(pa_context_set_sink_input_mute(m_context, stream, isMuted ? 1 : 0, nullptr,
                                                nullptr));
        }
    }

private:
    struct Known {
        AudioStream told{};
        pa_cvolume volume{};
    };

    static PulseLink &self(void *data) { return *static_cast<PulseLink *>(data); }
    static void drop(pa_operation *operation)
    {
        if (operation != nullptr) {
            pa_operation_unref(operation);
        }
    }
    bool isReady() const
    {
        return m_context != nullptr && pa_context_get_state(m_context) == PA_CONTEXT_READY;
    }

    void connect()
    {
        m_context = pa_context_new(pa_threaded_mainloop_get_api(m_loop), "Velvetnook");
        if (m_context == nullptr) {
            return;
        }
        pa_context_set_state_callback(
            m_context, [](pa_context *, void *data) { self(data).followState(); }, this);
        pa_context_set_subscribe_callback(
            m_context,
            [](pa_context *, pa_subscription_event_type_t type, std::uint32_t, void *data) {
                self(data).followChange(type);
            },
            this);
        // A refusal is told as a state too.
        (void)pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
    }

    void dropContext()
    {
        if (m_context != nullptr) {
            pa_context_set_state_callback(m_context, nullptr, nullptr);
            pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
            pa_context_disconnect(m_context);
            pa_context_unref(m_context);
            m_context = nullptr;
        }
        m_streams.clear();
    }

    void reconnectSoon()
    {
        pa_mainloop_api *api = pa_threaded_mainloop_get_api(m_loop);
        timeval at{};
        pa_gettimeofday(&at);
        pa_timeval_add(&at, m_wait);
        m_wait = std::min(2 * m_wait, kLongestWait);
        api->time_new(
            api, &at,
            [](pa_mainloop_api *loop, pa_time_event *event, const timeval *, void *data) {
                loop->time_free(event);
                self(data).dropContext();
                self(data).connect();
            },
            this);
    }

    void followState()
    {
        const pa_context_state_t state = pa_context_get_state(m_context);
        if (state == PA_CONTEXT_READY) {
            m_wait = kFirstWait;
            m_isAsking = false;
            m_asksAgain = false;
            drop(pa_context_subscribe(
                m_context,
                static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK |
                                                    PA_SUBSCRIPTION_MASK_SINK_INPUT |
                                                    PA_SUBSCRIPTION_MASK_SERVER),
                nullptr, nullptr));
            askVolume();
            askStreams();
        } else if (state == PA_CONTEXT_FAILED || state == PA_CONTEXT_TERMINATED) {
            m_listener.volume(std::nullopt);
            m_listener.streams({});
            reconnectSoon();
        }
    }

    void followChange(pa_subscription_event_type_t type)
    {
        const auto facility = type & PA_SUBSCRIPTION_EVENT_FACILITY_MASK;
        if (facility == PA_SUBSCRIPTION_EVENT_SINK_INPUT) {
            askStreams();
        } else {
            askVolume();
        }
    }

    void askVolume()
    {
        drop(pa_context_get_sink_info_by_name(
            m_context, "@DEFAULT_SINK@",
            [](pa_context *, const pa_sink_info *sink, int end, void *data) {
                if (sink != nullptr) {
                    self(data).m_listener.volume(SystemVolume{.level = levelOf(sink->volume),
                                                              .isMuted = sink->mute != 0,
                                                              .device = sink->index});
                } else if (end < 0) {
                    self(data).m_listener.volume(std::nullopt);
                }
            },
            this));
    }

    // One question at a time: dragging a volume raises dozens of changes a second.
    void askStreams()
    {
        if (m_isAsking) {
            m_asksAgain = true;
            return;
        }
        m_isAsking = true;
        m_found.clear();
        pa_operation *operation = pa_context_get_sink_input_info_list(
            m_context,
            [](pa_context *, const pa_sink_input_info *stream, int end, void *data) {
                self(data).takeStream(stream, end);
            },
            this);
        m_isAsking = operation != nullptr;
        drop(operation);
    }

    void takeStream(const pa_sink_input_info *stream, int end)
    {
        if (end == 0 && stream != nullptr) {
            std::string name = property(stream->proplist, PA_PROP_APPLICATION_NAME);
            if (name.empty()) {
                name = property(stream->proplist, PA_PROP_APPLICATION_PROCESS_BINARY);
            }
            m_found[stream->index] = {
                .told = {.index = stream->index,
                         .application = std::move(name),
                         .title = stream->name == nullptr ? std::string{} : stream->name,
                         .level = levelOf(stream->volume),
                         .isMuted = stream->mute != 0,
                         .isPlaying = stream->corked == 0},
                .volume = stream->volume};
            return;
        }
        m_isAsking = false;
        m_streams = std::move(m_found);
        std::vector<AudioStream> told;
        for (const auto &[index, known] : m_streams) {
            told.push_back(known.told);
        }
        m_listener.streams(std::move(told));
        if (std::exchange(m_asksAgain, false)) {
            askStreams();
        }
    }

    VolumeListener m_listener;
    pa_threaded_mainloop *m_loop = nullptr;
    pa_context *m_context = nullptr;
    std::map<std::uint32_t, Known> m_streams{};
    std::map<std::uint32_t, Known> m_found{};
    pa_usec_t m_wait = kFirstWait;
    bool m_isAsking = false;
    bool m_asksAgain = false;
    bool m_isRunning = false;
};

} // namespace

} // namespace Velvetnook

extern "C" [[gnu::visibility("default")]] Velvetnook::VolumeLink *
kestOpenVolume(Velvetnook::VolumeListener listener);

Velvetnook::VolumeLink *kestOpenVolume(Velvetnook::VolumeListener listener)
{
    auto link = std::make_unique<Velvetnook::PulseLink>(std::move(listener));
    return link->start() ? link.release() : nullptr;
}
