#pragma once
#include "menubar/MenuExtra.h"

#include <QString>
#include <expected>

namespace brimshade::app {

// The one item that a person means by a name: its own or its program's, whole before a part of it, in any case of the
// letters. It points into extras. The error says what is wrong with the name.
std::expected<const menubar::MenuExtra *, QString> itemNamed(const QString &name, const menubar::ExtraList &extras);

// What to call an item so that it is the one that is meant: by its program's name, which changes least, or by its own.
QString nameToAskWith(const menubar::MenuExtra &item, const menubar::ExtraList &extras);

} // namespace brimshade::app
