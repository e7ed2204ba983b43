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
                                                m_workshop, m_surroundings);
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
    Surroundings m_surroundings;
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
    EXPECT_EQ(client().pictures().whole.bitmap().size(), QSize(2, 1));
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
    EXPECT_EQ(client().pictures().whole.bitmap().pixelColor(0, 0), QColor(Qt::blue));
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
    waitFor(u"a call"_s, [&] { return !m_program.calls().isEmpty(); });
    settle(m_own, m_connection); // the answer has come; other threads only run in runDue()
    EXPECT_FALSE(m_client->item());
    m_dispatch.runDue();
    EXPECT_TRUE(m_client->item());
}

TEST_F(ItemClientTest, AGestureReachesTheProgramTheWayItUnderstands)
{
    // At the item's lower left corner.
    const QString activates = u"Activate 10 37"_s, contextMenu = u"ContextMenu 10 37"_s, opens = u"a menu"_s;
    const QString own = u"/NO_DBUSMENU"_s, full = u"/Menu"_s, unreachable = u"/Nowhere"_s;
    const auto empty = full; // goes with noEntries
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
        {"says nothing", {}, {}, press, {activates}},
        {"says nothing, cannot be activated", {}, {}, press, {activates, contextMenu}, {u"Activate"_s}},
        {"says nothing, its menu", {}, {}, menu, {contextMenu}},
        {"draws its menu", {}, own, press, {contextMenu}},
        {"draws no menu after all", {}, own, press, {contextMenu, activates}, {u"ContextMenu"_s}},
        {"an empty menu is none", {}, empty, press, {contextMenu}, {}, noEntries},
        {"a menu", {}, full, press, {opens}},
        {"a menu, clicked", true, full, click, {opens}},
        {"more, without a menu", false, {}, press, {activates}},
        {"more, draws its menu", false, own, press, {activates}},
        {"more, with an empty menu", false, empty, press, {activates}, {}, noEntries},
        {"more, with a menu that is not there", false, unreachable, press, {activates}},
        {"more, cannot be activated", false, own, press, {activates, contextMenu}, {u"Activate"_s}},
        {"more, with a menu", false, full, press, {opens}},
        {"more, with a menu, clicked", false, full, click, {activates}},
        {"more, with a menu, cannot be activated", false, full, click, {activates, opens}, {u"Activate"_s}},
        {"more, with a menu, asked for that", false, full, menu, {opens}},
        {"more, draws its menu, asked for that", false, own, menu, {contextMenu}},
        {"with the middle button", true, full, secondary, {u"SecondaryActivate 10 37"_s}},
        {"asked for what it does besides", false, full, activate, {activates}},
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
        const auto done = [&] {
            return m_program.calls().filter(QRegularExpression(u"^(Act|Context|Second|a menu)"_s));
        };
        waitUntil([&] { return done().size() >= each.expected.size(); });
        settle(m_own, m_connection);
        EXPECT_EQ(done(), each.expected);
    }
}

TEST_F(ItemClientTest, ScrollingIsTwoAxesAndWhatComesAtOnceIsOne)
{
    client().scroll({0, 120});
    client().scroll({30, 120});
    waitUntil([&] { return m_program.calls().contains(u"Scroll 30 horizontal"_s); });
    EXPECT_EQ(m_program.calls().filter(u"Scroll"_s),
              (QStringList{u"Scroll 240 vertical"_s, u"Scroll 30 horizontal"_s}));
}

TEST_F(ItemClientTest, AnIndicatorScrollsByWholeNotchesTheOtherWay)
{
    m_program.properties = {{u"XAyatanaLabel"_s, QString()}};
    client().scroll({-120, 80});
    waitUntil([&] { return m_program.calls().contains(u"Scroll 1 horizontal"_s); });
    client().scroll({0, 80});
    waitUntil([&] { return m_program.calls().contains(u"Scroll -1 vertical"_s); });
    client().scroll({0, -40}); // cancels the rest
    settle(m_own, m_connection);
    settle(m_own, m_connection);
    EXPECT_EQ(m_program.calls().filter(u"Scroll"_s).size(), 2);
}

TEST_F(ItemClientTest, CanBeActivatedWhereItSaysSoUntilItsProgramSaysOtherwise)
{
    EXPECT_FALSE(client().canBeActivated());
    m_program.properties = {{u"ItemIsMenu"_s, false}};
    m_client.reset();
    EXPECT_TRUE(client().canBeActivated());
    m_program.unknownMethods = {u"Activate"_s};
    QSignalSpy changes(&client(), &ItemClient::changed);
    client().press(ItemGesture::activate, {});
    waitUntil([&] { return !changes.isEmpty(); });
    EXPECT_FALSE(client().canBeActivated());
}

TEST_F(ItemClientTest, APressTellsAPlaceOnTheScreen)
{
    m_surroundings.toScreen = [](QPointF point) { return (2 * point + QPointF(1000, 0)).toPoint(); };
    client().press(ItemGesture::press, {10, 5, 30, 32});
    waitUntil([&] { return m_program.calls().contains(u"Activate 1020 74"_s); });
}

TEST_F(ItemClientTest, AProgramMayBringUpItsWindowsBeforeItIsAskedTo)
{
    std::function<void(const QString &)> give;
    m_surroundings.requestToken = [&](const std::function<void(const QString &)> &wanted) { give = wanted; };
    m_program.properties = {{u"ItemIsMenu"_s, false}, {u"Menu"_s, path(u"/Menu"_s)}};
    m_program.menu.children = {labelled(1, u"Open"_s)};
    const auto asked = [&] {
        return m_program.calls().filter(QRegularExpression(u"^(Provide|Activate|Event 1 clicked|Event 0 closed)"_s));
    };
    client().press(ItemGesture::click, {});
    waitUntil([&] { return bool(give); });
    give(u"token-1"_s);
    waitUntil([&] { return asked().size() == 2; });
    EXPECT_EQ(asked(), (QStringList{u"ProvideXdgActivationToken token-1"_s, u"Activate 0 0"_s}));

    m_program.takeEvents();
    give = {};
    settle(m_own, m_connection);
    m_dispatch.runDue();
    client().menu()->open();
    client().menu()->choose(1);
    client().menu()->close();
    waitUntil([&] { return bool(give); });
    give({}); // there is no token
    waitUntil([&] { return asked().size() == 2; });
    EXPECT_EQ(asked(), (QStringList{u"Event 1 clicked"_s, u"Event 0 closed"_s}));

    m_program.takeEvents();
    client().press(ItemGesture::click, {});
    settle(m_own, m_connection);
    m_dispatch.advance(0.5); // and no answer either
    waitUntil([&] { return asked().size() == 1; });
    EXPECT_EQ(asked(), QStringList{u"Activate 0 0"_s});
}

TEST_F(ItemClientTest, AnItemWithNothingToPressGivesAMessage)
{
    m_program.unknownMethods = {u"Activate"_s, u"ContextMenu"_s};
    QSignalSpy messages(&client(), &ItemClient::message);
    client().press(ItemGesture::press, {});
    waitUntil([&] { return !messages.isEmpty(); });
    EXPECT_TRUE(messages[0][0].toString().contains(u"cannot be activated"_s));
}

} // namespace brimshade::desktop::tray
