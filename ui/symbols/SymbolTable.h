#pragma once
#include "platform/SymbolConfiguration.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QStringList>

namespace brimshade::ui {

inline constexpr double kSymbolGrid = 480;

// The outline of a symbol on a square of side kSymbolGrid, y down; empty for an unknown name. Main thread: glyphs come
// from the icon font.
QPainterPath symbolOutline(const QString &name);

// Paints a symbol's outline at that configuration, in a square of side symbolExtent whose corner is the origin. The
// colour is opaque: weight is a stroke along the edge, which would show through a translucent one. Any thread.
void paintSymbol(QPainter &painter, const QPainterPath &outline, const platform::SymbolConfiguration &configuration,
                 const QColor &color);

// Side, in points, of the square that a symbol fills: a little more than the text of the same size is high.
double symbolExtent(double pointSize);

// Every name there is, sorted.
QStringList symbolNames();

} // namespace brimshade::ui
