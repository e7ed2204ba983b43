#include "DragPlan.h"
#include "NotchGeometry.h"
#include "Text.h"
#include "platform/Geometry.h"
#include "platform/WindowServer.h"

#include <algorithm>

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;
using platform::maxX;
using platform::midY;
using platform::minX;

constexpr double kInsetShare = 0.25; // of the neighbour's width
constexpr double kLargestInset = 6;
constexpr double kOffsetWithoutNeighbour = 4;

// A number as the window server writes it; a text that looks like one does not count.
std::optional<double> number(const QVariantMap &map, const QString &key)
{
    const QVariant value = map.value(key);
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}

std::optional<QRectF> rectangle(const QVariant &value)
{
    if (value.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    const QVariantMap map = value.toMap();
    const auto x = number(map, u"X"_s);
    const auto y = number(map, u"Y"_s);
    const auto width = number(map, u"Width"_s);
    const auto height = number(map, u"Height"_s);
    if (!x || !y || !width || !height)
        return std::nullopt;
    return QRectF(*x, *y, *width, *height);
}

bool isRightOfButton(const QRectF &frame, const std::optional<QRectF> &systemButton)
{
    return !systemButton || minX(frame) > maxX(*systemButton) - kEdgeTolerance;
}

double inset(const QRectF &neighbour)
{
    return std::min(kInsetShare * neighbour.width(), kLargestInset);
}

double hidingX(const std::vector<QRectF> &candidates, const QRectF &divider)
{
    std::optional<QRectF> nearest;
    for (const QRectF &frame : candidates)
        if (maxX(frame) <= minX(divider) + kEdgeTolerance && (!nearest || maxX(frame) > maxX(*nearest)))
            nearest = frame;
    return nearest ? maxX(*nearest) - inset(*nearest) : minX(divider) - kOffsetWithoutNeighbour;
}

double showingX(const std::vector<QRectF> &candidates, const QRectF &divider)
{
    std::optional<QRectF> nearest;
    for (const QRectF &frame : candidates)
        if (minX(frame) >= maxX(divider) - kEdgeTolerance && (!nearest || minX(frame) < minX(*nearest)))
            nearest = frame;
    return nearest ? minX(*nearest) + inset(*nearest) : maxX(divider) + kOffsetWithoutNeighbour;
}

} // namespace

bool menuBarWindowCovers(const QVariantMap &windowInfo, QPointF point, int mainMenuLevel)
{
    const auto layer = number(windowInfo, QString::fromLatin1(platform::kCGWindowLayer));
    const auto bounds = rectangle(windowInfo.value(QString::fromLatin1(platform::kCGWindowBounds)));
    return layer == mainMenuLevel && bounds && platform::containsPoint(*bounds, point);
}

bool canBeShown(const QRectF &item, const QRectF &divider, const std::optional<QRectF> &systemButton)
{
    return item.width() > 0 && isRightOfButton(item, systemButton) && isSameRow(item, divider)
        && !isRightOfDivider(item, divider);
}

std::vector<QRectF> dropCandidates(const ExtraList &extras, const QString &movedID,
                                   const std::optional<QRectF> &systemButton)
{
    std::vector<QRectF> frames;
    for (const MenuExtra &extra : extras)
        if (extra.frame.width() > 0 && isRightOfButton(extra.frame, systemButton) && !isSameText(extra.id, movedID))
            frames.push_back(extra.frame);
    return frames;
}

QPointF dropPoint(const std::vector<QRectF> &candidates, const QRectF &divider, bool hide)
{
    return {hide ? hidingX(candidates, divider) : showingX(candidates, divider), midY(divider)};
}

bool isRightOfDivider(const QRectF &item, const QRectF &divider)
{
    return maxX(item) > minX(divider) + kEdgeTolerance;
}

} // namespace brimshade::menubar
