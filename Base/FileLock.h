// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"

#include <chrono>
#include <filesystem>
#include <stop_token>
#include <string>

namespace Base
{

// Makes one process at a time the owner of something, by an advisory lock on a small file
// that says who holds it. The system drops the lock however the process ends; the file stays,
// as removing it would let two owners lock two files of one name.
class FileLock
{
public:
    // Takes the lock, asking again until `patience` is over or `stop` is requested. Then fails
    // with unavailable: "WHAT is in use by NAME (process ID)".
    [[nodiscard]] static Result<FileLock> take(const std::filesystem::path &file,
                                               std::string_view what,
                                               std::chrono::milliseconds patience,
                                               const std::stop_token &stop = {});

private:
    explicit FileLock(FileDescriptor descriptor) : m_descriptor(std::move(descriptor)) {}

    FileDescriptor m_descriptor;
};

} // namespace Base
