#pragma once
#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QString>

namespace brimshade::desktop::tray {

bool isVectorPicture(const QString &path);

// Whether a change after we looked is sure to show in the modification time.
bool isSettled(const QDateTime &modified, const QDateTime &looked);

// Reads pictures and keeps some of them. Opens only regular files, and none larger than the picture of an icon can be.
// One thread at a time.
class PictureFiles {
public:
    PictureFiles();

    QImage read(const QString &path); // null when there is none

private:
    struct Picture {
        QImage image;
        QDateTime modified;
        qint64 size = 0; // bytes of the file
    };
    QCache<QString, Picture> m_known; // by path; the cost is kilobytes
};

} // namespace brimshade::desktop::tray
