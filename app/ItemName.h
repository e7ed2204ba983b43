#pragma once
#include "menubar/MenuExtra.h"

#include <QString>
#include <expected>

namespace brimshade::app {

// The one item that a person means by a name, its own or its program's: a whole name is tried before a part of one,
// ignoring case. The result points into extras. The error says what is wrong with the name.
std::expected<const menubar::MenuExtra *, QString> itemNamed(const QString &name, const menubar::ExtraList &extras);

// The name to ask for an item with: its program's, which changes least, where that finds this very item, else its own.
QString nameToAskWith(const menubar::MenuExtra &item, const menubar::ExtraList &extras);

} // namespace brimshade::app
