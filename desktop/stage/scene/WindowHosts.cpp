#include "WindowHosts.h"
#include "desktop/core/WindowStack.h"
#include "desktop/views/NativeViewItem.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

std::unique_ptr<QQuickItem> createItem(QQmlEngine &engine, const QString &module, const QString &type,
                                       const QVariantMap &properties)
{
    QQmlComponent component(&engine);
    component.setData(u"import %1\n%2 {}"_s.arg(module, type).toUtf8(), {});
    QObject *object = component.isReady() ? component.createWithInitialProperties(properties) : nullptr;
    std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(object));
    if (!item) {
        delete object;
        qWarning("cannot show %s of %s: %s", qUtf8Printable(type), qUtf8Printable(module),
                 qUtf8Printable(component.errorString()));
    }
    return item;
}

QSizeF measuredSize(const QQuickItem &item)
{
    return {item.implicitWidth() > 0 ? item.implicitWidth() : item.width(),
            item.implicitHeight() > 0 ? item.implicitHeight() : item.height()};
}

} // namespace

class WindowHosts::Host {
public:
    Host(DesktopWindow &window, QQmlEngine &engine, QQuickItem &space);

    WindowState &state() { return m_state; }
    QQuickItem *frame() const { return m_frame.get(); }
    QQuickItem *content() const { return m_content.get(); }

private:
    void makeContent(QQmlEngine &engine, QQuickItem &holder);
    void fit(QQuickItem &content, QQuickItem &holder);
    void measure();

    DesktopWindow &m_window;
    WindowState m_state;
    std::unique_ptr<QQuickItem> m_frame;
    std::unique_ptr<QQuickItem> m_content; // goes before the frame that holds it
    std::unique_ptr<QQuickItem> m_native;
};

WindowHosts::Host::Host(DesktopWindow &window, QQmlEngine &engine, QQuickItem &space)
    : m_window(window), m_state(window), m_frame(createItem(engine, u"Brimshade.Stage"_s, u"WindowFrame"_s,
                                                            {{u"hosted"_s, QVariant::fromValue(&m_state)}}))
{
    if (!m_frame)
        return;
    m_frame->setParentItem(&space);
    if (auto *holder = m_frame->property("holder").value<QQuickItem *>())
        makeContent(engine, *holder);
}

void WindowHosts::Host::makeContent(QQmlEngine &engine, QQuickItem &holder)
{
    if (const auto *view = std::get_if<platform::HostedView>(&m_window.content())) {
        m_content = createItem(engine, view->module, view->type, view->properties);
        if (m_content) {
            m_content->setFocus(true);
            fit(*m_content, holder);
        }
        return;
    }
    m_native =
        std::make_unique<NativeViewItem>(std::get<std::shared_ptr<platform::NativeView>>(m_window.content()), nullptr);
    fit(*m_native, holder);
}

void WindowHosts::Host::fit(QQuickItem &content, QQuickItem &holder)
{
    content.setParentItem(&holder);
    if (m_window.attributes().contentSizesWindow) {
        for (const auto signal : {&QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged})
            QObject::connect(&content, signal, &m_state, [this] { measure(); });
        measure();
        return;
    }
    const auto fill = [&content, &holder] { content.setSize(holder.size()); };
    QObject::connect(&holder, &QQuickItem::widthChanged, &content, fill);
    QObject::connect(&holder, &QQuickItem::heightChanged, &content, fill);
    fill();
}

void WindowHosts::Host::measure()
{
    const QSizeF size = measuredSize(*m_content);
    m_content->setSize(size);
    m_window.setContentSize(size);
}

WindowHosts::WindowHosts(WindowStack &stack, QQmlEngine &engine, QQuickItem &space)
    : m_stack(stack), m_engine(engine), m_space(space)
{
    connect(&stack, &WindowStack::windowAdded, this, &WindowHosts::add);
    connect(&stack, &WindowStack::windowRemoved, this, &WindowHosts::remove);
    connect(&stack, &WindowStack::orderChanged, this, &WindowHosts::arrange);
    connect(&stack, &WindowStack::keyChanged, this, &WindowHosts::focusKeyWindow);
    for (DesktopWindow *window : stack.windows())
        add(window);
}

WindowHosts::~WindowHosts() = default;

void WindowHosts::add(DesktopWindow *window)
{
    m_hosts[window] = std::make_unique<Host>(*window, m_engine, m_space);
    arrange();
    focusKeyWindow();
}

void WindowHosts::remove(DesktopWindow *window)
{
    m_hosts.erase(window);
}

// A level apart is at least one apart; within a level the order counts.
void WindowHosts::arrange()
{
    constexpr double step = 1.0 / 1024;
    double order = 0;
    for (const DesktopWindow *window : m_stack.onScreen()) {
        const auto host = m_hosts.find(window);
        if (host != m_hosts.end())
            host->second->state().setDepth(window->attributes().level + ++order * step);
    }
}

// The keys go to what had the focus in the key window last. Without one no item has it.
void WindowHosts::focusKeyWindow()
{
    QQuickItem *frame = frameOf(m_stack.keyWindow());
    for (const auto &[window, host] : m_hosts) {
        if (host->frame() && host->frame() != frame)
            host->frame()->setFocus(false);
    }
    if (frame)
        frame->setFocus(true);
}

QQuickItem *WindowHosts::frameOf(const DesktopWindow *window) const
{
    const auto host = m_hosts.find(window);
    return host == m_hosts.end() ? nullptr : host->second->frame();
}

QQuickItem *WindowHosts::contentOf(const DesktopWindow *window) const
{
    const auto host = m_hosts.find(window);
    return host == m_hosts.end() ? nullptr : host->second->content();
}

} // namespace brimshade::desktop
