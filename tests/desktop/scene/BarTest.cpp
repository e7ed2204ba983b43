#include "SceneContext.h"
#include "desktop/core/MenuBar.h"
#include "desktop/scene/BarModel.h"

namespace brimshade::desktop {

TEST(Bar, ShowsTheItemsThatAreDrawnWhereTheyAre)
{
    DesktopDescription description = SceneContext::smallDesktop();
    description.screens[0].notch = {400, 700};
    auto &extras = *description.applications[0].extras;
    extras.assign(12, extras[0]);
    for (int i = 0; i < 12; ++i) {
        extras[i].identifier = u"relay.%1"_s.arg(i);
        extras[i].width = 40;
    }
    SceneContext context(description);
    const auto shown = [&] {
        QList<QRectF> frames;
        for (const QQuickItem *item : context.findAll(u"barItem"_s))
            frames << item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        return frames;
    };
    const auto drawn = [&] {
        QList<QRectF> frames;
        for (const BarItem &item : context.desktop().menuBar().items()) {
            if (item.drawn)
                frames << item.frame;
        }
        return frames;
    };
    EXPECT_EQ(shown(), drawn());
    EXPECT_EQ(shown().size(), 7) << "(992 - 700) / 40";
    ApplicationSpec changed;
    changed.description = description.applications[0];
    changed.description.extras->at(0).width = 90;
    context.desktop().change(812, changed);
    context.advance(0.2);
    EXPECT_EQ(shown(), drawn());
    EXPECT_EQ(shown().last().width(), 90);
    context.desktop().setMenuBarShowing(false);
    context.advance(0.2);
    EXPECT_TRUE(shown().isEmpty());
}

} // namespace brimshade::desktop
