// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Sound/SoundOutput.h"

#include <cstring>

namespace Velvetnook
{

namespace
{

// The head that Python's module "wave" writes: one block for the format, then the samples.
struct Head {
    char riff[4];
    std::uint32_t size;
    char wave[4];
    char format[4];
    std::uint32_t formatSize;
    std::uint16_t encoding; // 1: plain samples
    std::uint16_t channels;
    std::uint32_t rate;
    std::uint32_t bytesPerSecond;
    std::uint16_t bytesPerFrame;
    std::uint16_t bitsPerSample;
    char data[4];
    std::uint32_t dataSize;
};
static_assert(sizeof(Head) == 44);

} // namespace

Base::Result<SoundSamples> readWave(std::span<const std::uint8_t> bytes)
{
    const auto refuse = [] {
        return std::unexpected(Base::KestError::invalidData("This is no sound of ours"));
    };
    Head head{};
    if (bytes.size() < sizeof head) {
        return refuse();
    }
    std::memcpy(&head, bytes.data(), sizeof head);
    const bool isWave = std::memcmp(head.riff, "RIFF", 4) == 0 &&
                        std::memcmp(head.wave, "WAVE", 4) == 0 &&
                        std::memcmp(head.data, "data", 4) == 0;
    const bool isPlain = head.encoding == 1 && head.channels == 1 && head.bitsPerSample == 16;
    const auto body = bytes.subspan(sizeof head);
    if (!isWave || !isPlain || head.rate < 8000 || head.rate > 192'000 ||
        head.dataSize > body.size() || head.dataSize % 2 != 0) {
        return refuse();
    }
    return SoundSamples{
        .rate = head.rate,
        .samples = {reinterpret_cast<const std::int16_t *>(body.data()), head.dataSize / 2}};
}

} // namespace Velvetnook
