// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace
{

void feed(const std::string &bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
}

} // namespace

// Feeds every file of the folder, each cut short everywhere and with a few bytes changed.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("needs the folder of seeds\n", stderr);
        return 1;
    }
    std::mt19937 random{1};
    int files = 0;
    for (const auto &entry : std::filesystem::directory_iterator{argv[1]}) {
        const auto seed = Base::readFile(entry.path());
        if (!seed) {
            std::fprintf(stderr, "%s\n", seed.error().message.c_str());
            return 1;
        }
        feed(*seed);
        for (std::size_t size = 0; size < seed->size(); size += 1 + seed->size() / 500) {
            feed(seed->substr(0, size));
        }
        for (int round = 0; round < 500 && !seed->empty(); ++round) {
            std::string damaged = *seed;
            damaged[random() % damaged.size()] = static_cast<char>(random());
            feed(damaged);
        }
        ++files;
    }
    std::printf("%d seeds\n", files);
    return files == 0 ? 1 : 0;
}
