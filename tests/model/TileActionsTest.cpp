#include "model/TileActions.h"
#include "ModelContext.h"

#include <gtest/gtest.h>

namespace brimshade::model::tests {
namespace {

struct TileContext : ModelContext {
    OpenMenu menus;
    TileActions actions{model(), menus};

    TileContext()
    {
        model().setExtras(items(1, 1));
        model().onSelect = [this](const MenuExtra &extra) { journal.append(u"select "_s + extra.id); };
        model().onSetHidden = [this](const MenuExtra &extra, bool hidden) {
            journal.append(u"%1 %2"_s.arg(hidden ? u"hide"_s : u"show"_s, extra.id));
        };
        model().onSettingsChanged = [this] { journal.append(u"settings"_s); };
        journal.clear();
    }
};

TEST(Tile, OpensItsItem)
{
    TileContext context;
    context.actions.open(u"v0"_s);
    context.actions.open(u"gone"_s);
    EXPECT_EQ(context.journal, QStringList{u"select v0"_s});
}

TEST(Tile, OffersToOpenAndToMoveItsItem)
{
    const std::tuple<QString, QString, QString> cases[] = {{u"v0"_s, u"Hide from Menu Bar"_s, u"hide v0"_s},
                                                           {u"h0"_s, u"Show in Menu Bar"_s, u"show h0"_s}};
    for (const auto &[id, title, effect] : cases) {
        TileContext context;
        context.actions.showMenu(id);
        const auto &entries = context.menus.menu.items;
        ASSERT_EQ(entries.size(), 2);
        EXPECT_EQ(entries[0].title, u"Open"_s);
        EXPECT_EQ(entries[1].title, title);
        EXPECT_TRUE(entries[0].isEnabled && entries[1].isEnabled);
        entries[0].action();
        entries[1].action();
        EXPECT_EQ(context.journal,
                  (QStringList{u"select "_s + id, u"store dividerEnabled true"_s, u"settings"_s, effect}));
    }
}

TEST(Tile, AnOpenMenuOutlivesItsItemAndTheModel)
{
    TileContext context;
    context.actions.showMenu(u"v0"_s);
    context.model().setExtras({});
    context.menus.menu.items.at(0).action();
    EXPECT_EQ(context.journal, QStringList{u"select v0"_s});
    context.closeModel();
    context.menus.menu.items.at(1).action();
    EXPECT_EQ(context.journal.size(), 1);
}

TEST(Tile, ALateLeaveDoesNotTakeTheHoverFromTheNextTile)
{
    TileContext context;
    context.actions.pointerEntered(u"h0"_s);
    context.actions.pointerEntered(u"v0"_s);
    context.actions.pointerLeft(u"h0"_s);
    EXPECT_EQ(context.model().hoveredID(), u"v0"_s);
    context.actions.pointerLeft(u"v0"_s);
    EXPECT_EQ(context.model().hoveredID(), QString());
}

} // namespace
} // namespace brimshade::model::tests
