#include "HostedContent.h"
#include "NativeViewItem.h"
#include "desktop/core/DesktopWindow.h"

#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

QSizeF measuredSize(const QQuickItem &item)
{
    return {item.implicitWidth() > 0 ? item.implicitWidth() : item.width(),
            item.implicitHeight() > 0 ? item.implicitHeight() : item.height()};
}

} // namespace

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

HostedContent::HostedContent(DesktopWindow &window, QQmlEngine &engine, QQuickItem &holder) : m_window(window)
{
    if (std::holds_alternative<platform::HostedView>(window.content())) {
        makeView(engine, holder);
        return;
    }
    m_native =
        std::make_unique<NativeViewItem>(std::get<std::shared_ptr<platform::NativeView>>(window.content()), nullptr);
    fit(*m_native, holder);
}

HostedContent::~HostedContent() = default;

void HostedContent::makeView(QQmlEngine &engine, QQuickItem &holder)
{
    const auto &view = std::get<platform::HostedView>(m_window.content());
    m_view = createItem(engine, view.module, view.type, view.properties);
    if (!m_view)
        return;
    m_view->setFocus(true);
    fit(*m_view, holder);
}

void HostedContent::fit(QQuickItem &content, QQuickItem &holder)
{
    content.setParentItem(&holder);
    if (m_window.attributes().contentSizesWindow) {
        for (const auto signal : {&QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged})
            QObject::connect(&content, signal, &m_context, [this] { measure(); });
        measure();
        return;
    }
    const auto fill = [&content, &holder] { content.setSize(holder.size()); };
    QObject::connect(&holder, &QQuickItem::widthChanged, &content, fill);
    QObject::connect(&holder, &QQuickItem::heightChanged, &content, fill);
    fill();
}

void HostedContent::measure()
{
    const QSizeF size = measuredSize(*m_view);
    m_view->setSize(size);
    m_window.setContentSize(size);
}

} // namespace brimshade::desktop
