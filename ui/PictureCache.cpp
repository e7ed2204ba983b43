#include "PictureCache.h"

#include <QQuickWindow>

namespace brimshade::ui {

namespace {
constexpr int kCapacity = 24 * 1024; // KiB
constexpr int kMostInsertions = 32; // a fraction of the pictures of an open panel
} // namespace

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
    return entry && !entry->isOrphaned() ? &entry->picture : nullptr;
}

void PictureCache::insert(const QByteArray &key, const QImage &picture, const std::shared_ptr<const void> &owner)
{
    if (++m_insertions > kMostInsertions)
        dropOrphans();
    m_pictures.insert(key, new Entry{picture, owner, owner != nullptr}, 1 + int(picture.sizeInBytes() / 1024));
}

void PictureCache::dropOrphans()
{
    const QList<QByteArray> keys = m_pictures.keys();
    for (const QByteArray &key : keys)
        if (m_pictures.object(key)->isOrphaned())
            m_pictures.remove(key);
    m_insertions = 0;
}

} // namespace brimshade::ui
