#include "BarModel.h"
#include "WallClock.h"
#include "desktop/core/BarLayout.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

QString barItemName(const BarItem &item)
{
    for (const QString &text : {item.title, item.description, item.toolTip}) {
        if (!text.isEmpty())
            return text;
    }
    return item.identifier;
}

namespace {

constexpr double kTextMargin = 6; // left and right of an item's text

// The program draws its own image at the right size; other images come in any size.
QSizeF imageSize(const BarItem &item)
{
    return item.isOwn ? item.image.size() : QSizeF(kItemPicture, kItemPicture);
}

double imageLeft(const BarItem &item)
{
    return item.label.isEmpty() ? (item.frame.width() - imageSize(item).width()) / 2 : kItemPadding;
}

QString keyOf(const BarItem &item)
{
    return QString::number(item.pid) + u'/' + item.identifier;
}

QList<int> changes(const BarItem &before, const BarItem &after)
{
    QList<int> roles;
    if (before.frame != after.frame)
        roles << BarModel::FrameRole << BarModel::TextRole;
    if (before.place != after.place)
        roles << BarModel::PlaceRole;
    if (imageLeft(before) != imageLeft(after))
        roles << BarModel::ImageLeftRole << BarModel::LabelLeftRole;
    if (before.label != after.label)
        roles << BarModel::LabelRole;
    if (barItemName(before) != barItemName(after))
        roles << BarModel::NameRole;
    if (before.description != after.description)
        roles << BarModel::DescriptionRole;
    if (before.symbol != after.symbol)
        roles << BarModel::SymbolRole;
    if (before.image != after.image || imageSize(before) != imageSize(after))
        roles << BarModel::ImageRole << BarModel::ImageSizeRole;
    if (before.isHighlighted != after.isHighlighted)
        roles << BarModel::HighlightedRole;
    if (before.toolTip != after.toolTip)
        roles << BarModel::ToolTipRole;
    if (before.wantsAttention != after.wantsAttention)
        roles << BarModel::AttentionRole;
    if (before.dragOffset != after.dragOffset)
        roles << BarModel::DragOffsetRole;
    return roles;
}

} // namespace

BarModel::BarModel(const MenuBar &bar, const WallClock &clock) : m_bar(bar), m_clock(clock)
{
    connect(&bar, &MenuBar::changed, this, &BarModel::refresh);
    connect(&clock, &WallClock::changed, this, [this] { allChanged({TextRole}); });
    refresh();
}

void BarModel::refresh()
{
    std::vector<BarItem> items = m_bar.items();
    std::erase_if(
        items, [](const BarItem &item) { return !item.drawn && item.dragOffset == 0 && item.place == item.frame.x(); });
    setRows(m_items, items, keyOf, [](BarItem &shown, const BarItem &wanted) {
        QList<int> roles = changes(shown, wanted);
        shown = wanted;
        return roles;
    });
    Q_EMIT changed();
}

QString BarModel::text(const BarItem &item) const
{
    return item.identifier.endsWith(".clock"_L1) ? m_clock.text(item.frame.width() - 2 * kTextMargin) : QString();
}

QVariant BarModel::value(int row, int role) const
{
    const BarItem &item = m_items[std::size_t(row)];
    switch (role) {
    case FrameRole:
        return item.frame;
    case PlaceRole:
        return item.place;
    case NameRole:
        return barItemName(item);
    case DescriptionRole:
        return item.description;
    case TextRole:
        return text(item);
    case LabelRole:
        return item.label;
    case SymbolRole:
        return item.symbol;
    case ImageRole:
        return QVariant::fromValue(item.image);
    case ImageSizeRole:
        return imageSize(item);
    case ImageLeftRole:
        return imageLeft(item);
    case LabelLeftRole:
        return imageLeft(item) + kItemPicture + kLabelGap;
    case HighlightedRole:
        return item.isHighlighted;
    case ToolTipRole:
        return item.toolTip;
    case AttentionRole:
        return item.wantsAttention;
    case DragOffsetRole:
        return item.dragOffset;
    default:
        return {};
    }
}

QHash<int, QByteArray> BarModel::roleNames() const
{
    return {{FrameRole, "frame"},
            {PlaceRole, "place"},
            {NameRole, "name"},
            {DescriptionRole, "description"},
            {TextRole, "text"},
            {LabelRole, "label"},
            {SymbolRole, "symbol"},
            {ImageRole, "image"},
            {ImageSizeRole, "imageSize"},
            {ImageLeftRole, "imageLeft"},
            {LabelLeftRole, "labelLeft"},
            {HighlightedRole, "isHighlighted"},
            {ToolTipRole, "toolTip"},
            {AttentionRole, "wantsAttention"},
            {DragOffsetRole, "dragOffset"}};
}

} // namespace brimshade::desktop
