// The settings among the model's fields. Each assignment first stores the value in the field and announces it, then
// writes through what the field holds by then.
#include "NotchModel.h"
#include "platform/LoginItems.h"
#include "platform/UserDefaults.h"

namespace brimshade::model {

namespace {

using namespace Qt::StringLiterals;

const QString kShowVisibleKey = u"showVisibleItems"_s;
const QString kHoverToOpenKey = u"hoverToOpen"_s;
const QString kShortcutKey = u"shortcut"_s;
const QString kDividerEnabledKey = u"dividerEnabled"_s;

bool readShowVisible(const platform::UserDefaults &defaults)
{
    const QVariant stored = defaults.objectForKey(kShowVisibleKey);
    return stored.typeId() == QMetaType::Bool ? stored.toBool() : true;
}

bool isEnabled(const platform::LoginItems &loginItems)
{
    return loginItems.status() == platform::LoginItemStatus::enabled;
}

} // namespace

// The fields are initialised in the order of their declaration, which is the order of reading.
NotchModel::NotchModel(platform::UserDefaults &defaults, platform::LoginItems &loginItems, QObject *parent)
    : QObject(parent), m_defaults(defaults), m_loginItems(loginItems), m_showVisible(readShowVisible(defaults)),
      m_hoverToOpen(defaults.boolForKey(kHoverToOpenKey)),
      m_shortcut(shortcutFromRawValue(defaults.stringForKey(kShortcutKey)).value_or(Shortcut::none)),
      m_dividerEnabled(defaults.boolForKey(kDividerEnabledKey)), m_launchAtLogin(isEnabled(loginItems)),
      m_itemShortcuts(defaults)
{
}

NotchModel::~NotchModel() = default;

bool NotchModel::showVisible() const
{
    return m_showVisible;
}

bool NotchModel::hoverToOpen() const
{
    return m_hoverToOpen;
}

Shortcut NotchModel::shortcut() const
{
    return m_shortcut;
}

bool NotchModel::dividerEnabled() const
{
    return m_dividerEnabled;
}

bool NotchModel::launchAtLogin() const
{
    return m_launchAtLogin;
}

void NotchModel::setShowVisible(bool on)
{
    Q_EMIT objectWillChange();
    if (m_showVisible != on) {
        m_showVisible = on;
        m_derived.reset();
        Q_EMIT showVisibleChanged();
        listsChanged();
    }
    m_defaults.setBool(m_showVisible, kShowVisibleKey);
}

void NotchModel::writeThrough(const bool &field, const QString &key)
{
    m_defaults.setBool(field, key);
    onSettingsChanged();
}

void NotchModel::setHoverToOpen(bool on)
{
    assign(m_hoverToOpen, on, &NotchModel::hoverToOpenChanged);
    writeThrough(m_hoverToOpen, kHoverToOpenKey);
}

void NotchModel::setDividerEnabled(bool on)
{
    assign(m_dividerEnabled, on, &NotchModel::dividerEnabledChanged);
    writeThrough(m_dividerEnabled, kDividerEnabledKey);
}

void NotchModel::setShortcut(Shortcut shortcut)
{
    assign(m_shortcut, shortcut, &NotchModel::shortcutChanged);
    m_defaults.setObject(rawValue(m_shortcut), kShortcutKey);
    onSettingsChanged();
}

void NotchModel::setLaunchAtLogin(bool on)
{
    assign(m_launchAtLogin, on, &NotchModel::launchAtLoginChanged);
    if (m_launchAtLogin == isEnabled(m_loginItems))
        return; // also ends the assignment below
    const auto result = m_launchAtLogin ? m_loginItems.registerMainApp() : m_loginItems.unregisterMainApp();
    if (result)
        return;
    setMessage(tr("Couldn't change Launch at Login: ") + result.error());
    setLaunchAtLogin(isEnabled(m_loginItems));
}

} // namespace brimshade::model
