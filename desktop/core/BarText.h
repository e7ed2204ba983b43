#pragma once
#include <QFont>
#include <QString>

namespace brimshade::desktop {

// Text in the bar: the clock's and the labels beside items' pictures.
QFont barFont();
double barTextWidth(const QString &text); // points

// The active application's name, and the room that it takes from the bar's left edge: 0 without a name.
inline constexpr double kNameMargin = 18; // at each side
double barNameWidth(const QString &name);

} // namespace brimshade::desktop
