// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/DesktopFile.h"

#include "tests/MonitorLinux/Machine.h"

#include <gmock/gmock.h>

using namespace MonitorLinux;
using testing::ElementsAreArray;

namespace
{

using Words = std::vector<std::string>;

std::string entryText(std::string_view exec, std::string_view more = "")
{
    return fmt::format("[Desktop Entry]\nType=Application\nName=Paint\nIcon=paint\nExec={}\n{}",
                       exec, more);
}

TEST(LaunchEntry, FillsInTheFieldCodes)
{
    struct Case {
        const char *exec;
        Words addresses;
        Words words;
    };
    const Words two{"file:///tmp/a%20b.txt", "https://example.org/%41"};
    for (const auto &[exec, addresses, words] : {
             Case{"paint %F", two, {"paint", "/tmp/a b.txt"}}, // a program of files gets files
             Case{"paint %U", two, {"paint", two[0], two[1]}},
             Case{"paint %f", two, {"paint", "/tmp/a b.txt"}},
             Case{"paint %u --new", {}, {"paint", "--new"}},
             Case{"paint %u", two, {"paint", two[0]}},
             Case{"paint %i %c %k", {}, {"paint", "--icon", "paint", "Paint", "/x/p.desktop"}},
             Case{"paint --title=%c%%", {}, {"paint", "--title=Paint%"}},
             Case{"paint %d %v", {}, {"paint"}}, // of old, and to be left out
             Case{R"(paint "a \\$b \\"c\\"" "")", {}, {"paint", R"(a $b "c")", ""}},
             Case{R"("/opt/my paint/paint" "%U")", two, {"/opt/my paint/paint", "%U"}},
             Case{"paint %F", {"file://host/etc/passwd", "file:///a%00b"}, {"paint"}},
         }) {
        SCOPED_TRACE(exec);
        const auto entry = parseLaunchEntry(entryText(exec), "");
        ASSERT_TRUE(entry);
        const auto found = commandWords(*entry, "/x/p.desktop", addresses);
        ASSERT_TRUE(found) << found.error().message;
        EXPECT_THAT(*found, ElementsAreArray(words));
    }
}

TEST(LaunchEntry, RefusesWhatAShellWouldBeNeededFor)
{
    for (const char *exec : {"paint; rm -rf ~",  "paint $HOME",
                             "paint `id`",       "paint > /tmp/x",
                             "paint 'a b'",      "paint | cat",
                             R"(paint "$HOME")", R"(paint "`id`")",
                             R"(paint "open)",   R"(paint "a"b)",
                             "%f paint",         "%%",
                             "A=b paint",        "-x",
                             R"(paint "a\\nb")", "paint %z",
                             "paint %",          R"("")",
                             "paint a&",         "paint *"}) {
        SCOPED_TRACE(exec);
        const auto entry = parseLaunchEntry(entryText(exec), "");
        ASSERT_TRUE(entry);
        EXPECT_FALSE(commandWords(*entry, "/x", {}));
    }
}

TEST(LaunchEntry, IsNoneForWhatIsNotStarted)
{
    EXPECT_TRUE(parseLaunchEntry(entryText("paint"), ""));
    for (const std::string &text :
         {entryText("paint", "NoDisplay=true\n"), entryText("paint", "Hidden=true\n"),
          entryText("paint", "Type=Link\n"), entryText(""), entryText(R"(paint\nrm)"),
          entryText("paint", "Icon=a\\nb\n"), std::string{"[Desktop Entry2]\nExec=a\n"},
          std::string{"\x7f"
                      "ELF"}}) {
        EXPECT_FALSE(parseLaunchEntry(text, "")) << text;
    }
    const auto entry = parseLaunchEntry(
        entryText("paint", "Name[ar]=\u0631\u0633\u0645\nPath=/opt\nTerminal=true\n"
                           "[Desktop Action x]\nExec=other\n"),
        "ar_EG");
    EXPECT_EQ(entry, (LaunchEntry{.name = "\u0631\u0633\u0645",
                                  .icon = "paint",
                                  .exec = "paint",
                                  .folder = "/opt",
                                  .isForTerminal = true}));
}

TEST(FindDesktopFile, FindsDashesAsFoldersAndNothingOutside)
{
    Machine machine;
    machine.write("secret.desktop", "");
    machine.write("a/kde/edit.desktop", "");
    machine.write("a/paint.desktop", "");
    machine.write("b/paint.desktop", "");
    const std::vector<std::filesystem::path> folders{
        machine.root() + "/none", machine.root() + "/a", machine.root() + "/b"};
    EXPECT_EQ(findDesktopFile("paint", folders), folders[1] / "paint.desktop");
    EXPECT_EQ(findDesktopFile("kde-edit", folders), folders[1] / "kde/edit.desktop");
    for (const char *id : {"", "../secret", "kde/edit", "gone", "a\nb"}) {
        EXPECT_FALSE(findDesktopFile(id, folders)) << id;
    }
}

} // namespace
