#pragma once
#include <QHash>
#include <QString>
#include <QStringList>

namespace brimshade::desktop::tray {

// The endings of picture files, the best first.
inline const QStringList kPictureEndings{QStringLiteral(".svg"), QStringLiteral(".png"), QStringLiteral(".svgz"),
                                         QStringLiteral(".xpm")};

// The pictures in a folder and below it, by name. Of a name's pictures a drawn one wins, then the largest file.
// However large the folder is, only so many entries are visited, those nearest to the top first. One thread at a time.
class FolderIndex {
public:
    FolderIndex(const QString &folder, double now); // reads it

    double age(double now) const { return now - m_readAt; } // seconds
    QString find(const QString &name) const { return m_files.value(name); } // a path; empty when there is none

private:
    void add(const QString &path);

    double m_readAt;
    QHash<QString, QString> m_files;
};

} // namespace brimshade::desktop::tray
