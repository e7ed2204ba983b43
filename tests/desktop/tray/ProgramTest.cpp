#include "desktop/tray/Program.h"
#include "desktop/tray/HostedApplication.h"
#include "support/Test.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace brimshade::desktop::tray {

HostedItem item(const QString &id, const QString &title, const QString &path, const QString &owner = u":1.1"_s)
{
    TrayItem result;
    result.id = id;
    result.title = title;
    return {owner + path, path, result, {}, [](ItemGesture, const QRectF &) {}};
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
        const auto entry = findDesktopEntry(process, entries);
        EXPECT_EQ(entry ? entry->id : QString(), id) << process.executable.toStdString();
    }
}

TEST(Programs, TheRunningOneIsReadFromTheSystem)
{
    const auto process = readProcess(static_cast<int>(QCoreApplication::applicationPid()));
    EXPECT_EQ(process.executable, QCoreApplication::applicationFilePath());
    EXPECT_EQ(process.arguments.value(0), QCoreApplication::arguments().value(0));
    EXPECT_TRUE(readProcess(-1).executable.isEmpty());
    ProgramFinder finder([] { return 0.; });
    const auto found = finder.find(static_cast<int>(QCoreApplication::applicationPid()));
    EXPECT_FALSE(found.entry);
    EXPECT_EQ(found.name, QFileInfo(process.executable).fileName());
    EXPECT_EQ(finder.find(-1).name, QString());
}

TEST(HostedApplications, SeveralItemsAreSeveralExtrasInTheirOrder)
{
    const auto given = describeApplication(41, {{DesktopEntry{u"app"_s, u"Program"_s, {}, {}, true}, u"app"_s}, {}},
                                           {item(u"one"_s, u"One"_s, u"/a"_s), item(u"one"_s, {}, u"/b"_s),
                                            item({}, u"Three"_s, u"/c"_s), item({}, u"Four"_s, u"/c"_s, u":1.2"_s)});
    EXPECT_EQ(given.description.pid, 41);
    EXPECT_EQ(given.description.name, u"Program"_s);
    EXPECT_EQ(given.description.bundleIdentifier, u"app"_s);
    QStringList identifiers, origins;
    for (const auto &extra : *given.description.extras) {
        identifiers.append(*extra.identifier);
        const ItemSpec &spec = given.items.at(*extra.identifier);
        EXPECT_TRUE(spec.handler);
        origins.append(QStringList{spec.origin->instance, spec.origin->program, spec.origin->id}.join(u' '));
    }
    EXPECT_EQ(identifiers, (QStringList{u"one"_s, u"/b"_s, u"/c"_s, u":1.2/c"_s}));
    EXPECT_EQ(origins, (QStringList{u":1.1/a app one"_s, u":1.1/b app one"_s, u":1.1/c app "_s, u":1.2/c app "_s}));
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
