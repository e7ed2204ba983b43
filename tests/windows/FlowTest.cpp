#include "Context.h"

namespace brimshade::windows {

using menubar::ExtraList;
using menubar::MenuExtra;

class Flow : public testing::Test, protected Context {
protected:
    QStringList tiles() // "relay stays"
    {
        QStringList result;
        for (int row = 0; row < flow.tiles()->rowCount(); ++row) {
            const auto at = [&](int role) { return flow.tiles()->data(flow.tiles()->index(row), role); };
            result << at(ExtraRows::ExtraIDRole).toString()
                    + (at(ChoiceTiles::HiddenRole).toBool() ? u" tucked"_s : u" stays"_s);
        }
        return result;
    }
};

TEST_F(Flow, LooksForThePermissionEverySecondOnTheSecondStepOnly)
{
    model.setTrusted(false);
    flow.setActive(true);
    accessibility.trusted = true;
    for (const int step : {0, 2, 3, 4}) {
        goTo(step);
        dispatch.pass(5);
    }
    EXPECT_EQ(accessibility.questions, 0);
    EXPECT_EQ(scans, 0);
    EXPECT_FALSE(model.trusted());

    while (flow.step() > 1)
        flow.back();
    accessibility.trusted = false;
    dispatch.pass(2.5);
    EXPECT_EQ(accessibility.questions, 2);
    EXPECT_EQ(flow.action(), OnboardingFlow::Skip);
    accessibility.trusted = true;
    dispatch.pass(0.4);
    EXPECT_EQ(scans, 0) << "too early";
    dispatch.pass(0.1);
    EXPECT_TRUE(model.trusted());
    EXPECT_EQ(flow.action(), OnboardingFlow::Continue);
    dispatch.pass(10);
    EXPECT_EQ(scans, 1);
    EXPECT_EQ(accessibility.questions, 3) << "nothing more is asked once it is granted";
}

TEST_F(Flow, RunsNoTimerWhileItsViewIsOffScreen)
{
    EXPECT_TRUE(dispatch.isIdle());
    flow.setActive(true);
    flow.setActive(true);
    EXPECT_FALSE(dispatch.isIdle());
    flow.setActive(false);
    EXPECT_TRUE(dispatch.isIdle());
    std::make_unique<OnboardingFlow>(model, permission, accessibility, dispatch, nullptr)->setActive(true);
    EXPECT_TRUE(dispatch.isIdle()) << "nor when it is gone";
}

TEST_F(Flow, SeedsChoicesAtTheStartAndForEveryNewItem)
{
    model.setExtras({extra(u"relay"_s, false), extra(u"ledger"_s, true)});
    const OnboardingFlow::Choices seeded{{u"relay"_s, false}, {u"ledger"_s, true}};
    EXPECT_EQ(flow.choices(), seeded);
    EXPECT_EQ(OnboardingFlow(model, permission, accessibility, dispatch, nullptr).choices(), seeded);

    flow.toggle(u"relay"_s);
    // A rescan: one new, one gone, and Relay found hidden and shown again.
    model.setExtras({extra(u"atlas"_s, true), extra(u"relay"_s, true)});
    model.setExtras({extra(u"atlas"_s, true), extra(u"relay"_s, false)});
    EXPECT_EQ(flow.choices(), (OnboardingFlow::Choices{{u"relay"_s, true}, {u"ledger"_s, true}, {u"atlas"_s, true}}));
    EXPECT_EQ(tiles(), (QStringList{u"atlas tucked"_s, u"relay tucked"_s}));
    EXPECT_EQ(flow.pendingCount(), 1) << "Relay, which is in the menu bar";
}

TEST_F(Flow, TogglesWhatCanMove)
{
    model.setExtras({extra(u"relay"_s, false), extra(u"ledger"_s, true), extra(u"clock"_s, false, false)});
    struct Case {
        QString id;
        QStringList tiles;
        int stay, tucked, pending;
    };
    const Case cases[]{
        {u"clock"_s, {u"relay stays"_s, u"ledger tucked"_s, u"clock stays"_s}, 2, 1, 0},
        {u"gone"_s, {u"relay stays"_s, u"ledger tucked"_s, u"clock stays"_s}, 2, 1, 0},
        {u"relay"_s, {u"relay tucked"_s, u"ledger tucked"_s, u"clock stays"_s}, 1, 2, 1},
        {u"ledger"_s, {u"relay tucked"_s, u"ledger stays"_s, u"clock stays"_s}, 2, 1, 2},
        {u"relay"_s, {u"relay stays"_s, u"ledger stays"_s, u"clock stays"_s}, 3, 0, 1},
    };
    int changes = 0;
    QObject::connect(&flow, &OnboardingFlow::choicesChanged, &flow, [&changes] { ++changes; });
    for (const Case &each : cases) {
        flow.toggle(each.id);
        EXPECT_EQ(tiles(), each.tiles) << qPrintable(each.id);
        EXPECT_EQ(flow.stayCount(), each.stay) << qPrintable(each.id);
        EXPECT_EQ(flow.tuckedCount(), each.tucked) << qPrintable(each.id);
        EXPECT_EQ(flow.pendingCount(), each.pending) << qPrintable(each.id);
    }
    EXPECT_EQ(changes, 3);
    goTo(4);
    flow.act();
    EXPECT_EQ(finished, (OnboardingFlow::Choices{{u"relay"_s, false}, {u"ledger"_s, false}, {u"clock"_s, false}}));
}

TEST_F(Flow, KeepsRowsOfItemsThatStay)
{
    struct Change {
        int removed = 0, inserted = 0, moved = 0, changed = 0;
        bool operator==(const Change &) const = default;
    };
    Change seen;
    auto *tiles = flow.tiles();
    QObject::connect(tiles, &ExtraRows::rowsRemoved, tiles, [&] { ++seen.removed; });
    QObject::connect(tiles, &ExtraRows::rowsInserted, tiles, [&] { ++seen.inserted; });
    QObject::connect(tiles, &ExtraRows::rowsMoved, tiles, [&] { ++seen.moved; });
    QObject::connect(tiles, &ExtraRows::dataChanged, tiles, [&] { ++seen.changed; });
    QObject::connect(tiles, &ExtraRows::modelReset, tiles, [] { FAIL() << "a reset loses every row"; });
    struct Case {
        ExtraList extras;
        Change expected;
    };
    const MenuExtra a = extra(u"a"_s), b = extra(u"b"_s), c = extra(u"c"_s);
    MenuExtra renamed = b;
    renamed.name = u"B"_s;
    const Case cases[]{
        {{a, b, c}, {0, 3, 0, 0}}, {{a, b, c}, {0, 0, 0, 0}},    {{c, a, b}, {0, 0, 1, 0}},
        {{c, b}, {1, 0, 0, 0}},    {{c, renamed}, {0, 0, 0, 1}}, {{b, a, c}, {0, 1, 1, 1}},
    };
    for (const Case &each : cases) {
        seen = {};
        model.setExtras(each.extras);
        EXPECT_EQ(seen, each.expected) << &each - cases;
        QStringList ids, rows;
        for (const MenuExtra &extra : each.extras)
            ids << extra.id;
        for (int row = 0; row < tiles->rowCount(); ++row)
            rows << tiles->data(tiles->index(row), ExtraRows::ExtraIDRole).toString();
        EXPECT_EQ(rows, ids);
    }
}

} // namespace brimshade::windows
