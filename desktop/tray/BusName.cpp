#include "BusName.h"

#include <QList>
#include <algorithm>

namespace brimshade::desktop::tray {

namespace {

constexpr int kLongestName = 255;
constexpr auto kDefaultPath = "/StatusNotifierItem";

bool isWordCharacter(QChar c)
{
    return c == u'_' || (c.unicode() < 128 && c.isLetterOrNumber());
}

bool isElement(QStringView element, bool mayHaveHyphen, bool mayStartWithDigit)
{
    if (element.isEmpty() || (!mayStartWithDigit && element.front().isDigit()))
        return false;
    return std::all_of(element.begin(), element.end(),
                       [&](QChar c) { return isWordCharacter(c) || (mayHaveHyphen && c == u'-'); });
}

} // namespace

bool isBusName(const QString &text)
{
    if (text.size() > kLongestName || !text.contains(u'.'))
        return false;
    const bool unique = text.startsWith(u':');
    const auto elements = QStringView(text).mid(unique ? 1 : 0).split(u'.');
    return std::all_of(elements.begin(), elements.end(), [&](QStringView e) { return isElement(e, true, unique); });
}

bool isUniqueName(const QString &text)
{
    return text.startsWith(u':') && isBusName(text);
}

bool isObjectPath(const QString &text)
{
    if (text == u"/")
        return true;
    if (!text.startsWith(u'/') || text.size() > 4 * kLongestName)
        return false;
    const auto elements = QStringView(text).mid(1).split(u'/');
    return std::all_of(elements.begin(), elements.end(), [](QStringView e) { return isElement(e, false, true); });
}

std::optional<Registration> parseRegistration(const QString &argument, const QString &sender)
{
    const auto slash = argument.indexOf(u'/');
    Registration result;
    result.service = slash == 0 ? sender : argument.left(slash);
    result.path = slash < 0 ? QString::fromLatin1(kDefaultPath) : argument.mid(slash);
    if (!isBusName(result.service) || !isObjectPath(result.path))
        return {};
    return result;
}

} // namespace brimshade::desktop::tray
