// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Launch.h"

#include "Velvetnook/Platform/Activation.h"

#include <string_view>

namespace Velvetnook
{

Launch Launch::from(std::span<const char *const> arguments)
{
    Launch launch;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view word = arguments[index];
        if (word == "--help" || word == "-h") {
            return {.wish = Wish::help};
        }
        if (word == "--version") {
            return {.wish = Wish::version};
        }
        if (word == "--capabilities") {
            launch.wish = Wish::capabilities;
        } else if (word == "--background") {
            launch.isQuiet = true;
        } else if (word == "--action" && index + 1 < arguments.size()) {
            launch.action = QString::fromLocal8Bit(arguments[++index]);
            if (!isDesktopAction(launch.action)) {
                return {.wish = Wish::misuse,
                        .problem =
                            QStringLiteral("There is no action \"%1\"").arg(launch.action)};
            }
        } else {
            return {.wish = Wish::misuse,
                    .problem = QStringLiteral("Nobody understands \"%1\"")
                                   .arg(QString::fromLocal8Bit(arguments[index]))};
        }
    }
    return launch;
}

const char *Launch::helpText()
{
    return R"(velvetnook [--background] [--action NAME]
velvetnook --capabilities | --version | --help

Starts Velvetnook, or brings the one that runs forward.

  --background      starts without opening anything, as at login
  --action NAME     open, palette, settings, count, pause-reminders or quit
  --capabilities    says what this session gives the application, and what not
  --version         prints the version
)";
}

} // namespace Velvetnook
