#pragma once
#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <expected>

namespace brimshade::desktop {

// Where a text stops being JSON, and why. Both count from 1, columns in characters.
struct SyntaxFault {
    qsizetype line = 1, column = 1;
    QString reason;
};

// Parses a text that is one object or list. Any thread.
std::expected<QJsonValue, SyntaxFault> parseJson(const QByteArray &text);

} // namespace brimshade::desktop
