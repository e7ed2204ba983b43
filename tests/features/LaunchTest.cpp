#include "Brimshade.h"

namespace brimshade::features {

const QString kPosition = u"NSStatusItem Preferred Position BrimshadeButton"_s;

desktop::DesktopDescription firstLaunch()
{
    desktop::DesktopDescription desktop = notchedDesktop();
    desktop.defaults.clear();
    return desktop;
}

TEST(Launch, ScansNothingAndOpensNothingOnceSetUp)
{
    Brimshade brimshade;
    brimshade.wait(60);
    EXPECT_EQ(brimshade.desktop().inspection().requestCount(), 0u);
    EXPECT_FALSE(brimshade.model().scanned());
    EXPECT_TRUE(brimshade.desktop().windows().onScreen().empty());
    EXPECT_EQ(brimshade.desktop().inspection().promptCount(), 0);
    EXPECT_EQ(brimshade.statusItem(), QRectF(1304, 0, 28, 37));
}

TEST(Launch, MakesThePanelOnceItHasSettled)
{
    Brimshade brimshade;
    brimshade.wait(1);
    EXPECT_EQ(brimshade.windowCount(u"panel"_s), 1);
    EXPECT_FALSE(brimshade.isOnScreen(u"panel"_s));
    brimshade.open();
    EXPECT_EQ(brimshade.windowCount(u"panel"_s), 1);
}

TEST(Launch, FirstOneStoresItsPlaceAndShowsTheSetupWindow)
{
    Brimshade brimshade(firstLaunch());
    const platform::UserDefaults &defaults = brimshade.desktop().platform().userDefaults;
    EXPECT_EQ(defaults.objectForKey(kPosition), QVariant(5));
    EXPECT_FALSE(defaults.objectForKey(u"onboardingDone"_s).isValid());
    EXPECT_TRUE(brimshade.hasKeys(u"setup"_s));
    EXPECT_TRUE(brimshade.model().scanned());
    EXPECT_EQ(brimshade.desktop().inspection().promptCount(), 0);
}

TEST(Launch, KeepsThePlaceTheUserChose)
{
    Brimshade brimshade(
        notchedDesktop({{kPosition, 240.0}})); // left of the margin, the system's items, Relay and Vault
    EXPECT_EQ(brimshade.bar(), u"quill | vault relay"_s);
    EXPECT_EQ(brimshade.desktop().platform().userDefaults.objectForKey(kPosition).toDouble(), 240);
}

TEST(Launch, AsksOnceForAMissingPermission)
{
    desktop::DesktopDescription desktop = notchedDesktop();
    desktop.trusted = false;
    Brimshade brimshade(desktop);
    EXPECT_EQ(brimshade.desktop().inspection().promptCount(), 1);
    EXPECT_FALSE(brimshade.isOnScreen(u"setup"_s));
    brimshade.wait(60);
    EXPECT_EQ(brimshade.desktop().inspection().promptCount(), 1);
    EXPECT_TRUE(brimshade.desktop().permission().isPromptOpen());
    brimshade.desktop().setTrusted(true);
    EXPECT_FALSE(brimshade.desktop().permission().isPromptOpen()) << "it has been answered";
}

} // namespace brimshade::features
