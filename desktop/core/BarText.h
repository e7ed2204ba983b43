#pragma once
#include <QFont>
#include <QString>

namespace brimshade::desktop {

// Text in the bar: of the clock and beside the pictures of items.
QFont barFont();
double barTextWidth(const QString &text); // points

} // namespace brimshade::desktop
