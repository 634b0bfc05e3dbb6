// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <functional>
#include <string>

class QObject;

namespace KestCore
{
class RecordList;
} // namespace KestCore

namespace Velvetnook
{

class ApplicationModel;

using ListChange = std::function<Base::Result<void>(KestCore::RecordList &)>;
using ListAnswer = std::function<void(const Base::Result<void> &)>;

// Changes the records of one kind in one durable step, on the store's thread. The answer comes
// on the main thread, unless `owner` is gone; without one, a refusal is told to the user.
void changeList(ApplicationModel &model, QObject *owner, std::string kind, ListChange change,
                ListAnswer answer = {});
// The same, with something to be done once it has gone well.
void changeListThen(ApplicationModel &model, QObject *owner, std::string kind,
                    ListChange change, std::function<void()> done);

} // namespace Velvetnook
