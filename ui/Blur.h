#pragma once
#include <QColor>
#include <QImage>

namespace brimshade::ui {

// The picture's shape in one colour, blurred as by a Gaussian whose standard deviation is `deviation` pixels.
// Same size as the picture: leave about three deviations of room around the shape.
QImage blurredSilhouette(const QImage &picture, const QColor &color, double deviation);

// The picture itself, blurred in the same way; premultiplied.
QImage blurred(const QImage &picture, double deviation);

} // namespace brimshade::ui
