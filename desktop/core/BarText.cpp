#include "BarText.h"

#include <QFontMetricsF>

namespace brimshade::desktop {

QFont barFont()
{
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    font.setWeight(QFont::Medium);
    return font;
}

double barTextWidth(const QString &text)
{
    return QFontMetricsF(barFont()).horizontalAdvance(text);
}

} // namespace brimshade::desktop
