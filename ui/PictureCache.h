#pragma once
#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QObject>
#include <any>

class QQuickWindow;

namespace brimshade::ui {

// The pictures drawn for one window, by what they show: a grid of equal tiles draws each picture once. Owned by the
// window. Used while the scene graph synchronises only, so it needs no lock.
class PictureCache : public QObject {
public:
    static PictureCache *of(QQuickWindow *window); // main thread

    const QImage *find(const QByteArray &key) const;
    // `owner` lives as long as the entry: for keys that hold its address.
    void insert(const QByteArray &key, const QImage &picture, const std::any &owner);

private:
    explicit PictureCache(QQuickWindow *window);

    struct Entry {
        QImage picture;
        std::any owner;
    };

    QCache<QByteArray, Entry> m_pictures;
};

} // namespace brimshade::ui
