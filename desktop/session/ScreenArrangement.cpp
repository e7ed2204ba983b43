#include "ScreenArrangement.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr double kBarHeight = 37;
constexpr double kDrawnNotchWidth = 180;

bool isBuiltIn(const QString &name)
{
    const auto starts = [&name](QLatin1StringView prefix) { return name.startsWith(prefix, Qt::CaseInsensitive); };
    return starts("eDP"_L1) || starts("LVDS"_L1) || starts("DSI"_L1);
}

struct Notch {
    double lower = 0;
    double upper = 0;
    double height = kBarHeight;
};

Notch drawnNotch(double width, double wanted = kDrawnNotchWidth)
{
    const double notch = std::min(wanted, width / 2);
    const double lower = std::round((width - notch) / 2);
    return {.lower = lower, .upper = lower + notch};
}

std::optional<Notch> notchOf(const ScreenFacts &screen, const ScreenChoice &choice)
{
    const double width = screen.geometry.width();
    switch (choice.notch.kind) {
    case NotchChoice::Kind::none:
        return {};
    case NotchChoice::Kind::given:
        if (choice.notch.upper <= width)
            return Notch{.lower = choice.notch.lower, .upper = choice.notch.upper};
        break; // chosen for a wider screen
    case NotchChoice::Kind::machine:
        if (choice.machine && isBuiltIn(screen.name)) {
            const double scale = width / choice.machine->screenWidth; // points per pixel
            return Notch{.lower = std::floor(choice.machine->left * scale),
                         .upper = std::ceil(choice.machine->right * scale),
                         .height = std::ceil(choice.machine->height * scale)};
        }
        break;
    case NotchChoice::Kind::centred:
        return drawnNotch(width, choice.notch.upper);
    case NotchChoice::Kind::drawn:
        break;
    }
    return drawnNotch(width);
}

std::size_t barScreenIndex(const std::vector<ScreenFacts> &screens, const QString &wanted)
{
    const auto named = std::ranges::find(screens, wanted, &ScreenFacts::name);
    if (named != screens.end())
        return static_cast<std::size_t>(named - screens.begin());
    const auto builtIn = std::ranges::find_if(screens, isBuiltIn, &ScreenFacts::name);
    return builtIn == screens.end() ? 0 : static_cast<std::size_t>(builtIn - screens.begin());
}

ScreenDescription describeBarScreen(const ScreenFacts &screen, const ScreenChoice &choice)
{
    ScreenDescription description;
    description.name = screen.name;
    description.frame = QRectF({}, QSizeF(screen.geometry.size()));
    description.menuBarHeight = kBarHeight;
    if (const auto notch = notchOf(screen, choice)) {
        description.notch = {notch->lower, notch->upper};
        description.menuBarHeight = description.safeAreaTop = notch->height;
    }
    return description;
}

ScreenDescription describeOther(const ScreenFacts &screen, const QRect &barScreen)
{
    const QRect inDisplay = screen.geometry.translated(-barScreen.topLeft());
    const double y = barScreen.height() - (inDisplay.y() + inDisplay.height());
    ScreenDescription description;
    description.name = screen.name;
    description.frame = QRectF(QPointF(inDisplay.x(), y), QSizeF(inDisplay.size()));
    description.menuBarHeight = 0;
    return description;
}

} // namespace

std::optional<NotchChoice> parseNotchChoice(const QString &text)
{
    using Kind = NotchChoice::Kind;
    if (text == "machine"_L1)
        return NotchChoice{.kind = Kind::machine, .lower = 0, .upper = 0};
    if (text == "drawn"_L1)
        return NotchChoice{.kind = Kind::drawn, .lower = 0, .upper = 0};
    if (text == "none"_L1)
        return NotchChoice{.kind = Kind::none, .lower = 0, .upper = 0};
    const QStringList edges = text.split(u',');
    bool isLower = false;
    bool isUpper = false;
    if (edges.size() == 1) {
        const double width = edges[0].toDouble(&isUpper);
        return isUpper && std::isfinite(width) && width > 0
            ? std::optional(NotchChoice{.kind = Kind::centred, .lower = 0, .upper = width})
            : std::nullopt;
    }
    if (edges.size() != 2)
        return {};
    const double lower = edges[0].toDouble(&isLower);
    const double upper = edges[1].toDouble(&isUpper);
    if (!isLower || !isUpper || !std::isfinite(upper) || !(lower >= 0 && lower < upper)) // also rejects NaN
        return {};
    return NotchChoice{.kind = Kind::given, .lower = lower, .upper = upper};
}

QString toText(const NotchChoice &choice)
{
    switch (choice.kind) {
    case NotchChoice::Kind::machine:
        return u"machine"_s;
    case NotchChoice::Kind::drawn:
        return u"drawn"_s;
    case NotchChoice::Kind::none:
        return u"none"_s;
    case NotchChoice::Kind::centred:
        return QString::number(choice.upper);
    case NotchChoice::Kind::given:
        break;
    }
    return u"%1,%2"_s.arg(choice.lower).arg(choice.upper);
}

std::optional<MachineNotch> machineNotch(const QList<QByteArray> &compatible)
{
    constexpr MachineNotch fourteenInch{.left = 1328, .right = 1696, .height = 64, .screenWidth = 3024};
    for (const QByteArray &name : compatible) {
        if (name == "apple,j314s" || name == "apple,j414s")
            return fourteenInch;
    }
    return {};
}

std::vector<ArrangedScreen> arrangeScreens(const std::vector<ScreenFacts> &screens, const ScreenChoice &choice)
{
    std::vector<ArrangedScreen> arranged;
    if (screens.empty())
        return arranged;
    const std::size_t withBar = barScreenIndex(screens, choice.name);
    arranged.push_back({withBar, describeBarScreen(screens[withBar], choice)});
    for (std::size_t i = 0; i < screens.size(); ++i) {
        if (i != withBar)
            arranged.push_back({i, describeOther(screens[i], screens[withBar].geometry)});
    }
    return arranged;
}

} // namespace brimshade::desktop::session
