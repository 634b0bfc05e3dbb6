// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/InstalledApps.h"

#include "tests/MonitorLinux/Machine.h"

#include <gmock/gmock.h>

using namespace MonitorLinux;
using testing::ElementsAre;

namespace
{

std::string entry(std::string_view exec, std::string_view more = "")
{
    return fmt::format("# made by hand\n[Desktop Entry]\nType=Application\nName = Paint\n"
                       "Exec={}\n{}[Desktop Action new]\nName=New window\nExec=other\n",
                       exec, more);
}

TEST(ParseDesktopEntry, FindsTheProgramOfACommandLine)
{
    for (const auto &[exec, program] :
         {std::pair{"paint %U", "paint"},
          std::pair{"/opt/paint/paint --new", "/opt/paint/paint"},
          std::pair{R"("/opt/my \"x\" paint" %f)", R"(/opt/my "x" paint)"},
          std::pair{"env -u A LANG=C B=2 paint", "paint"},
          std::pair{"env LANG=C paint", "paint"}, std::pair{"\"open", "open"}}) {
        const auto found = parseDesktopEntry(entry(exec), "");
        ASSERT_TRUE(found) << exec;
        EXPECT_EQ(found->program, program);
        EXPECT_EQ(found->name, "Paint");
    }
    for (const std::string &text :
         {entry("paint", "NoDisplay=true\n"), entry("paint", "Hidden=true\n"),
          entry("paint", "Type=Link\n"), entry(""), entry("env"),
          std::string{"\x7f"
                      "ELF"}}) {
        EXPECT_FALSE(parseDesktopEntry(text, "")) << text;
    }
}

TEST(ParseDesktopEntry, NamesItInTheUsersLanguage)
{
    const auto text = entry("paint", "Name[pt]=Pintura\nName[pt_BR]=Pintar\nName[ar]=\u0631\n");
    for (const auto &[language, name] :
         {std::pair{"", "Paint"}, std::pair{"C", "Paint"}, std::pair{"pt_PT", "Pintura"},
          std::pair{"pt_BR", "Pintar"}, std::pair{"ar_EG", "\u0631"}}) {
        EXPECT_EQ(parseDesktopEntry(text, language)->name, name) << language;
    }
}

TEST(InstalledApps, TakesEachOnceWithTheFileThatRuns)
{
    Machine machine;
    machine.write("usr/lib/paint/paint.bin", "");
    machine.link("usr/bin/paint", machine.root() + "/usr/lib/paint/paint.bin");
    machine.write("usr/bin/python3.11", "");
    machine.link("usr/bin/python3", "python3.11");
    machine.write("share/applications/paint.desktop", entry("paint %U"));
    machine.write("share/applications/kde/edit.desktop", entry("python3 /usr/share/edit.py"));
    machine.write("share/applications/gone.desktop", entry("gone"));
    machine.write("share/applications/hidden.desktop", entry("paint"));
    machine.write("home/applications/hidden.desktop", entry("paint", "Hidden=true\n"));
    machine.link("home/applications/loop", machine.root() + "/home");
    const auto apps = installedApps(
        {.applications = {machine.root() + "/home/applications", machine.root() + "/none",
                          machine.root() + "/share/applications"},
         .programs = {machine.root() + "/none", machine.root() + "/usr/bin"}});
    std::vector<std::string> found;
    for (const auto &app : apps) {
        found.push_back(app.id + " " + app.executable);
    }
    EXPECT_THAT(found,
                ElementsAre("gone ", "kde-edit ",
                            "paint " + std::filesystem::canonical(machine.root()).string() +
                                "/usr/lib/paint/paint.bin"));
}

} // namespace
