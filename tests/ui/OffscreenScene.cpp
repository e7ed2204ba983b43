#include "OffscreenScene.h"
#include "ui/PictureCache.h"

#include <QMouseEvent>
#include <QQmlComponent>
#include <QQuickGraphicsDevice>
#include <QQuickRenderTarget>
#include <QThreadPool>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::ui {

OffscreenScene::OffscreenScene(QSize size, double scale)
    : m_engine(std::make_unique<QQmlEngine>()), m_control(std::make_unique<QQuickRenderControl>()),
      m_window(std::make_unique<QQuickWindow>(m_control.get())),
      m_image((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied)
{
    m_engine->addImportPath(u"qrc:/qt/qml"_s);
    m_window->setColor(kBackground);
    PictureCache::of(m_window.get())->setAwaited(true);
    m_window->setGeometry(QRect(QPoint(), size));
    m_window->contentItem()->setSize(size);
    m_image.setDevicePixelRatio(scale);
    auto target = QQuickRenderTarget::fromPaintDevice(&m_image);
    target.setDevicePixelRatio(scale);
    m_window->setRenderTarget(target);
}

OffscreenScene::~OffscreenScene()
{
    m_root.reset();
    m_window.reset();
    m_control.reset();
}

QQuickItem *OffscreenScene::load(const QByteArray &qml, const QVariantMap &properties)
{
    QQmlComponent component(m_engine.get());
    component.setData(qml, {});
    if (component.isReady())
        m_root.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(properties)));
    if (!m_root) {
        qWarning() << component.errors();
        return nullptr;
    }
    m_root->setParentItem(m_window->contentItem());
    m_root->setSize(m_window->size());
    settle();
    return m_root.get();
}

QList<QQuickItem *> OffscreenScene::findAll(const QString &objectName) const
{
    QList<QQuickItem *> found;
    QList<QQuickItem *> pending{m_window->contentItem()};
    while (!pending.isEmpty()) {
        QQuickItem *item = pending.takeFirst();
        if (item->objectName() == objectName)
            found << item;
        pending << item->childItems();
    }
    return found;
}

QQuickItem *OffscreenScene::find(const QString &objectName) const
{
    const auto all = findAll(objectName);
    return all.isEmpty() ? nullptr : all.first();
}

QImage OffscreenScene::picture()
{
    settle();
    m_control->sync();
    m_control->render();
    return m_image.copy();
}

void OffscreenScene::renderFrame(int milliseconds)
{
    m_clock.step(milliseconds);
    m_control->polishItems();
    m_control->sync();
    m_control->render();
}

void OffscreenScene::settle()
{
    QThreadPool::globalInstance()->waitForDone(); // pictures blurred there are ready now, however busy the machine is
    // Polishing may cause more polishing, and queued signals more events: two rounds are enough.
    for (int round = 0; round < 2; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        m_control->polishItems();
    }
}

void OffscreenScene::advance(int milliseconds)
{
    constexpr int frame = 16;
    for (int left = milliseconds; left > 0; left -= frame) {
        m_clock.step(std::min(left, frame));
        m_control->polishItems();
    }
    settle();
}

int OffscreenScene::framesAskedFor(int milliseconds)
{
    picture();
    int count = 0;
    const auto ask = [&count] { ++count; };
    const auto rendering = QObject::connect(m_control.get(), &QQuickRenderControl::renderRequested, ask);
    const auto changing = QObject::connect(m_control.get(), &QQuickRenderControl::sceneChanged, ask);
    advance(milliseconds);
    QObject::disconnect(rendering);
    QObject::disconnect(changing);
    return count;
}

QRectF OffscreenScene::frameOf(const QQuickItem *item) const
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

void OffscreenScene::send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, at, at, button, buttons, Qt::NoModifier);
    event.setTimestamp(quint64(m_clock.now()));
    QCoreApplication::sendEvent(m_window.get(), &event);
    settle();
}

void OffscreenScene::movePointer(QPointF to)
{
    send(QEvent::MouseMove, to, Qt::NoButton, Qt::NoButton);
}

void OffscreenScene::click(QPointF at, Qt::MouseButton button)
{
    movePointer(at);
    send(QEvent::MouseButtonPress, at, button, button);
    send(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}

} // namespace brimshade::ui
