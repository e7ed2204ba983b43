#include "SessionHost.h"
#include "MenuPanes.h"
#include "OverlayPane.h"
#include "SessionBar.h"
#include "SessionScreens.h"
#include "TipPane.h"
#include "TitledPane.h"
#include "desktop/core/BarText.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/MenuBar.h"
#include "desktop/core/MenuHost.h"
#include "desktop/views/NativePoint.h"
#include "desktop/views/ScriptHands.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QQmlEngine>
#include <QScreen>
#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

// The pointer's assumed place while it is on no window of this program: the session does not say where it is.
constexpr QPointF kNowhere(-10'000, -10'000);

} // namespace

SessionHost::SessionHost(Desktop &desktop, SessionScreens &screens, ShellBackend &shell)
    : m_desktop(desktop), m_screens(screens), m_shell(shell), m_engine(std::make_unique<QQmlEngine>()),
      m_clock(desktop.platform().dispatch, [] { return QDateTime::currentDateTime(); }),
      m_applicationNames(desktop.platform().dispatch), m_barState(desktop.menuBar(), m_clock),
      m_barTip(desktop.menuBar(), desktop.input(), desktop.platform().dispatch),
      m_menu(desktop.menus(), [this](QPointF point) { return screenFrameAt(point); }),
      m_unusedMemory(*m_engine, desktop.platform().dispatch)
{
    m_engine->addImportPath(u"qrc:/qt/qml"_s);
    // Connected before the bar's own handler, because the bar asks the desktop where it is.
    connect(&screens, &SessionScreens::changed, this, [this] {
        m_desktop.setScreens(m_screens.descriptions());
        followForeground();
    });
    m_bar = std::make_unique<SessionBar>(
        SessionBar::Parts{desktop.menuBar(), m_barState, screens, shell, *m_engine, desktop.input(), m_menu});
    m_bar->pane().window().installEventFilter(this);
    m_menus = std::make_unique<MenuPanes>(MenuPanes::Parts{m_menu, screens, shell, *m_engine, desktop.input()});
    m_tip = std::make_unique<TipPane>(TipPane::Parts{m_barTip, screens, shell, *m_engine, desktop.input(), m_menu});
    m_hands = std::make_unique<ScriptHands>(
        [this](QPointF display, const WindowInput *grab) {
            Pane *pane = grab ? paneOf(grab) : paneAt(display);
            return pane ? ScriptHands::Aim{&pane->input(), pane->toWindow(display)} : ScriptHands::Aim{};
        },
        [this] { return keyInput(); }, desktop.input());

    WindowStack &stack = desktop.windows();
    connect(&stack, &WindowStack::windowAdded, this, &SessionHost::addWindow);
    connect(&stack, &WindowStack::windowRemoved, this, &SessionHost::removeWindow);
    connect(&stack, &WindowStack::keyChanged, this, &SessionHost::giveKeys);
    connect(&m_menu, &MenuController::isOpenChanged, this, &SessionHost::update);
    connect(&shell, &ShellBackend::pressedOutside, this, &SessionHost::pressedOutside);
    connect(&shell, &ShellBackend::compositedChanged, this, &SessionHost::followForeground);
    connect(&shell.foreground(), &Foreground::applicationChanged, this, &SessionHost::followForeground);
    connect(&m_applicationNames, &ApplicationNames::found, this, &SessionHost::followForeground);
    connect(&shell.foreground(), &Foreground::coveredScreensChanged, this, &SessionHost::followForeground);
    connect(&desktop.input(), &InputRouter::syntheticHeld, m_bar.get(), &SessionBar::setWaiting);
    for (DesktopWindow *window : stack.windows())
        addWindow(window);
    followForeground();
}

SessionHost::~SessionHost()
{
    m_hands.reset();
    m_windows.clear(); // views are destroyed before what they show
    m_tip.reset();
    m_menus.reset();
    m_bar.reset();
}

void SessionHost::addWindow(DesktopWindow *window)
{
    if (!std::holds_alternative<platform::HostedView>(window->content()))
        return; // the hover strip, which is part of the bar: that reports every move
    std::unique_ptr<WindowPane> pane;
    if (window->attributes().styleMask & platform::kStyleTitled) {
        pane = std::make_unique<TitledPane>(
            *window, TitledPane::Parts{m_desktop.windows(), *m_engine, m_desktop.input(), m_menu});
    } else {
        auto overlay = std::make_unique<OverlayPane>(
            *window, OverlayPane::Parts{m_screens, m_shell, *m_engine, m_desktop.input(), m_menu});
        connect(overlay.get(), &OverlayPane::takesInputChanged, this, &SessionHost::update);
        pane = std::move(overlay);
    }
    pane->pane().window().installEventFilter(this);
    m_windows[window] = std::move(pane);
    giveKeys();
}

void SessionHost::removeWindow(DesktopWindow *window)
{
    m_windows.erase(window);
    update();
}

void SessionHost::giveKeys()
{
    for (const auto &[window, pane] : m_windows)
        pane->setKey(window == m_desktop.windows().keyWindow());
    update();
}

void SessionHost::update()
{
    const bool isOverlayOpen = std::ranges::any_of(
        m_windows, [](const auto &each) { return each.second->takesInput() && each.second->isOverlay(); });
    const bool isOpen = isOverlayOpen || m_menu.isOpen();
    m_shell.watchOutside(isOpen);
    m_unusedMemory.setInUse(isOpen);
    if (std::exchange(m_tookKeyboard, takesKeyboard()) != takesKeyboard())
        Q_EMIT takesKeyboardChanged();
}

bool SessionHost::takesKeyboard() const
{
    return m_menu.isOpen()
        || std::ranges::any_of(m_windows, [](const auto &each) { return each.second->takesKeyboard(); });
}

void SessionHost::takeEveryKey(bool take)
{
    if (m_keyTaker)
        m_keyTaker->setKeyboardGrabEnabled(false);
    const auto key = m_windows.find(m_desktop.windows().keyWindow());
    m_keyTaker = take && key != m_windows.end() ? &key->second->pane().window() : nullptr;
    if (m_keyTaker)
        m_keyTaker->setKeyboardGrabEnabled(true);
}

QString SessionHost::windowWithKeys() const
{
    const auto all = panes();
    const auto found = std::ranges::find_if(all, [](Pane *pane) { return pane->window().isActive(); });
    return found == all.end() ? QString() : (*found)->name();
}

void SessionHost::pressedOutside()
{
    InputRouter &router = m_desktop.input();
    router.pointerMoved(kNowhere, 0);
    if (router.pressed(MouseButton::left, 0) == Target::menu)
        m_menu.pressed(kNowhere);
    router.released(MouseButton::left, 0);
}

void SessionHost::followForeground()
{
    const Foreground &foreground = m_shell.foreground();
    const QScreen *screen = m_screens.barScreen();
    const QString id = foreground.applicationId();
    const bool isOwn = id == QGuiApplication::desktopFileName() || id == QCoreApplication::applicationName();
    // There may be no desktop entry installed for this program.
    const QString name = isOwn ? u"Brimshade"_s : m_applicationNames.nameOf(id);
    m_barState.setApplicationName(name);
    m_desktop.menuBar().setApplicationMenusWidth(barNameWidth(name));
    m_barState.setTranslucent(m_shell.isComposited());
    m_desktop.setMenuBarShowing(screen && !foreground.coversScreen(screen));
}

// Tells the router where the pointer entered, and that it left: no move event does.
bool SessionHost::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Enter && event->type() != QEvent::Leave)
        return false;
    for (Pane *pane : panes()) {
        if (watched != &pane->window())
            continue;
        if (event->type() == QEvent::Enter) {
            m_hovered = watched;
            m_desktop.input().pointerMoved(pane->toDisplay(static_cast<QEnterEvent *>(event)->position()), 0);
        } else {
            pointerLeft(watched);
        }
        break;
    }
    return false;
}

// The pointer may enter another window at the same instant; while a button is held, the window keeps the pointer.
void SessionHost::pointerLeft(QObject *window)
{
    QMetaObject::invokeMethod(
        this,
        [this, window] {
            if (m_hovered != window || QGuiApplication::mouseButtons() != Qt::NoButton)
                return;
            m_hovered = nullptr;
            m_desktop.input().pointerMoved(kNowhere, 0);
        },
        Qt::QueuedConnection);
}

std::vector<Pane *> SessionHost::panes() const
{
    std::vector<Pane *> panes = m_menus->panes();
    std::ranges::reverse(panes);
    const auto stack = m_desktop.windows().onScreen();
    for (DesktopWindow *window : stack | std::views::reverse) {
        const auto shown = m_windows.find(window);
        if (shown != m_windows.end() && shown->second->isShown())
            panes.push_back(&shown->second->pane());
    }
    if (m_bar->isShown())
        panes.push_back(&m_bar->pane());
    return panes;
}

Pane *SessionHost::paneAt(QPointF display) const
{
    const auto all = panes();
    const auto found =
        std::ranges::find_if(all, [display](const Pane *pane) { return pane->hitFrame().contains(display); });
    return found == all.end() ? nullptr : *found;
}

Pane *SessionHost::paneOf(const WindowInput *input) const
{
    const auto all = panes();
    const auto found = std::ranges::find_if(all, [input](Pane *pane) { return &pane->input() == input; });
    return found == all.end() ? nullptr : *found;
}

WindowInput *SessionHost::keyInput() const
{
    const auto menus = m_menus->panes();
    if (!menus.empty())
        return &menus.front()->input();
    const auto key = m_windows.find(m_desktop.windows().keyWindow());
    return key == m_windows.end() ? nullptr : &key->second->pane().input();
}

QRectF SessionHost::screenFrameAt(QPointF display) const
{
    const QScreen *screen = m_screens.screenAt(display);
    return screen ? QRectF(m_screens.originOf(screen), QSizeF(screen->geometry().size())) : QRectF();
}

void SessionHost::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::vector<ScriptHost::View> SessionHost::views() const
{
    std::vector<View> views;
    for (Pane *pane : panes()) {
        views.push_back(
            {.window = &pane->window(), .toDisplay = [pane](QPointF inWindow) { return pane->toDisplay(inWindow); }});
    }
    if (m_barTip.isShown()) {
        views.push_back({.window = &m_tip->pane().window(),
                         .toDisplay = [this](QPointF inWindow) { return m_tip->pane().toDisplay(inWindow); }});
    }
    return views;
}

QImage SessionHost::picture()
{
    const QScreen *screen = m_screens.barScreen();
    if (!screen)
        return {};
    const QRectF frame = screenFrameAt({});
    QImage image((frame.size() * screen->devicePixelRatio()).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(screen->devicePixelRatio());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const auto all = panes();
    for (Pane *pane : all | std::views::reverse)
        painter.drawImage(pane->frame().topLeft() - frame.topLeft(), pane->window().grabWindow());
    return image;
}

std::optional<QImage> SessionHost::picture(const QString &windowName)
{
    for (Pane *pane : panes()) {
        if (pane->name() == windowName)
            return pane->window().grabWindow();
    }
    return {};
}

QPoint SessionHost::toScreen(QPointF display) const
{
    const QScreen *screen = m_screens.screenAt(display);
    return screen ? nativePoint(screen->geometry().topLeft() + display - m_screens.originOf(screen))
                  : display.toPoint();
}

void SessionHost::movePointer(QPointF to, std::uint64_t modifierFlags)
{
    m_hands->movePointer(to, modifierFlags);
}

void SessionHost::press(MouseButton button, std::uint64_t modifierFlags)
{
    m_hands->press(button, modifierFlags);
}

void SessionHost::release(MouseButton button, std::uint64_t modifierFlags)
{
    m_hands->release(button, modifierFlags);
}

void SessionHost::scroll(QPoint by, std::uint64_t modifierFlags)
{
    m_hands->scroll(by, modifierFlags);
}

void SessionHost::key(const platform::Event &event)
{
    m_hands->key(event);
}

} // namespace brimshade::desktop::session
