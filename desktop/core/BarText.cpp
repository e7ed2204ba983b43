#include "BarText.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

QFont barFont()
{
    QFont font(u"Inter"_s);
    font.setPixelSize(13);
    font.setWeight(QFont::Medium);
    return font;
}

double barTextWidth(const QString &text)
{
    return QFontMetricsF(barFont()).horizontalAdvance(text);
}

} // namespace brimshade::desktop
