#include "DesktopFile.h"
#include "desktop/json/JsonReader.h"
#include "desktop/json/JsonText.h"

#include <QFile>
#include <array>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr qsizetype kMostApplications = 500;
constexpr qsizetype kMostKeys = 1000; // in displayNames and in defaults
constexpr qint64 kLargestFile = 16 << 20; // bytes

// Makes a reader of a piece's own parser.
template <class T> Fault take(std::expected<T, QString> parsed, T &into)
{
    if (!parsed)
        return parsed.error();
    into = std::move(*parsed);
    return {};
}

using Applications = std::vector<ApplicationDescription>;

Fault readApplications(const QJsonValue &value, const QString &path, Applications &into)
{
    const auto readOne = [](const QJsonValue &each, const QString &where, ApplicationDescription &application) {
        return take(parseApplication(each, where), application);
    };
    if (Fault found = readList(value, path, kMostApplications, into, readOne))
        return found;
    std::map<int, qsizetype> seen;
    for (qsizetype i = 0; i < std::ssize(into); ++i) {
        const auto [first, isNew] = seen.emplace(into[i].pid, i);
        if (!isNew)
            return fault(place(place(path, i), u"pid"),
                         u"%1 is that of %2 already"_s.arg(into[i].pid).arg(place(path, first->second)));
    }
    return {};
}

// Calls readValue(value, path, key) for each key of an object whose keys are free.
template <class Read> Fault readKeys(const QJsonValue &value, const QString &path, Read readValue)
{
    if (!value.isObject())
        return fault(path, u"expected an object"_s);
    const QJsonObject object = value.toObject();
    if (object.size() > kMostKeys)
        return fault(path, u"expected at most %1 keys"_s.arg(kMostKeys));
    for (auto each = object.begin(); each != object.end(); ++each) {
        if (Fault found = readValue(each.value(), place(path, each.key()), each.key()))
            return found;
    }
    return {};
}

Fault readDisplayNames(const QJsonValue &value, const QString &path, std::map<QString, QString> &into)
{
    return readKeys(value, path, [&](const QJsonValue &each, const QString &where, const QString &key) {
        return read(each, where, into[key]);
    });
}

Fault readDefaults(const QJsonValue &value, const QString &path, QVariantMap &into)
{
    return readKeys(value, path, [&](const QJsonValue &each, const QString &where, const QString &key) {
        if (!each.isBool() && !each.isDouble() && !each.isString())
            return fault(where, u"expected true, false, a number or a string"_s);
        into.insert(key, each.toVariant());
        return Fault();
    });
}

const std::array kLoginItemFields{
    Field<LoginItemDescription>{u"status", Presence::optional,
                                [](auto &value, auto &path, auto &into) {
                                    return readInteger(value, path, {0, 3}, into.status);
                                }},
    Field<LoginItemDescription>{
        u"failure", Presence::optional,
        [](auto &value, auto &path, auto &into) { return value.isNull() ? Fault() : read(value, path, into.failure); }},
};

Fault readPointer(const QJsonValue &value, const QString &path, std::optional<QPointF> &into)
{
    std::array<double, 2> point{};
    Fault found = readNumbers(value, path, u"[x, y]"_s, point);
    into.emplace(point[0], point[1]);
    return found;
}

using DesktopField = Field<DesktopDescription>;
const std::array kDesktopFields{
    DesktopField{u"screens", Presence::required,
                 [](auto &value, auto &path, auto &into) { return take(parseScreens(value, path), into.screens); }},
    DesktopField{u"applications", Presence::optional,
                 [](auto &value, auto &path, auto &into) { return readApplications(value, path, into.applications); }},
    DesktopField{u"displayNames", Presence::optional,
                 [](auto &value, auto &path, auto &into) { return readDisplayNames(value, path, into.displayNames); }},
    DesktopField{u"trusted", Presence::optional, readMember<&DesktopDescription::trusted>},
    DesktopField{u"menuBarShowing", Presence::optional, readMember<&DesktopDescription::menuBarShowing>},
    DesktopField{u"movesAccepted", Presence::optional, readMember<&DesktopDescription::movesAccepted>},
    DesktopField{u"pointer", Presence::optional,
                 [](auto &value, auto &path, auto &into) { return readPointer(value, path, into.pointer); }},
    DesktopField{u"loginItem", Presence::optional,
                 [](auto &value, auto &path, auto &into) {
                     return readObject(value, path, Fields<LoginItemDescription>(kLoginItemFields),
                                       into.loginItem.emplace());
                 }},
    DesktopField{u"defaults", Presence::optional,
                 [](auto &value, auto &path, auto &into) { return readDefaults(value, path, into.defaults); }},
};

} // namespace

std::expected<DesktopDescription, QString> parseDesktop(const QByteArray &json)
{
    const auto root = parseJson(json);
    if (!root) {
        const auto &[line, column, reason] = root.error();
        return std::unexpected(u"line %1, column %2: %3"_s.arg(line).arg(column).arg(reason));
    }
    DesktopDescription desktop;
    if (Fault found = readObject(*root, {}, Fields<DesktopDescription>(kDesktopFields), desktop))
        return std::unexpected(*found);
    if (desktop.screens.empty())
        return std::unexpected(u"screens: expected at least one"_s);
    return desktop;
}

std::expected<DesktopDescription, QString> readDesktopFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(path + u": "_s + file.errorString());
    const QByteArray json = file.read(kLargestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(path + u": "_s + file.errorString());
    if (json.size() > kLargestFile)
        return std::unexpected(path + u": larger than 16 MB"_s);
    auto desktop = parseDesktop(json);
    if (!desktop)
        return std::unexpected(path + u": "_s + desktop.error());
    return desktop;
}

} // namespace brimshade::desktop
