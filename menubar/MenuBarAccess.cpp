#include "MenuBarAccess.h"
#include "ItemWalk.h"
#include "Labels.h"
#include "Owner.h"
#include "Text.h"
#include "platform/Platform.h"

#include <QStringBuilder>
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
    for (const QString *text : {&title, &description})
        if (const QStringView trimmed = trimmedBlanks(*text); !trimmed.isEmpty())
            return trimmed.size() == text->size() ? *text : trimmed.toString();
    return appName;
}

ExtraList leftToRight(ExtraList extras)
{
    std::vector<MenuExtra *> order; // records are large: only pointers are sorted
    order.reserve(extras.size());
    for (MenuExtra &extra : extras)
        order.push_back(&extra);
    std::ranges::stable_sort(order, [](const MenuExtra *a, const MenuExtra *b) {
        return a->frame.x() != b->frame.x() ? a->frame.x() < b->frame.x() : isOrderedBefore(a->name, b->name);
    });
    ExtraList sorted;
    sorted.reserve(extras.size());
    for (MenuExtra *extra : order)
        sorted.push_back(std::move(*extra));
    return sorted;
}

} // namespace

MenuBarAccess::MenuBarAccess(const platform::Platform &platform)
    : m_accessibility(platform.accessibility), m_dispatch(platform.dispatch), m_log(platform.log),
      m_workspace(platform.workspace)
{
}

MenuBarAccess::~MenuBarAccess() = default;

ExtraList MenuBarAccess::scan(const platform::Screen &screen, std::optional<QRectF> dividerFrame)
{
    const int ownProcess = m_workspace.processIdentifier();
    const std::optional<QString> ownBundle = m_workspace.bundleIdentifier();
    HidingEdges edges{notchExtent(screen), platform::minX(screen.frame), std::nullopt, dividerFrame};
    ExtraList extras;
    for (const platform::RunningApplication &application : m_workspace.runningApplications()) {
        // By the bundle identifier too: a second instance of this program is not listed either.
        if (application.processIdentifier != ownProcess && application.bundleIdentifier != ownBundle)
            readApplication(application, extras, edges.buttonEdge);
    }
    // Only now is the last button known.
    for (MenuExtra &extra : extras)
        extra.isHidden = isHiddenItem(extra.frame, edges);
    return leftToRight(std::move(extras));
}

void MenuBarAccess::readApplication(const platform::RunningApplication &application, ExtraList &extras,
                                    std::optional<double> &buttonEdge)
{
    const AXUIElement menuBar = extrasMenuBar(m_accessibility, application.processIdentifier, kScanTimeout);
    std::vector<AXUIElement> items;
    if (menuBar)
        items = collectItems(m_accessibility, menuBar, buttonEdge);
    if (items.empty())
        return;
    const auto &path = application.bundlePath;
    const Owner owner{application, isSystemAgent(application), QString::number(application.processIdentifier) + u'-',
                      path ? outerBundle(*path) : std::nullopt};
    const Icon icon = appIcon(owner);
    for (int position = 0; AXUIElement & item : items) {
        MenuExtra &extra = extras.emplace_back();
        extra.icon = icon.image;
        extra.tint = icon.tint;
        readItem(owner, std::move(item), position++, extra);
    }
}

void MenuBarAccess::readItem(const Owner &owner, AXUIElement item, int position, MenuExtra &extra) const
{
    const QString title = stringAttribute(m_accessibility, item, kTitle);
    const QString description = stringAttribute(m_accessibility, item, kDescription);
    const QString identifier = stringAttribute(m_accessibility, item, kIdentifier);
    extra.id = owner.idPrefix % QString::number(position) % u'-' % identifier;
    extra.name = appName(owner);
    extra.detail = detailText(title, description, extra.name);
    if (owner.isSystemAgent) {
        extra.name = description.isEmpty() ? u"System"_s : description;
        extra.symbol = symbolName(identifier);
    }
    extra.frame = frameOf(m_accessibility, item);
    extra.canMove = canMoveItem(owner.isSystemAgent, identifier);
    extra.element = std::move(item);
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
