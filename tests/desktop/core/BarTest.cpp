#include "World.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

const auto kPlaceKey = u"NSStatusItem Preferred Position BrimshadeButton"_s;

class BarTest : public World {
protected:
    std::shared_ptr<StatusItem> createOwn(double length = 28)
    {
        auto item = platform.statusBar.createStatusItem(length);
        item->setAutosaveName(u"BrimshadeButton"_s);
        settle();
        return item;
    }
    QRectF windowFrame(StatusItem &item) // in display space
    {
        return item.button()->window() ? flipped(item.button()->window()->frame(), 982) : QRectF();
    }
    // The gesture as a program performs it.
    void drag(QPointF from, QPointF to, std::uint64_t downFlags, std::uint64_t upFlags, int drags = 3)
    {
        platform.eventServices.post({kCGEventLeftMouseDown, from, downFlags, 1});
        for (int i = 1; i <= drags; ++i)
            platform.eventServices.post({kCGEventLeftMouseDragged, from + (to - from) * i / drags, downFlags, 1});
        platform.eventServices.post({kCGEventLeftMouseUp, to, upFlags, 1});
        dispatch.runDue();
        settle();
    }
};

TEST_F(BarTest, OrdersPinnedThenOwnThenOthersAndAddsLaterOnesAtTheLeftEnd)
{
    EXPECT_EQ(barOrder(), u"b.three b.two a.one com.example.clock"_s);
    EXPECT_EQ(barFrame(u"com.example.clock"_s), QRectF(1372, 0, 132, 37));
    EXPECT_EQ(barFrame(u"a.one"_s), QRectF(1342, 0, 30, 37));

    const auto own = createOwn();
    desktop.launch({.description = application(13, {extra(u"c.four"_s)})});
    settle();
    EXPECT_EQ(barOrder(), u"c.four b.three b.two a.one BrimshadeButton com.example.clock"_s);
    desktop.quit(11);
    EXPECT_FALSE(barOrder().contains(u"a.one"_s)) << "a quit application's items are gone at once";
    EXPECT_EQ(barFrame(u"b.two"_s).x(), 1284) << "the others close up when they settle";
    settle();
    EXPECT_EQ(barFrame(u"b.two"_s).x(), 1314);
}

TEST_F(BarTest, WithoutANotchShowsItemsUpToTheActiveApplicationsMenus)
{
    desktop.setScreens({plainScreen({0, 0, 1512, 982})});
    desktop.launch({.description = application(13, {extra(u"c.wide"_s, 900)})});
    settle();
    EXPECT_EQ(barFrame(u"c.wide"_s).x(), -900) << "they may fill 420 points";
    for (const auto &[menus, left] : {std::pair(382., 382.), {383, -900}, {0, 382}, {100'000, -900}}) {
        desktop.menuBar().setApplicationMenusWidth(menus);
        EXPECT_EQ(barFrame(u"c.wide"_s).x(), left) << menus << ", at once";
    }
}

TEST_F(BarTest, ShowsNoLayoutThatIsOlderThanItsOwnItem)
{
    desktop.launch({.description = application(13, {extra(u"c.four"_s)})}); // to be laid out without our own item
    const auto own = platform.statusBar.createStatusItem(28);
    const QRectF behind = barFrame(u"a.one"_s);
    EXPECT_EQ(maxX(behind), windowFrame(*own).left());
    settle();
    EXPECT_EQ(barFrame(u"a.one"_s), behind);
}

TEST_F(BarTest, NeverPutsAnItemBackIntoALayoutThatItHasLeft)
{
    const QRectF place(900, 0, 20, 37);
    desktop.launch({.description = application(13, {extra(u"c.four"_s)})});
    desktop.change(13, {.description = application(13, {extraAt(u"c.four"_s, place)})});
    settle();
    EXPECT_EQ(barFrame(u"c.four"_s), place);
    EXPECT_EQ(axFrame(item(13, 0)), place);
}

TEST_F(BarTest, HoldsOnlyAGroupsChildrenInItsPlace)
{
    ExtraDescription parent = extra(u"c.parent"_s, 50);
    parent.children = {extra(u"c.child"_s)};
    ExtraDescription named = group({extra(u"c.inner"_s)});
    named.identifier = u"c.group"_s;
    desktop.launch({.description = application(13, {parent, named})});
    settle();
    EXPECT_TRUE(barOrder().startsWith(u"c.inner c.parent "_s)) << barOrder().toStdString();
    EXPECT_EQ(barFrame(u"c.parent"_s).width(), 50);
}

TEST_F(BarTest, PutsItsOwnItemWhereTheSettingsSayAndStoresOnlyADragOfIt)
{
    platform.userDefaults.setInteger(199, kPlaceKey);
    const auto own = createOwn();
    EXPECT_EQ(maxX(windowFrame(*own)), 1342) << "left of the one item that fits in 199 points";
    desktop.quit(11);
    settle();
    drag({1329, 18}, {1371, 18}, kCGEventFlagMaskCommand, kCGEventFlagMaskCommand);
    EXPECT_EQ(maxX(windowFrame(*own)), 1342);
    EXPECT_EQ(platform.userDefaults.objectForKey(kPlaceKey), QVariant(199)) << "another item was dragged across";
    const QPointF middle = windowFrame(*own).center();
    drag(middle, {1200, 18}, kCGEventFlagMaskCommand, kCGEventFlagMaskCommand);
    EXPECT_EQ(windowFrame(*own).left(), 1372 - 60 - 28);
    EXPECT_EQ(platform.userDefaults.objectForKey(kPlaceKey), QVariant(qlonglong(140 + 60)));
}

TEST_F(BarTest, RearrangesByCommandDragsAndByNothingElse)
{
    // Initially, left to right: three 1282, two 1312, one 1342, clock 1372.
    const QString before = barOrder();
    constexpr auto command = kCGEventFlagMaskCommand;
    struct Case {
        const char *name;
        QPointF from, to;
        QString after;
        std::uint64_t downFlags = command, upFlags = command;
        int drags = 3;
        bool accepted = true;
    };
    const Case cases[] = {
        {"the pinned clock", {1400, 10}, {1200, 10}, before},
        {"without a drag", {1357, 10}, {1200, 10}, before, command, command, 0},
        {"pressed without Command", {1357, 10}, {1200, 10}, before, 0},
        {"released without Command", {1357, 10}, {1200, 10}, before, command, 0},
        {"dropped below the row", {1357, 10}, {1200, 37}, before},
        {"refused", {1357, 10}, {1200, 10}, before, command, command, 3, false},
        {"nothing there", {1000, 10}, {1200, 10}, before},
        {"on the middle of another", {1297, 10}, {1327, 10}, before},
        {"to the left end", {1357, 10}, {1200, 36}, u"a.one b.three b.two com.example.clock"_s, command, command, 1},
        // From here on: one 1282, three 1312, two 1342.
        {"just right of its middle", {1297, 10}, {1327.5, 10}, u"b.three a.one b.two com.example.clock"_s},
        {"right of the clock", {1297, 10}, {1500, 10}, u"a.one b.two b.three com.example.clock"_s},
    };
    for (const Case &c : cases) {
        desktop.menus().dismiss(); // a click on an item opened it, and it takes all input
        desktop.setMovesAccepted(c.accepted);
        drag(c.from, c.to, c.downFlags, c.upFlags, c.drags);
        EXPECT_EQ(barOrder().toStdString(), c.after.toStdString()) << c.name;
    }
}

// Only what is shown changes meanwhile: frames change once the bar has settled after the drop.
TEST_F(BarTest, MakesWayForAnItemThatAHandHas)
{
    const auto places = [this] {
        QStringList places;
        for (const BarItem &item : desktop.menuBar().items()) {
            places << u"%1 %2"_s.arg(item.identifier.section(u'.', 1)).arg(item.place);
            if (item.dragOffset != 0)
                places.last() += u" %1"_s.arg(item.dragOffset);
        }
        return places.join(u", "_s);
    };
    const QString before = u"three 1282, two 1312, one 1342, example.clock 1372"_s;
    ASSERT_EQ(places(), before);
    press({1350, 18}, MouseButton::left, kCommandFlag);
    const std::tuple<const char *, QPointF, QString> cases[]{
        {"not yet past the middle of another", {1330, 18}, u"three 1282, two 1312, one 1342 -20, example.clock 1372"_s},
        {"past it", {1320, 18}, u"three 1282, two 1342, one 1342 -30, example.clock 1372"_s},
        {"past the next", {1290, 18}, u"three 1312, two 1342, one 1342 -60, example.clock 1372"_s},
        {"back again", {1320, 18}, u"three 1282, two 1342, one 1342 -30, example.clock 1372"_s},
        {"out of the row", {1290, 200}, u"three 1282, two 1312, one 1342 -60, example.clock 1372"_s},
        {"and in it", {1290, 18}, u"three 1312, two 1342, one 1342 -60, example.clock 1372"_s},
    };
    for (const auto &[what, at, shown] : cases) {
        moveTo(at, kCommandFlag);
        EXPECT_EQ(places(), shown) << what;
        EXPECT_TRUE(desktop.menuBar().isRearranging());
        EXPECT_EQ(barFrame(u"b.three"_s).x(), 1282) << what;
    }
    desktop.quit(12);
    EXPECT_EQ(places(), u"one 1342 -60, example.clock 1372"_s);
    desktop.launch({.description = application(13, {extra(u"c.four"_s)})});
    settle();
    EXPECT_EQ(places(), u"four 1342, one 1342 -60, example.clock 1372"_s) << "an item that came meanwhile";

    desktop.input().released(MouseButton::left, kCommandFlag);
    EXPECT_EQ(places(), u"four 1342, one 1312, example.clock 1372"_s) << "at once";
    EXPECT_EQ(barFrame(u"a.one"_s).x(), 1342);
    settle();
    EXPECT_EQ(places(), u"one 1312, four 1342, example.clock 1372"_s);
    EXPECT_EQ(barFrame(u"a.one"_s).x(), 1312);
    EXPECT_FALSE(desktop.menuBar().isRearranging());
}

TEST_F(BarTest, TellsAnItemWhatThePersonAsksOfIt)
{
    std::vector<ItemGesture> asked;
    ApplicationSpec handled{.description = application(13, {extra(u"c.four"_s)})};
    handled.items[u"c.four"_s].handler = [&](ItemGesture gesture, const QRectF &frame) {
        EXPECT_EQ(frame, barFrame(u"c.four"_s));
        asked.push_back(gesture);
    };
    desktop.launch(handled);
    settle();
    const QPointF at = barFrame(u"c.four"_s).center();
    click(at);
    click(at, MouseButton::right);
    press(at, MouseButton::left, kControlFlag);
    desktop.input().released(MouseButton::left, kControlFlag);
    click(at, MouseButton::middle);
    accessibility().performAction(item(13, 0), u"AXPress"_s);
    platform.itemServices->activate(item(13, 0));
    platform.itemServices->activateSecondary(item(13, 0));
    dispatch.runDue();
    EXPECT_EQ(asked,
              (std::vector{ItemGesture::click, ItemGesture::menu, ItemGesture::menu, ItemGesture::secondary,
                           ItemGesture::activate, ItemGesture::secondary, ItemGesture::press}));
}

TEST_F(BarTest, ScrollsOverAnItemThatTakesIt)
{
    QPoint scrolled;
    ApplicationSpec handled{.description = application(13, {extra(u"c.four"_s)})};
    handled.items[u"c.four"_s].scroller = [&](QPoint by) { scrolled += by; };
    desktop.launch(handled);
    settle();
    EXPECT_EQ(desktop.input().scrolled(barFrame(u"c.four"_s).center(), {7, -120}), Target::menuBar);
    EXPECT_EQ(scrolled, QPoint(7, -120));
    desktop.input().scrolled(barFrame(u"a.one"_s).center(), {0, 120}); // a described item: nobody takes it
    desktop.input().scrolled({300, 500}, {0, 120});
    EXPECT_EQ(scrolled, QPoint(7, -120));
    platform.itemServices->scroll(item(13, 0), {0, 120});
    EXPECT_EQ(scrolled, QPoint(7, 0));
    const auto gone = item(13, 0);
    desktop.quit(13);
    platform.itemServices->scroll(gone, {0, 120});
    EXPECT_EQ(scrolled, QPoint(7, 0));
}

TEST_F(BarTest, OpensTheMenuOfADescribedItemWhicheverButtonAsksForIt)
{
    desktop.change(11, {.description = application(11, {extra(u"a.one"_s, 30, {u"Open"_s})})});
    for (const MouseButton button : {MouseButton::left, MouseButton::right}) {
        click(barFrame(u"a.one"_s).center(), button);
        EXPECT_EQ(desktop.menus().titles(), QStringList{u"Open"_s});
        desktop.menus().dismiss();
    }
}

TEST_F(BarTest, IsAskedForACommandDragBeforeAnyWindowThatCoversIt)
{
    WindowAttributes attributes;
    attributes.contentRect = QRectF(256, 262, 1256, 720);
    attributes.level = kStatusWindowLevel;
    const auto panel = platform.windows.createWindow(attributes, HostedView());
    panel->makeKeyAndOrderFront();
    press({1357, 18});
    EXPECT_EQ(desktop.input().released(MouseButton::left, 0), Target::window);
    press({1357, 18}, MouseButton::left, kCommandFlag);
    moveTo({1300, 18}, kCommandFlag);
    EXPECT_EQ(desktop.input().released(MouseButton::left, kCommandFlag), Target::menuBar);
    settle();
    EXPECT_EQ(barOrder(), u"b.three a.one b.two com.example.clock"_s);
}

} // namespace brimshade::desktop
