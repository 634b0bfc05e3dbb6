// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ListChange.h"

#include "KestCore/Tools/RecordList.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"

#include <QPointer>

namespace Velvetnook
{

void changeList(ApplicationModel &model, QObject *owner, std::string kind, ListChange change,
                ListAnswer answer)
{
    model.perform(
        [change = std::move(change), kind = std::move(kind),
         now = model.now()](KestCore::StateStore &store) -> Base::Result<Committed> {
            KestCore::RecordList list{store, kind, now};
            KEST_CHECK(change(list));
            KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
            return committedAll(std::move(snapshot));
        },
        [&model, guard = QPointer{owner},
         answer = std::move(answer)](const Base::Result<void> &result) {
            if (!guard) {
                return;
            }
            if (answer) {
                answer(result);
            } else if (!result) {
                model.say(engineText(result.error().message));
            }
        });
}

void changeListThen(ApplicationModel &model, QObject *owner, std::string kind,
                    ListChange change, std::function<void()> done)
{
    changeList(model, owner, std::move(kind), std::move(change),
               [&model, done = std::move(done)](const Base::Result<void> &result) {
                   if (result) {
                       done();
                   } else {
                       model.say(engineText(result.error().message));
                   }
               });
}

} // namespace Velvetnook
