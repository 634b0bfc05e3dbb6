// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Content.h"
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Models/NativeState.h"

#include <functional>
#include <string>
#include <string_view>

class QString;

namespace Velvetnook
{

class ApplicationModel;

// Whether the step reached the target for the first time in its session.
using StepAnswer = std::move_only_function<void(Base::Result<bool>)>;

// One step of the counter, committed before it shows. A step that changes nothing, such as
// counting while paused, leaves the store alone. Steps are done in the order of the calls.
void stepCounter(ApplicationModel &model, const KestCore::CountAction &action,
                 StepAnswer answer);

// Chooses what is counted: `id`, or the phrase that many places after the present one, round
// the catalogue.
void selectPhrase(ApplicationModel &model, std::string_view id);
void selectNextPhrase(ApplicationModel &model, int places);

// Adds the phrase to the favourites, or takes it from them.
void toggleFavouritePhrase(ApplicationModel &model, const std::string &id);

// The phrase that is being counted, and any other by its id.
const KestCore::Phrase &selectedPhrase(const KestCore::NativeState &state);
const KestCore::Phrase &phraseOf(std::string_view id);

// The transliteration as a title, with a capital at its head.
QString phraseTitle(const KestCore::Phrase &phrase);

} // namespace Velvetnook
