#include "SceneHost.h"
#include "AnimationClock.h"
#include "OffscreenSurface.h"
#include "SceneState.h"
#include "WindowHosts.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/WindowStack.h"
#include "desktop/time/VirtualDispatch.h"
#include "desktop/views/NativePoint.h"
#include "desktop/views/ScriptHands.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr double kLargestShare = 0.94; // of the real screen

WallClock::Now clockOf(VirtualDispatch *clock)
{
    if (!clock)
        return [] { return QDateTime::currentDateTime(); };
    // The same in every run, so that the pictures are the same, too.
    static const QDateTime start(QDate(2026, 6, 9), QTime(9, 41));
    return [clock] { return start.addMSecs(qint64(clock->now() * 1000)); };
}

std::unique_ptr<QQuickWindow> sessionWindow(QSize desktop)
{
    auto window = std::make_unique<QQuickWindow>();
    window->setTitle(u"Brimshade"_s);
    window->setColor(Qt::black);
    // At its own size if the real screen has room for that, else as large as a window manager leaves room for.
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize room = screen ? screen->availableGeometry().size() : desktop;
    const bool hasRoom = desktop.width() <= room.width() && desktop.height() <= room.height();
    window->resize(hasRoom ? desktop : desktop.scaled(room * kLargestShare, Qt::KeepAspectRatio));
    window->setMinimumSize({640, 400});
    return window;
}

} // namespace

class SceneHost::Private {
public:
    Private(Desktop &desktop, VirtualDispatch *clock, std::optional<double> offscreenScale);
    ~Private();

    QQuickWindow &window() const { return surface ? surface->window() : *ownWindow; }
    QImage whole();
    QImage partOf(const QImage &whole, const QQuickItem &item) const;
    QImage onlyFrame(const QQuickItem &frame);

    Desktop &desktop;
    const std::optional<double> scale; // of pictures; absent for a window
    std::unique_ptr<AnimationClock> animations;
    std::unique_ptr<OffscreenSurface> surface;
    std::unique_ptr<QQuickWindow> ownWindow;
    std::unique_ptr<QQmlEngine> engine;
    SceneState state;
    std::unique_ptr<QQuickItem> root;
    QQuickItem *space = nullptr; // belongs to the root; laid out in display space
    std::unique_ptr<WindowHosts> windows;
    std::unique_ptr<WindowInput> input;
    std::unique_ptr<ScriptHands> hands;

private:
    void makeRoot();
    void makeInput();
    void fit();
    QPointF toDisplay(QPointF inWindow) const; // clamped to the screens
};

SceneHost::Private::Private(Desktop &desktop_, VirtualDispatch *clock, std::optional<double> offscreenScale)
    : desktop(desktop_), scale(offscreenScale), animations(clock ? std::make_unique<AnimationClock>(*clock) : nullptr),
      engine(std::make_unique<QQmlEngine>()), state(desktop, clockOf(clock), scale.has_value())
{
    if (scale)
        surface = std::make_unique<OffscreenSurface>();
    else
        ownWindow = sessionWindow(state.bounds().size().toSize());
    engine->addImportPath(u"qrc:/qt/qml"_s);
    makeRoot();
    QObject::connect(&state, &SceneState::screensChanged, &window(), [this] { fit(); });
    if (ownWindow) {
        QObject::connect(ownWindow.get(), &QQuickWindow::widthChanged, &state, [this] { fit(); });
        QObject::connect(ownWindow.get(), &QQuickWindow::heightChanged, &state, [this] { fit(); });
    }
    fit();
    if (!space)
        return;
    windows = std::make_unique<WindowHosts>(desktop.windows(), *engine, *space);
    makeInput();
}

SceneHost::Private::~Private()
{
    // Views are destroyed before what they show, and items before their window.
    hands.reset();
    input.reset();
    windows.reset();
    root.reset();
}

void SceneHost::Private::makeRoot()
{
    QQmlComponent component(engine.get());
    component.setData("import Brimshade.Stage\nDesktopScene {}", {});
    QObject *object = component.isReady()
        ? component.createWithInitialProperties({{u"desktop"_s, QVariant::fromValue(&state)}})
        : nullptr;
    root.reset(qobject_cast<QQuickItem *>(object));
    if (!root)
        qFatal("the desktop's own views cannot be made: %s", qUtf8Printable(component.errorString()));
    root->setParentItem(window().contentItem());
    space = root->property("space").value<QQuickItem *>();
}

void SceneHost::Private::makeInput()
{
    input = std::make_unique<WindowInput>(
        window(), [this](QPointF inWindow) { return toDisplay(inWindow); }, desktop.input(), *state.menu());
    QObject::connect(input.get(), &WindowInput::handMoved, &state, &SceneState::handMoved);
    hands = std::make_unique<ScriptHands>(
        [this](QPointF display, const WindowInput *) {
            return ScriptHands::Aim{input.get(), space->mapToScene(display)};
        },
        [this] { return input.get(); }, desktop.input());
}

QPointF SceneHost::Private::toDisplay(QPointF inWindow) const
{
    const QRectF bounds = state.bounds();
    const QPointF point = space->mapFromScene(inWindow);
    return {std::clamp(point.x(), bounds.left(), bounds.right()), std::clamp(point.y(), bounds.top(), bounds.bottom())};
}

// Off screen, the surface is as large as the desktop; in a window, the desktop is scaled to fit and centred.
void SceneHost::Private::fit()
{
    const QSizeF size = state.bounds().size();
    if (surface && !size.isEmpty())
        surface->setSize(size.toSize(), *scale);
    const QSizeF room = window().size();
    const double factor = size.isEmpty() ? 1 : std::min(room.width() / size.width(), room.height() / size.height());
    root->setTransformOrigin(QQuickItem::TopLeft);
    root->setScale(factor);
    root->setPosition({(room.width() - size.width() * factor) / 2, (room.height() - size.height() * factor) / 2});
}

QImage SceneHost::Private::whole()
{
    return surface ? surface->render() : ownWindow->grabWindow();
}

QImage SceneHost::Private::partOf(const QImage &whole, const QQuickItem &item) const
{
    const QRectF rect = item.mapRectToScene(QRectF({}, item.size())) & QRectF({}, window().size());
    const double pixels = double(whole.width()) / window().width(); // per unit of the scene
    return whole.copy(QRectF(rect.topLeft() * pixels, rect.size() * pixels).toAlignedRect());
}

// Everything else is made transparent but stays present, so that what has the focus or is hovered stays so.
QImage SceneHost::Private::onlyFrame(const QQuickItem &frame)
{
    std::vector<std::pair<QQuickItem *, double>> hidden;
    for (QQuickItem *item : space->childItems()) {
        if (item == &frame)
            continue;
        hidden.emplace_back(item, item->opacity());
        item->setOpacity(0);
    }
    QImage picture = partOf(whole(), frame);
    for (const auto &[item, opacity] : hidden)
        item->setOpacity(opacity);
    return picture;
}

SceneHost::SceneHost(std::unique_ptr<Private> parts) : m_d(std::move(parts)) { }

SceneHost::~SceneHost() = default;

std::unique_ptr<SceneHost> SceneHost::offscreen(Desktop &desktop, VirtualDispatch *clock, double scale)
{
    return std::unique_ptr<SceneHost>(new SceneHost(std::make_unique<Private>(desktop, clock, scale)));
}

std::unique_ptr<SceneHost> SceneHost::window(Desktop &desktop)
{
    return std::unique_ptr<SceneHost>(new SceneHost(std::make_unique<Private>(desktop, nullptr, std::nullopt)));
}

QQuickWindow *SceneHost::quickWindow() const
{
    return &m_d->window();
}

QQmlEngine &SceneHost::engine() const
{
    return *m_d->engine;
}

void SceneHost::settle()
{
    // Layout causes events, and events cause layout: two rounds are enough to settle both.
    for (int round = 0; round < 2; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (m_d->surface)
            m_d->surface->layOut();
    }
    if (m_d->animations)
        m_d->animations->catchUp();
}

std::vector<ScriptHost::View> SceneHost::views() const
{
    return {{.window = quickWindow(), .toDisplay = [this](QPointF scene) { return toDisplay(scene); }}};
}

QImage SceneHost::picture()
{
    settle();
    return m_d->whole();
}

std::optional<QImage> SceneHost::picture(const QString &windowName)
{
    const DesktopWindow *window = m_d->desktop.windows().named(windowName);
    const QQuickItem *frame = m_d->windows->frameOf(window);
    if (!frame || !window->isVisible())
        return {};
    settle();
    return m_d->surface ? m_d->onlyFrame(*frame)
                        : m_d->partOf(m_d->whole(), *frame); // nothing may vanish while a person is looking
}

QQuickItem *SceneHost::contentOf(const DesktopWindow *window) const
{
    return m_d->windows->contentOf(window);
}

bool SceneHost::isAnimating() const
{
    return m_d->animations && m_d->animations->isRunning();
}

QPointF SceneHost::toDisplay(QPointF scene) const
{
    return m_d->space->mapFromScene(scene);
}

QPoint SceneHost::toScreen(QPointF display) const
{
    if (!quickWindow()->isVisible())
        return display.toPoint();
    return nativePoint(quickWindow()->mapToGlobal(m_d->space->mapToScene(display)));
}

void SceneHost::movePointer(QPointF to, std::uint64_t modifierFlags)
{
    m_d->hands->movePointer(to, modifierFlags);
}

void SceneHost::press(MouseButton button, std::uint64_t modifierFlags)
{
    m_d->hands->press(button, modifierFlags);
}

void SceneHost::release(MouseButton button, std::uint64_t modifierFlags)
{
    m_d->hands->release(button, modifierFlags);
}

void SceneHost::scroll(QPoint by, std::uint64_t modifierFlags)
{
    m_d->hands->scroll(by, modifierFlags);
}

void SceneHost::key(const platform::Event &event)
{
    m_d->hands->key(event);
}

} // namespace brimshade::desktop
