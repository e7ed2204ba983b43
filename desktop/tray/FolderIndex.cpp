#include "FolderIndex.h"

#include "PictureFiles.h"

#include <QFile>
#include <QFileInfo>
#include <deque>
#include <filesystem>

namespace brimshade::desktop::tray {

namespace {

constexpr int kMostEntries = 4096;

bool isBetter(const QFileInfo &candidate, const QFileInfo &than)
{
    const bool isVector = isVectorPicture(candidate.suffix());
    return isVector != isVectorPicture(than.suffix()) ? isVector : candidate.size() > than.size();
}

} // namespace

// Links to folders are not followed, so this ends.
FolderIndex::FolderIndex(const QString &folder, double now) : m_readAt(now)
{
    namespace fs = std::filesystem;
    std::deque<fs::path> folders{QFile::encodeName(folder).toStdString()};
    for (int visited = 0; !folders.empty() && visited < kMostEntries; folders.pop_front()) {
        std::error_code error, ignored;
        fs::directory_iterator entry(folders.front(), error);
        for (; !error && entry != fs::directory_iterator() && visited < kMostEntries; entry.increment(error)) {
            ++visited;
            if (entry->symlink_status(ignored).type() == fs::file_type::directory)
                folders.push_back(entry->path());
            else
                add(QFile::decodeName(entry->path().c_str()));
        }
    }
}

void FolderIndex::add(const QString &path)
{
    for (const auto &ending : kPictureEndings) {
        if (!path.endsWith(ending))
            continue;
        auto &known = m_files[path.section(u'/', -1).chopped(ending.size())];
        if (known.isEmpty() || isBetter(QFileInfo(path), QFileInfo(known)))
            known = path;
    }
}

} // namespace brimshade::desktop::tray
