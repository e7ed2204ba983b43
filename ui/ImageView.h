#pragma once
#include "DrawnItem.h"
#include "platform/Image.h"

#include <QColor>
#include <QVariant>

namespace brimshade::ui {

// A platform image stretched to the item, scaled with high quality once; with `glowRadius`, its blurred silhouette in
// glowColor instead, which reaches beyond the item by three radii.
// The base has its full name: the QML type registrar looks it up by that spelling.
class ImageView : public brimshade::ui::DrawnItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(ImageView)
    // A platform::Image; anything else shows nothing.
    Q_PROPERTY(QVariant image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(bool isNull READ isNull NOTIFY imageChanged)
    // For a template image: what its mask is filled with.
    Q_PROPERTY(QColor templateColor MEMBER m_templateColor NOTIFY lookChanged)
    Q_PROPERTY(double glowRadius MEMBER m_glowRadius NOTIFY lookChanged)
    Q_PROPERTY(QColor glowColor MEMBER m_glowColor NOTIFY lookChanged)

public:
    explicit ImageView(QQuickItem *parent = nullptr);

    QVariant image() const { return QVariant::fromValue(m_image); }
    void setImage(const QVariant &image);
    bool isNull() const { return m_image.isNull(); }

Q_SIGNALS:
    void imageChanged();
    void lookChanged();

protected:
    QByteArray pictureKey() const override;
    std::shared_ptr<const void> pictureOwner() const override { return m_image.identity(); }
    QRectF pictureRect() const override;
    void draw(QPainter &painter, double scale) const override;

private:
    QImage scaledImage(double scale) const;

    platform::Image m_image;
    QColor m_templateColor = Qt::white;
    double m_glowRadius = 0;
    QColor m_glowColor;
};

} // namespace brimshade::ui
