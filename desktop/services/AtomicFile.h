#pragma once
#include <QByteArray>
#include <QString>
#include <expected>

namespace brimshade::desktop {

// Replaces the file as a whole: a reader finds either the old content or the new, even if this process is killed.
// Creates missing folders; follows a symbolic link. The error is the system's own text. Any thread.
std::expected<void, QString> writeAtomically(const QString &path, const QByteArray &content);

// Removes what processes left behind when they died while writing this file.
void removeLeftovers(const QString &path);

} // namespace brimshade::desktop
