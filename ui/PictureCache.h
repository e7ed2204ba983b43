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

    // Whether pictures that are made in the background are waited for: where a frame is to be complete rather than in
    // time, as for a script.
    bool isAwaited() const { return m_isAwaited; }
    void setAwaited(bool isAwaited) { m_isAwaited = isAwaited; }

    const QImage *find(const QByteArray &key) const;
    // `owner`: whose address the key holds, null where it holds none. The picture is found while the owner lives; it is
    // not kept for that, as it may be large where the picture is small.
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
