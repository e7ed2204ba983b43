#include "SymbolTable.h"
#include "SymbolDrawings.h"

#include <QFont>
#include <QPen>
#include <QRawFont>
#include <QTransform>
#include <algorithm>
#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace brimshade::ui {

namespace {

using Drawing = QPainterPath (*)();

// A glyph of the icon font, or a drawing for what the font lacks or shows differently.
struct Symbol {
    const char16_t *name;
    char16_t glyph = 0;
    Drawing drawing = nullptr;
};

constexpr std::array kSymbols{
    Symbol{u"accessibility", 0, drawAccessibility},
    Symbol{u"airplayaudio", 0, drawAirplayAudio},
    Symbol{u"battery.75percent", 0, drawBattery75},
    Symbol{u"bolt.fill", 0xF241},
    Symbol{u"bubble.left.and.bubble.right.fill", 0xF28C},
    Symbol{u"calendar", 0xF0ED},
    Symbol{u"checkmark", 0xF12C},
    Symbol{u"checkmark.circle.fill", 0xF5E0},
    Symbol{u"checkmark.seal.fill", 0, drawCheckmarkSeal},
    Symbol{u"chevron.down", 0xF140},
    Symbol{u"chevron.right", 0xF142},
    Symbol{u"chevron.up.chevron.down", 0, drawChevronUpDown},
    Symbol{u"circle", 0, drawCircle},
    Symbol{u"circle.grid.2x2.fill", 0, drawCircleGrid},
    Symbol{u"clock.arrow.circlepath", 0xF2DA},
    Symbol{u"clock.fill", 0, drawClock},
    Symbol{u"cloud.fill", 0xF15F},
    Symbol{u"cloud.sun.fill", 0xF595},
    Symbol{u"command", 0xF633},
    Symbol{u"cursorarrow.motionlines", 0, drawCursorMotionLines},
    Symbol{u"exclamationmark.triangle.fill", 0xF026},
    Symbol{u"eye.slash.fill", 0xF209},
    Symbol{u"gearshape.fill", 0xF493},
    Symbol{u"hand.raised.fill", 0, drawHandRaised},
    Symbol{u"hourglass", 0xF51F},
    Symbol{u"keyboard.fill", 0xF30C},
    Symbol{u"lock.fill", 0xF33E},
    Symbol{u"lock.open.fill", 0xF33F},
    Symbol{u"lock.shield.fill", 0, drawLockShield},
    Symbol{u"magnifyingglass", 0xF349},
    Symbol{u"moon.fill", 0, drawMoon},
    Symbol{u"paintpalette.fill", 0xF3D8},
    Symbol{u"pencil", 0xF3EB},
    Symbol{u"person.crop.circle.fill", 0xF009},
    Symbol{u"play.fill", 0xF40A},
    Symbol{u"power", 0xF425},
    Symbol{u"rectangle.on.rectangle", 0, drawRectangleOnRectangle},
    Symbol{u"rectangle.topthird.inset.filled", 0, drawRectangleTopThird},
    Symbol{u"shippingbox.fill", 0xF3D3},
    Symbol{u"speaker.wave.2.fill", 0xF57E},
    Symbol{u"square.grid.2x2", 0, drawSquareGrid},
    Symbol{u"sun.max.fill", 0xF599},
    Symbol{u"switch.2", 0, drawSwitches},
    Symbol{u"wave.3.right", 0, drawWaves},
    Symbol{u"waveform", 0, drawWaveform},
    Symbol{u"wifi", 0xF5A9},
    Symbol{u"xmark", 0xF156},
};

static_assert(kSymbolGrid == 24 * kFineGrid);

QPainterPath glyphOutline(char16_t glyph)
{
    QFont font(u"Material Design Icons"_s);
    font.setPixelSize(int(kSymbolGrid));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    const QRawFont raw = QRawFont::fromFont(font);
    const auto indexes = raw.glyphIndexesForString(QString(QChar(glyph)));
    if (indexes.isEmpty() || indexes.first() == 0)
        return {};
    // The em square of the font is the grid, with its bottom at the descent.
    return raw.pathForGlyph(indexes.first()).translated(0, kSymbolGrid - raw.descent());
}

const Symbol *find(const QString &name)
{
    const auto *found = std::ranges::find_if(kSymbols, [&](const Symbol &s) { return name == QStringView(s.name); });
    return found == kSymbols.end() ? nullptr : found;
}

// How much a weight adds to every stroke, as a share of the grid.
double emboldening(platform::SymbolWeight weight)
{
    switch (weight) {
    case platform::SymbolWeight::regular:
        return 0;
    case platform::SymbolWeight::medium:
        return 0.012;
    case platform::SymbolWeight::semibold:
        return 0.022;
    case platform::SymbolWeight::bold:
        return 0.04;
    }
    return 0;
}

} // namespace

QPainterPath symbolOutline(const QString &name)
{
    const Symbol *symbol = find(name);
    if (!symbol)
        return {};
    return symbol->drawing ? symbol->drawing() : glyphOutline(symbol->glyph);
}

void paintSymbol(QPainter &painter, const QPainterPath &outline, const platform::SymbolConfiguration &configuration,
                 const QColor &color)
{
    const double scale = symbolExtent(configuration.pointSize) / kSymbolGrid;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.fillPath(outline, color);
    if (const double extra = emboldening(configuration.weight) * kSymbolGrid; extra > 0)
        painter.strokePath(outline, QPen(color, extra, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

double symbolExtent(double pointSize)
{
    return 1.28 * pointSize;
}

QStringList symbolNames()
{
    QStringList names;
    for (const Symbol &symbol : kSymbols)
        names << QStringView(symbol.name).toString();
    names.sort();
    return names;
}

} // namespace brimshade::ui
