#include "Arguments.h"
#include "desktop/core/ScreenGeometry.h"

#include <QJsonArray>
#include <cmath>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

const QJsonValue Arguments::required(const QString &name, bool isOptional)
{
    m_asked.insert(name);
    QJsonValue value = m_command.value(name);
    if (value.isUndefined() && !isOptional)
        fail(name, u"a value, it is missing"_s);
    return value;
}

void Arguments::fail(const QString &name, const QString &expected)
{
    if (!m_fault)
        m_fault = u"%1: expected %2"_s.arg(name, expected);
}

double Arguments::number(const QString &name, std::optional<double> fallback)
{
    const QJsonValue value = required(name, fallback.has_value());
    if (value.isUndefined())
        return fallback.value_or(0);
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        fail(name, u"a number"_s);
    return value.toDouble();
}

int Arguments::integer(const QString &name, std::optional<int> fallback)
{
    const QJsonValue value = required(name, fallback.has_value());
    if (value.isUndefined())
        return fallback.value_or(0);
    const double number = value.toDouble(NAN);
    if (!(number == std::floor(number) && std::abs(number) <= 1e9)) {
        fail(name, u"a whole number"_s);
        return 0;
    }
    return static_cast<int>(number);
}

bool Arguments::boolean(const QString &name)
{
    const QJsonValue value = required(name, false);
    if (!value.isUndefined() && !value.isBool())
        fail(name, u"true or false"_s);
    return value.toBool();
}

QString Arguments::text(const QString &name, const std::optional<QString> &fallback)
{
    const QJsonValue value = required(name, fallback.has_value());
    if (value.isUndefined())
        return fallback.value_or(QString());
    if (!value.isString())
        fail(name, u"a text"_s);
    return value.toString();
}

QPointF Arguments::point(const QString &name)
{
    const QJsonValue value = required(name, false);
    const QJsonArray pair = value.toArray();
    const QPointF point(pair.at(0).toDouble(NAN), pair.at(1).toDouble(NAN));
    if (pair.size() == 2 && std::abs(point.x()) <= kFarthest && std::abs(point.y()) <= kFarthest)
        return point;
    if (!value.isUndefined())
        fail(name, u"[x, y], each from -%1 to %1"_s.arg(static_cast<int>(kFarthest)));
    return {};
}

std::uint64_t Arguments::modifiers()
{
    static const QHash<QString, std::uint64_t> flags{{u"shift"_s, platform::kShiftFlag},
                                                     {u"control"_s, platform::kControlFlag},
                                                     {u"option"_s, platform::kOptionFlag},
                                                     {u"command"_s, platform::kCommandFlag}};
    const QString name = u"modifiers"_s;
    const QJsonValue value = required(name, true);
    if (!value.isUndefined() && !value.isArray())
        fail(name, u"a list"_s);
    std::uint64_t result = 0;
    for (const QJsonValue modifier : value.toArray()) {
        const auto flag = flags.constFind(modifier.toString());
        if (flag == flags.cend())
            fail(name, u"\"shift\", \"control\", \"option\" or \"command\""_s);
        else
            result |= *flag;
    }
    return result;
}

QJsonValue Arguments::value(const QString &name)
{
    return required(name, false);
}

std::optional<QString> Arguments::finish() const
{
    if (m_fault)
        return m_fault;
    for (const QString &name : m_command.keys()) {
        if (!m_asked.contains(name))
            return u"%1: unknown key"_s.arg(name);
    }
    return {};
}

} // namespace brimshade::desktop
