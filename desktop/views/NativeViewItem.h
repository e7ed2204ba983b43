#pragma once
#include "platform/View.h"

#include <QQuickPaintedItem>
#include <memory>

namespace brimshade::desktop {

// Shows a view that draws itself. The input router does the pointer tracking.
class NativeViewItem : public QQuickPaintedItem {
    Q_OBJECT
public:
    NativeViewItem(std::shared_ptr<platform::NativeView> view, QQuickItem *parent)
        : QQuickPaintedItem(parent), m_view(std::move(view))
    {
    }
    void paint(QPainter *painter) override { m_view->draw(*painter, boundingRect()); }

private:
    const std::shared_ptr<platform::NativeView> m_view;
};

} // namespace brimshade::desktop
