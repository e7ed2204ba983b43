#pragma once
#include "platform/Image.h"

#include <QObject>
#include <QRectF>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace brimshade::platform {
class Dispatch;
}

namespace brimshade::desktop {

class BarOrder;
class MenuHost;
class SharedState;
class KeptOrder;
struct BarEntry;
struct BarGeometry;
struct KeptItem;

// One item as the bar shows it now.
struct BarItem {
    int pid = 0;
    QString identifier, title, description; // empty where absent; our own item's identifier is its autosave name
    QString symbol; // drawn when not empty, else the image
    platform::Image image; // null: nothing to draw
    QString label; // beside the image
    QString toolTip; // plain text
    QRectF frame; // display space; the settled one
    double place = 0; // where its left edge is shown: not at its frame while it makes way for a dragged item
    bool drawn = false; // also: takes clicks
    bool isOwn = false; // this program's own status item
    bool isHighlighted = false; // its menu is open or it is pressed
    bool wantsAttention = false; // own item only: some item that is not drawn wants it
    double dragOffset = 0; // points to the right of its place, where a hand holds it
};

// The bar with status items. Main thread; display space. A change of an item, of a width or of the order is laid out at
// once and shown 0.1 s later, everywhere at the same instant: here, in the items' Accessibility frames and in the own
// item's window.
class MenuBar : public QObject {
    Q_OBJECT
public:
    MenuBar(platform::Dispatch &dispatch, SharedState &state, MenuHost &menus);
    ~MenuBar() override;

    std::vector<BarItem> items() const; // left to right
    QRectF frame() const; // of the bar on its screen
    std::optional<std::pair<double, double>> notch() const; // x of its edges
    double applicationMenusEnd() const; // x up to which the bar belongs to application menus
    bool isShowing() const { return m_isShowing; }
    double ownItemLength() const; // as it was last set, settled or not; 0 without an item

    // For the desktop's other parts.
    using EntryPointer = std::shared_ptr<BarEntry>;
    // Each of these shows in the next layout. Nothing happens if nothing changes.
    void add(const EntryPointer &entry);
    void remove(const EntryPointer &entry);
    void rename(const EntryPointer &entry, const KeptItem &who); // one that comes and goes turns out to be another one
    void widthChanged();
    void lookChanged();
    void placeOwn(const EntryPointer &entry, double pointsFromRight); // left of the listed items that fill these points
    const KeptOrder &keptOrder() const;
    void restore(KeptOrder order); // kept earlier; the items that are here take their places in it
    void setScreens(); // reads them again
    void setApplicationMenusWidth(double points); // until it is set, as wide as they may be
    void setShowing(bool showing);
    void setMovesAccepted(bool accepted) { m_areMovesAccepted = accepted; }
    // Lay out several changes together; settleNow() also shows them at once, as at the start, when there was nothing
    // before.
    void update(const std::function<void()> &changes);
    void settleNow(const std::function<void()> &changes);

    EntryPointer entryAt(QPointF point) const; // whose frame holds the point, drawn or not; or null
    std::optional<BarItem> itemOf(const EntryPointer &entry) const; // absent when it has gone, or has no place yet
    EntryPointer drawnEntryAt(QPointF point) const; // the one that takes clicks there
    bool isDrawn(const BarEntry &entry) const;
    bool containsRow(QPointF point) const; // in the bar's row, whatever its x
    // A hand holds the item over that point, with its left edge there. Until it lets go, the others are shown where
    // they would stand after a drop; after that, all of them where they are going to be.
    void hold(const EntryPointer &entry, QPointF at, double left);
    void letGo();
    bool isRearranging() const; // an item is held, or its drop has yet to settle
    // A drop at x. False when the order stays: moves are refused, or it is there already.
    bool move(const EntryPointer &entry, double x);
    // In the layout that is shown next; items that come and go do not count.
    double pointsFromRight(const BarEntry &entry) const;
    bool isCrowded() const; // items that belong right of our own one are shown left of it

Q_SIGNALS:
    void changed(); // once a layout has settled, or an item's look changed
    void settled(); // frames were applied; before changed()
    void keptOrderChanged(); // or which of its items are present

private:
    struct Private;
    struct Layout;
    BarItem shown(const BarEntry &entry) const; // the entry must have a frame
    double room() const; // points for what is drawn
    Layout layout(const BarOrder &order) const;
    bool drop(BarOrder &order, const EntryPointer &entry, double x) const;
    void makeWay();
    void showAt(const Layout &layout);
    bool hiddenWantsAttention() const;
    void relayout();
    void touch();
    void apply(const Layout &layout);

    std::unique_ptr<Private> m_d;
    bool m_isShowing = true;
    bool m_areMovesAccepted = true;
};

} // namespace brimshade::desktop
