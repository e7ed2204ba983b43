#pragma once
#include <QByteArray>
#include <QString>
#include <expected>

namespace brimshade::desktop {

// Replaces the file as a whole: whoever reads it, and whatever ends this process, finds the old content or the new
// one. Makes missing folders; follows a symbolic link. The error is the system's own text. Any thread.
std::expected<void, QString> writeAtomically(const QString &path, const QByteArray &content);

// Removes what processes left behind that died while they wrote this file.
void removeLeftovers(const QString &path);

} // namespace brimshade::desktop
