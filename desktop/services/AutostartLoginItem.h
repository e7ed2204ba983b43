#pragma once
#include "platform/LoginItems.h"

#include <QStringList>

namespace brimshade::desktop {

// The login item as an XDG autostart entry: the program becomes the menu bar of each session. Main thread; reads and
// writes small files.
class AutostartLoginItem : public platform::LoginItems {
public:
    struct Places {
        QString userFolder; // where entries are written
        QStringList systemFolders; // most important first
        QString program; // absolute path of what people start
        bool hasUnit = false; // whether the user's systemd has a unit for that program
    };
    AutostartLoginItem(); // of this session and this process
    explicit AutostartLoginItem(Places places);

    platform::LoginItemStatus status() const override;
    std::expected<void, QString> registerMainApp() override;
    std::expected<void, QString> unregisterMainApp() override;

private:
    QString userFile() const;
    QString systemFile() const; // empty when there is none

    Places m_places;
};

} // namespace brimshade::desktop
