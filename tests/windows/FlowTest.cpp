#include "Context.h"

#include <QAbstractItemModelTester>

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
        dispatch.advance(5);
    }
    EXPECT_EQ(accessibility.questions, 0);
    EXPECT_EQ(scans, 0);
    EXPECT_FALSE(model.trusted());

    while (flow.step() > 1)
        flow.back();
    accessibility.trusted = false;
    dispatch.advance(2.5);
    EXPECT_EQ(accessibility.questions, 2);
    EXPECT_EQ(flow.action(), OnboardingFlow::Skip);
    accessibility.trusted = true;
    dispatch.advance(0.4);
    EXPECT_EQ(scans, 0) << "too early";
    dispatch.advance(0.1);
    EXPECT_TRUE(model.trusted());
    EXPECT_EQ(flow.action(), OnboardingFlow::Continue);
    dispatch.advance(10);
    EXPECT_EQ(scans, 1);
    EXPECT_EQ(accessibility.questions, 3) << "nothing more is asked once it is granted";
}

TEST_F(Flow, RunsNoTimerWhileItsViewIsOffScreen)
{
    model.setTrusted(false);
    goTo(1);
    EXPECT_FALSE(isLooking());
    flow.setActive(true);
    flow.setActive(true);
    EXPECT_TRUE(isLooking());
    flow.setActive(false);
    EXPECT_FALSE(isLooking());
}

TEST_F(Flow, SeedsChoicesAtTheStartAndForEveryNewItem)
{
    model.setExtras({extra(u"relay"_s, false), extra(u"ledger"_s, true)});
    const ItemChoices seeded{{u"relay"_s, false}, {u"ledger"_s, true}};
    EXPECT_EQ(flow.choices(), seeded);
    EXPECT_EQ(OnboardingFlow(model, permission, accessibility, dispatch, nullptr).choices(), seeded);

    flow.toggle(u"relay"_s);
    // Rescans: one item is new, one is gone, and Relay is found hidden, then shown again.
    model.setExtras({extra(u"atlas"_s, true), extra(u"relay"_s, true)});
    model.setExtras({extra(u"atlas"_s, true), extra(u"relay"_s, false)});
    EXPECT_EQ(flow.choices(), (ItemChoices{{u"relay"_s, true}, {u"ledger"_s, true}, {u"atlas"_s, true}}));
    EXPECT_EQ(tiles(), (QStringList{u"atlas tucked"_s, u"relay tucked"_s}));
    EXPECT_EQ(flow.pendingCount(), 1) << "Relay, which is in the menu bar";
}

TEST_F(Flow, TogglesWhatCanMove)
{
    model.setExtras({extra(u"relay"_s, false), extra(u"ledger"_s, true), extra(u"clock"_s, false, false)});
    const std::tuple<QString, QStringList, int, int, int> cases[]{
        {u"clock"_s, {u"relay stays"_s, u"ledger tucked"_s, u"clock stays"_s}, 2, 1, 0},
        {u"gone"_s, {u"relay stays"_s, u"ledger tucked"_s, u"clock stays"_s}, 2, 1, 0},
        {u"relay"_s, {u"relay tucked"_s, u"ledger tucked"_s, u"clock stays"_s}, 1, 2, 1},
        {u"ledger"_s, {u"relay tucked"_s, u"ledger stays"_s, u"clock stays"_s}, 2, 1, 2},
        {u"relay"_s, {u"relay stays"_s, u"ledger stays"_s, u"clock stays"_s}, 3, 0, 1},
    };
    int changes = 0;
    QObject::connect(&flow, &OnboardingFlow::choicesChanged, &flow, [&changes] { ++changes; });
    for (const auto &[id, expected, stay, tucked, pending] : cases) {
        flow.toggle(id);
        EXPECT_EQ(tiles(), expected) << qPrintable(id);
        EXPECT_EQ(flow.stayCount(), stay) << qPrintable(id);
        EXPECT_EQ(flow.tuckedCount(), tucked) << qPrintable(id);
        EXPECT_EQ(flow.pendingCount(), pending) << qPrintable(id);
    }
    EXPECT_EQ(changes, 3);
    goTo(4);
    flow.act();
    EXPECT_EQ(finished, (ItemChoices{{u"relay"_s, false}, {u"ledger"_s, false}, {u"clock"_s, false}}));
}

TEST_F(Flow, KeepsRowsOfItemsThatStay)
{
    auto *tiles = flow.tiles();
    const QAbstractItemModelTester tester(tiles);
    const MenuExtra a = extra(u"a"_s), b = extra(u"b"_s), c = extra(u"c"_s);
    model.setExtras({a, b, c});
    const QPersistentModelIndex kept = tiles->index(1);
    int changes = 0;
    QObject::connect(tiles, &ExtraRows::dataChanged, tiles, [&] { ++changes; });
    for (const ExtraList &extras : {ExtraList{c, a, b}, ExtraList{c, b}, ExtraList{b, a, c}}) {
        model.setExtras(extras);
        QStringList expected, rows;
        for (int row = 0; row < tiles->rowCount(); ++row)
            rows << tiles->data(tiles->index(row), ExtraRows::ExtraIDRole).toString();
        for (const MenuExtra &extra : extras)
            expected << extra.id;
        EXPECT_EQ(rows, expected);
        EXPECT_EQ(kept.data(ExtraRows::ExtraIDRole), u"b"_s);
    }
    EXPECT_EQ(changes, 0);
    MenuExtra renamed = b;
    renamed.name = u"B"_s;
    model.setExtras({renamed, a, c});
    EXPECT_EQ(changes, 1);
}

} // namespace brimshade::windows
