#pragma once
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

namespace brimshade::desktop::tray {

// Which picture files some folders have, by name. Reads the folders when it is created, and no more entries than a
// limit, however large they are. One thread at a time.
class PictureIndex {
public:
    // The pictures in a folder and below it, those nearest to the top first. Of a name's pictures a drawn one wins,
    // then the largest file.
    static PictureIndex below(const QString &folder, double now);
    // The pictures in these folders. A name's first folder wins.
    static PictureIndex inside(const QStringList &folders, double now);

    double age(double now) const { return now - m_readAt; } // seconds
    QString find(const QString &name) const { return m_files.value(name); } // a path; empty when there is none
    QString findNew(const QString &name) const; // right in the folder, where that has changed since

private:
    explicit PictureIndex(double now) : m_readAt(now) { }
    void note(const QString &path, bool isFirstBest);

    double m_readAt;
    QHash<QString, QString> m_files;
    QString m_folder; // the one that it lies below
    QDateTime m_modified, m_looked; // of that folder; when
};

} // namespace brimshade::desktop::tray
