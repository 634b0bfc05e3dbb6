// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/AutostartFile.h"

#include "Base/File.h"

#include <cstdlib>
#include <sstream>

namespace Velvetnook
{

namespace
{

constexpr std::size_t kLongest = 64 * 1024;

// A text in a desktop file: a backslash is doubled.
std::string asValue(const std::string &text)
{
    std::string value;
    for (const char letter : text) {
        value += letter;
        if (letter == '\\') {
            value += letter;
        }
    }
    return value;
}

// A word of a command line: in quotes, with what has a meaning inside them and in the command
// escaped.
std::string asWord(const std::string &text)
{
    std::string word = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '`' || letter == '$' || letter == '\\') {
            word += '\\';
        }
        word += letter;
        if (letter == '%') {
            word += letter;
        }
    }
    return word + '"';
}

} // namespace

AutostartFile::AutostartFile(const std::filesystem::path &folder, std::string name,
                             std::filesystem::path program)
    : m_name{std::move(name)}, m_file{folder / (m_name + ".desktop")},
      m_program{std::move(program)}
{
}

std::filesystem::path AutostartFile::userFolder()
{
    const char *const configuration = std::getenv("XDG_CONFIG_HOME");
    if (configuration != nullptr && *configuration == '/') {
        return std::filesystem::path{configuration} / "autostart";
    }
    const char *const home = std::getenv("HOME");
    return std::filesystem::path{home == nullptr ? "/" : home} / ".config" / "autostart";
}

Autostart::Standing AutostartFile::standing() const
{
    const auto text = Base::readFile(m_file, kLongest);
    if (!text) {
        return Standing::off;
    }
    std::istringstream lines{*text};
    for (std::string line; std::getline(lines, line);) {
        std::erase(line, ' ');
        if (line == "Hidden=true" || line == "X-GNOME-Autostart-enabled=false") {
            return Standing::turnedOff;
        }
    }
    return Standing::on;
}

Base::Result<void> AutostartFile::set(bool isOn)
{
    std::error_code error;
    if (!isOn) {
        std::filesystem::remove(m_file, error);
        return error ? Base::Result<void>{std::unexpected(Base::fileError(m_file, error))}
                     : Base::Result<void>{};
    }
    const std::string wanted = text();
    if (const auto present = Base::readFile(m_file, kLongest); present && *present == wanted) {
        return {}; // writing it anew, at each start, would wait for the disk
    }
    KEST_CHECK(Base::makePrivateDirectory(m_file.parent_path()));
    KEST_TRY(Base::ReplacingFile written, Base::ReplacingFile::create(m_file));
    KEST_CHECK(written.write(wanted));
    return written.commit();
}

std::string AutostartFile::text() const
{
    const std::string program = m_program.string();
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Velvetnook\n"
           "Exec=" +
           asValue(asWord(program)) +
           " --background\n"
           "TryExec=" +
           asValue(program) +
           "\n"
           "Icon=" +
           m_name +
           "\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

} // namespace Velvetnook
