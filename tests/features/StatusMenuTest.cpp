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
    brimshade.open(); // the left click is the panel's again
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

} // namespace brimshade::features
