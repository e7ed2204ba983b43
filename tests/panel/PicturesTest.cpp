// Pictures of every state for people to look at, in `pictures` of the folder it runs in.
#include "PanelScene.h"

#include <QDir>
#include <gtest/gtest.h>

namespace brimshade::panel {
namespace {

using namespace Qt::StringLiterals;

void save(PanelScene &panel, const QString &name, double scale)
{
    QDir().mkpath(u"pictures"_s);
    ASSERT_TRUE(panel.scene.picture().save(u"pictures/%1@%2.png"_s.arg(name).arg(scale)));
}

class Pictures : public testing::TestWithParam<double> { };

TEST_P(Pictures, OfEveryState)
{
    const double scale = GetParam();
    PanelScene panel(12, 9, scale);
    panel.setWallpaper(true);
    panel.model.setNotch({186, 37});
    save(panel, u"closed"_s, scale);
    panel.model.setIsOpen(true);
    for (int frame = 1; frame <= 8; ++frame) {
        panel.scene.advance(64);
        if (scale == 1)
            save(panel, u"opening-%1"_s.arg(frame), scale);
    }
    panel.finishMotion();
    save(panel, u"open"_s, scale);
    panel.scene.movePointer(panel.frame(u"interior"_s).center());
    panel.scene.movePointer(panel.scene.frameOf(panel.tile(u"Papercut"_s)).center());
    panel.finishMotion();
    save(panel, u"hovered"_s, scale);
    panel.scene.movePointer({20, 700});
    panel.model.setQuery(u"pe"_s);
    panel.finishMotion();
    save(panel, u"searching"_s, scale);
    panel.model.setQuery(u"no such thing "_s);
    panel.finishMotion();
    save(panel, u"no-matches"_s, scale);
    panel.model.setQuery({});
    panel.model.setIsOpen(false);
    panel.scene.advance(64);
    save(panel, u"closing"_s, scale);
    panel.model.setExtras({});
    panel.open();
    save(panel, u"no-items"_s, scale);
    panel.model.setScanned(false);
    panel.finishMotion();
    save(panel, u"waiting"_s, scale);
    panel.model.setTrusted(false);
    panel.finishMotion();
    save(panel, u"permission"_s, scale);
    panel.model.setTrusted(true);
    panel.model.setScanned(true);
    panel.model.setExtras(makeExtras(5000, 5000));
    panel.finishMotion();
    save(panel, u"many"_s, scale);
}

INSTANTIATE_TEST_SUITE_P(AtScale, Pictures, testing::Values(1.0, 2.0));

} // namespace
} // namespace brimshade::panel
