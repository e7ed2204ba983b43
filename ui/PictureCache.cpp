#include "PictureCache.h"

#include <QQuickWindow>

namespace brimshade::ui {

namespace {
constexpr int kCapacity = 24 * 1024; // KiB
}

PictureCache::PictureCache(QQuickWindow *window) : QObject(window), m_pictures(kCapacity) { }

PictureCache *PictureCache::of(QQuickWindow *window)
{
    for (QObject *child : window->children()) {
        if (auto *cache = dynamic_cast<PictureCache *>(child))
            return cache;
    }
    return new PictureCache(window);
}

const QImage *PictureCache::find(const QByteArray &key) const
{
    const Entry *entry = m_pictures.object(key);
    return entry ? &entry->picture : nullptr;
}

void PictureCache::insert(const QByteArray &key, const QImage &picture, const std::any &owner)
{
    m_pictures.insert(key, new Entry{picture, owner}, 1 + int(picture.sizeInBytes() / 1024));
}

} // namespace brimshade::ui
