#include "desktop/session/ApplicationNames.h"
#include "desktop/time/VirtualDispatch.h"
#include "support/Test.h"

namespace brimshade::desktop::session {

class ApplicationNamesTest : public testing::Test {
protected:
    ApplicationNamesTest()
    {
        qputenv("XDG_DATA_HOME", m_data.path().toLocal8Bit());
        qputenv("XDG_DATA_DIRS", "/nowhere");
    }

    void install(const QString &id, const QByteArray &lines)
    {
        writeFile(m_data.filePath(u"applications/%1.desktop"_s.arg(id)), "[Desktop Entry]\nType=Application\n" + lines);
    }

    QString nameOnceRead(const QString &id)
    {
        m_names.nameOf(id);
        m_dispatch.advance(0);
        return m_names.nameOf(id);
    }

    QTemporaryDir m_data;
    VirtualDispatch m_dispatch;
    ApplicationNames m_names{m_dispatch};
};

TEST_F(ApplicationNamesTest, ComeFromTheEntryThatFitsBest)
{
    install(u"org.kde.kate"_s, "Name=Kate\nExec=kate\n");
    install(u"other"_s, "Name=Wrong\nExec=kate\n");
    install(u"xterm-entry"_s, "Name=Terminal\nExec=x\nStartupWMClass=XTerm\n");
    EXPECT_EQ(nameOnceRead(u"org.kde.kate"_s), u"Kate"_s);
    EXPECT_EQ(nameOnceRead(u"kate"_s), u"Kate"_s);
    EXPECT_EQ(nameOnceRead(u"xterm"_s), u"Terminal"_s);
}

TEST_F(ApplicationNamesTest, AreAWordOfTheIdWithoutAnEntryAndUntilItIsRead)
{
    install(u"org.example.Mail"_s, "Name=Post\n");
    int found = 0;
    QObject::connect(&m_names, &ApplicationNames::found, &m_names, [&found] { ++found; });
    EXPECT_EQ(m_names.nameOf(u"org.example.Mail"_s), u"Mail"_s);
    m_dispatch.advance(0);
    EXPECT_EQ(found, 1);
    EXPECT_EQ(m_names.nameOf(u"org.example.Mail"_s), u"Post"_s);
    EXPECT_EQ(nameOnceRead(u"org.example.Game"_s), u"Game"_s);
    EXPECT_EQ(nameOnceRead(u"Game v. 2"_s), u"Game v. 2"_s);
    EXPECT_EQ(nameOnceRead({}), QString());
    EXPECT_EQ(found, 1);
}

TEST_F(ApplicationNamesTest, MayGoWhileAnEntryIsRead)
{
    {
        ApplicationNames gone(m_dispatch);
        gone.nameOf(u"org.example.Mail"_s);
    }
    m_dispatch.advance(0);
}

} // namespace brimshade::desktop::session
