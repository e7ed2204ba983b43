#include "JsonReader.h"
#include "desktop/core/ScreenGeometry.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr qsizetype kLongestText = 4096;

QString named(double number)
{
    return QString::number(number, 'g', 10);
}

} // namespace

QString place(const QString &path, QStringView key)
{
    return path.isEmpty() ? key.toString() : path + u'.' + key.toString();
}

QString place(const QString &path, qsizetype index)
{
    return path + u'[' + QString::number(index) + u']';
}

Fault fault(const QString &path, const QString &what)
{
    return path.isEmpty() ? what : path + u": "_s + what;
}

Fault read(const QJsonValue &value, const QString &path, QString &into)
{
    if (!value.isString())
        return fault(path, u"expected a string"_s);
    into = value.toString();
    return into.size() > kLongestText ? fault(path, u"expected at most %1 characters"_s.arg(kLongestText)) : Fault();
}

Fault read(const QJsonValue &value, const QString &path, std::optional<QString> &into)
{
    return read(value, path, into.emplace());
}

Fault read(const QJsonValue &value, const QString &path, bool &into)
{
    if (!value.isBool())
        return fault(path, u"expected true or false"_s);
    into = value.toBool();
    return {};
}

Fault readNumber(const QJsonValue &value, const QString &path, Range range, double &into)
{
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return fault(path, u"expected a number"_s);
    into = value.toDouble();
    if (into < range.least || into > range.most)
        return fault(path, u"expected a number from %1 to %2"_s.arg(named(range.least), named(range.most)));
    return {};
}

Fault readInteger(const QJsonValue &value, const QString &path, Range range, int &into)
{
    double number = 0;
    if (Fault found = readNumber(value, path, range, number))
        return found;
    if (number != std::floor(number))
        return fault(path, u"expected a whole number"_s);
    into = static_cast<int>(number);
    return {};
}

Fault readNumbers(const QJsonValue &value, const QString &path, const QString &shape, std::span<double> into)
{
    const QJsonArray array = value.toArray();
    if (!value.isArray() || array.size() != static_cast<qsizetype>(into.size()))
        return fault(path, u"expected %1"_s.arg(shape));
    for (qsizetype i = 0; i < array.size(); ++i) {
        if (Fault found = readNumber(array.at(i), place(path, i), {-kFarthest, kFarthest}, into[i]))
            return found;
    }
    return {};
}

Fault readRectangle(const QJsonValue &value, const QString &path, Range side, QRectF &into)
{
    std::array<double, 4> numbers{};
    if (Fault found = readNumbers(value, path, u"[x, y, width, height]"_s, numbers))
        return found;
    const auto [x, y, width, height] = numbers;
    if (std::min(width, height) < side.least || std::max(width, height) > side.most)
        return fault(path, u"expected sides from %1 to %2"_s.arg(named(side.least), named(side.most)));
    into = {x, y, width, height};
    return {};
}

Fault readTexts(const QJsonValue &value, const QString &path, qsizetype most, QStringList &into)
{
    return readList(value, path, most, into, [](const QJsonValue &each, const QString &where, QString &text) {
        return read(each, where, text);
    });
}

} // namespace brimshade::desktop
