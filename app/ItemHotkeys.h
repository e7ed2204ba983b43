#pragma once
#include "model/ItemShortcuts.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <expected>
#include <memory>

namespace brimshade::controls {
class Hotkeys;
}

namespace brimshade::model {
class NotchModel;
}

namespace brimshade::menubar {
struct MenuExtra;
}

namespace brimshade::app {

class PanelPresenter;
class ScanScheduler;

// The shortcuts of items: each opens its item's menu from anywhere. Main thread.
class ItemHotkeys : public std::enable_shared_from_this<ItemHotkeys> {
    Q_DECLARE_TR_FUNCTIONS(ItemHotkeys)

public:
    struct Parts {
        std::shared_ptr<model::NotchModel> model;
        std::shared_ptr<controls::Hotkeys> hotkeys;
        std::shared_ptr<ScanScheduler> scans;
        std::shared_ptr<PanelPresenter> panel;
    };
    ItemHotkeys(const platform::Platform &platform, Parts parts);

    void registerKept(); // those not yet registered; a refused one stays kept and is logged
    // The error tells the person who has these keys.
    std::expected<void, QString> assign(const model::ItemShortcut &shortcut);
    void remove(const QString &item);
    void removeOf(const menubar::MenuExtra &extra);
    // A sentence that says who has the keys that this item or, when item is empty, the panel was refused.
    QString whoHas(const model::KeyCombination &keys, const QString &item) const;

private:
    bool registerOne(const model::ItemShortcut &shortcut);
    void open(const QString &item) const;

    const platform::Platform m_platform;
    const Parts m_parts;
};

} // namespace brimshade::app
