#include "PendingPicture.h"

#include <QPromise>
#include <QThreadPool>

namespace brimshade::ui {

namespace {

QFuture<QImage> inBackground(const std::function<QImage()> &make)
{
    auto promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    QThreadPool::globalInstance()->start([promise, make] {
        promise->addResult(make());
        promise->finish();
    });
    return promise->future();
}

} // namespace

QImage PendingPicture::picture(PictureCache &cache, const QByteArray &key, const std::function<QImage()> &make,
                               const std::shared_ptr<const void> &owner)
{
    if (const QImage *known = cache.find(key))
        return *known;
    if (key != m_key) {
        m_key = key;
        connect(&m_pending, &QFutureWatcherBase::finished, this, &PendingPicture::made, Qt::UniqueConnection);
        m_pending.setFuture(inBackground(make));
    }
    if (!m_pending.isFinished() && !cache.isAwaited())
        return {};
    QImage made = m_pending.result();
    cache.insert(key, made, owner);
    return made;
}

} // namespace brimshade::ui
