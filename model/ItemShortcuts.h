#pragma once
#include "KeyCombination.h"

#include <QString>
#include <optional>
#include <vector>

namespace brimshade::platform {
class UserDefaults;
}

namespace brimshade::model {

// The keys that open the menu of one item from anywhere.
struct ItemShortcut {
    QString item; // its identity, as ItemServices says
    QString name; // as it was called when they were set
    KeyCombination keys;
};

// The shortcuts of all items that have one, present or not: read once, written through at each change. No item has two,
// and no two items share one. Main thread; the defaults outlive it.
class ItemShortcuts {
public:
    static constexpr std::size_t kMost = 200;
    static constexpr qsizetype kLongestText = 300; // characters of an identity and of a name

    explicit ItemShortcuts(platform::UserDefaults &defaults);

    const std::vector<ItemShortcut> &all() const { return m_all; }
    const ItemShortcut *of(const QString &item) const; // null for none
    const ItemShortcut *with(const KeyCombination &keys) const;

    void set(const ItemShortcut &shortcut); // no other item may have its keys
    void remove(const QString &item);

private:
    void read();
    void write() const;

    platform::UserDefaults &m_defaults;
    std::vector<ItemShortcut> m_all;
};

} // namespace brimshade::model
