#include "desktop/tray/Program.h"
#include "desktop/tray/HostedApplication.h"
#include "support/Test.h"

#include <QCoreApplication>

namespace brimshade::desktop::tray {

HostedItem item(const QString &id, const QString &title, const QString &path, const QString &owner = u":1.1"_s)
{
    TrayItem result;
    result.id = id;
    result.title = title;
    return {{owner, path}, result, {}, [](ItemGesture, const QRectF &) {}};
}

TEST(DesktopEntries, TellNameIconAndProgram)
{
    const auto entry = parseDesktopEntry(u"a.b.Mail"_s,
                                         "# c\n[Other]\nName=No\n[Desktop Entry]\nType=Application\nName=Mail\n"
                                         "Name[de]=Die\\sPost\nName[de_AT]=Briefe\nIcon=mail\n"
                                         "Exec=env A=1 \"/opt/two words/mailer\" %U\n"
                                         "[Desktop Action new]\nName=Wrong\nExec=wrong\n",
                                         u"de_DE"_s);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, u"Die Post"_s);
    EXPECT_EQ(entry->icon, u"mail"_s);
    EXPECT_EQ(entry->executable, u"mailer"_s);
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

TEST(Programs, AreMatchedToTheirEntry)
{
    const std::vector<DesktopEntry> entries{
        {u"org.keepassxc.KeePassXC"_s, u"KeePassXC"_s, {}, u"keepassxc"_s, true},
        {u"office-calc"_s, u"Calc"_s, {}, u"office"_s, true},
        {u"office"_s, u"Office"_s, {}, u"office"_s, false},
        {u"redshift-gtk"_s, u"Redshift"_s, {}, u"redshift-gtk"_s, true},
        {u"python3.11"_s, u"Python"_s, {}, u"python3.11"_s, true},
    };
    const std::tuple<Process, QString> rows[] = {
        {{u"/usr/bin/keepassxc"_s, {u"keepassxc"_s}}, u"org.keepassxc.KeePassXC"_s},
        {{u"/usr/bin/office"_s, {u"office"_s, u"--calc"_s}}, u"office"_s},
        {{u"/usr/bin/python3.11"_s, {u"/usr/bin/python3"_s, u"-u"_s, u"/usr/bin/redshift-gtk"_s}}, u"redshift-gtk"_s},
        {{u"/usr/bin/python3.11"_s, {u"python3"_s, u"-c"_s}}, {}},
        {{u"/opt/other/program"_s, {u"redshift-gtk"_s}}, u"redshift-gtk"_s},
        {{u"/usr/bin/unheard-of"_s, {}}, {}},
        {{}, {}},
    };
    for (const auto &[process, id] : rows) {
        const auto entry = findEntry(process, entries);
        EXPECT_EQ(entry ? entry->id : QString(), id) << process.executable.toStdString();
    }
}

TEST(Programs, TheRunningOneIsReadFromTheSystem)
{
    const auto process = readProcess(static_cast<int>(QCoreApplication::applicationPid()));
    EXPECT_EQ(process.executable, QCoreApplication::applicationFilePath());
    EXPECT_EQ(process.arguments.value(0), QCoreApplication::arguments().value(0));
    EXPECT_TRUE(readProcess(-1).executable.isEmpty());
}

TEST(HostedApplications, SeveralItemsAreSeveralExtrasInTheirOrder)
{
    const auto given = describeApplication(41, {DesktopEntry{u"app"_s, u"Program"_s, {}, {}, true}, {}},
                                           {item(u"one"_s, u"One"_s, u"/a"_s), item(u"one"_s, {}, u"/b"_s),
                                            item({}, u"Three"_s, u"/c"_s), item({}, u"Four"_s, u"/c"_s, u":1.2"_s)});
    EXPECT_EQ(given.description.pid, 41);
    EXPECT_EQ(given.description.name, u"Program"_s);
    EXPECT_EQ(given.description.bundleIdentifier, u"app"_s);
    QStringList identifiers;
    for (const auto &extra : *given.description.extras) {
        identifiers.append(*extra.identifier);
        EXPECT_TRUE(given.items.at(*extra.identifier).handler);
    }
    EXPECT_EQ(identifiers, (QStringList{u"one"_s, u"/b"_s, u"/c"_s, u":1.2/c"_s}));
    EXPECT_EQ(given.description.extras->at(0).title, u"One"_s);
    EXPECT_EQ(given.description.extras->at(1).title, std::nullopt);
}

TEST(HostedApplications, WithoutAnEntryTheFirstItemThatHasANameGivesIt)
{
    EXPECT_EQ(describeApplication(1, {}, {item({}, {}, u"/a"_s), item(u"id"_s, {}, u"/b"_s)}).description.name,
              u"id"_s);
    const auto nameless = describeApplication(1, {}, {item({}, {}, u"/a"_s)}).description;
    EXPECT_EQ(nameless.name, u"App"_s);
    EXPECT_EQ(nameless.bundleIdentifier, std::nullopt);
}

} // namespace brimshade::desktop::tray
