// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/CounterSteps.h"

#include "Velvetnook/Application/ApplicationModel.h"

#include <algorithm>
#include <utility>

namespace Velvetnook
{

using KestCore::Phrase;

namespace
{

Result<Committed> applyTo(KestCore::StateStore &store, const KestCore::CountAction &action,
                          Base::Instant now, bool &reached)
{
    auto devotional = store.state().devotional;
    KEST_TRY(reached, KestCore::apply(action, now, devotional));
    if (devotional == store.state().devotional) {
        return Committed{};
    }
    KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
        state.devotional = std::move(devotional);
        return {};
    }));
    return Committed{.state = store.state(), .companion = {}, .records = {}};
}

std::string idAfter(std::string_view id, int places)
{
    const auto &all = KestCore::contentCatalogue().dhikr;
    const auto found = std::ranges::find(all, id, &Phrase::id);
    const auto size = std::ssize(all);
    const auto at = found == all.end() ? 0 : std::distance(all.begin(), found);
    return all.at(static_cast<std::size_t>((at + places % size + size) % size)).id;
}

} // namespace

void stepCounter(ApplicationModel &model, const KestCore::CountAction &action,
                 StepAnswer answer)
{
    // The store's thread writes it before the answer reads it here.
    const auto reached = std::make_shared<bool>(false);
    model.perform(
        [action, reached, now = model.now()](KestCore::StateStore &store) {
            return applyTo(store, action, now, *reached);
        },
        [answer = std::move(answer), reached](Result<void> done) mutable {
            answer(done ? Result<bool>{*reached} : std::unexpected(done.error()));
        });
}

void selectPhrase(ApplicationModel &model, std::string_view id)
{
    model.changeState([id = std::string{id}](KestCore::NativeState &state) -> Result<void> {
        state.devotional.selectedDhikrId = id;
        return {};
    });
}

void selectNextPhrase(ApplicationModel &model, int places)
{
    model.changeState([places](KestCore::NativeState &state) -> Result<void> {
        std::string &selected = state.devotional.selectedDhikrId;
        selected = idAfter(selected, places);
        return {};
    });
}

const Phrase &phraseOf(std::string_view id)
{
    const auto &all = KestCore::contentCatalogue().dhikr;
    return KestCore::phraseById(id, all, all.front());
}

const Phrase &selectedPhrase(const KestCore::NativeState &state)
{
    return phraseOf(state.devotional.selectedDhikrId);
}

QString phraseTitle(const Phrase &phrase)
{
    QString title = QString::fromStdString(phrase.transliteration);
    for (QChar &letter : title) {
        // Signs such as the one of ayn stand before the first letter.
        if (letter.isLetter() && letter.toUpper() != letter) {
            letter = letter.toUpper();
            break;
        }
        if (letter.isUpper()) {
            break;
        }
    }
    return title;
}

void toggleFavouritePhrase(ApplicationModel &model, const std::string &id)
{
    model.changeState([id](KestCore::NativeState &state) -> Result<void> {
        auto &favourites = state.devotional.favorites;
        if (std::erase(favourites, id) == 0) {
            favourites.push_back(id);
        }
        return {};
    });
}

} // namespace Velvetnook
