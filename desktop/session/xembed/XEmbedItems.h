#pragma once
#include "DockedItem.h"
#include "desktop/core/ItemGesture.h"
#include "desktop/tray/HostedApplication.h"

#include <QThread>
#include <functional>
#include <map>

namespace brimshade::desktop {
class Desktop;
namespace tray {
class TrayPrograms;
}
} // namespace brimshade::desktop

namespace brimshade::desktop::session {

class TrayManager;

// The icons that programs dock into the tray of an X server, as tray items of those programs. While another program
// owns the tray, it shows none. What a person does to an item is done to the docked window, so the program opens its
// own menu. Main thread, which never waits for the server; the desktop and the programs outlive it.
class XEmbedItems : public QObject {
    Q_OBJECT
public:
    using ToScreen = std::function<QPoint(QPointF display)>; // pixels of the root window

    XEmbedItems(Desktop &desktop, tray::TrayPrograms &programs, ToScreen toScreen, double pixelsPerPoint);
    ~XEmbedItems() override; // gives the programs their windows back

Q_SIGNALS:
    void message(const QString &text);

private:
    struct Shown {
        DockedItem item;
        platform::Image picture;
        QPoint scrolled; // not yet passed on; 120 is a notch
    };

    void show(const DockedItem &item);
    void remove(std::uint32_t window);
    void click(std::uint32_t window, ItemGesture gesture, const QRectF &frame);
    void scroll(std::uint32_t window, QPoint by);
    void send(const DockedClick &click);
    tray::HostedItem hosted(const Shown &shown);

    tray::TrayPrograms &m_programs;
    const ToScreen m_toScreen;
    std::map<std::uint32_t, Shown> m_shown; // by window
    QThread m_thread;
    TrayManager *const m_manager; // lives and ends on the thread
};

} // namespace brimshade::desktop::session
