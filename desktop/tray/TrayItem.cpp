#include "TrayItem.h"

#include "BusName.h"
#include "Pixmap.h"
#include "WireValue.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr int kLongestPath = 4096;
constexpr int kLongestLabel = 48;

// Tool tips may contain markup; people see plain text.
QString withoutMarkup(QString text)
{
    static const QRegularExpression tag(u"<[^<>]{0,200}>"_s);
    text.replace(tag, u" "_s);
    for (const auto &[entity, character] :
         {std::pair(u"&lt;", u"<"), {u"&gt;", u">"}, {u"&quot;", u"\""}, {u"&amp;", u"&"}})
        text.replace(QString::fromUtf16(entity), QString::fromUtf16(character));
    return text.simplified();
}

TrayItem::Status parseStatus(const QString &text)
{
    if (text == u"Passive")
        return TrayItem::Status::passive;
    return text == u"NeedsAttention" ? TrayItem::Status::needsAttention : TrayItem::Status::active;
}

class Properties {
public:
    explicit Properties(const QVariantMap &values) : m_values(values) { }

    QVariant value(const char *name) const { return m_values.value(QString::fromLatin1(name)); }
    QString line(const char *name, int longest = 256) const { return lineOf(value(name), longest); }

    ItemIcon icon(const char *name, const char *pixmap)
    {
        QStringList faults;
        ItemIcon icon{line(name, kLongestPath), largestPixmap(value(pixmap), faults)};
        if (!faults.isEmpty())
            m_complaints.append(u"%1: %2"_s.arg(QString::fromLatin1(pixmap), faults.first()));
        return icon;
    }

    const QStringList &complaints() const { return m_complaints; }

private:
    const QVariantMap &m_values;
    QStringList m_complaints;
};

void parseToolTip(const QVariant &value, TrayItem &item)
{
    const auto fields = listOf(value); // icon name, pixmaps, title, text
    if (fields.size() != 4)
        return;
    item.toolTipTitle = withoutMarkup(lineOf(fields[2]));
    item.toolTipText = withoutMarkup(lineOf(fields[3], 1024));
}

void parseMenu(const Properties &properties, TrayItem &item)
{
    const auto path = properties.line("Menu", kLongestPath);
    item.showsOwnMenu = path == u"/NO_DBUSMENU";
    if (isObjectPath(path) && path != u"/" && !item.showsOwnMenu)
        item.menuPath = path;
    item.itemIsMenu = boolOf(properties.value("ItemIsMenu"));
}

} // namespace

QString TrayItem::nameForPeople() const
{
    if (!title.isEmpty())
        return title;
    return toolTipTitle.isEmpty() ? id : toolTipTitle;
}

const ItemIcon &TrayItem::shownIcon() const
{
    return status == Status::needsAttention && !attentionIcon.isEmpty() ? attentionIcon : icon;
}

ParsedItem parseItem(const QVariantMap &values)
{
    Properties properties(values);
    TrayItem item;
    item.id = properties.line("Id");
    item.title = properties.line("Title");
    item.label = properties.line("XAyatanaLabel", kLongestLabel);
    item.labelGuide = properties.line("XAyatanaLabelGuide", kLongestLabel);
    item.status = parseStatus(properties.line("Status"));
    item.iconThemePath = properties.line("IconThemePath", kLongestPath);
    item.icon = properties.icon("IconName", "IconPixmap");
    item.attentionIcon = properties.icon("AttentionIconName", "AttentionIconPixmap");
    item.overlayIcon = properties.icon("OverlayIconName", "OverlayIconPixmap");
    parseToolTip(properties.value("ToolTip"), item);
    parseMenu(properties, item);
    item.isIndicator = values.contains(u"XAyatanaLabel"_s);
    return {std::move(item), properties.complaints()};
}

std::vector<Press> pressOrder(const TrayItem &item, ItemGesture gesture)
{
    if (gesture == ItemGesture::secondary)
        return {Press::secondaryActivate};
    if (gesture == ItemGesture::activate)
        return {Press::activate};
    const bool isMoreThanMenu = item.itemIsMenu == false;
    const bool saysNothing = item.menuPath.isEmpty() && !item.showsOwnMenu && !item.itemIsMenu;
    std::vector<Press> order{Press::contextMenu, Press::activate};
    // Programs without a menu may answer ContextMenu with success and do nothing.
    if (gesture != ItemGesture::menu && (isMoreThanMenu || saysNothing))
        order = {Press::activate, Press::contextMenu};
    else if (isMoreThanMenu)
        order = {Press::contextMenu};
    if (!item.menuPath.isEmpty())
        order.insert(gesture == ItemGesture::click && isMoreThanMenu ? order.begin() + 1 : order.begin(), Press::menu);
    return order;
}

QPoint takeScroll(const TrayItem &item, QPoint &by)
{
    constexpr int notch = 120;
    if (!item.isIndicator)
        return std::exchange(by, {});
    const QPoint notches(by.x() / notch, by.y() / notch); // the rest waits until it makes up a notch
    by -= notches * notch;
    return -notches;
}

} // namespace brimshade::desktop::tray
