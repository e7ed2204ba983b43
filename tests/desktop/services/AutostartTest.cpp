#include "desktop/services/AutostartEntry.h"
#include "desktop/services/AutostartLoginItem.h"
#include "support/Test.h"

namespace brimshade::desktop {

using platform::LoginItemStatus;

class AutostartTest : public testing::Test {
protected:
    AutostartTest()
    {
        writeFile(program, "#!/bin/sh\n");
        QFile(program).setPermissions(QFile::ReadUser | QFile::ExeUser);
    }
    QByteArray entry(const QByteArray &more) const
    {
        return "[Desktop Entry]\nType=Application\nName=B\nExec=b\n" + more;
    }
    void expectValid(const QString &path)
    {
        QProcess validator;
        validator.start(u"desktop-file-validate"_s, {u"--no-hints"_s, path});
        ASSERT_TRUE(validator.waitForFinished());
        EXPECT_EQ(validator.exitCode(), 0) << validator.readAllStandardOutput().constData();
        EXPECT_EQ(validator.readAllStandardOutput(), "");
    }

    QTemporaryDir folder;
    QString program = folder.filePath(u"bin/we ird \"$`%\\name"_s);
    QString userFile = folder.filePath(u"user/autostart/org.brimshade.Brimshade.desktop"_s);
    QString systemFile = folder.filePath(u"system/autostart/org.brimshade.Brimshade.desktop"_s);
    AutostartLoginItem item{{.userFolder = folder.filePath(u"user/autostart"_s),
                             .systemFolders = {folder.filePath(u"none"_s), folder.filePath(u"system/autostart"_s)},
                             .program = program}};
};

TEST_F(AutostartTest, RegistersAndUnregistersTheProgram)
{
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    EXPECT_TRUE(item.unregisterMainApp()); // nothing to do
    ASSERT_TRUE(item.registerMainApp());
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
    expectValid(userFile);
    QFile::remove(program);
    EXPECT_EQ(item.status(), LoginItemStatus::notFound); // the program has gone
    ASSERT_TRUE(item.unregisterMainApp());
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    EXPECT_FALSE(QFile::exists(userFile));
}

TEST_F(AutostartTest, AnEntryOfTheSystemIsOverruledByTheUsers)
{
    writeFile(systemFile, entry({}));
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
    ASSERT_TRUE(item.unregisterMainApp());
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    expectValid(userFile);
    EXPECT_TRUE(QFile::exists(systemFile));
    ASSERT_TRUE(item.registerMainApp());
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
}

TEST_F(AutostartTest, ReadsEntriesOfOthers)
{
    struct Case {
        QByteArray content;
        LoginItemStatus status;
    };
    for (const Case &each :
         {Case{entry("TryExec=sh\n"), LoginItemStatus::enabled},
          Case{entry("TryExec=/bin/sh\n"), LoginItemStatus::enabled},
          Case{entry("TryExec=no-such-program-here\n"), LoginItemStatus::notFound},
          Case{entry("TryExec=/etc/passwd\n"), LoginItemStatus::notFound},
          Case{entry("Hidden=true\n"), LoginItemStatus::notRegistered},
          Case{entry("X-GNOME-Autostart-enabled=false\n"), LoginItemStatus::notRegistered},
          Case{entry("[Desktop Action x]\nHidden=true\n"), LoginItemStatus::enabled},
          Case{entry("# Hidden=true\n Hidden = false\n"), LoginItemStatus::enabled},
          Case{"", LoginItemStatus::notRegistered}, Case{QByteArray(100'000, '['), LoginItemStatus::notRegistered}}) {
        writeFile(userFile, each.content);
        EXPECT_EQ(item.status(), each.status) << each.content.left(200).constData();
    }
}

TEST_F(AutostartTest, FailuresAreTheSystemsWords)
{
    writeFile(folder.filePath(u"user"_s), "in the way");
    EXPECT_EQ(item.registerMainApp().error(), u"Not a directory"_s);
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
}

TEST_F(AutostartTest, AnEntryThatStartsNoSessionIsRewritten)
{
    writeFile(userFile, entry("Exec=" + program.toUtf8() + "\n"));
    ASSERT_TRUE(item.registerMainApp());
    EXPECT_TRUE(readFile(userFile).contains(" --session\n")) << readFile(userFile).constData();
    expectValid(userFile);
}

// Runs the entry's Exec in a session whose programs include those in the folder's bin.
class AutostartExecTest : public AutostartTest {
protected:
    QString saidBy(AutostartLoginItem &registered)
    {
        EXPECT_TRUE(registered.registerMainApp());
        expectValid(userFile);
        const QString exec = QString::fromUtf8(readFile(userFile)).section(u"\nExec="_s, 1).section(u'\n', 0, 0);
        QProcess shell;
        shell.setProcessEnvironment([this] {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"PATH"_s, folder.filePath(u"bin"_s) + u':' + environment.value(u"PATH"_s));
            return environment;
        }());
        // A shell undoes the quoting of arguments in the same way, once the string's escapes and the percent signs are
        // undone.
        shell.start(u"sh"_s, {u"-c"_s, QString(exec).replace(u"\\\\"_s, u"\\"_s).replace(u"%%"_s, u"%"_s)});
        EXPECT_TRUE(shell.waitForFinished());
        return QString::fromUtf8(shell.readAllStandardOutput());
    }
    void provide(const QString &path, const QByteArray &script)
    {
        writeFile(path, "#!/bin/sh\n" + script);
        QFile(path).setPermissions(QFile::ReadUser | QFile::ExeUser | QFile::WriteUser);
    }
    QString systemctl = folder.filePath(u"bin/systemctl"_s);
    AutostartLoginItem withUnit{
        {.userFolder = folder.filePath(u"user/autostart"_s), .systemFolders = {}, .program = program, .hasUnit = true}};
};

TEST_F(AutostartExecTest, StartsASessionWhateverTheProgramsName)
{
    QFile::remove(program);
    provide(program, "echo program $*");
    provide(systemctl, "echo systemctl $*");
    EXPECT_EQ(saidBy(item), u"program --session\n"_s);
    EXPECT_EQ(saidBy(withUnit), u"systemctl --user --no-block start brimshade.service\n"_s);
}

TEST_F(AutostartExecTest, StartsTheProgramWhereSystemdCannot)
{
    QFile::remove(program);
    provide(program, "echo program $*");
    provide(systemctl, "exit 1");
    EXPECT_EQ(saidBy(withUnit), u"program --session\n"_s);
}

} // namespace brimshade::desktop
