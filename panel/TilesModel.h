#pragma once
#include "model/NotchModel.h"
#include "ui/binding/ListModel.h"

#include <QPointer>
#include <QTimer>
#include <qqml.h>

namespace brimshade::panel {

// The tiles of one section that are in view, and one grid row beyond on either side. Rows are kept by id: across
// searches and scans an item that stays keeps its delegate, which learns its new place. Tiles that a search or a scan
// takes away stay as leaving ones, last in the list and as they were, until the view has faded and dropped them. When
// paced, new ones come a few at each turn of the event loop, so that frames are drawn in between, and none come while
// the view is unseen, so that its first frame does not wait for them. The base has its full name: the QML type
// registrar looks it up by that spelling.
class TilesModel : public brimshade::ui::ListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimshade::model::NotchModel *source READ source WRITE setSource NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(Section section MEMBER m_section NOTIFY sectionChanged REQUIRED)
    Q_PROPERTY(double viewTop MEMBER m_viewTop NOTIFY viewChanged) // points, from the top of the first grid row
    Q_PROPERTY(double viewBottom MEMBER m_viewBottom NOTIFY viewChanged)
    Q_PROPERTY(bool isPaced MEMBER m_isPaced NOTIFY isPacedChanged)
    Q_PROPERTY(bool isUnseen READ isUnseen WRITE setUnseen NOTIFY isUnseenChanged)
    Q_PROPERTY(bool keepsLeaving READ keepsLeaving WRITE setKeepsLeaving NOTIFY keepsLeavingChanged)

public:
    enum Section { BehindTheNotch, InTheMenuBar };
    Q_ENUM(Section)

    enum Role {
        ExtraIDRole = Qt::UserRole,
        NameRole,
        DetailRole,
        IconRole,
        SymbolRole, // empty when there is none
        TintRole,
        IsHiddenRole,
        PositionRole, // in the whole section
        IsNewRole, // it came with a search or a scan, not by scrolling into view
        IsFirstRole, // and there were no items before
        IsLeavingRole
    };

    explicit TilesModel(QObject *parent = nullptr);

    model::NotchModel *source() const { return m_source; }
    void setSource(model::NotchModel *source);

    bool isUnseen() const { return m_isUnseen; }
    void setUnseen(bool unseen);
    bool keepsLeaving() const { return m_keepsLeaving; }
    void setKeepsLeaving(bool keeps);
    QHash<int, QByteArray> roleNames() const override;
    Q_INVOKABLE void drop(const QString &id); // nothing if it is not leaving

Q_SIGNALS:
    void sourceChanged();
    void sectionChanged();
    void viewChanged();
    void isPacedChanged();
    void isUnseenChanged();
    void keepsLeavingChanged();

protected:
    int count() const override { return int(m_tiles.size()); }
    QVariant value(int row, int role) const override;

private:
    struct Tile {
        model::MenuExtra extra;
        int position = 0;
        bool isNew = false;
        bool isFirst = false;
        bool isLeaving = false;
    };

    void matchesChanged();
    void update();
    std::vector<Tile> wanted() const;
    void keepLeaving(std::vector<Tile> &wanted) const;
    void holdBack(std::vector<Tile> &wanted);
    void endRenewal();
    static QString idOf(const Tile &tile) { return tile.extra.id; }
    static QList<int> refresh(Tile &shown, const Tile &wanted);

    QPointer<model::NotchModel> m_source;
    Section m_section = BehindTheNotch;
    double m_viewTop = 0;
    double m_viewBottom = 0;
    bool m_isPaced = false;
    bool m_isUnseen = false;
    bool m_isHolding = false; // back some tiles
    bool m_keepsLeaving = false;
    bool m_hasItems = false;
    // From a change of matches until that turn of the event loop, in which the view follows, has ended and all have
    // come.
    bool m_isRenewing = false;
    bool m_isFirst = false; // the same, and there were no items before
    std::vector<Tile> m_tiles;
    QTimer m_next; // runs while some are held back from a view that is seen
};

} // namespace brimshade::panel
