#include "windows/flow/ItemRows.h"
#include "Context.h"

namespace brimshade::windows {

class Rows : public testing::Test, protected Context {
protected:
    ItemRows rows;
    QStringList log;

    Rows()
    {
        menubar::ExtraList extras{extra(u"relay"_s), extra(u"ledger"_s, true), extra(u"clock"_s, false, false)};
        extras[1].detail = u"balance"_s;
        extras[2].symbol = u"clock.fill"_s;
        model.setExtras(extras);
        rows.setModel(&model);
        model.onSetHidden = [this](const menubar::MenuExtra &extra, bool hidden) {
            log << extra.id + (hidden ? u" hide"_s : u" show"_s);
        };
    }
    QVariant at(int row, int role) const { return rows.data(rows.index(row), role); }
    QString control(int row) const
    {
        switch (at(row, ItemRows::ControlRole).value<ItemRows::Control>()) {
        case ItemRows::Moving:
            return u"spinner"_s;
        case ItemRows::Pinned:
            return u"pinned"_s;
        case ItemRows::Movable:
            return (at(row, ItemRows::InMenuBarRole).toBool() ? u"on"_s : u"off"_s)
                + (at(row, ItemRows::SwitchEnabledRole).toBool() ? u""_s : u" disabled"_s);
        }
        return {};
    }
};

TEST_F(Rows, ShowTheControlThatFits)
{
    const std::tuple<QString, QStringList> cases[] = {
        {{}, {u"on"_s, u"off"_s, u"pinned"_s}},
        {u"ledger"_s, {u"on disabled"_s, u"spinner"_s, u"pinned"_s}},
        {u"clock"_s, {u"on disabled"_s, u"off disabled"_s, u"spinner"_s}},
        {u"onboarding"_s, {u"on disabled"_s, u"off disabled"_s, u"pinned"_s}},
        {{}, {u"on"_s, u"off"_s, u"pinned"_s}},
    };
    int told = 0;
    QObject::connect(&rows, &ItemRows::dataChanged, &rows, [&told] { ++told; });
    for (const auto &[moving, controls] : cases) {
        model.setMovingID(moving);
        EXPECT_EQ((QStringList{control(0), control(1), control(2)}), controls) << qPrintable(moving);
    }
    EXPECT_GE(told, 4) << "views must hear of each change";
}

TEST_F(Rows, NameADetailOnlyWhereItSaysMoreAndASymbolAlways)
{
    EXPECT_EQ(at(0, ItemRows::DetailRole), QString());
    EXPECT_EQ(at(1, ItemRows::DetailRole), u"balance"_s);
    EXPECT_EQ(at(0, ItemRows::SymbolRole), u"circle"_s);
    EXPECT_EQ(at(2, ItemRows::SymbolRole), u"clock.fill"_s);
}

TEST_F(Rows, AskForTheMoveOfWhatTheyShow)
{
    rows.setInMenuBar(u"relay"_s, false);
    rows.setInMenuBar(u"ledger"_s, true);
    rows.setInMenuBar(u"gone"_s, true);
    EXPECT_EQ(log, (QStringList{u"relay hide"_s, u"ledger show"_s}));
    EXPECT_EQ(control(0), u"on"_s) << "the row waits for the scan that follows the move";
}

TEST_F(Rows, AskForTheItemTheyShowedEvenIfItVanishesMeanwhile)
{
    model.onSetHidden = [this](const menubar::MenuExtra &extra, bool) {
        model.setExtras({});
        log << extra.id;
    };
    rows.setInMenuBar(u"relay"_s, false);
    EXPECT_EQ(log, QStringList{u"relay"_s});
}

} // namespace brimshade::windows
