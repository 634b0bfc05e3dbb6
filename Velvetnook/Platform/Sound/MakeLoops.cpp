// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <numbers>
#include <random>
#include <string>
#include <vector>

// MakeLoops FOLDER: synthesises the background sounds, each as a loop whose end goes on at its
// beginning without a seam: filters run over the loop twice, so that they stand at its start as
// they will at its end, and whatever rings beyond the end rings on at the beginning. From
// nothing but numbers, and always the same ones.
namespace
{

constexpr int kRate = 24'000; // samples a second
constexpr int kCount = 12 * kRate;
constexpr double kLoudness = 0.10; // the root mean square of full scale: all are as loud
constexpr double kPeak = 0.89;
constexpr double kTurn = 2 * std::numbers::pi;

using Loop = std::vector<double>;

class Chance
{
public:
    explicit Chance(unsigned seed) : m_bits{seed} {}

    // Of the same numbers on every machine, which the standard's distributions are not.
    double part() { return (static_cast<double>(m_bits()) + 0.5) / 4'294'967'296.0; }
    double between(double low, double high) { return low + (high - low) * part(); }
    double noise() { return part() + part() + part() - 1.5; }

private:
    std::mt19937 m_bits;
};

Loop white(Chance &chance)
{
    Loop loop(kCount);
    std::ranges::generate(loop, [&] { return chance.noise(); });
    return loop;
}

// Runs a filter with a memory round the loop twice and keeps the second round.
Loop filtered(const Loop &loop, const std::function<double(double sample, double time)> &step)
{
    Loop result(loop.size());
    for (int round = 0; round < 2; ++round) {
        for (std::size_t at = 0; at < loop.size(); ++at) {
            result[at] = step(loop[at], static_cast<double>(at) / kRate);
        }
    }
    return result;
}

Loop lowPassed(const Loop &loop, double hertz)
{
    const double share = 1 - std::exp(-kTurn * hertz / kRate);
    return filtered(loop, [share, last = 0.0](double sample, double) mutable {
        return last += share * (sample - last);
    });
}

Loop highPassed(const Loop &loop, double hertz)
{
    const Loop low = lowPassed(loop, hertz);
    Loop high(loop.size());
    std::ranges::transform(loop, low, high.begin(), std::minus{});
    return high;
}

// Around a pitch that may move.
Loop banded(const Loop &loop, double width, const std::function<double(double)> &hertzAt)
{
    return filtered(loop, [=, low = 0.0, band = 0.0](double sample, double time) mutable {
        const double pitch = 2 * std::sin(std::numbers::pi * hertzAt(time) / kRate);
        low += pitch * band;
        band += pitch * (sample - low - width * band);
        return band;
    });
}

// A slow swell between 0 and 1 that comes round with the loop.
double swell(double time, int turns, double start)
{
    return 0.5 + 0.5 * std::sin(kTurn * (time * turns * kRate / kCount + start));
}

void mixInto(Loop &loop, const Loop &other, double gain)
{
    std::ranges::transform(loop, other, loop.begin(),
                           [gain](double one, double two) { return one + gain * two; });
}

// Adds something short; what rings beyond the end rings on at the beginning.
void strike(Loop &loop, double start, double seconds,
            const std::function<double(double)> &shape)
{
    const auto first = static_cast<std::size_t>(start * kRate);
    const auto count = static_cast<std::size_t>(seconds * kRate);
    for (std::size_t at = 0; at < count; ++at) {
        loop[(first + at) % loop.size()] += shape(static_cast<double>(at) / kRate);
    }
}

Loop pink(Chance &chance)
{
    const Loop source = white(chance);
    Loop loop(kCount);
    double hertz = 20; // each an octave and a half above the last, and as much quieter
    for (int octave = 0; octave < 7; ++octave) {
        mixInto(loop, lowPassed(source, hertz), std::sqrt(1000 / hertz));
        hertz *= 2.83;
    }
    return loop;
}

Loop brown(Chance &chance) { return highPassed(lowPassed(white(chance), 60), 18); }

Loop softWhite(Chance &chance) { return lowPassed(white(chance), 9000); }

// A broad hiss, and drops of every size upon it.
Loop rain(Chance &chance)
{
    Loop loop = highPassed(lowPassed(white(chance), 5200), 700);
    mixInto(loop, lowPassed(white(chance), 260), 0.9);
    for (int drop = 0; drop < 5200; ++drop) {
        const double pitch = chance.between(1100, 5200);
        const double force = 2.4 * std::pow(chance.part(), 5);
        const double fade = chance.between(180, 700);
        strike(loop, chance.between(0, 12), 0.03, [=](double time) {
            return force * std::exp(-fade * time) * std::sin(kTurn * pitch * time);
        });
    }
    return loop;
}

// Air that rises and sinks, in pitch and in force.
Loop wind(Chance &chance)
{
    const auto gust = [](double time) {
        return 0.35 * swell(time, 2, 0.1) + 0.4 * swell(time, 3, 0.7) +
               0.25 * swell(time, 7, 0.3);
    };
    Loop loop = banded(pink(chance), 0.55, [&](double t) { return 180 + 420 * gust(t); });
    const Loop whistle =
        banded(white(chance), 0.06, [&](double t) { return 420 + 520 * gust(t); });
    mixInto(loop, whistle, 0.35);
    for (std::size_t at = 0; at < loop.size(); ++at) {
        loop[at] *= 0.25 + gust(static_cast<double>(at) / kRate);
    }
    mixInto(loop, brown(chance), 1.2);
    return loop;
}

// Bubbles: each a short tone that rises as it reaches the air.
Loop stream(Chance &chance)
{
    Loop loop = banded(white(chance), 1.1, [](double) { return 620.0; });
    std::ranges::transform(loop, loop.begin(), [](double sample) { return 0.16 * sample; });
    for (int bubble = 0; bubble < 2600; ++bubble) {
        const double pitch = 260 * std::pow(2, chance.between(0, 3.1));
        const double force = std::pow(chance.part(), 3) * 330 / pitch;
        const double fade = pitch / 22;
        const double rise = chance.between(0.4, 3.5);
        strike(loop, chance.between(0, 12), 5 / fade, [=](double time) {
            const double attack = std::min(1.0, time * 900);
            return force * attack * std::exp(-fade * time) *
                   std::sin(kTurn * pitch * time * (1 + rise * time));
        });
    }
    return loop;
}

// Crickets at their places, each with its own pitch and beat, and a breath of air.
Loop night(Chance &chance)
{
    Loop loop = lowPassed(pink(chance), 900);
    std::ranges::transform(loop, loop.begin(), [](double sample) { return 0.05 * sample; });
    for (int cricket = 0; cricket < 6; ++cricket) {
        const double pitch = chance.between(3300, 4900);
        const double force = chance.between(0.06, 0.3);
        const int chirps = 14 + static_cast<int>(chance.between(0, 16));
        const double offset = chance.part();
        for (int chirp = 0; chirp < chirps; ++chirp) {
            const double start = std::fmod((chirp + offset) * 12.0 / chirps, 12.0);
            strike(loop, start, 0.16, [=](double time) {
                const double pulse =
                    std::pow(std::abs(std::sin(std::numbers::pi * time / 0.04)), 1.5);
                return force * pulse * std::sin(kTurn * pitch * time);
            });
        }
    }
    return loop;
}

// Rolls that come from far away, over a low air.
Loop thunder(Chance &chance)
{
    Loop loop = lowPassed(rain(chance), 900);
    std::ranges::transform(loop, loop.begin(), [](double sample) { return 0.22 * sample; });
    Loop rolls(kCount);
    const Loop rumble = lowPassed(lowPassed(white(chance), 110), 160);
    for (const double start : {0.8, 6.3}) {
        const double length = chance.between(4.2, 5.4);
        const double beat = chance.between(0.5, 0.8);
        const auto first = static_cast<std::size_t>(start * kRate);
        strike(rolls, start, length, [&, at = first](double time) mutable {
            const double envelope = std::min(1.0, time / 0.35) * std::exp(-time * 0.75) *
                                    std::min(1.0, (length - time) / 0.8);
            const double roll =
                0.55 + 0.45 * std::sin(kTurn * time / beat + 2 * std::sin(time * 3));
            return 26 * envelope * roll * rumble[at++ % rumble.size()];
        });
    }
    mixInto(loop, rolls, 1);
    return loop;
}

// As loud as the others, without ever reaching the end of the scale.
std::vector<std::int16_t> samplesOf(Loop loop)
{
    loop = highPassed(loop, 12); // no standing pressure
    double power = 0;
    double peak = 0;
    for (const double sample : loop) {
        power += sample * sample;
        peak = std::max(peak, std::abs(sample));
    }
    const double mean = std::sqrt(power / static_cast<double>(loop.size()));
    const double gain = std::min(kLoudness / mean, 2.2 * kPeak / peak);
    std::vector<std::int16_t> samples;
    samples.reserve(loop.size());
    for (const double sample : loop) {
        const double shown = kPeak * std::tanh(sample * gain / kPeak); // bends the few highest
        samples.push_back(static_cast<std::int16_t>(std::lround(shown * 32'767)));
    }
    return samples;
}

template <class T>
void put(std::ofstream &file, T value)
{
    file.write(reinterpret_cast<const char *>(&value), sizeof value);
}

bool write(const std::filesystem::path &path, const std::vector<std::int16_t> &samples)
{
    std::ofstream file{path, std::ios::binary};
    const auto bytes = static_cast<std::uint32_t>(samples.size() * sizeof samples[0]);
    file << "RIFF";
    put<std::uint32_t>(file, 36 + bytes);
    file << "WAVEfmt ";
    put<std::uint32_t>(file, 16);
    put<std::uint16_t>(file, 1);
    put<std::uint16_t>(file, 1);
    put<std::uint32_t>(file, kRate);
    put<std::uint32_t>(file, kRate * 2);
    put<std::uint16_t>(file, 2);
    put<std::uint16_t>(file, 16);
    file << "data";
    put<std::uint32_t>(file, bytes);
    file.write(reinterpret_cast<const char *>(samples.data()), bytes);
    return file.good();
}

} // namespace

int main(int argc, char **argv)
{
    struct Kind {
        const char *name;
        Loop (*make)(Chance &chance);
    };
    constexpr std::array kKinds{Kind{"rain", rain},       Kind{"wind", wind},
                                Kind{"stream", stream},   Kind{"night", night},
                                Kind{"thunder", thunder}, Kind{"brown", brown},
                                Kind{"pink", pink},       Kind{"white", softWhite}};
    if (argc != 2) {
        std::fputs("MakeLoops FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path folder{argv[1]};
    std::filesystem::create_directories(folder);
    bool isWhole = true;
    unsigned seed = 7;
    for (const auto &[name, make] : kKinds) {
        Chance chance{++seed};
        isWhole =
            write(folder / ("loop-" + std::string{name} + ".wav"), samplesOf(make(chance))) &&
            isWhole;
    }
    return isWhole ? 0 : 1;
}
