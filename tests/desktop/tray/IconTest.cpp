#include "desktop/tray/IconFinder.h"
#include "support/Test.h"

#include <sys/stat.h>

namespace brimshade::desktop::tray {

class IconTest : public testing::Test {
protected:
    // A picture of one colour at a path below the folder.
    void put(const QString &path, const QColor &colour, int size = 8)
    {
        QDir().mkpath(QFileInfo(folder.filePath(path)).path());
        ASSERT_TRUE(filled(size, size, colour).save(folder.filePath(path)));
    }
    QColor colourOf(const QString &name, const QString &themePath = {})
    {
        const auto picture = finder.find(name, themePath).bitmap();
        return picture.isNull() ? QColor() : picture.pixelColor(0, 0);
    }

    QTemporaryDir folder;
    double time = 1; // seconds
    IconFinder finder{{u"Fancy"_s, {folder.filePath(u"user/icons"_s), folder.filePath(u"system/icons"_s)}},
                      [this] { return time; }};
};

TEST_F(IconTest, AreFoundInABareFolderAndInAThemeBelowIt)
{
    QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"hicolor/32x32/apps"_s);
    filled(8, 8, Qt::red).save(folder.filePath(u"bare.png"_s));
    filled(32, 32, Qt::blue).save(folder.filePath(u"hicolor/32x32/apps/deep-symbolic.png"_s));

    EXPECT_EQ(finder.find(u"bare"_s, folder.path()).bitmap().size(), QSize(8, 8));
    EXPECT_EQ(finder.find(folder.filePath(u"bare.png"_s), {}).bitmap().size(), QSize(8, 8));
    EXPECT_FALSE(finder.find(u"bare"_s, folder.path()).isTemplate());
    const auto deep = finder.find(u"deep-symbolic"_s, folder.path());
    EXPECT_EQ(deep.bitmap().pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_TRUE(deep.isTemplate());
    EXPECT_TRUE(finder.find(u"../"_s + QFileInfo(folder.path()).fileName() + u"/bare"_s, folder.path()).isNull());
    EXPECT_TRUE(finder.find(u"absent"_s, folder.path()).isNull());
}

TEST_F(IconTest, OfSeveralBelowAFolderTheLargestIsShownAndADrawnOneBeforeAll)
{
    const auto theme = folder.filePath(u"theme"_s);
    // No matter which of the two folders is visited first.
    put(u"theme/one/first.png"_s, Qt::red, 8);
    put(u"theme/two/first.png"_s, Qt::green, 64);
    put(u"theme/one/second.png"_s, Qt::green, 64);
    put(u"theme/two/second.png"_s, Qt::red, 8);
    EXPECT_EQ(colourOf(u"first"_s, theme), QColor(Qt::green));
    EXPECT_EQ(colourOf(u"second"_s, theme), QColor(Qt::green));
    for (const auto &[drawn, picture] : {std::pair(u"one"_s, u"two"_s), {u"two"_s, u"one"_s}}) {
        put(u"theme/%1/of%2.png"_s.arg(picture, drawn), Qt::red, 512);
        writeFile(
            folder.filePath(u"theme/%1/of%1.svg"_s.arg(drawn)),
            R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><rect width="8" height="8" fill="#0f0"/></svg>)");
    }
    IconFinder later{{}, [] { return 100.0; }};
    for (const auto &name : {u"ofone"_s, u"oftwo"_s})
        EXPECT_EQ(later.find(name, theme).bitmap().pixelColor(4, 4), QColor(Qt::green)) << name.toStdString();
}

TEST_F(IconTest, AFileThatIsNotAPictureGivesNoneAndHoldsNothingUp)
{
    QTemporaryDir folder;
    const auto pipe = folder.filePath(u"pipe.png"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const auto text = folder.filePath(u"text.png"_s);
    writeFile(text, "not a picture");
    for (const auto &path : {pipe, text, folder.path()})
        EXPECT_TRUE(finder.find(path, {}).isNull()) << path.toStdString();
}

TEST_F(IconTest, ThePixelsStandInForAnUnknownNameAndTheOverlayLiesOverThem)
{
    TrayItem item;
    item.icon.name = u"no-theme-has-this"_s;
    item.icon.pixmap = filled(16, 16, Qt::green);
    item.overlayIcon.pixmap = filled(4, 4, Qt::red);
    const auto image = finder.itemPictures(item).whole;
    EXPECT_EQ(image.size(), QSizeF(22, 22));
    EXPECT_EQ(image.bitmap().pixelColor(2, 2), QColor(Qt::green));
    EXPECT_EQ(image.bitmap().pixelColor(12, 12), QColor(Qt::red));
}

TEST_F(IconTest, AreFoundInTheUsersThemeThenInItsParentsThenWhereProgramsInstallThem)
{
    writeFile(folder.filePath(u"system/icons/Fancy/index.theme"_s),
              "[Icon Theme]\nInherits=Plain,hicolor\nDirectories=16/apps,apps/big\n"
              "[16/apps]\nSize=16\n[apps/big]\nSize=64\nScale=2\n");
    writeFile(folder.filePath(u"user/icons/Plain/index.theme"_s), "[Icon Theme]\nInherits=Fancy\nDirectories=any\n");
    put(u"system/icons/Fancy/16/apps/both.png"_s, Qt::red);
    put(u"system/icons/Fancy/apps/big/both.png"_s, Qt::green);
    put(u"system/icons/Fancy/16/apps/mine.png"_s, Qt::black);
    put(u"user/icons/Fancy/16/apps/mine.png"_s, Qt::blue);
    put(u"system/icons/Plain/any/parents.png"_s, Qt::yellow);
    put(u"user/icons/hicolor/16x16/apps/installed.png"_s, Qt::red);
    put(u"user/icons/hicolor/48x48/apps/installed.png"_s, Qt::cyan); // no index: the folders' names tell the size
    put(u"system/pixmaps/old.png"_s, Qt::magenta);

    EXPECT_EQ(colourOf(u"both"_s), QColor(Qt::green));
    EXPECT_EQ(colourOf(u"mine"_s), QColor(Qt::blue));
    EXPECT_EQ(colourOf(u"parents"_s), QColor(Qt::yellow));
    EXPECT_EQ(colourOf(u"installed"_s), QColor(Qt::cyan));
    EXPECT_EQ(colourOf(u"old"_s), QColor(Qt::magenta));
    EXPECT_EQ(colourOf(u"mine-but-more-exact"_s), QColor(Qt::blue));
    EXPECT_FALSE(colourOf(u"mine-symbolic"_s).isValid());
}

TEST_F(IconTest, ALargeFolderIsVisitedOnlySoFarFromTheTop)
{
    QDir().mkpath(folder.filePath(u"large/more/crowd"_s));
    for (int i = 0; i < 4100; ++i)
        QFile(folder.filePath(u"large/more/crowd/%1"_s.arg(i))).open(QIODevice::WriteOnly);
    put(u"large/near/near.png"_s, Qt::green);
    put(u"large/more/crowd/deep/deep.png"_s, Qt::red);
    QFile::link(folder.path(), folder.filePath(u"large/loop"_s));
    EXPECT_EQ(colourOf(u"near"_s, folder.filePath(u"large"_s)), QColor(Qt::green));
    EXPECT_FALSE(colourOf(u"deep"_s, folder.filePath(u"large"_s)).isValid());
}

TEST_F(IconTest, ANameThatIsNowhereIsNotLookedForAgainAtOnceButInAWhile)
{
    const auto theme = folder.filePath(u"theme"_s);
    EXPECT_FALSE(colourOf(u"late"_s, theme).isValid());
    put(u"theme/deep/late.png"_s, Qt::green);
    time += 9;
    EXPECT_FALSE(colourOf(u"late"_s, theme).isValid());
    time += 2;
    EXPECT_EQ(colourOf(u"late"_s, theme), QColor(Qt::green));
    QFile::remove(folder.filePath(u"theme/deep/late.png"_s));
    EXPECT_FALSE(colourOf(u"late"_s, theme).isValid());
    put(u"theme/late.png"_s, Qt::red); // where programs put what they draw
    EXPECT_EQ(colourOf(u"late"_s, theme), QColor(Qt::red));
}

} // namespace brimshade::desktop::tray
