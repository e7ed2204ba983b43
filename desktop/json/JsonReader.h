#pragma once
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <utility>
#include <vector>

// Typed reading of JSON values. Each reader returns nothing on success, else one sentence that starts with the place of
// the fault. Sizes are bounded, because the input may come from anywhere.
namespace brimshade::desktop {

using namespace Qt::StringLiterals;

using Fault = std::optional<QString>;

QString place(const QString &path, QStringView key); // "applications[2].pid"
QString place(const QString &path, qsizetype index); // "applications[2]"
Fault fault(const QString &path, const QString &what);

struct Range {
    double least, most;
};

Fault read(const QJsonValue &value, const QString &path, QString &into); // at most 4096 characters
Fault read(const QJsonValue &value, const QString &path, std::optional<QString> &into);
Fault read(const QJsonValue &value, const QString &path, bool &into);
Fault readNumber(const QJsonValue &value, const QString &path, Range range, double &into);
Fault readInteger(const QJsonValue &value, const QString &path, Range range, int &into);
// An array of exactly into.size() finite numbers; shape is what the message calls it, "[x, y]".
Fault readNumbers(const QJsonValue &value, const QString &path, const QString &shape, std::span<double> into);
// [x, y, width, height]
Fault readRectangle(const QJsonValue &value, const QString &path, Range side, QRectF &into);

// read(value, path, element&) for each element.
template <class T, class Read>
Fault readList(const QJsonValue &value, const QString &path, qsizetype most, T &into, Read read)
{
    if (!value.isArray())
        return fault(path, u"expected an array"_s);
    const QJsonArray array = value.toArray();
    if (array.size() > most)
        return fault(path, u"expected at most %1 elements"_s.arg(most));
    into.clear();
    into.reserve(array.size());
    for (qsizetype i = 0; i < array.size(); ++i) {
        typename T::value_type element;
        if (Fault found = read(array.at(i), place(path, i), element))
            return found;
        into.push_back(std::move(element));
    }
    return {};
}

Fault readTexts(const QJsonValue &value, const QString &path, qsizetype most, QStringList &into);

enum class Presence { required, optional };

// One key of an object, and what its value sets.
template <class T> struct Field {
    QStringView key;
    Presence presence;
    Fault (*read)(const QJsonValue &value, const QString &path, T &into);
};

// Reads a member of the object as its type says.
template <auto Member, class T> Fault readMember(const QJsonValue &value, const QString &path, T &into)
{
    return read(value, path, into.*Member);
}

template <class T> using Fields = std::span<const Field<T>>;

// Every key must be one of the fields.
template <class T> Fault readObject(const QJsonValue &value, const QString &path, Fields<T> fields, T &into)
{
    if (!value.isObject())
        return fault(path, u"expected an object"_s);
    QJsonObject rest = value.toObject();
    for (const Field<T> &field : fields) {
        const auto found = rest.constFind(field.key);
        if (found == rest.constEnd()) {
            if (field.presence == Presence::required)
                return fault(place(path, field.key), u"missing"_s);
            continue;
        }
        if (Fault wrong = field.read(*found, place(path, field.key), into))
            return wrong;
        rest.remove(field.key);
    }
    return rest.isEmpty() ? Fault() : fault(place(path, rest.constBegin().key()), u"unknown key"_s);
}

} // namespace brimshade::desktop
