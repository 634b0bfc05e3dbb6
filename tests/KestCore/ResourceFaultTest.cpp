// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/DevotionalState.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Resources.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

constexpr const char *kBundle = "KestNative_KestCore.bundle";

} // namespace

// A copy of the bundle to break. Each death test runs in a process of its own, which has not
// read any resource before.
class ResourceFaultDeathTest : public testing::Test
{
protected:
    ResourceFaultDeathTest()
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        const auto program = std::filesystem::read_symlink("/proc/self/exe").parent_path();
        std::filesystem::copy(program / kBundle, m_folder.path() / kBundle);
        ::setenv("KEST_RESOURCES", m_folder.path().c_str(), 1);
    }

public:
    ~ResourceFaultDeathTest() override { ::unsetenv("KEST_RESOURCES"); }

protected:
    void breakResource(const std::string &name, std::string_view bytes) const
    {
        std::ofstream{m_folder.path() / kBundle / name} << bytes;
    }
    void removeResource(const std::string &name) const
    {
        std::filesystem::remove_all(m_folder.path() / kBundle / name);
    }

private:
    TemporaryFolder m_folder;
};

TEST_F(ResourceFaultDeathTest, EndsTheProcessNamingTheModels)
{
    for (const char *broken : {"", "{", R"({"version":"1","dhikr":[]})"}) {
        breakResource("content.json", broken);
        EXPECT_DEATH((void)contentCatalogue(), "KestCore/Models: the resource content.json");
        EXPECT_DEATH((void)isNameId("x"), "KestCore/Models");
    }
    removeResource("content.json");
    EXPECT_DEATH((void)contentCatalogue(), "KestCore/Models: unable to find .*content.json");

    breakResource("legacy-default.json", R"({"schemaVersion":2})");
    EXPECT_DEATH(
        (void)defaultDevotionalState(),
        "KestCore/Models: the resource legacy-default.json is broken: revision: missing");
    removeResource("legacy-default.json");
    EXPECT_DEATH((void)defaultDevotionalState(), "KestCore/Models: unable to find");
}

TEST_F(ResourceFaultDeathTest, EndsTheProcessNamingTheRegistry)
{
    for (const char *broken : {"", "{}", R"([{"id":"home","title":"Home"}])"}) {
        breakResource("features.json", broken);
        EXPECT_DEATH((void)ToolRegistry::tools(),
                     "KestCore/Registry: the resource features.json is broken");
    }
    removeResource("features.json");
    EXPECT_DEATH((void)ToolRegistry::knows("home"), "KestCore/Registry: unable to find");
}

TEST_F(ResourceFaultDeathTest, EndsTheProcessWithoutTheBundle)
{
    removeResource("");
    EXPECT_DEATH((void)coreBundle(), "unable to find bundle named KestNative_KestCore");
}

} // namespace KestCoreTests
