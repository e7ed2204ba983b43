#pragma once
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

namespace brimshade::desktop::tray {

// The picture files in some folders, by name. Reads the folders when it is created, up to a fixed number of entries,
// however large they are. One thread at a time.
class PictureIndex {
public:
    // The pictures in a folder and below it, those nearest to the top first. Of several pictures with the same name a
    // vector picture wins, then the largest file.
    static PictureIndex below(const QString &folder, double now);
    // The pictures in these folders. A name's first folder wins.
    static PictureIndex inside(const QStringList &folders, double now);

    double age(double now) const { return now - m_readAt; } // seconds
    QString find(const QString &name) const { return m_files.value(name); } // a path; empty when there is none
    QString findNew(const QString &name) const; // directly in the folder, if that has changed since

private:
    explicit PictureIndex(double now) : m_readAt(now) { }
    void note(const QString &path, bool isFirstBest);

    double m_readAt;
    QHash<QString, QString> m_files;
    QString m_folder; // the top one, if made by below()
    QDateTime m_modified, m_looked; // when that folder was modified; when we looked
};

} // namespace brimshade::desktop::tray
