#pragma once
#include "NotchTabNode.h"

#include <QQuickItem>
#include <qqml.h>

namespace brimshade::ui {

class NotchCore;

// A black tab with an outline, hanging from the top middle of its parent. It sizes and places itself, on whole
// device pixels, between its closed and its open size, flares included. It takes the clicks that fall inside its
// outline and does nothing with them.
class NotchTab : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QSizeF closedSize MEMBER m_closedSize NOTIFY sizesChanged)
    Q_PROPERTY(QSizeF openSize MEMBER m_openSize NOTIFY sizesChanged)
    Q_PROPERTY(double openness MEMBER m_openness NOTIFY sizesChanged) // 0 closed, 1 open; springs overshoot
    // False: the outline appears as the tab opens, and stronger further down. True: it is always there, all around,
    // inside the edge.
    Q_PROPERTY(bool bordered MEMBER m_isBordered NOTIFY sizesChanged)
    // The part of the parent that shows content: a rectangle inside the outline, lower corners included.
    Q_PROPERTY(QRectF interior READ interior NOTIFY interiorChanged)
    // It is at least as large as when it is open, give or take what the content's padding bears.
    Q_PROPERTY(bool holdsContent READ holdsContent NOTIFY holdsContentChanged)

public:
    explicit NotchTab(QQuickItem *parent = nullptr);

    QRectF interior() const;
    bool holdsContent() const { return m_holdsContent; }
    bool contains(const QPointF &point) const override;

Q_SIGNALS:
    void sizesChanged();
    void interiorChanged();
    void holdsContentChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void place();
    QRectF coreIn(const QRectF &body) const; // both in the parent's coordinates
    double scale() const; // device pixels per point
    double snapped(double length) const;

    QSizeF m_closedSize;
    QSizeF m_openSize;
    double m_openness = 0;
    bool m_isBordered = false;
    NotchForm m_form; // at present
    bool m_holdsContent = false;
    NotchCore *m_core = nullptr; // ours; the parent's child beside us
    QMetaObject::Connection m_parentWidth;
};

} // namespace brimshade::ui
