#include "Brimshade.h"

namespace brimshade::features {

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
