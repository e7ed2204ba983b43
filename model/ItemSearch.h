#pragma once
#include "menubar/MenuExtra.h"

#include <vector>

namespace brimshade::model {

// Finds items by what a person types. The items' texts are folded once, so that a keystroke only compares.
class ItemSearch {
public:
    ItemSearch() = default;
    explicit ItemSearch(const menubar::ExtraList &extras);

    // Ascending indices of the items whose name or detail contains the trimmed query, ignoring case and up to canonical
    // equivalence; of all items when the trimmed query is empty.
    std::vector<int> matches(const QString &query) const;

private:
    QString m_text; // every item's texts, one after another, so that one search covers all
    std::vector<qsizetype> m_ends; // where each item's end in it
};

} // namespace brimshade::model
