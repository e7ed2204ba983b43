#include "Brimshade.h"

namespace brimshade::features {

using model::Shortcut;

TEST(Settings, OneShortcutAtATimeTogglesThePanel)
{
    Brimshade brimshade;
    brimshade.pressShortcut();
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.model().setShortcut(Shortcut::controlOptionSpace);
    brimshade.pressShortcut();
    EXPECT_TRUE(brimshade.hasKeys(u"panel"_s));
    EXPECT_EQ(brimshade.model().query(), QString()); // its space is not typed
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

TEST(Settings, OneWindowForAllOpenings)
{
    Brimshade brimshade;
    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Settings…"_s);
    EXPECT_TRUE(brimshade.hasKeys(u"settings"_s));
    EXPECT_TRUE(brimshade.model().scanned());
    brimshade.desktop().windows().named(u"settings"_s)->close();
    brimshade.delegate().openSettings();
    EXPECT_TRUE(brimshade.hasKeys(u"settings"_s));
    EXPECT_EQ(brimshade.windowCount(u"settings"_s), 1);

    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Setup Guide…"_s);
    EXPECT_FALSE(brimshade.isOnScreen(u"settings"_s));
    EXPECT_TRUE(brimshade.hasKeys(u"setup"_s));
}

} // namespace brimshade::features
