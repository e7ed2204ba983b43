#include "model/TileActions.h"
#include "ModelContext.h"
#include "platform/HotkeyCenter.h"
#include "platform/KeyCodes.h"

namespace brimshade::model::tests {

struct Tile : testing::Test, ModelContext {
    TileActions actions{model(), menus, &itemServices};

    Tile()
    {
        model().setExtras(items(1, 1));
        model().onSelect = [this](const MenuExtra &extra) { journal << u"select "_s + extra.id; };
        model().onSetHidden = [this](const MenuExtra &extra, bool hidden) {
            journal << u"%1 %2"_s.arg(hidden ? u"hide"_s : u"show"_s, extra.id);
        };
        model().onActivate = [this](const MenuExtra &extra) { journal << u"activate "_s + extra.id; };
    }
};

TEST_F(Tile, OpensAndMovesItsItem)
{
    const std::tuple<QString, QString, QString> cases[] = {{u"v0"_s, u"menu Open,Hide from Menu Bar"_s, u"hide v0"_s},
                                                           {u"h0"_s, u"menu Open,Show in Menu Bar"_s, u"show h0"_s}};
    for (const auto &[id, opened, effect] : cases) {
        journal.clear();
        actions.open(id);
        actions.showMenu(id);
        menus.menu.items.at(0).action();
        menus.menu.items.at(1).action();
        const QString select = u"select "_s + id;
        EXPECT_EQ(journal, (QStringList{select, opened, select, effect}));
    }
}

TEST_F(Tile, OffersWhatItsItemDoesBesidesShowingItsMenu)
{
    itemServices.offered.canBeActivated = true;
    actions.showMenu(u"v0"_s);
    menus.menu.items.at(0).action();
    actions.activateSecondary(u"v0"_s);
    actions.scroll(u"v0"_s, {0, -120});
    actions.scroll(u"gone"_s, {0, -120});
    EXPECT_EQ(journal,
              (QStringList{u"menu Activate,Open,Hide from Menu Bar"_s, u"activate v0"_s, u"secondary"_s,
                           u"scroll 0 -120"_s}));
}

TEST_F(Tile, ShowsAndChangesTheShortcutOfAnItemThatIsKnownByWhatItIs)
{
    model().onRecordShortcut = [this](const MenuExtra &extra) { journal << u"record "_s + extra.id; };
    model().onRemoveShortcut = [this](const MenuExtra &extra) { journal << u"remove "_s + extra.id; };
    itemServices.known = u"clip"_s;
    actions.showMenu(u"v0"_s);
    EXPECT_EQ(menus.menu.items.at(0).shortcut, QString());
    menus.menu.items.at(3).action();
    model().itemShortcuts().set({u"clip"_s, u"Clip"_s, {platform::kVK_ANSI_K, platform::kCarbonControl}});
    EXPECT_EQ(journal, (QStringList{u"menu Open,Hide from Menu Bar,,Set Shortcut…"_s, u"record v0"_s}));
    journal.clear();
    actions.showMenu(u"v0"_s);
    EXPECT_EQ(menus.menu.items.at(0).shortcut, u"⌃K"_s);
    menus.menu.items.at(3).action();
    menus.menu.items.at(4).action();
    EXPECT_EQ(journal,
              (QStringList{u"menu Open,Hide from Menu Bar,,Change Shortcut…,Remove Shortcut"_s, u"record v0"_s,
                           u"remove v0"_s}));
}

TEST_F(Tile, OpensItsMenuWhereTheViewHasIt)
{
    actions.toScreen = [](QPointF inView) { return inView + QPointF(100, 200); };
    actions.showMenuAt(u"v0"_s, {3, 4});
    EXPECT_EQ(menus.corner, QPointF(103, 204));
    actions.showMenu(u"v0"_s);
    EXPECT_EQ(menus.corner, std::nullopt);
}

TEST_F(Tile, AnOpenMenuOutlivesItsItemAndTheModel)
{
    actions.showMenu(u"v0"_s);
    model().setExtras({});
    journal.clear();
    actions.open(u"v0"_s);
    menus.menu.items.at(0).action();
    EXPECT_EQ(journal, QStringList{u"select v0"_s});
    closeModel();
    menus.menu.items.at(1).action();
    EXPECT_EQ(journal.size(), 1);
}

TEST_F(Tile, ALateLeaveDoesNotTakeTheHoverFromTheNextTile)
{
    actions.pointerEntered(u"h0"_s);
    actions.pointerEntered(u"v0"_s);
    actions.pointerLeft(u"h0"_s);
    EXPECT_EQ(model().hoveredID(), u"v0"_s);
    actions.pointerLeft(u"v0"_s);
    EXPECT_EQ(model().hoveredID(), QString());
}

} // namespace brimshade::model::tests
