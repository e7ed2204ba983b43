#include "MemoryDefaults.h"

#include <QLocale>

namespace brimshade::desktop {

namespace {

bool isNumber(const QVariant &value)
{
    return value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double
        || value.typeId() == QMetaType::Int;
}

// As NSString reads a Bool: "YES", "true", "1", "  +01"; one letter is enough.
bool textAsBool(const QString &text)
{
    QStringView rest = QStringView(text).trimmed();
    if (rest.startsWith(u'+') || rest.startsWith(u'-'))
        rest = rest.sliced(1);
    while (rest.startsWith(u'0'))
        rest = rest.sliced(1);
    return !rest.isEmpty() && QStringView(u"YyTt123456789").contains(rest.front());
}

// To QVariant, true and 1 are equal; to the store they are not.
bool isSame(const QVariant &a, const QVariant &b)
{
    return a.metaType() == b.metaType() && a == b;
}

} // namespace

MemoryDefaults::MemoryDefaults(QVariantMap values) : m_values(std::move(values)) { }

QVariant MemoryDefaults::objectForKey(const QString &key) const
{
    return m_values.value(key);
}

bool MemoryDefaults::boolForKey(const QString &key) const
{
    const QVariant value = m_values.value(key);
    if (value.typeId() == QMetaType::QString)
        return textAsBool(value.toString());
    return isNumber(value) ? value.toDouble() != 0 : value.typeId() == QMetaType::Bool && value.toBool();
}

QString MemoryDefaults::stringForKey(const QString &key) const
{
    const QVariant value = m_values.value(key);
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return value.typeId() == QMetaType::QString || isNumber(value) ? value.toString() : QString();
}

void MemoryDefaults::setBool(bool value, const QString &key)
{
    set(value, key);
}

void MemoryDefaults::setInteger(qlonglong value, const QString &key)
{
    set(value, key);
}

void MemoryDefaults::setObject(const QString &value, const QString &key)
{
    set(value, key);
}

void MemoryDefaults::setArray(const QVariantList &value, const QString &key)
{
    set(value, key);
}

void MemoryDefaults::set(const QVariant &value, const QString &key)
{
    QVariant &stored = m_values[key];
    if (isSame(stored, value))
        return;
    stored = value;
    changed();
}

void MemoryDefaults::fill(const QVariantMap &values)
{
    const qsizetype before = m_values.size();
    QVariantMap filled = values;
    filled.insert(m_values); // what is stored wins
    m_values = std::move(filled);
    if (m_values.size() != before)
        changed();
}

QVariantMap MemoryDefaults::all() const
{
    return m_values;
}

} // namespace brimshade::desktop
