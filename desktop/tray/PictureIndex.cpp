#include "PictureIndex.h"

#include "PictureFiles.h"

#include <QFile>
#include <QFileInfo>
#include <deque>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

namespace fs = std::filesystem;

constexpr int kMostBelow = 4096; // entries
constexpr int kMostInside = 200'000; // a rich icon theme has some ten thousand

const QStringList kEndings{u".svg"_s, u".png"_s, u".svgz"_s, u".xpm"_s}; // the best first

fs::path pathOf(const QString &folder)
{
    return QFile::encodeName(folder).toStdString();
}

// Calls visit with each entry of the folder until the budget is used up.
template <typename Visit> void visitEntries(const fs::path &folder, int &budget, const Visit &visit)
{
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator() && budget > 0; entry.increment(error)) {
        --budget;
        visit(*entry);
    }
}

bool isLarger(const QString &path, const QString &than)
{
    const bool isVector = isVectorPicture(path);
    return isVector != isVectorPicture(than) ? isVector : QFileInfo(path).size() > QFileInfo(than).size();
}

} // namespace

// Links to folders are not followed, so this ends.
PictureIndex PictureIndex::below(const QString &folder, double now)
{
    PictureIndex index(now);
    index.m_folder = folder;
    index.m_modified = QFileInfo(folder).lastModified();
    index.m_looked = QDateTime::currentDateTime();
    int budget = kMostBelow;
    for (std::deque<fs::path> folders{pathOf(folder)}; !folders.empty(); folders.pop_front()) {
        visitEntries(folders.front(), budget, [&](const fs::directory_entry &entry) {
            std::error_code ignored;
            if (entry.symlink_status(ignored).type() == fs::file_type::directory)
                folders.push_back(entry.path());
            else
                index.note(QFile::decodeName(entry.path().c_str()), false);
        });
    }
    return index;
}

PictureIndex PictureIndex::inside(const QStringList &folders, double now)
{
    PictureIndex index(now);
    int budget = kMostInside;
    for (const auto &folder : folders) {
        visitEntries(pathOf(folder), budget, [&](const fs::directory_entry &entry) {
            index.note(QFile::decodeName(entry.path().c_str()), true);
        });
    }
    return index;
}

void PictureIndex::note(const QString &path, bool isFirstBest)
{
    for (const auto &ending : kEndings) {
        if (!path.endsWith(ending))
            continue;
        auto &known = m_files[path.section(u'/', -1).chopped(ending.size())];
        if (known.isEmpty() || (!isFirstBest && isLarger(path, known)))
            known = path;
    }
}

QString PictureIndex::findNew(const QString &name) const
{
    const auto modified = QFileInfo(m_folder).lastModified();
    if (modified == m_modified && isSettled(modified, m_looked))
        return {};
    for (const auto &ending : kEndings) {
        if (auto path = m_folder + u'/' + name + ending; QFile::exists(path))
            return path;
    }
    return {};
}

} // namespace brimshade::desktop::tray
