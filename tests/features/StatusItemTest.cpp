#include "Brimshade.h"

namespace brimshade::features {

TEST(StatusMenu, OpensOnARightClickAndLeavesThePanelAsItIs)
{
    Brimshade brimshade;
    brimshade.rightClickStatusItem();
    EXPECT_EQ(brimshade.desktop().menus().titles(),
              QStringList({u"Settings…"_s, u"Setup Guide…"_s, u"Refresh"_s, u"-"_s, u"Quit Brimshade"_s}));
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.desktop().menus().dismiss();
    brimshade.wait(0);
    brimshade.open(); // a left click opens the panel again
    brimshade.rightClickStatusItem();
    EXPECT_NE(brimshade.desktop().menus().openMenu(), nullptr);
    EXPECT_TRUE(brimshade.delegate().shown());
}

TEST(StatusMenu, RefreshesTheList)
{
    Brimshade brimshade;
    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Refresh"_s);
    EXPECT_EQ(brimshade.model().extras().size(), 5u);
    EXPECT_TRUE(brimshade.desktop().windows().onScreen().empty());
    brimshade.desktop().setTrusted(false);
    brimshade.desktop().quit(811);
    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Refresh"_s);
    EXPECT_FALSE(brimshade.model().trusted());
    EXPECT_EQ(brimshade.model().extras().size(), 5u);
}

TEST(StatusMenu, Quits)
{
    Brimshade brimshade;
    bool terminated = false;
    QObject::connect(&brimshade.desktop(), &desktop::Desktop::terminated, [&] { terminated = true; });
    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Quit Brimshade"_s);
    EXPECT_TRUE(terminated);
}

using model::Shortcut;

TEST(Settings, OneShortcutAtATimeTogglesThePanel)
{
    Brimshade brimshade;
    brimshade.pressShortcut();
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.model().setShortcut(Shortcut::controlOptionSpace);
    brimshade.pressShortcut();
    EXPECT_TRUE(brimshade.hasKeys(u"panel"_s));
    EXPECT_EQ(brimshade.model().query(), QString()); // the shortcut's space is not typed
    brimshade.pressShortcut();
    EXPECT_FALSE(brimshade.delegate().shown());

    brimshade.model().setShortcut(Shortcut::optionCommandN);
    brimshade.pressShortcut();
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.press(45, u"n"_s, platform::kOptionFlag | platform::kCommandFlag);
    EXPECT_TRUE(brimshade.delegate().shown());
    brimshade.model().setShortcut(Shortcut::none);
    brimshade.press(45, u"n"_s, platform::kOptionFlag | platform::kCommandFlag);
    EXPECT_TRUE(brimshade.delegate().shown());
}

TEST(Settings, TogglingTheHoverBuildsTheStripAndRegistersTheShortcutOnce)
{
    Brimshade brimshade(dividedDesktop());
    brimshade.model().setShortcut(Shortcut::controlOptionSpace);
    const QRectF wide = brimshade.statusItem();
    for (const bool on : {true, false, true}) {
        brimshade.model().setHoverToOpen(on);
        EXPECT_EQ(brimshade.windowCount(u"strip"_s), on);
        EXPECT_EQ(brimshade.frameOf(u"strip"_s).has_value(), on);
        brimshade.pressShortcut();
        EXPECT_TRUE(brimshade.delegate().shown());
        brimshade.pressShortcut();
        EXPECT_FALSE(brimshade.delegate().shown()) << "one press, one action";
        brimshade.wait(1);
        EXPECT_EQ(brimshade.statusItem(), wide);
    }
}

TEST(Settings, OneWindowForAllOpenings)
{
    Brimshade brimshade;
    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Settings…"_s);
    EXPECT_TRUE(brimshade.hasKeys(u"settings"_s));
    EXPECT_TRUE(brimshade.model().scanned());
    brimshade.desktop().windows().named(u"settings"_s)->close();
    brimshade.model().onOpenSettings();
    EXPECT_TRUE(brimshade.hasKeys(u"settings"_s));
    EXPECT_EQ(brimshade.windowCount(u"settings"_s), 1);

    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Setup Guide…"_s);
    EXPECT_FALSE(brimshade.isOnScreen(u"settings"_s));
    EXPECT_TRUE(brimshade.hasKeys(u"setup"_s));
}

TEST(Log, TellsOpeningsClicksKeysAndRefusals)
{
    auto desktop = dividedDesktop();
    desktop.defaults.insert(u"hoverToOpen"_s, true);
    Brimshade brimshade(desktop);
    EXPECT_EQ(brimshade.log(), QStringList());

    brimshade.clickStatusItem();
    brimshade.type(u"q"_s);
    brimshade.press(53);
    brimshade.press(53);
    EXPECT_EQ(brimshade.log(),
              QStringList({u"info: status item clicked, event 2, shown false, moving -"_s,
                           u"info: open byHover false on Built-in Display panel {{256, 262}, {1000, 720}}"_s,
                           u"info: key 0 query ''"_s, u"info: key 53 query 'q'"_s, u"info: key 53 query ''"_s,
                           u"info: close"_s}));

    brimshade.movePointer(kOnNotch);
    brimshade.wait(0.18);
    brimshade.model().onDismiss();
    EXPECT_EQ(brimshade.log(),
              QStringList({u"info: hover on notch, open false"_s,
                           u"info: open byHover true on Built-in Display panel {{256, 262}, {1000, 720}}"_s,
                           u"info: close"_s}));

    brimshade.show(u"Relay"_s);
    const QString moving = brimshade.model().movingID();
    brimshade.wait(0.4);
    brimshade.clickStatusItem();
    EXPECT_EQ(brimshade.log(),
              QStringList({u"info: status item clicked, event 2, shown false, moving "_s + moving,
                           u"error: open refused: moving <private>"_s}));
}

} // namespace brimshade::features
