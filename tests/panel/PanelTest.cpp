#include "PanelScene.h"
#include "ui/Spring.h"

#include <QAccessible>
#include <QAccessibleInterface>

namespace brimshade::panel {

double sprung(double from, double to, ui::SpringParameters spring, double seconds)
{
    return to + ui::springAt(spring, {from - to, 0}, seconds).position;
}

TEST(Panel, GrowsOutOfTheNotchAndShrinksBackOnItsSprings)
{
    PanelScene panel(3, 2); // 488 × 288 on a notch of 200 × 32
    EXPECT_EQ(panel.frame(u"notchTab"_s), QRectF(394, 0, 212, 32));
    EXPECT_FALSE(panel.scene.find(u"interior"_s)->isVisible());
    panel.model.setIsOpen(true);
    for (const int at : {50, 100, 200, 400}) {
        panel.scene.advance(at - (at == 50 ? 0 : at == 100 ? 50 : at / 2));
        EXPECT_NEAR(panel.frame(u"notchTab"_s).width(), sprung(212, 488, {0.46, 0.74}, at / 1000.0), 1) << at;
        EXPECT_NEAR(panel.frame(u"notchTab"_s).height(), sprung(32, 288, {0.46, 0.74}, at / 1000.0), 0.51) << at;
    }
    panel.finishMotion();
    EXPECT_EQ(panel.frame(u"notchTab"_s), QRectF(256, 0, 488, 288));
    panel.model.setIsOpen(false);
    panel.scene.advance(80);
    EXPECT_NEAR(panel.frame(u"notchTab"_s).height(), sprung(288, 32, {0.32, 0.92}, 0.08), 0.51);
}

TEST(Panel, TheHeaderComesLateAndGoesAtOnce)
{
    PanelScene panel;
    const QQuickItem *header = panel.scene.find(u"header"_s);
    panel.model.setIsOpen(true);
    panel.scene.advance(120);
    EXPECT_EQ(header->opacity(), 0);
    panel.scene.advance(150);
    EXPECT_NEAR(header->opacity(), 0.68, 0.03); // ease-out at half time
    panel.scene.advance(150);
    EXPECT_EQ(header->opacity(), 1);
    panel.model.setIsOpen(false);
    panel.scene.advance(80);
    EXPECT_EQ(header->opacity(), 0);
}

TEST(Panel, AClickBesideTheTabClosesItAndOneOnItDoesNot)
{
    PanelScene panel;
    panel.open();
    panel.scene.click({500, 150 + 100}); // black, between tiles and footer
    panel.scene.click({280, 60});
    EXPECT_TRUE(panel.journal.isEmpty()) << panel.journal.join(u';').toStdString();
    panel.scene.click({100, 100});
    panel.scene.click({257, 200}); // beside the body, under the flare
    panel.scene.click({500, 700});
    EXPECT_EQ(panel.journal, QStringList({u"dismiss"_s, u"dismiss"_s, u"dismiss"_s}));
    panel.journal.clear();
    panel.scene.click(panel.frame(u"settingsButton"_s).center());
    EXPECT_EQ(panel.journal, QStringList{u"settings"_s});
}

TEST(Panel, TheCardAsksForThePermissionAndIsAllThereIs)
{
    PanelScene panel(0, 0);
    panel.model.setTrusted(false);
    panel.open();
    EXPECT_EQ(panel.frame(u"notchTab"_s).height(), 200);
    EXPECT_EQ(panel.scene.find(u"header"_s)->opacity(), 0);
    EXPECT_FALSE(panel.scene.find(u"sections"_s)->isVisible());
    EXPECT_FALSE(panel.scene.find(u"footer"_s)->isVisible());
    panel.scene.click(panel.frame(u"settingsButton"_s).center());
    EXPECT_TRUE(panel.journal.isEmpty()) << "the header cannot be seen";
    panel.scene.click(panel.frame(u"openAccessibilitySettings"_s).center());
    EXPECT_EQ(panel.journal,
              QStringList({u"prompt"_s,
                           u"open x-apple.systempreferences:com.apple.preference.security?"
                           u"Privacy_Accessibility"_s}));
    panel.model.setTrusted(true);
    panel.finishMotion();
    EXPECT_FALSE(panel.scene.find(u"permissionCard"_s)->isVisible());
}

TEST(Panel, TheFirstItemsAppearInTheirPlacesInAPanelThatIsOpening)
{
    PanelScene panel(0, 0);
    panel.model.setScanned(false);
    panel.model.setIsOpen(true);
    panel.scene.advance(48);
    panel.model.setExtras(makeExtras(12, 9));
    panel.model.setScanned(true);
    panel.scene.settle();
    const auto places = [&] {
        QList<QPointF> result;
        for (const QString &name : {u"hiddenSectionTitle"_s, u"visibleSectionTitle"_s, u"footer"_s, u"itemCount"_s})
            result << panel.frame(name).topLeft();
        return result;
    };
    const QList<QPointF> first = places();
    const double width = panel.frame(u"notchTab"_s).width();
    QQuickItem *relay = panel.tile(u"Relay"_s);
    EXPECT_EQ(relay->opacity(), 0);
    panel.scene.advance(120);
    EXPECT_GT(panel.frame(u"notchTab"_s).width(), width + 50) << "while the panel grows";
    EXPECT_EQ(places(), first);
    EXPECT_GT(relay->opacity(), 0.1);
    EXPECT_EQ(panel.tile(panel.tileNames().last())->opacity(), 0) << "tiles come one after the other";
    panel.finishMotion();
    EXPECT_EQ(places(), first);
}

TEST(Panel, TheFooterIsNeverSeenOutsideTheTab)
{
    PanelScene panel(12, 9);
    const QQuickItem *footer = panel.scene.find(u"footer"_s)->parentItem();
    for (const bool open : {true, false}) {
        panel.model.setIsOpen(open);
        for (int frame = 0; frame < 60; ++frame) {
            panel.scene.advance(16);
            if (footer->opacity() > 0) {
                EXPECT_LE(panel.scene.frameOf(footer).bottom(), panel.frame(u"notchTab"_s).bottom() + 2) << frame;
            }
        }
        EXPECT_EQ(footer->opacity(), open ? 1 : 0);
    }
}

// Pieces of shadow and tab come, go and change size: whatever a frame does not redraw must look as before.
TEST(Panel, NoFrameLeavesAnythingBehind)
{
    for (const double scale : {1.0, 2.0}) {
        PanelScene panel(6, 5, scale);
        const auto show = [&](bool open) {
            panel.model.setIsOpen(open);
            for (int frame = 0; frame < 40; ++frame) {
                panel.scene.advance(frame < 20 ? 25 : 100);
                panel.scene.picture();
            }
            return panel.scene.picture();
        };
        const QImage closed = panel.scene.picture();
        const QImage open = show(true);
        EXPECT_EQ(show(false), closed) << "scale " << scale;
        EXPECT_EQ(show(true), open) << "scale " << scale;
    }
}

TEST(Panel, NothingRunsOnceItRestsOpenOrClosed)
{
    PanelScene panel(12, 9);
    EXPECT_EQ(panel.scene.framesAskedFor(2000), 0) << "before the first opening";
    panel.model.setIsOpen(true);
    EXPECT_GT(panel.scene.framesAskedFor(2500), 10);
    EXPECT_EQ(panel.scene.framesAskedFor(2000), 0) << "open";
    panel.model.setIsOpen(false);
    panel.finishMotion();
    EXPECT_EQ(panel.scene.framesAskedFor(2000), 0) << "closed";
    panel.model.setExtras(makeExtras(2, 20));
    panel.scene.settle();
    EXPECT_EQ(panel.scene.framesAskedFor(2000), 0) << "a scan while closed moves nothing";
}

TEST(Panel, TheGearsTipWaitsOnTheScenesClock)
{
    PanelScene panel;
    panel.open();
    const QQuickItem *tip = panel.scene.find(u"helpTip"_s);
    panel.scene.movePointer(panel.frame(u"settingsButton"_s).center());
    panel.scene.advance(690);
    EXPECT_FALSE(tip->isVisible());
    panel.scene.advance(20);
    EXPECT_TRUE(tip->isVisible());
    EXPECT_EQ(panel.scene.framesAskedFor(1000), 0) << "shown";
    panel.scene.movePointer({500, 200});
    EXPECT_FALSE(tip->isVisible());
    EXPECT_EQ(panel.scene.framesAskedFor(1000), 0) << "hidden";
    panel.scene.movePointer(panel.frame(u"settingsButton"_s).center());
    panel.scene.advance(710);
    ASSERT_TRUE(tip->isVisible());
    panel.model.setIsOpen(false);
    panel.finishMotion();
    EXPECT_FALSE(tip->isVisible()) << "it goes away with the panel";
}

TEST(Panel, ALongOrBrokenQueryKeepsTheWordsAroundIt)
{
    PanelScene panel(3, 0);
    panel.open();
    panel.model.setQuery(u"a\tb "_s);
    EXPECT_EQ(panel.scene.find(u"query"_s)->property("text"), u"a\u00a0b\u00a0"_s);
    EXPECT_EQ(panel.scene.find(u"noMatches"_s)->property("text"), u"No matches for “a b ”"_s);
    panel.model.setQuery(u"something that nobody ever gave any item on the menu bar as its name"_s);
    panel.finishMotion();
    const QQuickItem *sentence = panel.scene.find(u"noMatches"_s);
    const QString text = sentence->property("text").toString();
    EXPECT_TRUE(text.startsWith(u"No matches for “something"_s) && text.endsWith(u"…”"_s)) << qPrintable(text);
    EXPECT_LE(sentence->implicitWidth(), sentence->width());
}

// The window itself is never shown here, so the elements' own states do not tell.
bool isSeen(const QQuickItem *item)
{
    double opacity = 1;
    for (const QQuickItem *i = item; i; i = i->parentItem())
        opacity *= i->opacity();
    return item->isVisible() && opacity > 0.01;
}

// What assistive programs are told, in order: "Button Relay (Relay is what this is)".
QStringList spoken(QQuickWindow *window)
{
    QStringList result;
    const std::function<void(QAccessibleInterface *)> visit = [&](QAccessibleInterface *element) {
        const auto *item = element ? qobject_cast<QQuickItem *>(element->object()) : nullptr;
        if (!item || !isSeen(item))
            return;
        if (element->role() == QAccessible::StaticText)
            result << element->text(QAccessible::Name);
        if (element->role() == QAccessible::Button)
            result << u"[%1] %2"_s.arg(element->text(QAccessible::Name), element->text(QAccessible::Description));
        for (int i = 0; i < element->childCount(); ++i)
            visit(element->child(i));
    };
    QAccessibleInterface *root = QAccessible::queryAccessibleInterface(window); // which is itself off screen
    for (int i = 0; i < root->childCount(); ++i)
        visit(root->child(i));
    return result;
}

TEST(Panel, SaysEveryTextOnceAndEveryTileAsAButton)
{
    QAccessible::setActive(true);
    PanelScene panel(2, 1);
    EXPECT_EQ(spoken(panel.scene.window()), QStringList()) << "closed";
    panel.open();
    const QStringList tilesOpen{u"2 hidden"_s,
                                u"3 items"_s,
                                u"[Settings] "_s,
                                u"BEHIND THE NOTCH"_s,
                                u"[Relay] Relay is what this is"_s,
                                u"[Lantern] Lantern is what this is"_s,
                                u"IN THE MENU BAR"_s,
                                u"[Papercut] Papercut is what this is"_s,
                                u"Type to search  ·  ↩ to open  ·  right-click to hide or show  ·  esc to close"_s};
    EXPECT_EQ(spoken(panel.scene.window()), tilesOpen);
    panel.model.setQuery(u"zz"_s);
    panel.finishMotion();
    const QStringList said = spoken(panel.scene.window());
    EXPECT_TRUE(said.contains(u"zz"_s));
    EXPECT_TRUE(said.contains(u"No matches for “zz”"_s));
    EXPECT_FALSE(said.contains(u"2 hidden"_s));
    EXPECT_FALSE(said.contains(u"BEHIND THE NOTCH"_s));
}

} // namespace brimshade::panel
