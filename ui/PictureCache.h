#pragma once
#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QObject>
#include <memory>

class QQuickWindow;

namespace brimshade::ui {

// The pictures drawn for one window, by what they show: a grid of equal tiles draws each picture once. Owned by the
// window. Used while the scene graph synchronises only, so it needs no lock.
class PictureCache : public QObject {
public:
    static PictureCache *of(QQuickWindow *window); // main thread

    // Whether to wait for pictures made in the background: where a frame must be complete rather than on time, as for a
    // script.
    bool isAwaited() const { return m_isAwaited; }
    void setAwaited(bool isAwaited) { m_isAwaited = isAwaited; }

    const QImage *find(const QByteArray &key) const;
    // `owner`: the object whose address the key holds, or null. The picture is found only while the owner lives; the
    // cache does not keep it alive, as it may be large and the picture small.
    void insert(const QByteArray &key, const QImage &picture, const std::shared_ptr<const void> &owner = {});

private:
    explicit PictureCache(QQuickWindow *window);

    struct Entry {
        QImage picture;
        std::weak_ptr<const void> owner;
        bool isOwned;

        bool isOrphaned() const { return isOwned && owner.expired(); }
    };
    void dropOrphans();

    QCache<QByteArray, Entry> m_pictures;
    bool m_isAwaited = false;
    int m_insertions = 0; // since it was last searched for pictures that nobody can show any more
};

} // namespace brimshade::ui
