// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/ResourceBundle.h"

#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>

namespace BaseTests
{

using Base::ResourceBundle;

// Runs with a bundle of its own in KEST_RESOURCES.
class ResourceBundleTest : public testing::Test
{
protected:
    ResourceBundleTest()
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        const auto sample = m_folder.path() / "Sample.bundle";
        std::filesystem::create_directories(sample / "folder.json");
        std::ofstream{sample / "words.json"} << "[1]";
        std::ofstream{m_folder.path() / "Plain.bundle"} << "a file, not a folder";
        ::setenv("KEST_RESOURCES", m_folder.path().c_str(), 1);
    }

public:
    ~ResourceBundleTest() override { ::unsetenv("KEST_RESOURCES"); }

protected:
    const TemporaryFolder m_folder;
};
using ResourceBundleDeathTest = ResourceBundleTest;

TEST_F(ResourceBundleTest, IsFoundInTheChosenFolder)
{
    const auto bundle = ResourceBundle::find("Sample");
    EXPECT_EQ(bundle.folder(), m_folder.path() / "Sample.bundle");
    EXPECT_EQ(bundle.path("words", "json"), bundle.folder() / "words.json");
    EXPECT_EQ(bundle.read("words", "json", "Here"), "[1]");
    EXPECT_EQ(bundle.path("words", "txt"), std::nullopt);
    EXPECT_EQ(bundle.path("folder", "json"), std::nullopt);
}

TEST_F(ResourceBundleDeathTest, EndsTheProcessWhenABuildIsIncomplete)
{
    EXPECT_DEATH(ResourceBundle::find("Missing"),
                 "Base/ResourceBundle: unable to find bundle named Missing\n");
    EXPECT_DEATH(ResourceBundle::find("Plain"), "unable to find bundle named Plain");
    EXPECT_DEATH(ResourceBundle::find("Sample").read("folder", "json", "Some/Place"),
                 "Some/Place: unable to find the resource folder.json");
}

TEST_F(ResourceBundleDeathTest, DoesNotLookBesideTheProgramWhenAFolderIsChosen)
{
    ::setenv("KEST_RESOURCES", (m_folder.path() / "elsewhere").c_str(), 1);
    EXPECT_DEATH(ResourceBundle::find("KestNative_KestCore"),
                 "unable to find bundle named KestNative_KestCore");
}

} // namespace BaseTests
