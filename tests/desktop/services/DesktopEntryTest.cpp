#include "desktop/services/DesktopEntry.h"
#include "support/Test.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace brimshade::desktop {

TEST(DesktopEntries, TellNameIconAndProgram)
{
    const auto entry = parseDesktopEntry(u"a.b.Mail"_s,
                                         "# c\n[Other]\nName=No\n[Desktop Entry]\nType=Application\nName=Mail\n"
                                         "Name[de]=Die\\sPost\nName[de_AT]=Briefe\nIcon=mail\n"
                                         "StartupWMClass=Mailer\nExec=env A=1 \"/opt/two words/mailer\" %U\n"
                                         "[Desktop Action new]\nName=Wrong\nExec=wrong\n",
                                         u"de_DE"_s);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, u"Die Post"_s);
    EXPECT_EQ(entry->icon, u"mail"_s);
    EXPECT_EQ(entry->executable, u"mailer"_s);
    EXPECT_EQ(entry->windowClass, u"Mailer"_s);
    EXPECT_TRUE(entry->isShown);
    EXPECT_FALSE(parseDesktopEntry(u"x"_s, "[Desktop Entry]\nType=Link\nName=x\n", {}));
    EXPECT_FALSE(parseDesktopEntry(u"x"_s, "[Desktop Entry]\nType=Application\nHidden=true\n", {}));
    EXPECT_FALSE(parseDesktopEntry(u"x"_s, QByteArray(1000, '\xff'), {}));
}

TEST(DesktopEntries, TheFirstFolderOverridesTheLaterOnes)
{
    QTemporaryDir user, system;
    writeFile(user.filePath(u"one.desktop"_s), "[Desktop Entry]\nType=Application\nName=Mine\n");
    writeFile(user.filePath(u"off.desktop"_s), "[Desktop Entry]\nType=Application\nHidden=true\n");
    writeFile(system.filePath(u"one.desktop"_s), "[Desktop Entry]\nType=Application\nName=Theirs\n");
    writeFile(system.filePath(u"off.desktop"_s), "[Desktop Entry]\nType=Application\nName=Off\n");
    writeFile(system.filePath(u"sub/two.desktop"_s), "[Desktop Entry]\nType=Application\nName=Two\n");
    const auto entries = readDesktopEntries({user.path(), system.path()}, {});
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].name, u"Mine"_s);
    EXPECT_EQ(entries[1].id, u"sub-two"_s);
}

} // namespace brimshade::desktop
