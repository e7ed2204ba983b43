#pragma once
#include "MenuExtra.h"

#include <QVariantMap>
#include <optional>
#include <vector>

// What the mover decides, apart from what it does. Pure functions, any thread; display space.
namespace brimshade::menubar {

// Whether a window description is a menu bar, at that window level, with the point in it.
bool menuBarWindowCovers(const QVariantMap &windowInfo, QPointF point, int mainMenuLevel);

// Whether an item can be dragged from where it is to the visible side. Without a system button there is no limit on the
// left.
bool canBeShown(const QRectF &item, const QRectF &divider, const std::optional<QRectF> &systemButton);

// The items beside which the moved one can be dropped, in their order: all others that lie right of the system button.
std::vector<QRectF> dropCandidates(const ExtraList &extras, const QString &movedID,
                                   const std::optional<QRectF> &systemButton);

// Where to let go of the item: just inside the divider's nearest neighbour on the side asked for, or beside the
// divider where it has none.
QPointF dropPoint(const std::vector<QRectF> &candidates, const QRectF &divider, bool hide);

bool isRightOfDivider(const QRectF &item, const QRectF &divider);

} // namespace brimshade::menubar
