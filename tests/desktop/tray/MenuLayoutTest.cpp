#include "desktop/tray/MenuLayout.h"
#include "WireLayout.h"

#include <QBuffer>

namespace brimshade::desktop::tray {

QStringList titles(const std::vector<MenuEntry> &entries)
{
    QStringList result;
    for (const auto &entry : entries)
        result.append(entry.isSeparator ? u"-"_s : entry.title);
    return result;
}

MenuLayout parse(std::vector<MenuNode> nodes, const MenuLimits &limits = {})
{
    return parseLayout(MenuNode{0, {}, std::move(nodes)}.plain(), {}, limits);
}

MenuNode nested(int depth)
{
    return depth == 0 ? labelled(1, u"bottom"_s) : labelled(depth + 1, u"level"_s, {}, {nested(depth - 1)});
}

QByteArray png(int edge)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    filled(edge, edge, Qt::red).save(&buffer, "PNG");
    return buffer.data();
}

TEST(MenuLayoutParsing, ReadsEveryKindOfEntry)
{
    const auto layout = parse({
        labelled(1, u"_Open __raw"_s, {{u"enabled"_s, false}}),
        labelled(2, u"Check"_s, {{u"toggle-type"_s, u"checkmark"_s}, {u"toggle-state"_s, 1}}),
        labelled(3, u"Radio"_s, {{u"toggle-type"_s, u"radio"_s}, {u"toggle-state"_s, 0}}),
        labelled(4, u"State only"_s, {{u"toggle-state"_s, 1}}),
        labelled(5, u"More"_s, {}, {labelled(6, u"Inside"_s)}),
        labelled(7, u"Later"_s, {{u"children-display"_s, u"submenu"_s}}),
        labelled(8, u"Quit"_s, {{u"shortcut"_s, QVariantList{QVariant(QStringList{u"Control"_s, u"q"_s})}}}),
    });
    const auto &entries = layout.entries;
    ASSERT_EQ(titles(entries),
              (QStringList{u"Open _raw"_s, u"Check"_s, u"Radio"_s, u"State only"_s, u"More"_s, u"Later"_s, u"Quit"_s}));
    using Toggle = MenuEntry::Toggle;
    EXPECT_FALSE(entries[0].isEnabled);
    EXPECT_TRUE(entries[1].isEnabled);
    EXPECT_TRUE(entries[1].toggle == Toggle::checkmark && entries[1].isOn);
    EXPECT_TRUE(entries[2].toggle == Toggle::radio && !entries[2].isOn);
    EXPECT_TRUE(entries[3].toggle == Toggle::none && !entries[3].isOn);
    EXPECT_TRUE(entries[4].hasSubmenu);
    EXPECT_EQ(titles(entries[4].submenu), QStringList{u"Inside"_s});
    EXPECT_TRUE(entries[5].hasSubmenu && entries[5].submenu.empty());
    EXPECT_EQ(entries[6].shortcut, u"⌃Q"_s);
    EXPECT_FALSE(layout.isCut);
}

TEST(MenuLayoutParsing, LeavesOutWhatShowsNothing)
{
    const auto layout =
        parse({separator(1), labelled(2, u"A"_s), labelled(3, u"hidden"_s, {{u"visible"_s, false}}), separator(4),
               separator(5), labelled(6, u""_s), labelled(2, u"same id"_s), labelled(7, u"B"_s), separator(8)});
    EXPECT_EQ(titles(layout.entries), (QStringList{u"A"_s, u"-"_s, u"B"_s}));
}

TEST(MenuLayoutParsing, TakesWhateverComesInsteadOfALayout)
{
    const QVariant broken[] = {
        {},
        7,
        u"menu"_s,
        QVariantList{},
        QVariantList{0, QVariantMap(), 5},
        QVariantList{0, QVariantMap(), QVariantList{3, QVariantList{u"1"_s, 2, 3}, QVariantList{1, u"x"_s, 9}}}};
    for (const auto &node : broken)
        EXPECT_TRUE(parseLayout(node, {}).entries.empty());
}

TEST(MenuLayoutParsing, EndsATreeThatIsTooDeepOrTooLarge)
{
    EXPECT_FALSE(parse({nested(11)}).isCut);
    const auto deep = parse({nested(12)});
    EXPECT_TRUE(deep.isCut);
    EXPECT_EQ(depthOf(deep.entries, 2), 12);
    EXPECT_EQ(depthOf(deep.entries, 1), 0);

    std::vector<MenuNode> many;
    for (int i = 1; i <= 3000; ++i)
        many.push_back(labelled(i, u"entry"_s));
    const auto large = parse(many);
    EXPECT_TRUE(large.isCut);
    EXPECT_EQ(large.entries.size(), 2000);
    EXPECT_EQ(parse({labelled(1, QString(5000, u'x'))}).entries[0].title.size(), 256);
}

TEST(MenuLayoutParsing, ChildrenOfAnOpenMenuCountWithItAndCannotRepeatIt)
{
    const auto layout = parse({labelled(1, u"parent again"_s), labelled(9, u"new"_s)}, {12, 2000, {1, 2}});
    EXPECT_EQ(titles(layout.entries), QStringList{u"new"_s});
    EXPECT_TRUE(parse({labelled(9, u"new"_s)}, {12, 2, {1, 2}}).isCut);
}

TEST(MenuLayoutParsing, PicturesAreBoundedAndNoneIsNeeded)
{
    const auto withData = [](const QByteArray &data) {
        return parse({labelled(1, u"entry"_s, {{u"icon-data"_s, data}})}).entries[0].icon;
    };
    EXPECT_EQ(withData(png(16)).size(), QSizeF(16, 16));
    EXPECT_FALSE(withData(png(512)).isNull());
    for (const auto &bad : {png(513), png(16).left(40), QByteArray("GIF89a"), QByteArray()})
        EXPECT_TRUE(withData(bad).bitmap().isNull());
}

TEST(MenuLayoutParsing, TellsALookThatChanged)
{
    const auto base = parse({labelled(1, u"A"_s, {}, {labelled(2, u"B"_s)})}).entries;
    EXPECT_TRUE(looksTheSame(base, parse({labelled(1, u"A"_s, {}, {labelled(2, u"B"_s)})}).entries));
    EXPECT_FALSE(looksTheSame(base, parse({labelled(1, u"A"_s, {}, {labelled(2, u"C"_s)})}).entries));
    EXPECT_FALSE(looksTheSame(base, parse({labelled(1, u"A"_s)}).entries));
    EXPECT_FALSE(
        looksTheSame(base, parse({labelled(1, u"A"_s, {{u"icon-data"_s, png(4)}}, {labelled(2, u"B"_s)})}).entries));
}

} // namespace brimshade::desktop::tray
