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
    QString identifier, title, description; // empty where absent; the own item's identifier is its autosave name
    QString symbol; // drawn when not empty, else the image
    platform::Image image; // null: nothing to draw
    QString label; // beside the image
    QString toolTip; // plain text
    QRectF frame; // display space; the settled one
    double place = 0; // its left edge where it shows itself: elsewhere while it makes way for one that a hand has
    bool drawn = false; // also: takes clicks
    bool isOwn = false; // this program's own status item
    bool isHighlighted = false; // its menu is open or it is pressed
    bool wantsAttention = false; // the own item: one that is not drawn does
    double dragOffset = 0; // points to the right of its place, where a hand holds it
};

// The bar with status items. Main thread; display space. A change of an item, of a width or of the order is laid out
// at once and shows 0.1 s later, everywhere at the same instant: here, in the items' Accessibility frames and in the
// own item's window.
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
    // Each takes part in the next layout. Nothing happens when nothing differs.
    void add(const EntryPointer &entry);
    void remove(const EntryPointer &entry);
    void rename(const EntryPointer &entry, const KeptItem &who); // one that comes and goes turns out to be another one
    void widthChanged();
    void lookChanged();
    void placeOwn(const EntryPointer &entry, double pointsFromRight); // left of the listed items that fill them
    const KeptOrder &keptOrder() const;
    void restore(KeptOrder order); // one that was kept earlier; the items that are here take their places in it
    void setScreens(); // read them anew
    void setApplicationMenusWidth(double points); // the most it may be, until it is set
    void setShowing(bool showing);
    void setMovesAccepted(bool accepted) { m_areMovesAccepted = accepted; }
    // Several changes laid out together, here or all at once: at start, when nothing was there before.
    void update(const std::function<void()> &changes);
    void settleNow(const std::function<void()> &changes);

    EntryPointer entryAt(QPointF point) const; // whose frame holds the point, drawn or not; null for none
    std::optional<BarItem> itemOf(const EntryPointer &entry) const; // absent when it has gone, or has no place yet
    EntryPointer drawnEntryAt(QPointF point) const; // the one that takes clicks there
    bool isDrawn(const BarEntry &entry) const;
    bool containsRow(QPointF point) const; // in the bar's row, whatever its x
    // A hand has the item over that point, its left edge there. Until it lets go the others show themselves where they
    // would stand after a drop; what the hand let go of and all others then show themselves where they are going to be.
    void hold(const EntryPointer &entry, QPointF at, double left);
    void letGo();
    bool isRearranging() const; // held, or about to settle after that
    // A drop at x. False when the order stays: moves are refused, or it is there already.
    bool move(const EntryPointer &entry, double x);
    // Of the layout that shows next; items that come and go do not count.
    double pointsFromRight(const BarEntry &entry) const;
    bool isCrowded() const; // items that belong right of the own one stand left of it, where it shows

Q_SIGNALS:
    void changed(); // once a layout has settled, or an item's look changed
    void settled(); // frames were applied; before changed()
    void keptOrderChanged(); // or who of it is present

private:
    struct Private;
    struct Layout;
    BarItem shown(const BarEntry &entry) const; // one that has a frame
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
