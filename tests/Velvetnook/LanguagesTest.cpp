// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Languages.h"

#include "RunningModel.h"

#include <QSignalSpy>

namespace
{

// What a view model that words anew on a change of the state must find.
TEST(Languages, ChangeTheTextsBeforeTheViewModelsWordAnew)
{
    RunningModel running;
    const auto choose = [&](const char *language) {
        running.change([&](KestCore::NativeState &state) {
            state.settings["appearance.language"] = language;
        });
    };
    choose("en");
    const Velvetnook::Languages languages{running.model(), running.formatting()};
    QSignalSpy changed{&languages, &Velvetnook::Languages::changed};
    QString worded;
    QObject viewModel;
    QObject::connect(&running.model(), &Velvetnook::ApplicationModel::stateChanged, &viewModel,
                     [&] { worded = running.formatting().remaining(120); });
    choose("ar");
    EXPECT_EQ(worded, QStringLiteral("٢ د"));
    EXPECT_EQ(changed.count(), 1);
    running.change([](KestCore::NativeState &state) { state.settings["notch.size"] = "mini"; });
    EXPECT_EQ(changed.count(), 1) << "only another language is a change";
    choose("en");
    EXPECT_EQ(worded, QStringLiteral("2 min"));
    EXPECT_EQ(changed.count(), 2);
}

} // namespace
