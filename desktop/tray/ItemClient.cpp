#include "ItemClient.h"

#include "MenuClient.h"

namespace brimshade::desktop::tray {

namespace {
constexpr auto kItemInterface = "org.kde.StatusNotifierItem";
constexpr auto kProperties = "org.freedesktop.DBus.Properties";
} // namespace

ItemClient::ItemClient(const QDBusConnection &bus, const ItemKey &key, platform::Dispatch &dispatch,
                       const IconFinder &icons)
    : m_bus(bus), m_key(key), m_address{key.owner, key.path, QString::fromLatin1(kItemInterface)}, m_dispatch(dispatch),
      m_icons(icons), m_refresh(dispatch, [this] { fetch(); }), m_life(bus, key.owner, dispatch),
      m_press(bus, m_address, m_life, dispatch)
{
    connect(&m_press, &ItemPress::menuReady, this, &ItemClient::menuReady);
    connect(&m_press, &ItemPress::message, this, &ItemClient::say);
    connect(&m_life, &LifeSign::silent, this, [this] {
        if (!m_press.isProgramBusy())
            Q_EMIT unanswered();
    });
    // Without a name: every signal of the interface.
    m_bus.connect(key.owner, key.path, m_address.interface, QString(), this, SLOT(signalled()));
    m_refresh.requestNow();
}

ItemClient::~ItemClient() = default;

void ItemClient::signalled()
{
    m_refresh.request();
}

void ItemClient::fetch()
{
    const BusAddress properties{m_key.owner, m_key.path, QString::fromLatin1(kProperties)};
    callAsync(m_bus, properties, QStringLiteral("GetAll"), {m_address.interface}, this, [this](const BusReply &reply) {
        m_refresh.finished();
        receive(reply);
    });
}

void ItemClient::receive(const BusReply &reply)
{
    if (!reply)
        say(QStringLiteral("it does not tell its properties: %1").arg(reply.error().text));
    else
        take(parseItem(reply->value(0).toMap()));
}

void ItemClient::take(ParsedItem parsed)
{
    if (!parsed.complaints.isEmpty())
        say(parsed.complaints.first());
    // Some programs draw a new picture into the file that they named before.
    auto image = m_icons.itemImage(parsed.item);
    if (m_item == parsed.item && m_image.bitmap() == image.bitmap())
        return;
    m_item = std::move(parsed.item);
    m_image = std::move(image);
    updateMenu();
    Q_EMIT changed();
}

void ItemClient::updateMenu()
{
    if (m_item->menuPath == (m_menu ? m_menu->path() : QString()))
        return;
    m_menu.reset();
    if (m_item->menuPath.isEmpty())
        return;
    const auto picture = [icons = m_icons, theme = m_item->iconThemePath](const QString &name) {
        return icons.find(name, theme);
    };
    m_menu = std::make_unique<MenuClient>(m_bus, m_key.owner, m_item->menuPath, m_dispatch, m_life, picture);
    connect(m_menu.get(), &MenuClient::ready, &m_press, &ItemPress::menuIsReady);
    connect(m_menu.get(), &MenuClient::unusable, &m_press, &ItemPress::tryNext);
    connect(m_menu.get(), &MenuClient::message, this, &ItemClient::say);
}

void ItemClient::press(ItemGesture gesture, const QRectF &frame)
{
    if (m_item)
        m_press.start(pressOrder(*m_item, gesture), m_menu.get(), frame);
}

void ItemClient::lapse()
{
    m_press.lapse();
}

void ItemClient::say(const QString &text)
{
    if (text == std::exchange(m_lastMessage, text))
        return;
    const auto name = m_item && !m_item->nameForPeople().isEmpty() ? m_item->nameForPeople() : m_key.text();
    Q_EMIT message(QStringLiteral("Tray item %1: %2").arg(name, text).simplified().left(500));
}

} // namespace brimshade::desktop::tray
