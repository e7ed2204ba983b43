#include "DesktopFile.h"
#include "desktop/json/JsonReader.h"

#include <array>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr qsizetype kMostScreens = 16;
constexpr double kLargestSide = 32768; // points
constexpr double kShortestSide = 100;

Fault readNotch(const QJsonValue &value, const QString &path, ScreenDescription &into)
{
    std::array<double, 2> edges{};
    Fault found = readNumbers(value, path, u"[lower, upper]"_s, edges);
    into.notch.emplace(edges[0], edges[1]);
    return found;
}

using ScreenField = Field<ScreenDescription>;
const std::array kFields{
    ScreenField{u"name", Presence::optional, readMember<&ScreenDescription::name>},
    ScreenField{u"frame", Presence::required,
                [](auto &value, auto &path, auto &into) {
                    return readRectangle(value, path, {kShortestSide, kLargestSide}, into.frame);
                }},
    ScreenField{u"menuBarHeight", Presence::optional,
                [](auto &value, auto &path, auto &into) {
                    return readNumber(value, path, {0, kShortestSide}, into.menuBarHeight);
                }},
    ScreenField{u"safeAreaTop", Presence::optional,
                [](auto &value, auto &path, auto &into) {
                    return readNumber(value, path, {0, kShortestSide}, into.safeAreaTop);
                }},
    ScreenField{u"notch", Presence::optional, readNotch},
};

Fault readScreen(const QJsonValue &value, const QString &path, ScreenDescription &into)
{
    if (Fault found = readObject(value, path, Fields<ScreenDescription>(kFields), into))
        return found;
    if (!into.notch)
        return {};
    if (!value.toObject().contains(u"safeAreaTop"))
        into.safeAreaTop = into.menuBarHeight;
    const auto [lower, upper] = *into.notch;
    const bool isInside = 0 <= lower && lower < upper && upper <= into.frame.width();
    return isInside ? Fault()
                    : fault(place(path, u"notch"), u"expected [lower, upper], ascending, within the screen's width"_s);
}

} // namespace

std::expected<std::vector<ScreenDescription>, QString> parseScreens(const QJsonValue &value, const QString &path)
{
    std::vector<ScreenDescription> screens;
    if (Fault found = readList(value, path, kMostScreens, screens, readScreen))
        return std::unexpected(*found);
    return screens;
}

} // namespace brimshade::desktop
