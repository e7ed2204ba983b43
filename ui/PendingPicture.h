#pragma once
#include "PictureCache.h"

#include <QFutureWatcher>
#include <functional>

namespace brimshade::ui {

// A picture for an item of the scene that takes too long for the main thread: made once on another one, kept in the
// window's cache.
class PendingPicture : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // While the scene graph synchronises. Null until it is ready, which made() tells; where pictures are awaited it is
    // ready at once. `make` runs on another thread; key and owner: see PictureCache.
    QImage picture(PictureCache &cache, const QByteArray &key, const std::function<QImage()> &make,
                   const std::shared_ptr<const void> &owner = {});

Q_SIGNALS:
    void made();

private:
    QByteArray m_key; // of what is being made
    QFutureWatcher<QImage> m_pending;
};

} // namespace brimshade::ui
