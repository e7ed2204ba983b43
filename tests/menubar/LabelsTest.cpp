#include "menubar/Labels.h"
#include "menubar/Text.h"
#include "support/FakeSystem.h"

namespace brimshade::menubar {

TEST(Bundle, IsTheOutermostApplicationOfAPath)
{
    const std::pair<QString, std::optional<QString>> cases[] = {
        {u"/Applications/Outer.app/Contents/Library/LoginItems/Inner.app"_s, u"/Applications/Outer.app"_s},
        {u"/Applications/Outer.app/"_s, u"/Applications/Outer.app"_s},
        {u"/Applications/Relay.app"_s, {}},
        {u"/Applications/Outer.APP/Inner.app/x"_s, u"/Applications/Outer.APP/Inner.app"_s},
        {u"/usr/bin/tool"_s, {}},
        {QString(), {}},
    };
    for (const auto &[path, bundle] : cases)
        EXPECT_EQ(outerBundle(path), bundle) << qPrintable(path);
    EXPECT_EQ(withoutBundleSuffix(u"My.app Tool.app"_s), u"My Tool"_s);
}

TEST(Symbol, IsTheFirstKeywordsOfTheTable)
{
    const std::pair<QString, QString> cases[] = {
        {u"com.example.FocusModes"_s, u"moon.fill"_s}, {u"com.example.BATTERY"_s, u"battery.75percent"_s},
        {u"timemachine.clock"_s, u"clock.fill"_s}, // the earlier row, not the earlier word
        {u"keyboard.display"_s, u"sun.max.fill"_s},    {u"x.other"_s, u"circle.grid.2x2.fill"_s},
        {QString(), u"circle.grid.2x2.fill"_s},
    };
    for (const auto &[identifier, symbol] : cases)
        EXPECT_EQ(symbolName(identifier), symbol) << qPrintable(identifier);
}

// The left columns in one colour, the rest in another.
QImage split(const QSize &size, int columns, const QColor &left, const QColor &right)
{
    QImage image = filled(size.width(), size.height(), Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(image.rect(), right);
    painter.fillRect(0, 0, columns, size.height(), left);
    return image;
}

TEST(Tint, IsTheTrueAverageMadeVivid)
{
    const std::tuple<const char *, QImage, QColor> cases[] = {
        {"cannot be rendered", {}, Qt::white},
        {"pure red", filled(8, 8, Qt::red), Qt::red},
        {"transparent", filled(8, 8, Qt::transparent), QColor(191, 191, 191)},
        {"black", filled(8, 8, Qt::black), QColor(191, 191, 191)},
        {"white", filled(3, 5, Qt::white), Qt::white},
        // Saturation 0.5 becomes 0.7; brightness 100/255 becomes 0.75.
        {"dull and dark", filled(8, 8, QColor(100, 50, 50)), QColor(191, 57, 57)},
        // 200, 100, 150: saturation 0.7, the hue's middle component stays in the middle.
        {"dull and bright", filled(8, 8, QColor(200, 100, 150)), QColor(200, 60, 130)},
        // Half of it covered in half-transparent blue: the colour stays, instead of getting darker.
        {"half-transparent", split({8, 8}, 4, QColor(0, 0, 255, 128), Qt::transparent), Qt::blue},
        // One pixel in 64: a sample of a few pixels would miss it. (4, 0, 0) of alpha 4.
        {"one dot", split({64, 1}, 1, Qt::red, Qt::transparent), Qt::red},
        // A quarter red, the rest blue: 64, 0, 191.
        {"a quarter", split({100, 3}, 25, Qt::red, Qt::blue), QColor(64, 0, 191)},
    };
    for (const auto &[what, image, expected] : cases)
        EXPECT_EQ(tint(picture(image)).name(QColor::HexArgb), expected.name(QColor::HexArgb)) << what;
}

TEST(Text, IsOrderedByScalarValues)
{
    const QStringList ascending{u""_s, u"A"_s, u"B"_s, u"a"_s, u"e\u0301"_s, u"\ufb01"_s, u"\U0001f600"_s};
    for (int i = 0; i < ascending.size(); ++i)
        for (int j = 0; j < ascending.size(); ++j)
            EXPECT_EQ(isOrderedBefore(ascending[i], ascending[j]), i < j) << i << ' ' << j;
    EXPECT_FALSE(isOrderedBefore(u"e\u0301"_s, u"\u00e9"_s) || isOrderedBefore(u"\u00e9"_s, u"e\u0301"_s));
}

} // namespace brimshade::menubar
