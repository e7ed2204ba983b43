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
                                                m_dispatch, IconFinder());
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

TEST_F(ItemClientTest, APressReachesTheProgramTheWayItUnderstands)
{
    // At the item's lower left corner.
    const QString activate = u"Activate 10 37"_s, contextMenu = u"ContextMenu 10 37"_s;
    const std::tuple<QVariantMap, QSet<QString>, QStringList> cases[] = {
        {{}, {}, {activate}},
        {{}, {u"Activate"_s}, {activate, contextMenu}},
        {{{u"Menu"_s, path(u"/NO_DBUSMENU"_s)}}, {u"ContextMenu"_s}, {contextMenu, activate}},
        {{{u"Menu"_s, path(u"/Menu"_s)}}, {}, {contextMenu}}, // an empty menu is none
    };
    for (const auto &[properties, unknownMethods, presses] : cases) {
        m_program.properties = properties;
        m_program.unknownMethods = unknownMethods;
        m_client.reset();
        QSignalSpy ready(&client(), &ItemClient::menuReady);
        m_program.takeEvents();
        client().press({10, 5, 30, 32});
        const auto pressed = [&] { return m_program.calls().filter(QRegularExpression(u"^(Activate|ContextMenu)"_s)); };
        waitUntil([&] { return pressed().size() >= presses.size(); });
        settle(m_own, m_connection);
        EXPECT_EQ(pressed(), presses);
        EXPECT_EQ(ready.size(), 0);
    }
}

TEST_F(ItemClientTest, NothingThatCanBePressedIsAMessage)
{
    m_program.unknownMethods = {u"Activate"_s, u"ContextMenu"_s};
    QSignalSpy messages(&client(), &ItemClient::message);
    client().press({});
    waitUntil([&] { return !messages.isEmpty(); });
    EXPECT_TRUE(messages[0][0].toString().contains(u"cannot be activated"_s));
}

} // namespace brimshade::desktop::tray
