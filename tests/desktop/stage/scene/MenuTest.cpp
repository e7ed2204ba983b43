#include "SceneContext.h"
#include "desktop/views/MenuGeometry.h"
#include "platform/KeyCodes.h"

#include <QWheelEvent>

using namespace brimshade::platform;

namespace brimshade::desktop {

const QRectF kScreen(0, 0, 1000, 700);

TEST(MenuGeometry, KeepsMenusOnTheScreen)
{
    const std::tuple<const char *, QRectF, QSizeF, QRectF> cases[] = {
        {"under its item", {200, 0, 30, 30}, {150, 100}, {200, 30, 150, 100}},
        {"at the right edge", {950, 0, 30, 30}, {150, 100}, {844, 30, 150, 100}},
        {"of an item that is off-screen", {-80, 0, 30, 30}, {150, 100}, {6, 30, 150, 100}},
        {"too high: cut, and clear of the bar", {200, 0, 30, 30}, {150, 2000}, {200, 30, 150, 664}},
        {"at a point", {300, 200, 0, 0}, {150, 100}, {300, 200, 150, 100}},
        {"at a point near the lower edge", {300, 650, 0, 0}, {150, 100}, {300, 594, 150, 100}},
        {"at a point, too high", {300, 650, 0, 0}, {150, 2000}, {300, 6, 150, 688}},
    };
    for (const auto &[what, anchor, size, placed] : cases)
        EXPECT_EQ(placeMenu(anchor, size, kScreen), placed) << what;
    EXPECT_EQ(placeSubmenu({200, 100, 150, 22}, {150, 80}, kScreen), QRectF(347, 95, 150, 80));
    EXPECT_EQ(placeSubmenu({840, 650, 150, 22}, {150, 80}, kScreen), QRectF(693, 614, 150, 80)) << "left, and up";
}

class MenuTest : public testing::Test {
protected:
    // Apple, —, Banana (off), Cherry ▸ (Morello, Sour), Date
    std::shared_ptr<ScriptedMenu> openFruit()
    {
        MenuEntry banana = entry(3, u"Banana"_s);
        banana.isEnabled = false;
        MenuEntry cherry = entry(4, u"Cherry"_s);
        cherry.hasSubmenu = true;
        cherry.submenu = {entry(41, u"Morello"_s), entry(42, u"Sour"_s)};
        auto menu = std::make_shared<ScriptedMenu>(
            std::vector{entry(1, u"Apple"_s), separator(2), banana, cherry, entry(5, u"Date"_s)});
        context.desktop().menus().open(menu, QRectF(300, 0, 30, 30));
        context.settle();
        return menu;
    }
    QRectF rowFrame(const QString &title)
    {
        for (QQuickItem *row : context.findAll(u"menuRow"_s)) {
            if (row->property("title").toString() == title)
                return row->mapRectToScene(QRectF(0, 0, row->width(), row->height()));
        }
        return {};
    }

    SceneContext context;
};

TEST_F(MenuTest, IsDrivenByKeys)
{
    const std::tuple<const char *, std::vector<std::uint16_t>, std::vector<int>, bool> cases[] = {
        {"nothing is chosen at first", {kVK_Return}, {}, true},
        {"down", {kVK_DownArrow, kVK_Return}, {1}, false},
        {"over the separator and what is disabled, not into the submenu",
         {kVK_DownArrow, kVK_DownArrow, kVK_DownArrow, kVK_Space},
         {5},
         false},
        {"up from nothing is the last", {kVK_UpArrow, kVK_ANSI_KeypadEnter}, {5}, false},
        {"into the submenu", {kVK_DownArrow, kVK_DownArrow, kVK_RightArrow, kVK_DownArrow, kVK_Return}, {42}, false},
        {"into it by Return", {kVK_DownArrow, kVK_DownArrow, kVK_Return, kVK_Return}, {41}, false},
        {"and back",
         {kVK_DownArrow, kVK_DownArrow, kVK_RightArrow, kVK_LeftArrow, kVK_DownArrow, kVK_Return},
         {5},
         false},
        {"Escape", {kVK_DownArrow, kVK_Escape}, {}, false},
    };
    for (const auto &[what, keys, chosen, staysOpen] : cases) {
        SCOPED_TRACE(what);
        const auto menu = openFruit();
        for (const std::uint16_t code : keys)
            context.key(code);
        EXPECT_EQ(menu->chosen, chosen);
        EXPECT_EQ(context.desktop().menus().openMenu() != nullptr, staysOpen);
        context.desktop().menus().dismiss();
    }
}

TEST_F(MenuTest, IsDrivenByThePointer)
{
    const auto menu = openFruit();
    context.move(rowFrame(u"Cherry"_s).center());
    EXPECT_EQ(menu->shown, std::vector{4});
    ASSERT_EQ(context.findAll(u"menu"_s).size(), 2);
    context.click(rowFrame(u"Banana"_s).center());
    EXPECT_TRUE(context.desktop().menus().openMenu()) << "a disabled entry does nothing";
    EXPECT_EQ(context.findAll(u"menu"_s).size(), 1) << "another row closes the submenu";
    context.move(rowFrame(u"Cherry"_s).center());
    context.click(rowFrame(u"Sour"_s).center());
    EXPECT_EQ(menu->chosen, std::vector{42});
    EXPECT_TRUE(context.findAll(u"menu"_s).isEmpty());
}

TEST_F(MenuTest, FollowsEntriesThatComeLater)
{
    const auto menu = openFruit();
    MenuEntry late = entry(4, u"Cherry"_s);
    late.hasSubmenu = true;
    menu->replace({entry(1, u"Apple"_s), late});
    context.move(rowFrame(u"Cherry"_s).center());
    EXPECT_TRUE(rowFrame(u"Morello"_s).isNull());
    late.submenu = {entry(41, u"Morello"_s)};
    menu->replace({entry(1, u"Apple"_s), late});
    context.settle();
    EXPECT_FALSE(rowFrame(u"Morello"_s).isEmpty());
    menu->replace({entry(1, u"Apple"_s)});
    context.settle();
    EXPECT_EQ(context.findAll(u"menu"_s).size(), 1);
    menu->replace({});
    EXPECT_FALSE(context.desktop().menus().openMenu()) << "an empty menu closes";
}

std::vector<MenuEntry> numbered(int first, int last)
{
    std::vector<MenuEntry> entries;
    for (int id = first; id <= last; ++id)
        entries.push_back(entry(id, u"Entry %1"_s.arg(id)));
    return entries;
}

TEST_F(MenuTest, StaysWhereItIsScrolledToWhenEntriesComeAndGoAbove)
{
    const auto menu = std::make_shared<ScriptedMenu>(numbered(100, 300));
    context.desktop().menus().open(menu, QRectF(300, 0, 30, 30));
    context.settle();
    context.key(kVK_UpArrow);
    const double last = rowFrame(u"Entry 300"_s).top();
    for (const int first : {90, 95, 100, 150}) {
        menu->replace(numbered(first, 300));
        context.settle();
        context.key(kVK_UpArrow); // to the previous entry
        context.key(kVK_DownArrow); // and back, which scrolls to it
        EXPECT_EQ(rowFrame(u"Entry 300"_s).top(), last) << first;
        EXPECT_EQ(rowFrame(u"Entry 290"_s).top(), last - 10 * 22) << first;
    }
}

TEST_F(MenuTest, MakesOnlyTheRowsOfALongListThatShow)
{
    const std::vector<MenuEntry> entries = numbered(1, 600);
    const auto menu = std::make_shared<ScriptedMenu>(entries);
    context.desktop().menus().open(menu, QRectF(300, 0, 30, 30));
    context.settle();
    EXPECT_LT(context.findAll(u"menuRow"_s).size(), 60);
    EXPECT_LE(context.findAll(u"menu"_s).first()->height(), 664);
    context.key(kVK_UpArrow);
    EXPECT_TRUE(kScreen.contains(rowFrame(u"Entry 600"_s)));
    QWheelEvent wheel(QPointF(320, 300), QPointF(320, 300), {}, {0, 120 * 100}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(context.scene().quickWindow(), &wheel);
    context.settle();
    EXPECT_TRUE(kScreen.contains(rowFrame(u"Entry 285"_s))) << "a hundred steps of three rows further up";
}

TEST_F(MenuTest, HasRoomForEveryTitle)
{
    MenuEntry keyed = entry(1, u"Zwischenablage öffnen und schließen"_s);
    keyed.shortcut = u"Strg+Umschalt+V"_s;
    MenuEntry nested = entry(2, u"Weitere Möglichkeiten …"_s);
    nested.hasSubmenu = true;
    const std::vector<std::vector<MenuEntry>> menus{
        {entry(1, u"i"_s)},
        {entry(1, u"Hide from Menu Bar"_s), entry(2, u"Aus der Menüleiste ausblenden"_s)},
        {keyed, entry(2, u"WWW"_s)},
        {nested, entry(3, u"Xg"_s)},
    };
    for (const auto &entries : menus) {
        context.desktop().menus().open(std::make_shared<ScriptedMenu>(entries), QRectF(300, 0, 30, 30));
        context.settle();
        int texts = 0;
        for (const QQuickItem *row : context.findAll(u"menuRow"_s)) {
            for (const QQuickItem *text : row->childItems()) {
                if (!text->inherits("QQuickText") || !text->isVisible())
                    continue;
                ++texts;
                EXPECT_FALSE(text->property("truncated").toBool()) << qPrintable(text->property("text").toString());
            }
        }
        EXPECT_GE(texts, int(entries.size()));
        context.desktop().menus().dismiss();
    }
}

} // namespace brimshade::desktop
