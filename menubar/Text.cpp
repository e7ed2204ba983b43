#include "Text.h"

#include <algorithm>

namespace brimshade::menubar {

namespace {

bool isBlank(QChar c)
{
    return c == QChar::Tabulation || c.category() == QChar::Separator_Space;
}

// Moves surrogates behind every other code unit, which makes the order of code units that of scalar values.
unsigned scalarRank(QChar unit)
{
    const unsigned value = unit.unicode();
    if (value < 0xd800)
        return value;
    return unit.isSurrogate() ? value + 0x2000 : value - 0x800;
}

} // namespace

QStringView trimmedBlanks(QStringView text)
{
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

QString canonicalText(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}

bool isSameText(const QString &a, const QString &b)
{
    return a == b || canonicalText(a) == canonicalText(b);
}

bool isOrderedBefore(const QString &a, const QString &b)
{
    const QString left = canonicalText(a);
    const QString right = canonicalText(b);
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [](QChar x, QChar y) { return scalarRank(x) < scalarRank(y); });
}

} // namespace brimshade::menubar
