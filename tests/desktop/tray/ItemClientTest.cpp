#include "desktop/tray/ItemClient.h"
#include "FakeProgram.h"
#include "desktop/tray/MenuClient.h"

#include <QDBusObjectPath>
#include <QRegularExpression>
#include <QSignalSpy>

namespace brimshade::desktop::tray {

QVariant path(const QString &path)
{
    return QVariant::fromValue(QDBusObjectPath(path));
}

class ItemClientTest : public FakeProgramTest {
protected:
    void start()
    {
        m_client = std::make_unique<ItemClient>(m_own, ItemKey{m_connection.baseService(), u"/StatusNotifierItem"_s},
                                                m_workshop);
    }
    // The client of the scripted program, once it has been read.
    ItemClient &client()
    {
        if (!m_client) {
            start();
            waitUntil([&] { return m_client->item().has_value(); });
        }
        return *m_client;
    }

    Workshop m_workshop{m_dispatch};
    std::unique_ptr<ItemClient> m_client;
};

TEST_F(ItemClientTest, ReadsWhatComesOverTheWire)
{
    const WirePictures pictures{{2, 1,
                                 QByteArray::fromHex("ff112233"
                                                     "ff445566")},
                                {9, 9, QByteArray(3, 'x')}};
    m_program.properties = {{u"Id"_s, u"one"_s},
                            {u"Title"_s, u"One"_s},
                            {u"Status"_s, u"NeedsAttention"_s},
                            {u"IconPixmap"_s, QVariant::fromValue(pictures)},
                            {u"Menu"_s, path(u"/Menu"_s)},
                            {u"ItemIsMenu"_s, true}};
    const auto &item = *client().item();
    EXPECT_EQ(item.id, u"one"_s);
    EXPECT_EQ(item.status, TrayItem::Status::needsAttention);
    EXPECT_EQ(item.icon.pixmap.pixel(1, 0), qRgb(0x44, 0x55, 0x66));
    EXPECT_EQ(item.menuPath, u"/Menu"_s);
    EXPECT_EQ(item.itemIsMenu, true);
    EXPECT_EQ(client().image().bitmap().size(), QSize(2, 1));
}

TEST_F(ItemClientTest, ALyingPixmapIsOneMessageHoweverOftenItIsRead)
{
    m_program.properties = {{u"Title"_s, u"Liar"_s},
                            {u"IconPixmap"_s, QVariant::fromValue(WirePictures{{500, 500, QByteArray(3, 'x')}})}};
    start();
    QSignalSpy messages(m_client.get(), &ItemClient::message), changes(m_client.get(), &ItemClient::changed);
    waitUntil([&] { return changes.size() == 1; });
    m_program.properties[u"Title"_s] = u"Still"_s;
    m_program.signalItem(u"NewTitle"_s);
    waitUntil([&] { return changes.size() == 2; });
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0][0].toString().contains(u"500 × 500 has 3 bytes"_s))
        << messages[0][0].toString().toStdString();
}

TEST_F(ItemClientTest, ABurstOfSignalsIsOneReadAndNoChangeIsNone)
{
    QSignalSpy changes(&client(), &ItemClient::changed);
    settle(m_own, m_connection);
    const auto before = m_program.calls().size();
    for (int i = 0; i < 50; ++i)
        m_program.signalItem(u"NewIcon"_s);
    settle(m_connection, m_own);
    waitUntil([&] { return m_program.calls().size() > before; });
    m_dispatch.advance(1);
    settle(m_own, m_connection);
    EXPECT_EQ(m_program.calls().size(), before + 1);
    EXPECT_EQ(changes.size(), 0);

    m_program.properties[u"Status"_s] = u"Passive"_s;
    m_program.signalItem(u"NewStatus"_s);
    waitUntil([&] { return !changes.isEmpty(); });
    EXPECT_EQ(client().item()->status, TrayItem::Status::passive);
}

TEST_F(ItemClientTest, APictureDrawnIntoTheSameFileIsANewOne)
{
    QTemporaryDir folder;
    const auto file = folder.filePath(u"icon.png"_s);
    ASSERT_TRUE(filled(8, 8, Qt::red).save(file));
    m_program.properties = {{u"IconName"_s, file}};
    QSignalSpy changes(&client(), &ItemClient::changed);
    ASSERT_TRUE(filled(8, 8, Qt::blue).save(file));
    m_program.signalItem(u"NewIcon"_s);
    waitUntil([&] { return !changes.isEmpty(); });
    EXPECT_EQ(client().image().bitmap().pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(ItemClientTest, AProgramThatDoesNotAnswerIsAskedAgainWithGrowingPauses)
{
    const auto asked = [&] { return m_program.calls().filter(u"GetAll"_s).size(); };
    const auto answer = [&] {
        settle(m_own, m_connection);
        m_dispatch.runDue();
    };
    m_program.properties = {{u"Title"_s, u"Slow"_s}};
    m_program.lateMethods = {u"GetAll"_s};
    start();
    QSignalSpy changes(m_client.get(), &ItemClient::changed);
    answer();
    for (const double pause : {1.0, 2.0, 4.0}) {
        const auto before = asked();
        m_dispatch.advance(pause - 0.01);
        answer();
        EXPECT_EQ(asked(), before);
        m_dispatch.advance(0.01);
        answer();
        EXPECT_EQ(asked(), before + 1);
    }
    m_program.lateMethods.clear();
    m_dispatch.advance(8);
    waitUntil([&] { return changes.size() == 1; });

    m_program.properties[u"Title"_s] = u"Slow again"_s;
    m_program.lateMethods = {u"GetAll"_s};
    m_program.signalItem(u"NewTitle"_s);
    waitUntil([&] { return asked() == 6; });
    answer();
    m_program.lateMethods.clear();
    m_dispatch.advance(1);
    waitUntil([&] { return changes.size() == 2; });
    EXPECT_EQ(m_client->item()->title, u"Slow again"_s);
}

TEST_F(ItemClientTest, PicturesAreLookedForOffTheMainThread)
{
    m_program.properties = {{u"IconName"_s, u"anything"_s}, {u"IconThemePath"_s, u"/usr"_s}};
    start();
    while (m_program.calls().isEmpty())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    settle(m_own, m_connection); // the answer has come; other threads have their turn with runDue()
    EXPECT_FALSE(m_client->item());
    m_dispatch.runDue();
    EXPECT_TRUE(m_client->item());
}

TEST_F(ItemClientTest, AGestureReachesTheProgramTheWayItUnderstands)
{
    // At the item's lower left corner.
    const QString activate = u"Activate 10 37"_s, contextMenu = u"ContextMenu 10 37"_s, opens = u"a menu"_s;
    const QString own = u"/NO_DBUSMENU"_s, full = u"/Menu"_s, unreachable = u"/Nowhere"_s;
    const auto empty = full; // with noEntries
    const bool noEntries = true;
    using enum ItemGesture;
    struct Case {
        const char *name;
        std::optional<bool> itemIsMenu;
        QString path;
        ItemGesture gesture;
        QStringList expected;
        QSet<QString> unknown = {};
        bool isEmpty = false;
    };
    const Case cases[] = {
        {"says nothing", {}, {}, press, {activate}},
        {"says nothing, cannot be activated", {}, {}, press, {activate, contextMenu}, {u"Activate"_s}},
        {"says nothing, its menu", {}, {}, menu, {contextMenu}},
        {"draws its menu", {}, own, press, {contextMenu}},
        {"draws no menu after all", {}, own, press, {contextMenu, activate}, {u"ContextMenu"_s}},
        {"an empty menu is none", {}, empty, press, {contextMenu}, {}, noEntries},
        {"a menu", {}, full, press, {opens}},
        {"a menu, clicked", true, full, click, {opens}},
        {"more, without a menu", false, {}, press, {activate}},
        {"more, draws its menu", false, own, press, {activate}},
        {"more, with an empty menu", false, empty, press, {activate}, {}, noEntries},
        {"more, with a menu that is not there", false, unreachable, press, {activate}},
        {"more, cannot be activated", false, own, press, {activate, contextMenu}, {u"Activate"_s}},
        {"more, with a menu", false, full, press, {opens}},
        {"more, with a menu, clicked", false, full, click, {activate}},
        {"more, with a menu, cannot be activated", false, full, click, {activate, opens}, {u"Activate"_s}},
        {"more, with a menu, asked for that", false, full, menu, {opens}},
        {"more, draws its menu, asked for that", false, own, menu, {contextMenu}},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.name);
        m_program.properties = {{u"Menu"_s, path(each.path.isEmpty() ? u"/"_s : each.path)}};
        if (each.itemIsMenu)
            m_program.properties[u"ItemIsMenu"_s] = *each.itemIsMenu;
        m_program.menu.children.clear();
        if (!each.isEmpty)
            m_program.menu.children = {labelled(1, u"Open"_s)};
        m_program.unknownMethods = each.unknown;
        m_client.reset();
        QObject::connect(&client(), &ItemClient::menuReady, [&] { m_program.note(opens); });
        settle(m_own, m_connection);
        m_program.takeEvents();
        client().press(each.gesture, {10, 5, 30, 32});
        const auto done = [&] { return m_program.calls().filter(QRegularExpression(u"^(Act|Context|a menu)"_s)); };
        waitUntil([&] { return done().size() >= each.expected.size(); });
        settle(m_own, m_connection);
        EXPECT_EQ(done(), each.expected);
    }
}

TEST_F(ItemClientTest, NothingThatCanBePressedIsAMessage)
{
    m_program.unknownMethods = {u"Activate"_s, u"ContextMenu"_s};
    QSignalSpy messages(&client(), &ItemClient::message);
    client().press(ItemGesture::press, {});
    waitUntil([&] { return !messages.isEmpty(); });
    EXPECT_TRUE(messages[0][0].toString().contains(u"cannot be activated"_s));
}

} // namespace brimshade::desktop::tray
