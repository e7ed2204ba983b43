#include "SessionPreferences.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

using platform::NotchStyle;

namespace {

const QString kScreenKey = u"MenuBarScreen"_s;
const QString kNotchKey = u"MenuBarNotch"_s;

NotchChoice choiceOf(NotchStyle style, double width)
{
    switch (style) {
    case NotchStyle::drawn:
        return {.kind = NotchChoice::Kind::drawn, .lower = 0, .upper = 0};
    case NotchStyle::none:
        return {.kind = NotchChoice::Kind::none, .lower = 0, .upper = 0};
    case NotchStyle::given:
        return {.kind = NotchChoice::Kind::centred, .lower = 0, .upper = width};
    case NotchStyle::machine:
        break;
    }
    return {};
}

QString adviceToBind(const QString &command, QChar key)
{
    return SessionPreferences::tr(
               "Here no program may take a shortcut by itself. Bind a key to “%1”; in sway:\nbindsym Mod4+%2 exec %1")
        .arg(command, key);
}

// Quotes one word of a command line.
QString forShell(QString word)
{
    const auto isPlain = [](QChar c) { return c.isLetterOrNumber() || u"-_."_s.contains(c); };
    if (!word.isEmpty() && std::ranges::all_of(word, isPlain))
        return word;
    return u'\'' + word.replace(u'\'', "'\\''"_L1) + u'\'';
}

} // namespace

ScreenChoice SessionPreferences::kept(const platform::UserDefaults &defaults, ScreenChoice said, bool isNotchSaid)
{
    if (said.name.isEmpty())
        said.name = defaults.stringForKey(kScreenKey);
    if (!isNotchSaid)
        said.notch = parseNotchChoice(defaults.stringForKey(kNotchKey)).value_or(NotchChoice());
    return said;
}

SessionPreferences::SessionPreferences(SessionScreens &screens, platform::UserDefaults &defaults,
                                       const QDBusConnection &bus)
    : m_screens(screens), m_defaults(defaults), m_hosts(bus)
{
    connect(&screens, &SessionScreens::changed, this, &SessionPreferences::tell);
    connect(&m_hosts, &OtherHosts::changed, this, &SessionPreferences::tell);
}

void SessionPreferences::tell() const
{
    if (m_onChange)
        m_onChange();
}

void SessionPreferences::setShortcutsWork(bool work)
{
    if (std::exchange(m_shortcutsWork, work) != work)
        tell();
}

QStringList SessionPreferences::screenNames() const
{
    QStringList names;
    for (const ScreenDescription &screen : m_screens.descriptions())
        names.append(screen.name);
    names.sort();
    return names;
}

QString SessionPreferences::screenName() const
{
    return m_screens.choice().name;
}

void SessionPreferences::setScreenName(const QString &name)
{
    ScreenChoice choice = m_screens.choice();
    choice.name = name;
    m_defaults.setObject(name, kScreenKey);
    choose(choice);
}

bool SessionPreferences::isMachineKnown() const
{
    return m_screens.choice().machine.has_value();
}

NotchStyle SessionPreferences::notchStyle() const
{
    switch (m_screens.choice().notch.kind) {
    case NotchChoice::Kind::drawn:
        return NotchStyle::drawn;
    case NotchChoice::Kind::none:
        return NotchStyle::none;
    case NotchChoice::Kind::given:
    case NotchChoice::Kind::centred:
        return NotchStyle::given;
    case NotchChoice::Kind::machine:
        break;
    }
    return NotchStyle::machine;
}

double SessionPreferences::notchWidth() const
{
    const NotchChoice &notch = m_screens.choice().notch;
    return notch.upper - notch.lower;
}

void SessionPreferences::setNotch(NotchStyle style, double width)
{
    ScreenChoice choice = m_screens.choice();
    choice.notch = choiceOf(style, width);
    m_defaults.setObject(toText(choice.notch), kNotchKey);
    choose(choice);
}

void SessionPreferences::choose(const ScreenChoice &choice)
{
    m_screens.choose(choice);
    tell();
}

QString SessionPreferences::advice() const
{
    const QStringList programs = m_hosts.programs();
    if (programs.isEmpty())
        return {};
    if (programs.contains("plasmashell"_L1))
        return tr("Plasma shows the same tray items. Remove the System Tray from its panel to see them only here; "
                  "everything else works side by side.");
    if (programs.contains("waybar"_L1))
        return tr("waybar shows the same tray items. Take “tray” out of its modules to see them only here; the rest of "
                  "waybar works below this bar.");
    if (programs.contains("xfce4-panel"_L1))
        return tr("The Xfce panel shows the same tray items. Remove its Status Tray Plugin to see them only here; the "
                  "rest of the panel works side by side.");
    return tr("Another tray host (%1) shows the same items. Switch its tray off to see them only here.")
        .arg(programs.constFirst());
}

QString SessionPreferences::shortcutAdvice() const
{
    if (m_shortcutsWork)
        return {};
    return adviceToBind(u"brimshade --toggle"_s, u'n');
}

QString SessionPreferences::itemShortcutAdvice(const QString &item) const
{
    return m_shortcutsWork ? QString() : adviceToBind(u"brimshade --open "_s + forShell(item), u'm');
}

} // namespace brimshade::desktop::session
