// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Autostart.h"

#include <filesystem>
#include <string>

namespace Velvetnook
{

// By a desktop file in the folder "autostart" of the user's configuration.
class AutostartFile : public Autostart
{
public:
    // `name` without its ending; `program` is the whole path of what is started.
    AutostartFile(const std::filesystem::path &folder, std::string name,
                  std::filesystem::path program);

    Standing standing() const override;
    Base::Result<void> set(bool isOn) override;

    const std::filesystem::path &file() const { return m_file; }
    // $XDG_CONFIG_HOME/autostart, or the one in the home folder.
    static std::filesystem::path userFolder();

private:
    std::string text() const;

    std::string m_name;
    std::filesystem::path m_file;
    std::filesystem::path m_program;
};

} // namespace Velvetnook
