#include "DesktopFile.h"
#include "desktop/json/JsonReader.h"

#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr qsizetype kMostExtras = 2000; // in one list
constexpr qsizetype kMostActions = 20;
constexpr qsizetype kMostMenuEntries = 200;
constexpr int kDeepestGroup = 200; // the parser allows 1024 levels, and each group takes two
constexpr int kLargestIcon = 4096; // pixels per side
constexpr Range kWidth{0, 32768}; // points
constexpr Range kLatency{0, 3600}; // seconds
constexpr Range kPid{1, std::numeric_limits<int>::max()};
constexpr Range kCode{std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};

using Extras = std::vector<ExtraDescription>;
Fault readExtras(const QJsonValue &value, const QString &path, Extras &into);

// null means that position and size cannot be read.
Fault readFrame(const QJsonValue &value, const QString &path, ExtraDescription &into)
{
    into.frameKind = value.isNull() ? ExtraDescription::Frame::unreadable : ExtraDescription::Frame::fixed;
    return value.isNull() ? Fault() : readRectangle(value, path, kWidth, into.frame);
}

using ExtraField = Field<ExtraDescription>;
const std::array kExtraFields{
    ExtraField{u"role", Presence::optional, readMember<&ExtraDescription::role>},
    ExtraField{u"title", Presence::optional, readMember<&ExtraDescription::title>},
    ExtraField{u"description", Presence::optional, readMember<&ExtraDescription::description>},
    ExtraField{u"identifier", Presence::optional, readMember<&ExtraDescription::identifier>},
    ExtraField{u"symbol", Presence::optional, readMember<&ExtraDescription::symbol>},
    ExtraField{u"width", Presence::optional,
               [](auto &value, auto &path, auto &into) { return readNumber(value, path, kWidth, into.width); }},
    ExtraField{u"frame", Presence::optional, readFrame},
    ExtraField{u"actions", Presence::optional,
               [](auto &value, auto &path, auto &into) { return readTexts(value, path, kMostActions, into.actions); }},
    ExtraField{
        u"pressError", Presence::optional,
        [](auto &value, auto &path, auto &into) { return readInteger(value, path, kCode, into.pressError.emplace()); }},
    ExtraField{u"menu", Presence::optional,
               [](auto &value, auto &path, auto &into) { return readTexts(value, path, kMostMenuEntries, into.menu); }},
    ExtraField{u"children", Presence::optional,
               [](auto &value, auto &path, auto &into) { return readExtras(value, path, into.children); }},
};

Fault readExtra(const QJsonValue &value, const QString &path, ExtraDescription &into)
{
    into.role = u"AXMenuBarItem"_s;
    into.actions = {u"AXPress"_s};
    return readObject(value, path, Fields<ExtraDescription>(kExtraFields), into);
}

Fault readExtras(const QJsonValue &value, const QString &path, Extras &into)
{
    return readList(value, path, kMostExtras, into, readExtra);
}

// Checked before anything recurses into groups. Anything but a list has depth 0.
bool isDeeper(const QJsonValue &extras, int levels)
{
    const QJsonArray list = extras.toArray();
    return std::ranges::any_of(list, [&](const QJsonValue &each) {
        const QJsonValue children = each[u"children"];
        return children.isArray() && (levels == 0 || isDeeper(children, levels - 1));
    });
}

// Checks only its header: the pixels are read when it is drawn. Reading anything but a regular file could block.
bool isPicture(const QString &path)
{
    const QSize size = QFileInfo(path).isFile() ? QImageReader(path).size() : QSize();
    return !size.isEmpty() && size.width() <= kLargestIcon && size.height() <= kLargestIcon;
}

Fault readIcon(const QJsonValue &value, const QString &path, ApplicationDescription &into)
{
    static const QRegularExpression colour(u"^#[0-9a-fA-F]{6}$"_s);
    if (value.isNull())
        return {};
    if (Fault found = read(value, path, into.icon))
        return found;
    if (into.icon->startsWith(u'#') && !colour.match(*into.icon).hasMatch())
        return fault(path, u"expected #rrggbb, a picture's path or an icon's name"_s);
    if (into.icon->contains(u'/') && !isPicture(*into.icon))
        return fault(path, u"expected a picture, %1 is not one"_s.arg(*into.icon));
    return {};
}

Fault readApplicationExtras(const QJsonValue &value, const QString &path, ApplicationDescription &into)
{
    if (isDeeper(value, kDeepestGroup))
        return fault(path, u"expected groups at most %1 deep"_s.arg(kDeepestGroup));
    return readExtras(value, path, into.extras.emplace());
}

using ApplicationField = Field<ApplicationDescription>;
const std::array kApplicationFields{
    ApplicationField{u"pid", Presence::required,
                     [](auto &value, auto &path, auto &into) { return readInteger(value, path, kPid, into.pid); }},
    ApplicationField{u"name", Presence::optional, readMember<&ApplicationDescription::name>},
    ApplicationField{u"bundleIdentifier", Presence::optional, readMember<&ApplicationDescription::bundleIdentifier>},
    ApplicationField{u"bundlePath", Presence::optional, readMember<&ApplicationDescription::bundlePath>},
    ApplicationField{u"icon", Presence::optional, readIcon},
    ApplicationField{u"hangs", Presence::optional, readMember<&ApplicationDescription::hangs>},
    ApplicationField{
        u"latency", Presence::optional,
        [](auto &value, auto &path, auto &into) { return readNumber(value, path, kLatency, into.latency); }},
    ApplicationField{u"extras", Presence::optional, readApplicationExtras},
};

} // namespace

std::expected<ApplicationDescription, QString> parseApplication(const QJsonValue &value, const QString &path)
{
    ApplicationDescription application;
    if (Fault found = readObject(value, path, Fields<ApplicationDescription>(kApplicationFields), application))
        return std::unexpected(*found);
    return application;
}

} // namespace brimshade::desktop
