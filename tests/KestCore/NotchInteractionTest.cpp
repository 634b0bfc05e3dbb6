// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/NotchInteraction.h"

#include "KestCore/Registry/Availability.h"
#include "KestCore/Surfaces/CompanionState.h"
#include "KestCore/Surfaces/MessageAnimation.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

namespace KestCore
{

// gtest finds it by this name.
// NOLINTNEXTLINE(misc-use-internal-linkage,readability-identifier-naming)
void PrintTo(const NotchInteraction &notch, std::ostream *out)
{
    *out << Base::textOf(notch.state) << " deadline "
         << (notch.deadline ? std::to_string(*notch.deadline) : "none")
         << (notch.keyboardSticky ? " sticky" : "") << (notch.rearm ? " rearm" : "");
}

} // namespace KestCore

namespace KestCoreTests
{

using namespace KestCore;
using enum InteractionState;

namespace
{

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Event = std::function<void(NotchInteraction &)>;

// All at time 10 with a delay of 0.25 seconds asked for.
Event pointer(bool inside, bool pressed)
{
    return [=](NotchInteraction &n) { n.pointer(inside, pressed, 10, 0.25); };
}
const Event kOver = pointer(true, false);
const Event kAway = pointer(false, false);
const Event kPress = pointer(true, true);
const Event kDrag = pointer(false, true);
const Event kTick = [](NotchInteraction &n) { n.tick(true, 10); };
const Event kTickToHidden = [](NotchInteraction &n) { n.tick(false, 10); };

struct Row {
    const char *name;
    NotchInteraction from;
    Event event;
    NotchInteraction to;
};

void expectRows(std::initializer_list<Row> rows)
{
    for (const auto &[name, from, event, to] : rows) {
        NotchInteraction notch = from;
        event(notch);
        EXPECT_EQ(notch, to) << name;
    }
}

template <class E>
std::string wordsOf()
{
    std::string words;
    for (const auto &[value, word] : enumTexts(Base::Of<E>{})) {
        words += (words.empty() ? "" : " ") + std::string{word};
    }
    return words;
}

} // namespace

// A row is state, deadline, sticky, rearm.
TEST(NotchInteraction, OpensUnderAPointerThatStays)
{
    expectRows({
        {"hidden", {hidden, {}, false, true}, kOver, {hoverOpening, 10.25, false, true}},
        {"compact", {compact, {}, false, true}, kOver, {hoverOpening, 10.25, false, true}},
        {"spent", {compact, {}, false, false}, kOver, {compact, {}, false, false}},
        {"early", {hoverOpening, 10.1, false, true}, kOver, {hoverOpening, 10.1, false, true}},
        {"due", {hoverOpening, 10.0, true, true}, kOver, {expanded, {}, false, false}},
        {"left", {hoverOpening, 9.0, false, true}, kAway, {compact, {}, false, true}},
        {"press", {hoverOpening, 9.0, false, true}, kPress, {compact, {}, false, false}},
        {"tick", {hoverOpening, 9.0, false, true}, kTick, {hoverOpening, 9.0, false, true}},
        {"rearm", {hidden, {}, false, false}, kAway, {hidden, {}, false, true}},
        {"press at rest", {compact, {}, false, true}, kPress, {compact, {}, false, true}},
        {"outside press", {compact, {}, false, false}, kDrag, {compact, {}, false, true}},
        {"cancelled outside",
         {hoverOpening, 9.0, false, true},
         kDrag,
         {compact, {}, false, false}},
    });
}

TEST(NotchInteraction, StaysOpenWhileItIsUsedAndClosesAfterAGrace)
{
    expectRows({
        {"stays", {expanded, {}, false, false}, kOver, {expanded, {}, false, false}},
        {"press", {expanded, {}, true, false}, kPress, {interacting, {}, true, false}},
        {"leaves", {expanded, {}, false, false}, kAway, {closing, 10.35, false, true}},
        {"sticky", {expanded, {}, true, false}, kAway, {expanded, {}, true, true}},
        {"drag", {interacting, {}, false, false}, kDrag, {interacting, {}, false, true}},
        {"release", {interacting, {}, false, false}, kOver, {expanded, {}, false, false}},
        {"release outside",
         {interacting, {}, false, false},
         kAway,
         {closing, 10.35, false, true}},
        {"sticky release", {interacting, {}, true, false}, kAway, {expanded, {}, true, true}},
        {"back", {closing, 10.1, false, true}, kOver, {expanded, {}, false, true}},
        {"still away", {closing, 10.1, false, true}, kAway, {closing, 10.1, false, true}},
        {"caught", {closing, 10.1, false, true}, kPress, {interacting, {}, false, true}},
        {"grace", {closing, 10.1, false, true}, kTick, {closing, 10.1, false, true}},
        {"closed", {closing, 10.0, false, true}, kTick, {compact, {}, false, false}},
        {"hidden", {closing, 9.0, false, true}, kTickToHidden, {hidden, {}, false, false}},
        {"idle tick", {expanded, {}, true, false}, kTick, {expanded, {}, true, false}},
    });
}

TEST(NotchInteraction, ObeysCommandsInEveryState)
{
    for (const auto &[state, word] : enumTexts(Base::Of<InteractionState>{})) {
        SCOPED_TRACE(word);
        const NotchInteraction from{state, 3.0, true, true};
        expectRows({
            {"open", from, [](auto &n) { n.open(false); }, {expanded, {}, false, false}},
            {"sticky", from, [](auto &n) { n.open(true); }, {expanded, {}, true, false}},
            {"off", from, [](auto &n) { n.suppress(); }, {suppressed, {}, false, true}},
            {"strip", from, [](auto &n) { n.reset(true); }, {compact, {}, false, false}},
            {"hide", from, [](auto &n) { n.reset(false); }, {hidden, {}, false, false}},
        });
    }
    const NotchInteraction off{suppressed, {}, false, false};
    for (const Event &event : {kOver, kAway, kPress, kDrag, kTick}) {
        expectRows({{"suppressed", off, event, off}});
    }
}

TEST(NotchInteraction, BoundsTheOpenDelay)
{
    struct Case {
        double asked;
        double used;
    };
    for (const auto &[asked, used] :
         {Case{0, 0.1}, Case{-5, 0.1}, Case{0.1, 0.1}, Case{0.25, 0.25}, Case{1.5, 1.5},
          Case{10, 1.5}, Case{kNaN, 0.18}, Case{kInfinity, 0.18}, Case{-kInfinity, 0.18}}) {
        NotchInteraction notch;
        notch.pointer(true, false, 0, asked);
        EXPECT_EQ(notch, (NotchInteraction{hoverOpening, used, false, true})) << asked;
    }
}

TEST(NotchInteraction, DoesNotReopenUnderAPointerThatNeverLeft)
{
    NotchInteraction notch;
    notch.pointer(true, false, 0, 0.25);
    notch.pointer(true, false, 0.2, 0.25);
    EXPECT_EQ(notch.state, hoverOpening);
    notch.pointer(true, false, 0.25, 0.25);
    EXPECT_EQ(notch.state, expanded);
    notch.pointer(false, false, 1, 0.25);
    notch.tick(true, 1.35);
    ASSERT_EQ(notch.state, compact);
    notch.pointer(true, false, 2, 0.25);
    EXPECT_EQ(notch.state, compact);
    notch.pointer(false, false, 3, 0.25);
    notch.pointer(true, false, 4, 0.25);
    EXPECT_EQ(notch.state, hoverOpening);
}

RC_GTEST_PROP(NotchInteraction, KeepsItsPromisesUnderAnyEvents, ())
{
    NotchInteraction notch;
    double now = 0;
    for (const int event : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 12))) {
        const NotchInteraction before = notch;
        now += *rc::gen::element(0.0, 0.05, 0.2, 0.4);
        const bool flag = *rc::gen::arbitrary<bool>();
        switch (event) {
        case 0:
            notch.open(flag);
            break;
        case 1:
            notch.suppress();
            break;
        case 2:
            notch.reset(flag);
            break;
        case 3:
        case 4:
            notch.tick(flag, now);
            break;
        case 5:
        case 6:
            notch.pointer(flag, true, now, 0.2);
            break;
        default:
            notch.pointer(flag, false, now, 0.2);
            break;
        }
        const bool isDelayed = notch.state == hoverOpening || notch.state == closing;
        RC_ASSERT(notch.deadline.has_value() == isDelayed);
        RC_ASSERT(notch.deadline.value_or(now) <= now + 0.35);
        const bool isOpen = notch.state == expanded || notch.state == interacting;
        RC_ASSERT(isOpen >= notch.keyboardSticky);
        const bool isCommand = event <= 2;
        RC_ASSERT((before.state != suppressed || isCommand || notch == before));
    }
}

// These words are in files and on the command line, so they never change.
TEST(StoredWords, AreWhatTheyWere)
{
    EXPECT_EQ(wordsOf<InteractionState>(),
              "hidden compact hoverOpening expanded interacting closing suppressed");
    EXPECT_EQ(wordsOf<QuickSurface>(), "notch dock command");
    EXPECT_EQ(wordsOf<MessageAnimation>(), "scroll bounce wave sparkle pulse rainbow");
    EXPECT_EQ(wordsOf<CompanionPlacement>(), "notch side both");
    EXPECT_EQ(wordsOf<DockItemKind>(), "app link file tool divider");
    EXPECT_EQ(wordsOf<ItemLifetime>(), "permanent hour session");
    EXPECT_EQ(wordsOf<ShortcutModifier>(), "control option command shift");
    EXPECT_EQ(wordsOf<Availability>(), "unconfigured loading ready empty stale offline "
                                       "permissionDenied rateLimited error");
}

} // namespace KestCoreTests
