#include "Brimshade.h"
#include "desktop/services/LogWriter.h"
#include "windows/flow/OnboardingFlow.h"

namespace brimshade::features {

desktop::ApplicationDescription application(int pid, const QString &name, double width)
{
    return brimshade::application(pid, name, {extra(name.toLower() + u".main"_s, width, {u"About"_s})});
}

desktop::ApplicationDescription systemAgent()
{
    auto agent = brimshade::systemAgent(
        {extra(u"com.example.menuextra.clock"_s, 132), extra(u"com.example.menuextra.controlcenter"_s, 40)});
    agent.extras->at(0).description = u"Clock"_s;
    agent.extras->at(1).description = u"Control Center"_s;
    return agent;
}

desktop::ApplicationDescription agentWithButton(const QRectF &frame)
{
    auto agent = systemAgent();
    agent.extras->push_back(button(frame));
    return agent;
}

desktop::DesktopDescription notchedDesktop(const QVariantMap &defaults)
{
    auto desktop = brimshade::notchedDesktop(
        {systemAgent(), application(811, u"Relay"_s), application(812, u"Vault"_s), application(813, u"Quill"_s)});
    desktop.pointer = QPointF(100, 800);
    desktop.defaults = {{u"onboardingDone"_s, true}};
    desktop.defaults.insert(defaults);
    return desktop;
}

desktop::DesktopDescription dividedDesktop()
{
    return notchedDesktop({{u"dividerEnabled"_s, true}});
}

desktop::DesktopDescription sharedDesktop()
{
    return notchedDesktop({{u"dividerEnabled"_s, true}, {u"NSStatusItem Preferred Position BrimshadeButton"_s, 240}});
}

Brimshade::Brimshade(const desktop::DesktopDescription &description)
    : m_on(description), m_delegate(std::make_shared<app::AppDelegate>(m_on.platform))
{
    m_delegate->applicationDidFinishLaunching();
    wait(1); // the status item stands where it will stay
}

Brimshade::~Brimshade()
{
    vanish();
    m_on.dispatch.stop();
}

void Brimshade::movePointer(QPointF to)
{
    m_on.moveTo(to);
    m_on.dispatch.runDue();
}

void Brimshade::click(QPointF at, desktop::MouseButton button)
{
    m_on.click(at, button);
    m_on.dispatch.runDue();
}

void Brimshade::open()
{
    clickStatusItem();
    ASSERT_TRUE(delegate().shown());
    ASSERT_TRUE(model().isOpen());
}

void Brimshade::press(int keyCode, const QString &characters, std::uint64_t flags)
{
    m_on.key(static_cast<std::uint16_t>(keyCode), characters, flags);
    m_on.dispatch.runDue();
}

void Brimshade::type(const QString &text)
{
    for (const QChar character : text)
        press(0, character);
}

void Brimshade::move(const QString &name, bool hide)
{
    model().onSetHidden(item(name), hide);
    m_on.dispatch.runDue();
}

void Brimshade::chooseFromMenu(const QString &title)
{
    ASSERT_TRUE(m_on.desktop.menus().choose(title)) << title.toStdString();
    m_on.dispatch.runDue();
}

void Brimshade::finishSetup(const QHash<QString, bool> &hiddenByName)
{
    model().onShowOnboarding();
    m_on.dispatch.runDue();
    const auto &view = std::get<platform::HostedView>(m_on.desktop.windows().named(u"setup"_s)->content());
    auto *flow = view.properties.value(u"flow"_s).value<windows::OnboardingFlow *>();
    for (const auto &[name, hidden] : hiddenByName.asKeyValueRange()) {
        if (flow->effectiveChoice(item(name)) != hidden)
            flow->toggle(item(name).id);
    }
    while (flow->action() != windows::OnboardingFlow::Finish)
        flow->act();
    flow->act();
    m_on.dispatch.runDue();
}

const menubar::MenuExtra &Brimshade::item(const QString &name)
{
    const auto &extras = model().extras();
    const auto found = std::ranges::find(extras, name, &menubar::MenuExtra::name);
    if (found == extras.end())
        qFatal("no item is named %s", qPrintable(name));
    return *found;
}

bool Brimshade::hasKeys(const QString &window)
{
    const desktop::DesktopWindow *found = m_on.desktop.windows().named(window);
    return found && found->isKeyWindow();
}

std::optional<QRectF> Brimshade::frameOf(const QString &window)
{
    const desktop::DesktopWindow *found = m_on.desktop.windows().named(window);
    return found && found->isVisible() ? std::optional(found->frame()) : std::nullopt;
}

int Brimshade::windowCount(const QString &name)
{
    return std::ranges::count(m_on.desktop.windows().windows(), name,
                              [](const desktop::DesktopWindow *window) { return window->attributes().name; });
}

QRectF Brimshade::statusItem()
{
    const auto items = m_on.desktop.menuBar().items();
    const auto own = std::ranges::find(items, true, &desktop::BarItem::isOwn);
    return own == items.end() ? QRectF() : own->frame;
}

bool Brimshade::isDrawn(const QString &identifier)
{
    const auto items = m_on.desktop.menuBar().items();
    const auto item = std::ranges::find(items, identifier, &desktop::BarItem::identifier);
    return item != items.end() && item->drawn;
}

QPointF Brimshade::symbol()
{
    const QRectF item = statusItem();
    return {platform::maxX(item) - 14, platform::midY(item)};
}

QString Brimshade::bar()
{
    QStringList names;
    for (const desktop::BarItem &item : m_on.desktop.menuBar().items()) {
        if (item.isOwn)
            names.append(u"|"_s);
        else if (!item.identifier.startsWith("com.example"_L1))
            names.append(item.identifier.section(u'.', 0, 0));
    }
    return names.join(u' ');
}

QString Brimshade::hiddenItems()
{
    model().onRefresh();
    m_on.dispatch.runDue();
    QStringList names;
    for (const menubar::MenuExtra &extra : model().extras()) {
        if (extra.isHidden)
            names.append(extra.name);
    }
    return names.join(u' ');
}

QStringList Brimshade::log()
{
    QStringList lines;
    for (const desktop::LogEntry &entry : m_on.desktop.log().take())
        lines.append((entry.level == platform::LogLevel::error ? u"error: "_s : u"info: "_s) + entry.text);
    return lines;
}

int Brimshade::dragCount()
{
    return std::ranges::count_if(m_on.desktop.inspection().takeEvents(), [](const desktop::SyntheticEvent &posted) {
        return posted.event.type == platform::kCGEventLeftMouseDown;
    });
}

QStringList Brimshade::pressedItems()
{
    QStringList identifiers;
    for (const desktop::PerformedAction &action : m_on.desktop.inspection().takeActions())
        identifiers.append(action.identifier);
    return identifiers;
}

} // namespace brimshade::features
