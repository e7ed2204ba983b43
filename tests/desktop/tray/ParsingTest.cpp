#include "desktop/tray/BusName.h"
#include "desktop/tray/Pixmap.h"
#include "desktop/tray/ShortcutText.h"
#include "desktop/tray/TrayItem.h"
#include "desktop/tray/WireValue.h"
#include "support/Test.h"

namespace brimshade::desktop::tray {

QVariant picture(QVariant width, QVariant height, const QByteArray &bytes)
{
    return QVariantList{std::move(width), std::move(height), bytes};
}

QVariantList strings(const QStringList &texts)
{
    return {QVariant(texts)};
}

TEST(Registration, TakesEveryFormThatProgramsUseAndNothingElse)
{
    const auto sender = u":1.7"_s;
    const std::tuple<QString, QString, QString> good[] = {
        {u"/org/ayatana/NotificationItem/redshift"_s, sender, u"/org/ayatana/NotificationItem/redshift"_s},
        {u"org.kde.StatusNotifierItem-41-1"_s, u"org.kde.StatusNotifierItem-41-1"_s, u"/StatusNotifierItem"_s},
        {u":1.70"_s, u":1.70"_s, u"/StatusNotifierItem"_s},
        {u":1.70/org/item/1"_s, u":1.70"_s, u"/org/item/1"_s},
        {u"/"_s, sender, u"/"_s},
    };
    for (const auto &[argument, service, path] : good)
        EXPECT_EQ(parseRegistration(argument, sender), (Registration{service, path})) << argument.toStdString();

    for (const auto &bad : {u""_s, u"word"_s, u"a..b"_s, u"1a.b"_s, u":1"_s, u"org.x/with space"_s, u"//"_s, u"/a/"_s,
                            u"org.x//y"_s, u"a.b\n"_s, u"ä.b"_s, QString(300, u'a') + u".b"_s})
        EXPECT_EQ(parseRegistration(bad, sender), std::nullopt) << bad.toStdString();
}

TEST(Pixmaps, ABigEndianStraightAlphaPictureBecomesItsColours)
{
    QStringList complaints;
    const auto image = largestPixmap(QVariantList{picture(1, 1, QByteArray::fromHex("ff0000ff")),
                                                  picture(2, 1,
                                                          QByteArray::fromHex("ff102030"
                                                                              "80ff0000")),
                                                  picture(1, 1, QByteArray(4, '\0'))},
                                     complaints);
    ASSERT_EQ(image.size(), QSize(2, 1));
    EXPECT_EQ(image.pixel(0, 0), qRgba(0x10, 0x20, 0x30, 0xff));
    EXPECT_EQ(image.pixel(1, 0), qRgba(0xff, 0, 0, 0x80));
    EXPECT_TRUE(complaints.isEmpty());
}

TEST(Pixmaps, ASizeThatLiesIsComplainedOfAndTheSoundOneIsUsed)
{
    const QByteArray four(4, '\1');
    const QVariant liars[] = {
        picture(2, 2, four),
        picture(0, 1, {}),
        picture(-1, -1, four),
        picture(65536, 65536, {}),
        picture(1 << 30, 1, four),
        picture(2147483647, 2147483647, four),
        picture(1, 1, QByteArray(5, '\1')),
        picture(u"1"_s, 1, four),
        picture(1, 1, {}),
        QVariantList{1, 1},
        QVariant(7),
        picture(513, 1, QByteArray(4 * 513, 1)),
    };
    for (const auto &liar : liars) {
        QStringList complaints;
        EXPECT_TRUE(largestPixmap(QVariantList{liar}, complaints).isNull());
        EXPECT_EQ(complaints.size(), 1);
        EXPECT_EQ(largestPixmap(QVariantList{liar, picture(1, 1, four)}, complaints).size(), QSize(1, 1));
    }
}

TEST(TrayItemParsing, WhatIsMissingOrOfAWrongTypeIsAbsent)
{
    EXPECT_EQ(parseItem({}).item, TrayItem());
    const auto parsed = parseItem({{u"Id"_s, 7},
                                   {u"Title"_s, QVariantList{}},
                                   {u"Status"_s, u"Sleeping"_s},
                                   {u"ToolTip"_s, QVariantList{u"a"_s, u"b"_s}},
                                   {u"Menu"_s, u"no path"_s},
                                   {u"ItemIsMenu"_s, u"true"_s},
                                   {u"IconPixmap"_s, u"pixels"_s}});
    EXPECT_EQ(parsed.item, TrayItem());
}

TEST(TrayItemParsing, TextsBecomeOnePlainBoundedLine)
{
    const auto item =
        parseItem({{u"Title"_s, u"  Two\nlines\x07\t"_s},
                   {u"Id"_s, QString(10'000, u'x')},
                   {u"ToolTip"_s, QVariantList{u""_s, QVariantList(), u"<b>Mail</b>"_s, u"3&nbsp;new<br/>1 &lt; 2"_s}}})
            .item;
    EXPECT_EQ(item.title, u"Two lines"_s);
    EXPECT_EQ(item.id.size(), 256);
    EXPECT_EQ(item.toolTipTitle, u"Mail"_s);
    EXPECT_EQ(item.toolTipText, u"3&nbsp;new 1 < 2"_s);
}

TEST(Shortcuts, AreWrittenAsMenusWriteThem)
{
    const std::tuple<QStringList, QString> rows[] = {
        {{u"Control"_s, u"q"_s}, u"⌃Q"_s},
        {{u"Super"_s, u"Shift"_s, u"Alt"_s, u"Control"_s, u"F5"_s}, u"⌃⌥⇧⌘F5"_s},
        {{u"Control"_s, u"plus"_s}, u"⌃+"_s},
        {{u"Return"_s}, u"↩"_s},
    };
    for (const auto &[keys, text] : rows)
        EXPECT_EQ(shortcutText(strings(keys)), text);
    EXPECT_EQ(shortcutText(QVariantList{}), QString());
    EXPECT_EQ(shortcutText(QVariantList{QVariantList{}}), QString());
    EXPECT_EQ(shortcutText(u"Control+Q"_s), QString());
}

} // namespace brimshade::desktop::tray
