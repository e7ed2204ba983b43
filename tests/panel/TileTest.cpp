#include "PanelScene.h"
#include "ui/Spring.h"

namespace brimshade::panel {

TEST(Tile, CascadesInReadingOrderAndLeavesAllTogether)
{
    PanelScene panel(6, 5);
    panel.model.setIsOpen(true);
    panel.scene.advance(268);
    const auto opacity = [&](int index) { return panel.tile(panel.tileNames()[index])->opacity(); };
    EXPECT_EQ(opacity(9), 0) << "the tenth starts 0.268 s after the change";
    const double moving = 0.268 - 0.07 - 3 * 0.022;
    EXPECT_NEAR(opacity(3), 1 + ui::springAt({0.5, 0.7}, {-1, 0}, moving).position, 1e-6);
    panel.scene.advance(16);
    EXPECT_GT(opacity(9), 0);
    EXPECT_EQ(opacity(10), 0);
    panel.finishMotion();
    panel.model.setIsOpen(false);
    panel.scene.advance(50);
    for (int i = 0; i < 11; ++i)
        EXPECT_NEAR(opacity(i), 1 - 0.315, 0.01) << "ease-in at half time, tile " << i;
    panel.scene.advance(50);
    EXPECT_EQ(opacity(0), 0);
}

TEST(Tile, IsSeenOnItsWayInAndInTheFirstFrameOfItsWayOut)
{
    for (const double scale : {1.0, 2.0}) {
        PanelScene panel(4, 0, scale);
        const auto light = [&] {
            const QQuickItem *face = panel.tile(u"Relay"_s)->findChild<QQuickItem *>(u"face"_s);
            const QPointF middle = panel.scene.frameOf(face).center() * scale;
            return panel.scene.picture().pixelColor(middle.toPoint()).lightness();
        };
        panel.scene.picture();
        panel.model.setIsOpen(true);
        panel.scene.advance(320);
        EXPECT_GT(light(), 80) << "on its way in at scale " << scale;
        panel.finishMotion();
        panel.scene.picture();
        panel.model.setIsOpen(false);
        panel.scene.advance(16);
        EXPECT_GT(light(), 80) << "on its way out at scale " << scale;
    }
}

TEST(Tile, FadesInItsPlaceWhenItLeavesWhileOthersGlide)
{
    PanelScene panel(12, 9);
    panel.open();
    QQuickItem *relay = panel.tile(u"Relay"_s);
    QQuickItem *pebble = panel.tile(u"Pebble"_s);
    const QRectF relayWas = panel.scene.frameOf(relay);
    const QRectF pebbleWas = panel.scene.frameOf(pebble);
    panel.model.setQuery(u"pebble"_s);
    panel.scene.advance(96);
    EXPECT_EQ(panel.scene.frameOf(relay), relayWas);
    EXPECT_GT(relay->opacity(), 0.1);
    EXPECT_LT(relay->opacity(), 0.6);
    EXPECT_FALSE(relay->isEnabled());
    EXPECT_NE(panel.scene.frameOf(pebble), pebbleWas);
    panel.model.setQuery({});
    panel.scene.settle();
    EXPECT_EQ(panel.tile(u"Relay"_s), relay) << "what comes back in time never went";
    panel.finishMotion();
    EXPECT_EQ(panel.scene.frameOf(relay), relayWas);
    EXPECT_EQ(relay->opacity(), 1);
    panel.model.setQuery(u"pebble"_s);
    panel.scene.advance(224);
    EXPECT_EQ(panel.scene.findAll(u"tile"_s).size(), 1);
    panel.model.setQuery({});
    panel.finishMotion();
    panel.model.setIsOpen(false);
    panel.finishMotion();
    panel.model.setExtras(makeExtras(1, 0));
    panel.scene.settle();
    EXPECT_EQ(panel.scene.findAll(u"tile"_s).size(), 1) << "nothing lingers where nobody looks";
}

TEST(Tile, OnlyTheTileInFocusIsHighlighted)
{
    PanelScene panel(4, 3);
    panel.open();
    const auto highlighted = [&] {
        QStringList names;
        for (const QString &name : panel.tileNames()) {
            if (panel.tile(name)->property("highlighted").toBool())
                names << name;
        }
        return names;
    };
    const auto centre = [&](const QString &name) { return panel.scene.frameOf(panel.tile(name)).center(); };
    EXPECT_EQ(highlighted(), QStringList());
    panel.model.moveSelection(1);
    panel.model.moveSelection(1);
    EXPECT_EQ(highlighted(), QStringList{u"Lantern"_s});
    panel.scene.movePointer(centre(u"Relay"_s));
    EXPECT_EQ(highlighted(), QStringList{u"Relay"_s});
    EXPECT_EQ(panel.scene.find(u"footer"_s)->property("text"), u"Relay is what this is"_s);
    panel.scene.movePointer(centre(u"Moss"_s));
    EXPECT_EQ(highlighted(), QStringList{u"Moss"_s});
    panel.model.moveSelection(1); // the keyboard takes over
    EXPECT_EQ(highlighted(), QStringList{u"Papercut"_s});
    panel.scene.movePointer({20, 700});
    EXPECT_EQ(panel.model.hoveredID(), QString());
}

TEST(Tile, OpensOnAClickAndShowsItsMenuOnARightClick)
{
    PanelScene panel(2, 8);
    panel.open();
    const auto centre = [&](const QString &name) { return panel.scene.frameOf(panel.tile(name)).center(); };
    panel.scene.click(centre(u"Relay"_s));
    panel.scene.click(panel.scene.frameOf(panel.tile(u"Relay"_s)).topLeft() + QPointF(1, 1)); // a transparent part
    panel.scene.click(centre(u"Relay"_s), Qt::RightButton);
    panel.scene.click(centre(u"Papercut"_s), Qt::RightButton);
    panel.scene.click(centre(panel.tileNames().last()), Qt::RightButton); // pinned
    EXPECT_EQ(panel.journal,
              QStringList({u"select Relay"_s, u"select Relay"_s, u"menu Open,Show in Menu Bar"_s,
                           u"menu Open,Hide from Menu Bar"_s, u"menu Open,-Hide from Menu Bar"_s}));
}

TEST(Tile, KeepsItsIdentityThroughSearchesAndScans)
{
    PanelScene panel(8, 6);
    panel.open();
    QQuickItem *pebble = panel.tile(u"Pebble"_s);
    const QPointF before = panel.scene.frameOf(pebble).topLeft();
    panel.model.setQuery(u"peb"_s);
    panel.scene.settle();
    EXPECT_EQ(panel.tile(u"Pebble"_s), pebble);
    EXPECT_EQ(panel.tileNames(), QStringList{u"Pebble"_s});
    panel.finishMotion();
    EXPECT_NE(panel.scene.frameOf(pebble).topLeft(), before);
    panel.model.setQuery({});
    panel.model.setExtras(makeExtras(8, 6));
    panel.finishMotion();
    EXPECT_EQ(panel.tile(u"Pebble"_s), pebble);
    EXPECT_EQ(panel.scene.frameOf(pebble).topLeft(), before);
}

} // namespace brimshade::panel
