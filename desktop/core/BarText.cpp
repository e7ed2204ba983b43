#include "BarText.h"

#include <QFontMetricsF>
#include <cmath>

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

double barNameWidth(const QString &name)
{
    QFont font = barFont();
    font.setWeight(QFont::Bold);
    return name.isEmpty() ? 0 : kNameMargin + std::ceil(QFontMetricsF(font).horizontalAdvance(name)) + kNameMargin;
}

} // namespace brimshade::desktop
