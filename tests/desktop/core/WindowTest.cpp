#include "World.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

class Strip : public NativeView {
public:
    std::vector<TrackingArea> updateTrackingAreas(QSizeF size) override
    {
        told << u"areas"_s;
        return {{QRectF(QPointF(), size), kTrackingMouseEnteredAndExited | kTrackingActiveAlways}};
    }
    void mouseEntered() override { told << u"entered"_s; }
    void mouseExited() override { told << u"exited"_s; }
    void draw(QPainter &, const QRectF &) override { }
    QString take() { return std::exchange(told, {}).join(u", "_s); }

private:
    QStringList told;
};

class WindowTest : public World {
protected:
    std::unique_ptr<Window> create(const QString &name, int level = kNormalWindowLevel, unsigned style = 0,
                                   const ContentView &content = HostedView())
    {
        WindowAttributes attributes;
        attributes.name = name;
        attributes.contentRect = QRectF(100, 100, 200, 100);
        attributes.level = level;
        attributes.styleMask = style;
        attributes.isPanel = style & kStyleNonactivatingPanel;
        attributes.contentSizesWindow = style & kStyleTitled;
        return platform.windows.createWindow(attributes, content);
    }
    QString onScreen()
    {
        QStringList names;
        for (const DesktopWindow *window : desktop.windows().onScreen())
            names << window->attributes().name;
        return names.join(u' ');
    }
    QString key()
    {
        const DesktopWindow *window = desktop.windows().keyWindow();
        return window ? window->attributes().name : u"-"_s;
    }
};

TEST_F(WindowTest, StacksByLevelThenByOrderAndPassesTheKeysOn)
{
    const auto settings = create(u"settings"_s), setup = create(u"setup"_s);
    const auto panel = create(u"panel"_s, kStatusWindowLevel, kStyleNonactivatingPanel);
    EXPECT_FALSE(settings->isVisible());
    panel->makeKeyAndOrderFront();
    platform.application.activate();
    settings->makeKeyAndOrderFront();
    setup->makeKeyAndOrderFront();
    settings->orderFrontRegardless();
    EXPECT_EQ(onScreen(), u"setup settings panel"_s);
    EXPECT_EQ(key(), u"setup"_s) << "ordering front alone takes no keys";

    setup->close();
    EXPECT_EQ(key(), u"settings"_s) << "while the program is active the next window gets them";
    panel->makeKeyAndOrderFront();
    click({150, 982 - 150});
    EXPECT_EQ(desktop.input().pointer(), QPointF(150, 832));
    EXPECT_EQ(key(), u"panel"_s) << "the panel covers the others here";
    panel->orderOut();
    EXPECT_EQ(key(), u"settings"_s);
    click({1000, 800});
    EXPECT_EQ(key(), u"-"_s);
    panel->makeKeyAndOrderFront();
    panel->orderOut();
    EXPECT_EQ(key(), u"-"_s) << "a panel that does not activate gives the keys back to the active application";
}

TEST_F(WindowTest, SizesItselfByItsContentAndStaysBelowTheMenuBar)
{
    auto window = create(u"settings"_s, kNormalWindowLevel, kStyleTitled | kStyleClosable);
    DesktopWindow *desktopWindow = desktop.windows().named(u"settings"_s);
    EXPECT_EQ(window->frame(), QRectF(100, 100, 200, 128)) << "a title bar above the content";
    window->center();
    desktopWindow->setContentSize({480, 640});
    EXPECT_EQ(window->frame(), QRectF(516, 185, 480, 668)) << "centred on whole points although its size came later";
    window->makeKeyAndOrderFront();
    desktopWindow->setContentSize({480, 600});
    EXPECT_DOUBLE_EQ(maxY(window->frame()), 185 + 668) << "the title bar stays";
    window->setFrame(QRectF(0, 900, 480, 100));
    EXPECT_EQ(maxY(window->frame()), 945);
}

TEST_F(WindowTest, KnowsItsScreenAndComesBackFromOneThatIsGone)
{
    desktop.setScreens({notchedScreen(), plainScreen({1512, 0, 1920, 1080})});
    auto window = create(u"settings"_s, kNormalWindowLevel, kStyleTitled);
    window->setFrame(QRectF(1412, 100, 300, 128));
    EXPECT_EQ(window->screen()->localizedName, u"External"_s);
    EXPECT_EQ(platform.screens.mainScreen()->localizedName, u"Built-in Display"_s);
    window->makeKeyAndOrderFront();
    EXPECT_EQ(platform.screens.mainScreen()->localizedName, u"External"_s) << "the one with the key window";
    EXPECT_TRUE(window->occlusionStateVisible());
    window->setFrame(QRectF(2000, 100, 300, 128));
    desktop.setScreens({notchedScreen()});
    EXPECT_EQ(window->screen()->localizedName, u"Built-in Display"_s);
    window->setFrame(QRectF(-9000, 0, 10, 10));
    EXPECT_FALSE(window->screen());
    EXPECT_FALSE(window->occlusionStateVisible());
}

TEST_F(WindowTest, TellsNativeViewsOfThePointerByEventsAlone)
{
    const auto strip = std::make_shared<Strip>();
    moveTo({150, 982 - 150});
    const auto window = create(u"strip"_s, kStatusWindowLevel, kStyleNonactivatingPanel, strip);
    window->orderFrontRegardless();
    EXPECT_EQ(strip->take(), u"areas"_s) << "an area that appears under the pointer is entered without a word";
    moveTo({150, 982 - 150.5});
    EXPECT_EQ(strip->take(), QString());
    moveTo({300, 832});
    EXPECT_EQ(strip->take(), u"exited"_s) << "the right edge does not belong to it";
    platform.eventServices.warpMouseCursorPosition({150, 832});
    dispatch.runDue();
    EXPECT_EQ(strip->take(), QString());
    moveTo({151, 832});
    EXPECT_EQ(strip->take(), u"entered"_s) << "what a warp did shows with the next event";

    desktop.input().pressed(MouseButton::left, 0);
    moveTo({500, 500});
    EXPECT_EQ(strip->take(), QString()) << "nothing while a button is held";
    desktop.input().released(MouseButton::left, 0);
    moveTo({501, 500});
    EXPECT_EQ(strip->take(), u"exited"_s);
}

TEST_F(WindowTest, MayBeDestroyedByWhatItIsTold)
{
    class Vanishing : public Strip {
    public:
        void mouseEntered() override { window.reset(); }
        std::unique_ptr<Window> window;
    };
    const auto view = std::make_shared<Vanishing>();
    view->window = create(u"strip"_s, kStatusWindowLevel, 0, view);
    view->window->orderFrontRegardless();
    const auto other = create(u"other"_s);
    other->orderFrontRegardless();
    moveTo({150, 832});
    EXPECT_FALSE(view->window);
    EXPECT_EQ(onScreen(), u"other"_s);
    EXPECT_EQ(desktop.windows().named(u"strip"_s), nullptr);
}

} // namespace brimshade::desktop
