#pragma once
#include <QFont>
#include <QString>

namespace brimshade::desktop {

// Text in the bar: of the clock and beside the pictures of items.
QFont barFont();
double barTextWidth(const QString &text); // points

// The active application's name at the bar's left end, and the room that it takes there from the bar's edge: 0 without
// a name.
inline constexpr double kNameMargin = 18; // at each side
double barNameWidth(const QString &name);

} // namespace brimshade::desktop
