#pragma once
#include <QImage>
#include <QMetaType>
#include <QPainter>
#include <QSizeF>
#include <memory>
#include <utility>

namespace brimshade::platform {

// Where an image's pixels come from. Immutable; draw and bitmap may be called on any thread.
class ImageSource {
public:
    virtual ~ImageSource() = default;
    virtual void draw(QPainter &painter, const QRectF &rect) const = 0; // rect: in points
    virtual QImage bitmap() const = 0; // the image's best bitmap; null when it cannot be rendered
};

// A shared, immutable picture with a size in points. Copies share the source; `isSameObject` tells
// whether two images came from the same one. A template image is a mask that the menu bar tints.
class Image {
public:
    Image() = default;
    Image(std::shared_ptr<const ImageSource> source, QSizeF size, bool isTemplate = false)
        : m_source(std::move(source)), m_size(size), m_isTemplate(isTemplate)
    {
    }

    bool isNull() const { return !m_source; }
    QSizeF size() const { return m_size; }
    bool isTemplate() const { return m_isTemplate; }
    bool isSameObject(const Image &other) const { return m_source == other.m_source; }
    bool operator==(const Image &other) const = default;
    Image resized(QSizeF size) const { return {m_source, size, m_isTemplate}; }

    void draw(QPainter &painter, const QRectF &rect) const
    {
        if (m_source)
            m_source->draw(painter, rect);
    }
    QImage bitmap() const { return m_source ? m_source->bitmap() : QImage(); }
    std::shared_ptr<const void> identity() const { return m_source; } // its address stays unique while this lives

private:
    std::shared_ptr<const ImageSource> m_source;
    QSizeF m_size;
    bool m_isTemplate = false;
};

} // namespace brimshade::platform

Q_DECLARE_METATYPE(brimshade::platform::Image)
