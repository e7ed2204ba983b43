#include "MenuBarAccess.h"
#include "ItemWalk.h"
#include "Labels.h"
#include "Text.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"

#include <algorithm>

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

const QString kTitle = u"AXTitle"_s;
const QString kDescription = u"AXDescription"_s;
const QString kIdentifier = u"AXIdentifier"_s;

// Seconds, for each application element.
constexpr double kScanTimeout = 0.25;
constexpr double kButtonTimeout = 0.2;

bool isSystemAgent(const platform::RunningApplication &application)
{
    return application.bundleIdentifier == u"com.apple.MenuBarAgent"_s;
}

QString detailText(const QString &title, const QString &description, const QString &appName)
{
    for (const QString &text : {title, description})
        if (const QStringView trimmed = trimmedBlanks(text); !trimmed.isEmpty())
            return trimmed.size() == text.size() ? text : trimmed.toString();
    return appName;
}

bool isLeftOf(const MenuExtra &a, const MenuExtra &b)
{
    return a.frame.x() != b.frame.x() ? a.frame.x() < b.frame.x() : isOrderedBefore(a.name, b.name);
}

} // namespace

struct MenuBarAccess::Owner {
    const platform::RunningApplication &application;
    bool isSystemAgent;
};

MenuBarAccess::MenuBarAccess(const platform::Platform &platform)
    : m_accessibility(platform.accessibility), m_dispatch(platform.dispatch), m_log(platform.log),
      m_workspace(platform.workspace)
{
}

MenuBarAccess::~MenuBarAccess() = default;

ExtraList MenuBarAccess::scan(const platform::Screen &screen, std::optional<QRectF> dividerFrame)
{
    HidingEdges edges{notchExtent(screen), platform::minX(screen.frame), std::nullopt, dividerFrame};
    ExtraList extras;
    for (const platform::RunningApplication &application : m_workspace.runningApplications()) {
        if (isThisProgram(application))
            continue;
        const AXUIElement menuBar = extrasMenuBar(m_accessibility, application.processIdentifier, kScanTimeout);
        if (!menuBar)
            continue;
        const Owner owner{application, isSystemAgent(application)};
        for (int position = 0; const AXUIElement &item : collectItems(m_accessibility, menuBar, edges.buttonEdge))
            extras.push_back(read(owner, item, position++));
    }
    // Only now is the last button known.
    for (MenuExtra &extra : extras)
        extra.isHidden = isHiddenItem(extra.frame, edges);
    std::ranges::stable_sort(extras, isLeftOf);
    return extras;
}

// By its process, and by its bundle identifier so that a second instance is not listed either.
bool MenuBarAccess::isThisProgram(const platform::RunningApplication &application) const
{
    return application.processIdentifier == m_workspace.processIdentifier()
        || application.bundleIdentifier == m_workspace.bundleIdentifier();
}

MenuExtra MenuBarAccess::read(const Owner &owner, const AXUIElement &item, int position)
{
    const QString title = stringAttribute(m_accessibility, item, kTitle).value_or(QString());
    const QString description = stringAttribute(m_accessibility, item, kDescription).value_or(QString());
    const QString identifier = stringAttribute(m_accessibility, item, kIdentifier).value_or(QString());
    const QString name = appName(owner.application);

    MenuExtra extra;
    extra.id =
        QString::number(owner.application.processIdentifier) + u'-' + QString::number(position) + u'-' + identifier;
    extra.detail = detailText(title, description, name);
    if (owner.isSystemAgent) {
        extra.name = description.isEmpty() ? u"System"_s : description;
        extra.symbol = symbolName(identifier);
        extra.tint = tintWithoutIcon();
    } else {
        extra.name = name;
        const Icon icon = iconOf(owner.application);
        extra.icon = icon.image;
        extra.tint = icon.tint;
    }
    extra.frame = frameOf(m_accessibility, item);
    extra.canMove = canMoveItem(owner.isSystemAgent, identifier);
    extra.element = item;
    return extra;
}

QRectF MenuBarAccess::frame(const AXUIElement &element) const
{
    return element ? frameOf(m_accessibility, element) : QRectF();
}

std::optional<NotchExtent> MenuBarAccess::notchExtent(const platform::Screen &screen) const
{
    return menubar::notchExtent(screen);
}

std::optional<QRectF> MenuBarAccess::firstSystemButtonFrame() const
{
    const auto applications = m_workspace.runningApplications();
    const auto agent = std::ranges::find_if(applications, isSystemAgent);
    if (agent == applications.end())
        return std::nullopt;
    const AXUIElement menuBar = extrasMenuBar(m_accessibility, agent->processIdentifier, kButtonTimeout);
    return menuBar ? firstButtonFrame(m_accessibility, menuBar) : std::nullopt;
}

} // namespace brimshade::menubar
