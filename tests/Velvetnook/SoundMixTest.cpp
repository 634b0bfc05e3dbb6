// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"
#include "Velvetnook/Application/SoundMixer.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/SoundMixViewModel.h"
#include "Velvetnook/Platform/Linux/PulseMixer.h"

#include <QSignalSpy>

using namespace Velvetnook;

namespace
{

// Remembers what is to be heard.
class HeardMixer : public SoundMixer
{
public:
    using SoundMixer::SoundMixer;
    void play(const Gains &gains, Base::Seconds /*fade*/) override { heard = gains; }

    Gains heard{};
};

class Sounds
{
public:
    explicit Sounds(const RunningModel::Prepare &prepare = {})
        : running{[prepare](KestCore::NativeState &state) {
              setToolOn(state, "sounds", true);
              if (prepare) {
                  prepare(state);
              }
          }}
    {
        open();
    }
    void open()
    {
        view.reset();
        running.settle();
        mixer = nullptr;
        view.emplace(running.model(), running.formatting(),
                     std::make_shared<const ToolServices>(ToolServices{
                         .makeSoundMixer = [this](QObject *parent) -> SoundMixer * {
                             return mixer = new HeardMixer{parent};
                         }}));
    }

    RunningModel running;
    HeardMixer *mixer = nullptr; // the view's own; none until a sound is wanted
    std::optional<SoundMixViewModel> view;
};

} // namespace

TEST(SoundMix, IsHeardOnlyWhenTheUserBeginsItAndIsKept)
{
    Sounds sounds;
    sounds.view->toggle(QStringLiteral("rain"));
    sounds.view->toggle(QStringLiteral("stream"));
    sounds.view->toggle(QStringLiteral("no such sound"));
    sounds.view->setSoundVolume(QStringLiteral("rain"), 1);
    sounds.view->setVolume(1);
    ASSERT_NE(sounds.mixer, nullptr);
    EXPECT_EQ(sounds.mixer->heard, (SoundMixer::Gains{{"rain", 1}, {"stream", 0.25}}));
    sounds.open(); // as after the next start
    EXPECT_FALSE(sounds.view->isPlaying());
    EXPECT_EQ(sounds.mixer, nullptr);
    sounds.view->playOrPause();
    ASSERT_NE(sounds.mixer, nullptr);
    EXPECT_EQ(sounds.mixer->heard, (SoundMixer::Gains{{"rain", 1}, {"stream", 0.25}}));
}

TEST(SoundMix, FallsSilentWithTheLastSoundThePauseTheTimeOrTheTool)
{
    using Step = void (*)(Sounds &);
    struct Case {
        const char *name;
        Step step;
    };
    for (const auto &[name, step] : {
             Case{"the last sound",
                  [](Sounds &sounds) { sounds.view->toggle(QStringLiteral("rain")); }},
             Case{"the pause", [](Sounds &sounds) { sounds.view->playOrPause(); }},
             Case{"the time",
                  [](Sounds &sounds) {
                      sounds.running.pass(Base::Seconds{29 * 60});
                      EXPECT_TRUE(sounds.view->isPlaying());
                      EXPECT_EQ(sounds.view->sleepText(), u"Off in 1 min");
                      sounds.running.pass(Base::Seconds{60});
                  }},
             Case{"the tool",
                  [](Sounds &sounds) {
                      sounds.running.change([](KestCore::NativeState &state) {
                          setToolOn(state, "sounds", false);
                      });
                  }},
         }) {
        SCOPED_TRACE(name);
        Sounds sounds{
            [](KestCore::NativeState &state) { state.settings["sounds.sleepMinutes"] = "30"; }};
        sounds.view->toggle(QStringLiteral("rain"));
        ASSERT_FALSE(sounds.mixer->heard.empty());
        step(sounds);
        EXPECT_TRUE(sounds.mixer->heard.empty());
        EXPECT_FALSE(sounds.view->isPlaying());
    }
}

TEST(SoundMix, ATimeThatIsChosenLaterBeginsThen)
{
    Sounds sounds;
    sounds.view->toggle(QStringLiteral("wind"));
    sounds.running.pass(Base::Seconds{7200});
    EXPECT_TRUE(sounds.view->isPlaying());
    sounds.view->setSleepMinutes(15);
    sounds.running.settle();
    sounds.running.pass(Base::Seconds{14 * 60});
    EXPECT_TRUE(sounds.view->isPlaying());
    sounds.view->setSleepMinutes(0); // after all not
    sounds.running.pass(Base::Seconds{7200});
    EXPECT_TRUE(sounds.view->isPlaying());
}

TEST(SoundMix, WhatWasKeptAndMakesNoSenseIsPassedOver)
{
    for (const char *kept : {"", ",", ":", "rain", "rain:", "rain:2", "rain:nan", "x:0.5",
                             ":0.5", "rain:0.5x", "wind:-1,,"}) {
        SCOPED_TRACE(kept);
        const Sounds sounds{[kept](KestCore::NativeState &state) {
            state.settings["sounds.mix"] = kept;
            state.settings["sounds.volume"] = "loud";
            state.settings["sounds.sleepMinutes"] = "-5";
        }};
        for (const QVariant &sound : sounds.view->sounds()) {
            EXPECT_FALSE(sound.toMap()[QStringLiteral("isIn")].toBool());
        }
        EXPECT_EQ(sounds.view->volume(), 0.5);
        EXPECT_EQ(sounds.view->sleepMinutes(), 0);
    }
}

TEST(SoundMix, SaysWhyNothingIsHeard)
{
    const QByteArray before = qgetenv("PULSE_SERVER");
    qputenv("PULSE_SERVER", "unix:/nonexistent/sound");
    Sounds sounds;
    PulseMixer mixer;
    QSignalSpy failures{&mixer, &SoundMixer::failed};
    mixer.play({{"rain", 0.5}}, Base::Seconds{0.1});
    ASSERT_TRUE(RunningModel::waitUntil([&] { return failures.count() == 1; }));
    EXPECT_TRUE(failures.front().front().toString().contains(u"no sound server"));
    qputenv("PULSE_SERVER", before);
    sounds.view->toggle(QStringLiteral("rain"));
    emit sounds.mixer->failed(QStringLiteral("gone"));
    EXPECT_FALSE(sounds.view->isPlaying());
    EXPECT_EQ(sounds.view->footer(), u"gone");
}
