#pragma once
#include "MenuGeometry.h"
#include "ui/binding/ListModel.h"

#include <qqml.h>

namespace brimshade::desktop {

// One open list of a menu tree: its rows, where it is, which row is chosen and how far it is scrolled. Views see only
// the rows inside its frame. Display space; rows count from 0, and -1 means none. The base class is spelled out in full
// because the QML type registrar looks it up by its spelling.
class MenuLevel : public brimshade::ui::ListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to an open menu")
    Q_PROPERTY(QRectF frame READ frame NOTIFY geometryChanged)
    Q_PROPERTY(double textColumn READ textColumn NOTIFY geometryChanged)
    Q_PROPERTY(double iconColumn READ iconColumn NOTIFY geometryChanged)
    Q_PROPERTY(double scroll READ scroll NOTIFY scrollChanged)
    Q_PROPERTY(bool canScrollUp READ canScrollUp NOTIFY scrollChanged)
    Q_PROPERTY(bool canScrollDown READ canScrollDown NOTIFY scrollChanged)
    Q_PROPERTY(int current READ current NOTIFY currentChanged)

public:
    enum Role {
        RowRole = Qt::UserRole,
        OffsetRole, // points from the top of the list, unscrolled
        TitleRole,
        SeparatorRole,
        EnabledRole,
        ToggleRole,
        OnRole,
        IconRole,
        ShortcutRole,
        SubmenuRole
    };

    // owner: the id of the entry that opens this list; 0 for the menu itself.
    explicit MenuLevel(int owner) : m_owner(owner) { }

    int owner() const { return m_owner; }
    void setEntries(const std::vector<MenuEntry> &entries); // keeps the chosen entry by its id
    void setFrame(const QRectF &frame);
    void setCurrent(int row); // and scrolls it into view
    void scrollBy(double points);

    const std::vector<MenuEntry> &entries() const { return m_entries; }
    QRectF frame() const { return m_frame; }
    double textColumn() const { return m_columns.text; }
    double iconColumn() const { return m_columns.icon; }
    double scroll() const { return m_scroll; }
    bool canScrollUp() const { return m_scroll > 0; }
    bool canScrollDown() const { return m_scroll < largestScroll(); }
    int current() const { return m_current; }
    const MenuEntry *currentEntry() const;

    int rowAt(QPointF point) const; // -1 outside of the rows
    QRectF rowFrame(int row) const;
    int neighbour(int row, int step) const; // the next row that can be chosen; the same row if there is none
    int rowStartingWith(const QString &text) const; // searching from after the chosen one, wrapping at the end
    static bool isChoosable(const MenuEntry &entry) { return entry.isEnabled && !entry.isSeparator; }

    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void geometryChanged();
    void scrollChanged();
    void currentChanged();

protected:
    int count() const override { return int(m_shown.size()); }
    QVariant value(int row, int role) const override;

private:
    struct Shown {
        int row = 0;
        double top = 0;
        MenuEntry entry;
    };

    double largestScroll() const;
    void updateShown();
    void setScroll(double scroll);

    const int m_owner;
    std::vector<MenuEntry> m_entries;
    std::vector<double> m_tops; // of the rows, then the end of the last one; unscrolled
    MenuColumns m_columns;
    QRectF m_frame;
    double m_scroll = 0;
    int m_current = -1;
    std::vector<Shown> m_shown;
};

} // namespace brimshade::desktop
