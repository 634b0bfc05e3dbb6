// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/ClipboardViewModel.h"
#include "Velvetnook/Platform/Linux/XClipboardWatch.h"
#include "tests/Velvetnook/CopyingPeer.h"
#include "tests/Velvetnook/RunningModel.h"

#include <gmock/gmock.h>

#include <atomic>
#include <map>
#include <mutex>

namespace Velvetnook
{

// A keyring in memory, which may be locked, or not there at all.
struct TestKeyring {
    std::mutex mutex{};
    std::map<std::string, Base::SecretBytes> kept{};
    std::optional<Base::SecretFailure::Kind> failure{};
    bool unlocksWhenAsked = false;
    std::atomic<int> opened = 0;

    class Store : public Base::SecretStore
    {
    public:
        explicit Store(TestKeyring &keyring) : m_keyring{keyring} {}
        Base::SecretResult<std::optional<Base::SecretBytes>>
        read(std::string_view account) override
        {
            const std::scoped_lock lock{m_keyring.mutex};
            const auto found = m_keyring.kept.find(std::string{account});
            return found == m_keyring.kept.end() ? std::nullopt : std::optional{found->second};
        }
        Base::SecretResult<> write(std::string_view account,
                                   std::span<const std::uint8_t> secret) override
        {
            const std::scoped_lock lock{m_keyring.mutex};
            m_keyring.kept[std::string{account}] = {secret.begin(), secret.end()};
            return {};
        }
        Base::SecretResult<> erase(std::string_view) override { return {}; }

    private:
        TestKeyring &m_keyring;
    };

    ClipboardDesktop::Keyring open(bool mayAsk)
    {
        const std::scoped_lock lock{mutex};
        ++opened;
        if (mayAsk && unlocksWhenAsked) {
            failure.reset();
        }
        if (failure) {
            return std::unexpected(
                Base::SecretFailure{.kind = *failure, .message = "The keyring says no"});
        }
        return std::make_unique<Store>(*this);
    }
};

// The clipboard tool over a real store and a real X server.
class ClipboardLiveTest : public testing::Test
{
protected:
    ClipboardLiveTest()
    {
        desktop.watch = &XClipboardWatch::begin;
        desktop.openKeyring = [this](bool mayAsk, const std::stop_token &) {
            return keyring.open(mayAsk);
        };
        begin();
    }
    void begin()
    {
        tool = std::make_unique<ClipboardViewModel>(running.model(), running.formatting());
        tool->setDesktop(desktop);
        tool->setShown(true);
    }
    bool shows(const std::vector<std::string> &titles)
    {
        return RunningModel::waitUntil([&] { return shown() == titles; });
    }
    std::vector<std::string> shown() const
    {
        std::vector<std::string> titles;
        const QAbstractItemModel *list = tool->list();
        for (int row = 0; row < list->rowCount(); ++row) {
            titles.push_back(
                list->index(row, 0).data(ClipboardList::title).toString().toStdString());
        }
        return titles;
    }
    QString idOf(int row) const
    {
        return tool->list()->index(row, 0).data(ClipboardList::entryId).toString();
    }
    // What is copied after this was looked at, so that which came before was too.
    void copyLast(const std::string &text)
    {
        peer.copyText(text);
        EXPECT_TRUE(RunningModel::waitUntil([&] {
            const auto titles = shown();
            return std::ranges::find(titles, text) != titles.end();
        })) << text;
    }

    RunningModel running{[](KestCore::NativeState &state) {
        state.enabled.emplace_back("clipboard");
        state.settings["clipboard.enabled"] = "true";
        state.settings["clipboard.exclusions"] = "Vault";
    }};
    TestKeyring keyring;
    ClipboardDesktop desktop;
    CopyingPeer peer{"Writer"};
    std::unique_ptr<ClipboardViewModel> tool;
};

} // namespace Velvetnook
