// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/ProcessActionPolicy.h"

#include <gtest/gtest.h>

using namespace MonitorCore;

namespace
{

constexpr std::uint32_t kRoot = 0;
constexpr std::uint32_t kMe = 1'000;
const std::string kManaged = "/user.slice/user-1000.slice/user@1000.service";
const std::string kLogin = "/user.slice/user-1000.slice/session-2.scope";

struct Process {
    std::int32_t pid;
    std::int32_t parent;
    std::uint32_t owner;
    std::int32_t session;
    std::string group;
    std::optional<ActionRefusal> refusal;
};

ProcessKey keyOf(std::int32_t pid)
{
    return {.pid = pid, .start = static_cast<std::uint64_t>(pid)};
}

// This program is number 53, started from a terminal of a session.
const std::vector<Process> &machine()
{
    using enum ActionRefusal;
    static const std::vector<Process> all{
        {1, 0, kRoot, 1, "/init.scope", system},
        {2, 0, kRoot, 0, "", kernelThread},
        {3, 1, kRoot, 3, "/system.slice/web.service", otherUser},
        {4, 1, 1'001, 4, "", otherUser},
        {10, 1, kMe, 10, kManaged + "/init.scope", session},
        {11, 10, kMe, 11, kManaged + "/session.slice/org.example.Shell@x11.service", session},
        {12, 10, kMe, 12, kManaged + "/app.slice/dbus.service", session}, // the bus
        {13, 12, kMe, 12, kManaged + "/app.slice/dbus.service", {}},      // started by it
        {14, 10, kMe, 14, kManaged + "/app.slice/app-org.example.Mail-1.scope", {}},
        {20, 1, kRoot, 20, kLogin, otherUser},
        {21, 20, kMe, 20, kLogin, session}, // the first one of the user
        {22, 21, kMe, 20, kLogin, {}},
        {23, 1, kMe, 23, kLogin, {}},  // left the session's tree
        {30, 22, kMe, 30, kLogin, {}}, // a terminal's shell leads a session of its own
        {50, 21, kMe, 20, kLogin, ourselves},
        {51, 50, kMe, 51, kLogin, ourselves},
        {53, 51, kMe, 55, kLogin, ourselves},
        {54, 53, kMe, 55, kLogin, {}},      // our child may be ended
        {55, 21, kMe, 55, kLogin, session}, // leads our own session, and is no parent of ours
    };
    return all;
}

RawSample sampleOf(const std::vector<Process> &processes)
{
    RawSample sample;
    for (const Process &process : processes) {
        sample.processes.push_back(
            {.key = keyOf(process.pid), .parentPID = process.parent, .owner = process.owner});
        sample.origins.push_back({.cgroup = process.group,
                                  .session = process.session,
                                  .isKernelThread = process.pid == 2});
    }
    return sample;
}

TEST(ProcessActionPolicy, SparesWhatTheSessionAndTheSystemNeed)
{
    const RawSample sample = sampleOf(machine());
    const ProcessActionPolicy policy{sample, 53, kMe};
    for (const Process &process : machine()) {
        auto expected = process.refusal;
        if (process.pid == 21) {
            expected = ActionRefusal::ourselves; // we run below it too
        }
        EXPECT_EQ(policy.refusal(keyOf(process.pid)), expected) << process.pid;
    }
    // From elsewhere the first process of the session is spared as that.
    const ProcessActionPolicy other{sample, 14, kMe};
    EXPECT_EQ(other.refusal(keyOf(21)), ActionRefusal::session);
    EXPECT_EQ(other.refusal(keyOf(53)), std::nullopt);
}

TEST(ProcessActionPolicy, ActsOnlyOnTheVeryProcess)
{
    const RawSample sample = sampleOf(machine());
    const ProcessActionPolicy policy{sample, 53, kMe};
    EXPECT_EQ(policy.refusal(ProcessKey{.pid = 14, .start = 15}), ActionRefusal::gone);
    EXPECT_EQ(policy.refusal(ProcessKey{.pid = 99, .start = 99}), ActionRefusal::gone);
    // Numbers that a signal would send to whole groups.
    for (const std::int32_t pid : {1, 0, -1, -14}) {
        EXPECT_EQ(policy.refusal(ProcessKey{.pid = pid, .start = 1}), ActionRefusal::system);
    }
}

TEST(ProcessActionPolicy, EndsAnApplicationWholeOrNotAtAll)
{
    using Keys = std::vector<ProcessKey>;
    const RawSample sample = sampleOf(machine());
    const ProcessActionPolicy policy{sample, 53, kMe};
    const ProcessKey gone{.pid = 14, .start = 15};
    EXPECT_EQ(policy.refusal(Keys{keyOf(14), keyOf(22)}), std::nullopt);
    EXPECT_EQ(policy.refusal(Keys{gone, keyOf(22)}), std::nullopt);
    EXPECT_EQ(policy.refusal(Keys{keyOf(22), gone}), std::nullopt);
    EXPECT_EQ(policy.refusal(Keys{gone, keyOf(22), keyOf(51)}), ActionRefusal::ourselves);
    EXPECT_EQ(policy.refusal(Keys{gone}), ActionRefusal::gone);
    EXPECT_EQ(policy.refusal(Keys{}), ActionRefusal::gone);
}

// A sample without origins, or without ourselves, must not let more pass than it knows of.
TEST(ProcessActionPolicy, StandsPoorSamples)
{
    RawSample sample = sampleOf(machine());
    sample.origins.clear();
    const ProcessActionPolicy policy{sample, 53, kMe};
    EXPECT_EQ(policy.refusal(keyOf(51)), ActionRefusal::ourselves);
    EXPECT_EQ(policy.refusal(keyOf(3)), ActionRefusal::otherUser);
    sample.processes[16].parentPID = 54; // a ring of two
    const ProcessActionPolicy ring{sample, 53, kMe};
    EXPECT_EQ(ring.refusal(keyOf(53)), ActionRefusal::ourselves);
    const ProcessActionPolicy stranger{sample, 77, kMe};
    EXPECT_EQ(stranger.refusal(keyOf(14)), std::nullopt);
}

} // namespace
