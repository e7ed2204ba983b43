#pragma once
#include <QString>
#include <QStringView>

// Comparing and trimming of texts as the Mac's string type does it. Any thread.
namespace brimshade::menubar {

// Without leading and trailing Unicode space separators and tabs; line breaks stay.
QStringView trimmedBlanks(QStringView text);

// The form in which canonically equivalent texts are equal; the text itself, without a copy, when it is ASCII.
QString canonicalText(const QString &text);

// Equal up to Unicode canonical equivalence.
bool isSameText(const QString &a, const QString &b);

// Ascending by Unicode scalar value of the canonical form, without regard to any locale.
bool isOrderedBefore(const QString &a, const QString &b);

} // namespace brimshade::menubar
