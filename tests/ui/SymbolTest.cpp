#include "support/Test.h"
#include "ui/symbols/SymbolTable.h"

namespace brimshade::ui {

TEST(Symbols, EveryOneHasAnOutlineWithinItsSquare)
{
    for (const QString &name : symbolNames()) {
        const QRectF inGrid = symbolOutline(name).boundingRect();
        const double unit = kSymbolGrid / 24;
        const QRectF bounds(inGrid.topLeft() / unit, inGrid.size() / unit);
        SCOPED_TRACE(qPrintable(name));
        EXPECT_GT(std::max(bounds.width(), bounds.height()), 10);
        EXPECT_GE(bounds.left(), 0);
        EXPECT_GE(bounds.top(), 0);
        EXPECT_LE(bounds.right(), 24);
        EXPECT_LE(bounds.bottom(), 24);
        EXPECT_NEAR(bounds.center().x(), 12, 2.2);
        EXPECT_NEAR(bounds.center().y(), 12, 2.2);
    }
}

// Every symbol that a menu bar item or a view may ask for exists.
TEST(Symbols, NoNameInUseIsMissing)
{
    const QString names = u"moon.fill battery.75percent switch.2 clock.fill wifi wave.3.right speaker.wave.2.fill "
                          u"airplayaudio rectangle.on.rectangle sun.max.fill magnifyingglass waveform "
                          u"person.crop.circle.fill keyboard.fill play.fill lock.shield.fill clock.arrow.circlepath "
                          u"cloud.sun.fill accessibility circle.grid.2x2.fill circle rectangle.topthird.inset.filled "
                          u"eye.slash.fill gearshape.fill lock.open.fill checkmark.seal.fill cursorarrow.motionlines "
                          u"command power square.grid.2x2 hand.raised.fill exclamationmark.triangle.fill lock.fill "
                          u"checkmark.circle.fill bubble.left.and.bubble.right.fill calendar cloud.fill "
                          u"hourglass shippingbox.fill bolt.fill pencil paintpalette.fill"_s;
    const QStringList known = symbolNames();
    for (const QString &name : names.split(u' '))
        EXPECT_TRUE(known.contains(name)) << qPrintable(name);
}

} // namespace brimshade::ui
