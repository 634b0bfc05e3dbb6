// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/UpdateClient.h"

#include "Base/File.h"
#include "Base/Text.h"
#include "KestCore/Clients/ServiceAddress.h"
#include "KestCore/Store/StoreLocation.h"

#include <fmt/format.h>

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr const char *kAllowed = "update.allowed";
constexpr const char *kCheckedAt = "update.checkedAt";
constexpr const char *kFeed = "update.feed";
constexpr Base::Seconds kDay{86'400};
constexpr Base::Seconds kTimeout{30};
constexpr int kFound = 200;

std::unexpected<KestError> unavailable(const char *message)
{
    return std::unexpected(KestError::unavailable(message));
}

std::optional<Base::Instant> checkedAt(const Settings &settings)
{
    const auto found = settings.find(kCheckedAt);
    const auto at = found == settings.end()
                        ? Result<Base::Instant>{std::unexpected(KestError{})}
                        : Base::fromIso8601(found->second);
    return at ? std::optional{*at} : std::nullopt;
}

std::optional<VerifiedFeed> keptFeed(const UpdateBuild &build, const Settings &settings)
{
    const auto found = settings.find(kFeed);
    if (found == settings.end()) {
        return std::nullopt;
    }
    auto feed = readUpdateFeed(found->second, build.publicKey);
    return feed && feed->offer.channel == build.channel ? std::optional{*std::move(feed)}
                                                        : std::nullopt;
}

} // namespace

UpdateBuild thisBuild(std::string version)
{
    return {.version = std::move(version),
            .channel = channelOf(bundleIdentifier()),
            .publicKey = KEST_UPDATE_KEY,
            .address = KEST_UPDATE_ADDRESS};
}

bool isPackaged(const std::filesystem::path &program, const std::filesystem::path &lists)
{
    std::error_code error;
    const auto prefix = program.parent_path().parent_path();
    if (std::filesystem::exists(prefix / "share" / "velvetnook" / "packaged", error)) {
        return true;
    }
    constexpr std::size_t kLargestList = 10'000'000;
    const auto list = Base::readFile(lists / "velvetnook.list", kLargestList);
    if (!list) {
        return false;
    }
    const auto files = Base::split(*list, '\n');
    return std::ranges::find(files, program.string()) != files.end();
}

Result<void> mayCheck(const UpdateBuild &build, const Settings &settings, bool isPackaged)
{
    if (isPackaged) {
        return unavailable("The system's package manager installed Velvetnook and updates it");
    }
    if (build.channel == UpdateChannel::development) {
        return unavailable("A development build does not look for updates");
    }
    if (build.publicKey.empty() || !isServiceAddress(build.address)) {
        return unavailable("This build has no updates");
    }
    if (!settingIsTrue(settings, kAllowed)) {
        return unavailable("Looking for updates is off; kest settings set update.allowed true "
                           "allows it");
    }
    return {};
}

UpdateKnowledge knownUpdate(const UpdateBuild &build, const Settings &settings)
{
    UpdateKnowledge known{.checkedAt = checkedAt(settings)};
    const auto own = semanticVersion(build.version);
    if (auto feed = keptFeed(build, settings); feed && own && feed->version > *own) {
        known.offer = std::move(feed->offer);
    }
    return known;
}

bool isCheckDue(const Settings &settings, Base::Instant now)
{
    const auto last = checkedAt(settings);
    return !last || now < *last || now - *last >= kDay;
}

Result<void> checkForUpdate(Base::HttpTransport &transport, const UpdateBuild &build,
                            Settings &settings, Base::Instant now, const std::stop_token &stop)
{
    KEST_TRY(settings[kCheckedAt], Base::toIso8601(now));
    const auto response = transport.get(
        {.url = fmt::format("{}/{}.feed", build.address, Base::textOf(build.channel)),
         .headers = {{.name = "User-Agent", .value = "Velvetnook/" + build.version}},
         .timeout = kTimeout,
         .mostBytes = kLargestFeed},
        stop);
    if (!response || response->status != kFound) {
        return unavailable("The server of updates did not answer. Please try again tomorrow.");
    }
    KEST_TRY(const VerifiedFeed feed, readUpdateFeed(response->body, build.publicKey));
    if (feed.offer.channel != build.channel || feed.published > now + kDay) {
        return std::unexpected(KestError::invalidData("The feed is not meant for this build"));
    }
    const auto before = keptFeed(build, settings);
    if (before && feed.published < before->published) {
        return std::unexpected(
            KestError::invalidData("The feed is older than one that was seen already"));
    }
    settings[kFeed] = response->body;
    return {};
}

} // namespace KestCore
