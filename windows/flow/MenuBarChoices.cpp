#include "MenuBarChoices.h"

#include <algorithm>
#include <array>

namespace brimshade::windows {

using platform::NotchStyle;

namespace {

constexpr double kUsualWidth = 180; // points
constexpr std::array kWidths{120., 150., 180., 210., 240., 280.};
constexpr std::array kStyles{NotchStyle::machine, NotchStyle::drawn, NotchStyle::given, NotchStyle::none};

} // namespace

MenuBarChoices::MenuBarChoices(platform::MenuBarPreferences &preferences) : m_preferences(preferences)
{
    preferences.setOnChange([this] { Q_EMIT changed(); });
}

MenuBarChoices::~MenuBarChoices()
{
    m_preferences.setOnChange({});
}

QStringList MenuBarChoices::screenNames() const
{
    QStringList names = m_preferences.screenNames();
    const QString chosen = m_preferences.screenName();
    if (!chosen.isEmpty() && !names.contains(chosen))
        names.append(chosen);
    return names;
}

QStringList MenuBarChoices::screens() const
{
    return QStringList(tr("Automatic")) + screenNames();
}

int MenuBarChoices::screen() const
{
    const QString chosen = m_preferences.screenName();
    return chosen.isEmpty() ? 0 : static_cast<int>(screenNames().indexOf(chosen)) + 1;
}

void MenuBarChoices::chooseScreen(int index)
{
    const QStringList names = screenNames();
    if (index >= 0 && index <= names.size())
        m_preferences.setScreenName(index == 0 ? QString() : names[index - 1]);
}

QStringList MenuBarChoices::notches() const
{
    return {m_preferences.isMachineKnown() ? tr("The machine’s own") : tr("Automatic"), tr("Drawn"),
            tr("Drawn, custom width"), tr("None")};
}

int MenuBarChoices::notch() const
{
    return static_cast<int>(std::ranges::find(kStyles, m_preferences.notchStyle()) - kStyles.begin());
}

void MenuBarChoices::chooseNotch(int index)
{
    if (index >= 0 && static_cast<std::size_t>(index) < kStyles.size())
        m_preferences.setNotch(kStyles[static_cast<std::size_t>(index)],
                               hasWidth() ? m_preferences.notchWidth() : kUsualWidth);
}

bool MenuBarChoices::hasWidth() const
{
    return m_preferences.notchStyle() == NotchStyle::given;
}

// A width given on the command line is offered, too.
QList<double> MenuBarChoices::offeredWidths() const
{
    QList<double> widths(kWidths.begin(), kWidths.end());
    const double present = m_preferences.notchWidth();
    if (hasWidth() && !widths.contains(present)) {
        widths.append(present);
        std::ranges::sort(widths);
    }
    return widths;
}

QStringList MenuBarChoices::widths() const
{
    QStringList titles;
    for (const double width : offeredWidths())
        titles.append(tr("%1 points").arg(width));
    return titles;
}

int MenuBarChoices::width() const
{
    return static_cast<int>(offeredWidths().indexOf(m_preferences.notchWidth()));
}

void MenuBarChoices::chooseWidth(int index)
{
    const QList<double> widths = offeredWidths();
    if (index >= 0 && index < widths.size())
        m_preferences.setNotch(NotchStyle::given, widths[index]);
}

} // namespace brimshade::windows
