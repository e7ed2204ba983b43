#include "SceneContext.h"
#include "desktop/core/Permission.h"
#include "desktop/stage/builtin/BuiltInDesktop.h"
#include "i18n/Translation.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QTranslator>

namespace brimshade::desktop {

const QRectF kFrame(300, 200, 200, 200); // the probe's: area a, and area b right of it
const QPointF kInA(350, 250);
const QPointF kInB(450, 250);

TEST(Input, ReachesTheViewUnderThePointerOnly)
{
    SceneContext context;
    const auto low = context.probe(u"low"_s, kFrame);
    platform::WindowAttributes higher;
    higher.level = platform::kStatusWindowLevel;
    const auto high = context.probe(u"high"_s, kFrame.translated(150, 0), higher);
    context.recorder().take();
    context.click(kInA);
    EXPECT_EQ(context.recorder().take(), QStringList({u"enter a"_s, u"press a"_s, u"release a"_s}));
    context.click(kInB + QPointF(40, 0)); // b of the lower window lies under a of the higher one
    EXPECT_EQ(context.recorder().take(), QStringList({u"enter a"_s, u"leave a"_s, u"press a"_s, u"release a"_s}));
    EXPECT_TRUE(high->isKeyWindow());
    context.click(kInA, MouseButton::right);
    const QStringList right = context.recorder().take();
    EXPECT_TRUE(right.contains(u"press a right"_s)) << right.join(u", "_s).toStdString();
    EXPECT_TRUE(low->isKeyWindow());
    context.click({200, 600});
    EXPECT_FALSE(low->isKeyWindow());
}

TEST(Input, AKeyThatAMonitorSwallowsReachesNoView)
{
    SceneContext context;
    const auto window = context.probe(u"probe"_s, kFrame);
    bool swallows = true;
    context.desktop().platform().application.addLocalMonitor(platform::kKeyDownMask, [&](const platform::Event &event) {
        return swallows ? std::nullopt : std::optional(event);
    });
    context.recorder().take();
    context.key(45, u"n"_s);
    EXPECT_EQ(context.recorder().take(), QStringList());
    swallows = false;
    context.key(45, u"n"_s);
    EXPECT_EQ(context.recorder().take().size(), 1);
}

TEST(Animations, AskForNoFrameOnceTheyEnded)
{
    SceneContext context;
    context.settle();
    EXPECT_FALSE(context.scene().isAnimating());
    const auto window = context.probe(u"probe"_s, kFrame);
    EXPECT_FALSE(context.scene().isAnimating());
    QQuickItem *view = context.scene().contentOf(context.window(u"probe"_s));
    view->setProperty("isMoved", true);
    context.settle();
    EXPECT_TRUE(context.scene().isAnimating());
    context.advance(0.29);
    EXPECT_TRUE(context.scene().isAnimating());
    context.advance(0.05);
    EXPECT_FALSE(context.scene().isAnimating());
    // A later animation begins when it is started, not where the first one left the clock.
    context.advance(100);
    view->setProperty("isMoved", false);
    context.settle();
    context.advance(0.15);
    EXPECT_NEAR(view->property("mark").toDouble(), 50, 0.34);
}

TEST(Pictures, AreTheSameWhetherDrawnAtOnceOrChangeByChange)
{
    SceneContext context;
    const QImage empty = context.scene().picture();
    const auto window = context.probe(u"probe"_s, kFrame);
    const auto menu = std::make_shared<ScriptedMenu>(std::vector{entry(1, u"Open"_s), entry(2, u"Close"_s)});
    context.desktop().menus().open(menu, QRectF(380, 180, 0, 0));
    context.settle();
    EXPECT_NE(context.scene().picture(), empty);
    window->setFrame(window->frame().translated(37, 21));
    context.desktop().menus().dismiss();
    context.settle();
    const QImage changed = context.scene().picture();
    window->orderOut();
    context.settle();
    EXPECT_EQ(context.scene().picture(), empty) << "nothing is left behind";
    window->orderFrontRegardless();
    context.remakeScene();
    EXPECT_EQ(context.scene().picture(), changed);
}

TEST(Pictures, StayWholeWhenTheDesktopChanges)
{
    SceneContext context;
    Desktop &desktop = context.desktop();
    ApplicationDescription late = application(900, u"Latecomer"_s, {extra(u"late"_s)});
    late.icon = u"#3366cc"_s;
    ApplicationDescription red = late;
    red.icon = u"#cc3333"_s;
    DesktopDescription larger = SceneContext::smallDesktop();
    larger.screens[0].frame.setWidth(1200);
    const std::pair<const char *, std::function<void()>> changes[] = {
        {"launch", [&] { desktop.launch({.description = late}); }},
        {"change", [&] { desktop.change(900, {.description = red}); }},
        {"quit", [&] { desktop.quit(900); }},
        {"screens", [&] { desktop.setScreens(larger.screens); }},
    };
    QImage before = context.scene().picture();
    for (const auto &[name, change] : changes) {
        change();
        context.settle();
        const QImage after = context.scene().picture();
        EXPECT_NE(after, before) << name;
        context.remakeScene();
        before = context.scene().picture();
        EXPECT_EQ(after, before) << name;
    }
}

QRectF onScreen(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

TEST(Windows, AreMovedByTheirTitleBarAndClosedByTheirButton)
{
    SceneContext context;
    platform::WindowAttributes attributes;
    attributes.styleMask = platform::kStyleTitled | platform::kStyleClosable;
    const auto window = context.probe(u"probe"_s, kFrame, attributes);
    const QRectF before = context.window(u"probe"_s)->displayFrame();
    context.move(before.topLeft() + QPointF(150, 10));
    context.scene().press(MouseButton::left);
    for (int step = 1; step <= 5; ++step)
        context.move(before.topLeft() + QPointF(150 + 10 * step, 10 + 4 * step));
    context.scene().release(MouseButton::left);
    context.settle();
    EXPECT_EQ(context.window(u"probe"_s)->displayFrame(), before.translated(50, 20));
    const auto buttons = context.findAll(u"probeClose"_s);
    ASSERT_EQ(buttons.size(), 1);
    context.click(onScreen(buttons.first()).center());
    EXPECT_FALSE(window->isVisible());
}

TEST(Windows, DropTheirContentWithThem)
{
    SceneContext context;
    auto window = context.probe(u"probe"_s, kFrame);
    const QPointer<QQuickItem> content = context.scene().contentOf(context.window(u"probe"_s));
    ASSERT_TRUE(content);
    window.reset();
    EXPECT_FALSE(content);
    context.settle();
    context.click(kFrame.center());
    context.scene().picture();
}

TEST(Windows, AreTakenOverByASceneMadeLaterAndOutliveIt)
{
    SceneContext context;
    const auto window = context.probe(u"probe"_s, kFrame);
    const QPointer<QQuickItem> content = context.scene().contentOf(context.window(u"probe"_s));
    context.remakeScene();
    EXPECT_FALSE(content);
    context.recorder().take();
    context.click(kFrame.topLeft() + QPointF(50, 50));
    EXPECT_EQ(context.recorder().take(), QStringList({u"enter a"_s, u"press a"_s, u"release a"_s}));
}

TEST(Bar, KeepsTheViewsOfTheItemsThatStay)
{
    SceneContext context;
    ASSERT_EQ(context.findAll(u"barItem"_s).size(), 1);
    const QPointer<QQuickItem> relay = context.findAll(u"barItem"_s).first();
    context.desktop().launch({.description = application(900, u"Ledger"_s, {extra(u"ledger.main"_s, 40)})});
    context.advance(0.2);
    ASSERT_EQ(context.findAll(u"barItem"_s).size(), 2);
    const QPointer<QQuickItem> ledger = context.findAll(u"barItem"_s).first(); // the latest is the leftmost
    context.desktop().quit(812);
    context.advance(0.2);
    EXPECT_FALSE(relay);
    ASSERT_TRUE(ledger);
    EXPECT_EQ(ledger->width(), 40);
}

TEST(Bar, FollowsTheHandWithAnItemAndGlidesWithTheOthers)
{
    SceneContext context;
    context.desktop().launch({.description = application(900, u"Ledger"_s, {extra(u"ledger.main"_s, 40)})});
    context.advance(0.2);
    const QQuickItem *ledger = context.findAll(u"barItem"_s).first();
    const QQuickItem *relay = context.findAll(u"barItem"_s).last();
    const double left = ledger->x(), right = relay->x(), width = relay->width();
    const QPointF grip(left + 10, 10);
    context.move(grip);
    context.scene().press(MouseButton::left, platform::kCommandFlag);
    const auto drag = [&](double by) { context.scene().movePointer(grip + QPointF(by, 0), platform::kCommandFlag); };
    const auto isBetween = [](double x, double one, double other) {
        return x > std::min(one, other) + 0.5 && x < std::max(one, other) - 0.5;
    };
    drag(3);
    EXPECT_EQ(ledger->x(), left + 3);
    context.advance(0.05);
    drag(width + 25); // past its middle
    EXPECT_EQ(ledger->x(), left + width + 25) << "at once";
    EXPECT_EQ(relay->x(), right);
    context.advance(0.1);
    EXPECT_TRUE(isBetween(relay->x(), right, left)) << relay->x();
    context.advance(1);
    EXPECT_NEAR(relay->x(), left, 0.1);

    context.scene().release(MouseButton::left, platform::kCommandFlag);
    context.advance(0.05);
    EXPECT_TRUE(isBetween(ledger->x(), left + width + 25, left + width)) << ledger->x();
    context.advance(1);
    EXPECT_NEAR(ledger->x(), left + width, 0.1);
    EXPECT_NEAR(relay->x(), left, 0.1);
    context.desktop().quit(812);
    context.advance(0.11);
    EXPECT_NEAR(ledger->x(), left + width, 0.1) << "nothing is being dragged, so it is there at once";
}

TEST(BuiltInDesktop, HasReadablePicturesAndMenusThatSayWhatWasChosen)
{
    QStringList icons;
    for (const ApplicationDescription &application : builtInDesktop().applications) {
        if (!application.icon)
            continue;
        QImageReader reader(*application.icon);
        EXPECT_TRUE(reader.canRead()) << application.icon->toStdString();
        icons << *application.icon;
        for (const ExtraDescription &extra : application.extras.value_or(std::vector<ExtraDescription>())) {
            EXPECT_GE(extra.menu.size(), 4) << application.name->toStdString();
            EXPECT_LE(extra.menu.size(), 8) << application.name->toStdString();
        }
    }
    icons.removeDuplicates();
    EXPECT_GE(icons.size(), 12);

    SceneContext context(builtInDesktop());
    const auto items = context.desktop().menuBar().items();
    context.click(items.back().frame.center());
    ASSERT_TRUE(context.desktop().menus().choose(u"Show Calendar"_s));
    context.settle();
    const auto banners = context.findAll(u"banner"_s);
    ASSERT_EQ(banners.size(), 1);
    EXPECT_TRUE(banners.first()->property("what").toString().contains(u"Show Calendar"_s));
}

void expectRoomForTexts(const QQuickItem &item, int &texts)
{
    if (!item.isVisible())
        return;
    const QString text = item.inherits("QQuickText") ? item.property("text").toString() : QString();
    if (!text.isEmpty()) {
        ++texts;
        EXPECT_FALSE(item.property("truncated").toBool()) << qPrintable(text);
        EXPECT_LE(item.property("contentWidth").toDouble(), item.width() + 0.5) << qPrintable(text);
        EXPECT_LE(item.property("contentHeight").toDouble(), item.height() + 0.5) << qPrintable(text);
    }
    for (const QQuickItem *child : item.childItems())
        expectRoomForTexts(*child, texts);
}

TEST(Texts, OfTheDesktopItselfHaveRoomInEveryLanguage)
{
    for (const char *name : {"en", "de"}) {
        SCOPED_TRACE(name);
        i18n::installTranslation(*qApp, QLocale(QString::fromLatin1(name)));
        SceneContext context(builtInDesktop());
        context.desktop().permission().openPrompt();
        context.desktop().permission().openPage();
        context.settle();
        int texts = 0;
        expectRoomForTexts(*context.scene().quickWindow()->contentItem(), texts);
        EXPECT_GT(texts, 12);
        qDeleteAll(qApp->findChildren<QTranslator *>());
    }
}

} // namespace brimshade::desktop
