#pragma once
#include "model/NotchModel.h"

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QSizeF>
#include <optional>
#include <qqml.h>

namespace brimshade::panel {

// Where things stand in the panel, in points. The body begins under the header; y values count from there. When the
// items need more than `limit`, the tab is as high as that and the sections scroll above the footer.
class PanelGeometry : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimshade::model::NotchModel *source READ source WRITE setSource NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(double limit MEMBER m_limit NOTIFY changed) // of the tab's height
    Q_PROPERTY(QSizeF closedSize READ closedSize NOTIFY changed)
    Q_PROPERTY(QSizeF openSize READ openSize NOTIFY changed)
    Q_PROPERTY(double gridLeft READ gridLeft NOTIFY changed) // of the first column, from the middle of the panel
    Q_PROPERTY(double hiddenSectionY READ hiddenSectionY CONSTANT)
    Q_PROPERTY(double visibleSectionY READ visibleSectionY NOTIFY changed)
    Q_PROPERTY(double contentHeight READ contentHeight NOTIFY changed) // of the sections, or of the sentence instead
    Q_PROPERTY(double viewportHeight READ viewportHeight NOTIFY changed) // the part of it in view
    Q_PROPERTY(double footerY READ footerY NOTIFY changed)

public:
    using QObject::QObject;

    model::NotchModel *source() const { return m_source; }
    void setSource(model::NotchModel *source);

    QSizeF closedSize() const;
    QSizeF openSize() const;
    double gridLeft() const;
    double hiddenSectionY() const;
    double visibleSectionY() const;
    double contentHeight() const;
    double viewportHeight() const;
    double footerY() const;

    Q_INVOKABLE double clampedScroll(double scroll) const;
    // The nearest scroll position at which the whole tile is in view and, for one in a first row, the title above it.
    Q_INVOKABLE double scrollShowing(const QString &id, double scroll) const;
    // Of the tile's face, unscrolled, from the middle of the panel; the origin when there is no such tile.
    Q_INVOKABLE QPointF faceCentre(const QString &id) const;

Q_SIGNALS:
    void sourceChanged();
    void changed();

private:
    struct Cell {
        int column = 0, row = 0;
        double sectionY = 0;
        double y() const; // of its upper edge
    };
    std::optional<Cell> cellOf(const QString &id) const;

    QPointer<model::NotchModel> m_source;
    double m_limit = 1e6;
};

} // namespace brimshade::panel
