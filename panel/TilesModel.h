#pragma once
#include "model/NotchModel.h"
#include "ui/binding/ListModel.h"

#include <QPointer>
#include <qqml.h>

namespace brimshade::panel {

// The tiles of one section that are in view, and one grid row beyond on either side. Rows are kept by id: across
// searches and scans an item that stays keeps its delegate, which learns its new place.
// The base is spelled in full: the registrar of QML types finds it by its spelling.
class TilesModel : public brimshade::ui::ListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimshade::model::NotchModel *source READ source WRITE setSource NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(Section section MEMBER m_section NOTIFY sectionChanged REQUIRED)
    Q_PROPERTY(double viewTop MEMBER m_viewTop NOTIFY viewChanged) // points, from the top of the first grid row
    Q_PROPERTY(double viewBottom MEMBER m_viewBottom NOTIFY viewChanged)

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
        IsNewRole // it came with a search or a scan, not into view by scrolling
    };

    using ListModel::ListModel;

    model::NotchModel *source() const { return m_source; }
    void setSource(model::NotchModel *source);

    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void sourceChanged();
    void sectionChanged();
    void viewChanged();

protected:
    int count() const override { return int(m_tiles.size()); }
    QVariant value(int row, int role) const override;

private:
    struct Tile {
        model::MenuExtra extra;
        int position = 0;
        bool isNew = false;
    };

    void update(bool byScrolling);
    std::vector<Tile> wanted(bool byScrolling) const;
    static QList<int> refresh(Tile &shown, const Tile &wanted);

    QPointer<model::NotchModel> m_source;
    Section m_section = BehindTheNotch;
    double m_viewTop = 0;
    double m_viewBottom = 0;
    std::vector<Tile> m_tiles;
};

} // namespace brimshade::panel
