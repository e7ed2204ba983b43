#pragma once
#include "DrawnItem.h"
#include "platform/SymbolConfiguration.h"

#include <QColor>

namespace brimshade::ui {

// A system symbol in a square of about the size of text of that point size. An unknown name shows nothing.
// The base has its full name: the QML type registrar looks it up by that spelling.
class SymbolIcon : public brimshade::ui::DrawnItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(SymbolIcon)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(double pointSize READ pointSize WRITE setPointSize NOTIFY changed)
    Q_PROPERTY(Weight weight MEMBER m_weight NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    // With it, a gradient from color at the top leading corner to this at the bottom trailing one.
    Q_PROPERTY(QColor endColor MEMBER m_endColor NOTIFY changed)

public:
    enum Weight {
        Regular = int(platform::SymbolWeight::regular),
        Medium = int(platform::SymbolWeight::medium),
        Semibold = int(platform::SymbolWeight::semibold),
        Bold = int(platform::SymbolWeight::bold),
    };
    Q_ENUM(Weight)

    explicit SymbolIcon(QQuickItem *parent = nullptr);

    double pointSize() const { return m_pointSize; }
    void setPointSize(double pointSize);

Q_SIGNALS:
    void changed();

protected:
    QByteArray pictureKey() const override;
    QRectF pictureRect() const override;
    void draw(QPainter &painter, double scale) const override;

private:
    QBrush brush(const QRectF &rect) const;

    QString m_name;
    double m_pointSize = 0;
    Weight m_weight = Regular;
    QColor m_color = Qt::white;
    QColor m_endColor; // invalid: plain
};

} // namespace brimshade::ui
