#include "SymbolDrawings.h"

#include <QPainterPathStroker>
#include <QTransform>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace brimshade::ui {

namespace {

// Outlines are combined on the fine grid: the toolkit flattens curves to a fixed tolerance when it does so.
QPainterPath fine(const QPainterPath &path)
{
    return QTransform::fromScale(kFineGrid, kFineGrid).map(path);
}

QPainterPath stroked(const QPainterPath &path, double width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width * kFineGrid);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(path).simplified();
}

QPainterPath polyline(std::initializer_list<QPointF> points)
{
    QPainterPath path;
    for (const QPointF &point : points) {
        if (path.elementCount() == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    return fine(path);
}

QPainterPath disc(double x, double y, double radius)
{
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return fine(path);
}

QPainterPath ring(double x, double y, double radius, double width)
{
    return disc(x, y, radius + width / 2).subtracted(disc(x, y, radius - width / 2));
}

QPainterPath box(const QRectF &rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return fine(path);
}

QPainterPath frame(const QRectF &rect, double radius, double width)
{
    const double h = width / 2;
    return box(rect.adjusted(-h, -h, h, h), radius + h).subtracted(box(rect.adjusted(h, h, -h, -h), radius - h));
}

// Part of a circle, degrees counted counter-clockwise from three o'clock.
QPainterPath arc(double x, double y, double radius, double from, double sweep)
{
    const QRectF bounds(x - radius, y - radius, 2 * radius, 2 * radius);
    QPainterPath path;
    path.arcMoveTo(bounds, from);
    path.arcTo(bounds, from, sweep);
    return fine(path);
}

QPainterPath checkmark()
{
    return stroked(polyline({{8.1, 12.3}, {10.9, 15.1}, {16, 9.2}}), 2);
}

} // namespace

QPainterPath drawCircle()
{
    return ring(12, 12, 8.6, 1.8);
}

QPainterPath drawAccessibility()
{
    QPainterPath figure = disc(12, 7.3, 1.5);
    figure = figure.united(stroked(polyline({{7.4, 10.2}, {11, 11}, {13, 11}, {16.6, 10.2}}), 1.5));
    figure = figure.united(stroked(polyline({{12, 11.2}, {12, 13.6}}), 2.6));
    figure = figure.united(stroked(polyline({{9.4, 18}, {11.6, 13.6}, {12.4, 13.6}, {14.6, 18}}), 1.5));
    return ring(12, 12, 9.2, 1.5).united(figure);
}

QPainterPath drawAirplayAudio()
{
    QPainterPath path = polyline({{12, 14}, {17.2, 20.4}, {6.8, 20.4}});
    path.closeSubpath();
    path = path.united(stroked(path, 1));
    for (const double radius : {9.2, 6.2, 3.2})
        path = path.united(stroked(arc(12, 12.2, radius, -38, 256), 1.5));
    QPainterPath below = polyline({{12, 11}, {24, 24}, {0, 24}});
    below.closeSubpath();
    QPainterPath triangle = polyline({{12, 14.4}, {16.8, 20.3}, {7.2, 20.3}});
    triangle.closeSubpath();
    return path.subtracted(below).united(stroked(triangle, 1.2)).united(triangle);
}

QPainterPath drawBattery75()
{
    QPainterPath path = frame({2, 7.2, 17.6, 9.6}, 2.6, 1.3);
    path = path.united(box({3.9, 9.1, 10.4, 5.8}, 1.2));
    QPainterPath knob;
    knob.moveTo(21.2, 10.3);
    knob.quadTo(23, 12, 21.2, 13.7);
    knob.closeSubpath();
    return path.united(fine(knob));
}

QPainterPath drawCheckmarkSeal()
{
    constexpr int lobes = 8;
    QPainterPath seal = disc(12, 12, 7.8);
    for (int i = 0; i < lobes; ++i) {
        const double angle = (i + 0.5) * 2 * std::numbers::pi / lobes;
        seal = seal.united(disc(12 + 6.9 * std::cos(angle), 12 + 6.9 * std::sin(angle), 3.1));
    }
    return seal.subtracted(checkmark());
}

QPainterPath drawChevronUpDown()
{
    QPainterPath path = stroked(polyline({{7.6, 9}, {12, 4.6}, {16.4, 9}}), 2.2);
    return path.united(stroked(polyline({{7.6, 15}, {12, 19.4}, {16.4, 15}}), 2.2));
}

QPainterPath drawCircleGrid()
{
    QPainterPath path;
    for (const double x : {7.2, 16.8}) {
        for (const double y : {7.2, 16.8})
            path.addPath(disc(x, y, 3.9));
    }
    return path;
}

QPainterPath drawClock()
{
    return disc(12, 12, 9.4).subtracted(stroked(polyline({{12, 6.6}, {12, 12.4}, {15.6, 14.6}}), 1.7));
}

QPainterPath drawCursorMotionLines()
{
    QPainterPath cursor =
        polyline({{10, 4}, {10, 18.6}, {13.2, 15.6}, {15.3, 20.4}, {17.3, 19.5}, {15.2, 14.8}, {19.4, 14.4}});
    cursor.closeSubpath();
    cursor = cursor.united(stroked(cursor, 0.8));
    for (const double y : {7.0, 11.0, 15.0})
        cursor = cursor.united(stroked(polyline({{y == 11 ? 3.0 : 4.6, y}, {7.2, y}}), 1.4));
    return cursor;
}

QPainterPath drawHandRaised()
{
    QPainterPath hand = box({6.6, 10.6, 11, 11}, 5);
    const struct {
        double x, top;
    } fingers[] = {{7.7, 6.6}, {10.6, 3.9}, {13.5, 3.5}, {16.4, 5.9}};
    for (const auto &finger : fingers)
        hand = hand.united(stroked(polyline({{finger.x, finger.top}, {finger.x, 15}}), 2.3));
    hand = hand.united(stroked(polyline({{4.2, 12.6}, {7.4, 17.6}, {9, 19.4}}), 2.4));
    for (const double x : {9.15, 12.05, 14.95})
        hand = hand.subtracted(stroked(polyline({{x, 7}, {x, 11.6}}), 0.55));
    return hand;
}

QPainterPath drawLockShield()
{
    QPainterPath shield;
    shield.moveTo(12, 1.8);
    shield.cubicTo(14.4, 3.6, 17, 4.5, 19.8, 4.7);
    shield.lineTo(19.8, 11);
    shield.cubicTo(19.8, 16.4, 16.6, 20.4, 12, 22.2);
    shield.cubicTo(7.4, 20.4, 4.2, 16.4, 4.2, 11);
    shield.lineTo(4.2, 4.7);
    shield.cubicTo(7, 4.5, 9.6, 3.6, 12, 1.8);
    QPainterPath shackle;
    shackle.moveTo(9.9, 11.4);
    shackle.lineTo(9.9, 9.4);
    shackle.cubicTo(9.9, 6.7, 14.1, 6.7, 14.1, 9.4);
    shackle.lineTo(14.1, 11.4);
    return fine(shield).subtracted(box({8.2, 10.8, 7.6, 5.6}, 1.1).united(stroked(fine(shackle), 1.4)));
}

QPainterPath drawMoon()
{
    return disc(11.4, 12.4, 8.6).subtracted(disc(15.6, 8.2, 7.2));
}

QPainterPath drawRectangleOnRectangle()
{
    const QPainterPath front = frame({7.6, 9, 13.4, 9.8}, 2, 1.6);
    const QPainterPath back = frame({3, 5, 13.4, 9.8}, 2, 1.6);
    return back.subtracted(box({5.9, 7.3, 16.8, 13.2}, 3)).united(front);
}

// The program's own sign: a display whose top third is lit.
QPainterPath drawRectangleTopThird()
{
    return frame({2.6, 5, 18.8, 14}, 2.8, 1.7).united(box({5.1, 7.5, 13.8, 3.5}, 1));
}

QPainterPath drawSquareGrid()
{
    QPainterPath path;
    for (const double x : {4.1, 13.7}) {
        for (const double y : {4.1, 13.7})
            path.addPath(frame({x, y, 6.2, 6.2}, 1.4, 1.6));
    }
    return path;
}

QPainterPath drawSwitches()
{
    const QPainterPath upper = frame({3, 4.4, 18, 6.2}, 3.1, 1.4).united(disc(17.9, 7.5, 2.1));
    const QPainterPath lower = box({2.3, 12.7, 19.4, 7.6}, 3.8).subtracted(disc(6.1, 16.5, 2.3));
    return upper.united(lower);
}

QPainterPath drawWaveform()
{
    const struct {
        double x, half;
    } bars[] = {{3.6, 2}, {7, 5}, {10.4, 8.4}, {13.8, 4}, {17.2, 6.4}, {20.6, 2.4}};
    QPainterPath path;
    for (const auto &bar : bars)
        path.addPath(stroked(polyline({{bar.x, 12 - bar.half}, {bar.x, 12 + bar.half}}), 1.7));
    return path;
}

QPainterPath drawWaves()
{
    QPainterPath path;
    for (const double radius : {4.6, 9.6, 14.6})
        path.addPath(stroked(arc(3.4, 12, radius, -33, 66), 2));
    return path;
}

} // namespace brimshade::ui
