#include "MenuBarAccess.h"
#include "Activation.h"
#include "BarReading.h"
#include "ElementReader.h"
#include "Labels.h"
#include "NotchGeometry.h"
#include "Text.h"
#include "platform/Dispatch.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"

#include <QStringBuilder>
#include <algorithm>

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

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

// The application that a scan reads.
struct MenuBarAccess::Owner {
    const platform::RunningApplication &application;
    bool isSystemAgent;
    QString idPrefix; // of its items: "812-"
    std::optional<QString> outerBundle; // of an application that lies in another one's bundle
};

MenuBarAccess::MenuBarAccess(const platform::Platform &platform)
    : m_accessibility(platform.accessibility), m_dispatch(platform.dispatch), m_log(platform.log),
      m_workspace(platform.workspace), m_icons(platform.workspace)
{
}

MenuBarAccess::~MenuBarAccess() = default;

ExtraList MenuBarAccess::scan(const platform::Screen &screen, std::optional<QRectF> dividerFrame)
{
    const std::vector<platform::RunningApplication> applications = otherApplications();
    std::vector<BarReading> bars(applications.size());
    m_dispatch.concurrentPerform(
        bars.size(), [&](std::size_t i) { bars[i] = readBar(m_accessibility, applications[i].processIdentifier); });
    HidingEdges edges{menubar::notchExtent(screen), platform::minX(screen.frame), std::nullopt, dividerFrame};
    ExtraList extras;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        if (bars[i].buttonEdge)
            edges.buttonEdge = bars[i].buttonEdge;
        if (!bars[i].items.empty())
            addItems(applications[i], std::move(bars[i]), extras);
    }
    // Only now is the last button known.
    for (MenuExtra &extra : extras)
        extra.isHidden = isHiddenItem(extra.frame, edges);
    return leftToRight(std::move(extras));
}

std::vector<platform::RunningApplication> MenuBarAccess::otherApplications() const
{
    std::vector<platform::RunningApplication> applications = m_workspace.runningApplications();
    // By the bundle identifier too: a second instance of this program is not listed either.
    std::erase_if(applications,
                  [process = m_workspace.processIdentifier(),
                   bundle = m_workspace.bundleIdentifier()](const platform::RunningApplication &application) {
                      return application.processIdentifier == process || application.bundleIdentifier == bundle;
                  });
    return applications;
}

void MenuBarAccess::addItems(const platform::RunningApplication &application, BarReading bar, ExtraList &extras)
{
    const auto &path = application.bundlePath;
    const Owner owner{application, isSystemAgent(application), QString::number(application.processIdentifier) + u'-',
                      path ? outerBundle(*path) : std::nullopt};
    const TintedIcon icon = appIcon(owner);
    for (int position = 0; ItemReading & item : bar.items) {
        MenuExtra &extra = extras.emplace_back();
        extra.icon = icon.image;
        extra.tint = icon.tint;
        describe(owner, std::move(item), position++, extra);
    }
}

void MenuBarAccess::describe(const Owner &owner, ItemReading item, int position, MenuExtra &extra) const
{
    extra.id = owner.idPrefix % QString::number(position) % u'-' % item.identifier;
    extra.name = appName(owner);
    extra.detail = detailText(item.title, item.description, extra.name);
    if (owner.isSystemAgent) {
        extra.name = item.description.isEmpty() ? u"System"_s : item.description;
        extra.symbol = symbolName(item.identifier);
    }
    extra.frame = item.frame;
    extra.canMove = canMoveItem(owner.isSystemAgent, item.identifier);
    extra.element = std::move(item.element);
}

QString MenuBarAccess::appName(const Owner &owner) const
{
    if (owner.outerBundle)
        return withoutBundleSuffix(m_workspace.displayNameAtPath(*owner.outerBundle));
    return owner.application.localizedName.value_or(u"App"_s);
}

TintedIcon MenuBarAccess::appIcon(const Owner &owner)
{
    if (owner.isSystemAgent)
        return {{}, tintWithoutIcon()};
    if (const auto &path = owner.application.bundlePath)
        return m_icons.find(owner.outerBundle.value_or(*path));
    return tinted(owner.application.icon);
}

std::optional<QRectF> MenuBarAccess::frame(const AXUIElement &element) const
{
    if (!element)
        return std::nullopt;
    ElementReader reader(m_accessibility);
    reader.adopt(element);
    const QRectF frame = reader.frame(element);
    return reader.hasFailed() ? std::nullopt : std::optional(frame);
}

std::optional<QRectF> MenuBarAccess::firstSystemButtonFrame() const
{
    const auto applications = m_workspace.runningApplications();
    const auto agent = std::ranges::find_if(applications, isSystemAgent);
    if (agent == applications.end())
        return std::nullopt;
    return readFirstButton(m_accessibility, agent->processIdentifier);
}

void MenuBarAccess::activate(const MenuExtra &extra) const
{
    // Holds the services, not this object, which may be gone by then.
    m_dispatch.globalAsync(
        platform::QualityOfService::userInitiated,
        [&accessibility = m_accessibility, &log = m_log, extra] { pressItem(accessibility, log, extra); });
}

} // namespace brimshade::menubar
