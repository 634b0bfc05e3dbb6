// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "KestCore/Surfaces/ApplicationCommand.h"

#include <cstdlib>

// What comes over the application's socket, in pieces of every size. However it is cut, the
// same lines come out; and a command that is understood says the same when it is written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    std::vector<std::string> whole;
    KestCore::CommandLines atOnce;
    if (!atOnce.add(bytes)) {
        return 0;
    }
    while (auto line = atOnce.next()) {
        whole.push_back(*std::move(line));
    }
    std::vector<std::string> pieces;
    KestCore::CommandLines inPieces;
    const std::size_t step = size == 0 ? 1 : 1 + data[0] % 7;
    for (std::size_t at = 0; at < size; at += step) {
        if (!inPieces.add(bytes.substr(at, step))) {
            std::abort();
        }
        while (auto line = inPieces.next()) {
            pieces.push_back(*std::move(line));
        }
    }
    if (whole != pieces) {
        std::abort();
    }
    for (const std::string &line : whole) {
        const auto command = KestCore::readApplicationCommand(line);
        if (!command) {
            continue;
        }
        const auto again = Base::json::encode(*command);
        const auto reread =
            again ? KestCore::readApplicationCommand(*again) : std::unexpected(again.error());
        if (!reread || *reread != *command) {
            std::abort();
        }
    }
    return 0;
}
