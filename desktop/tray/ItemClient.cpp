#include "ItemClient.h"

#include "MenuClient.h"

namespace brimshade::desktop::tray {

namespace {
constexpr auto kItemInterface = "org.kde.StatusNotifierItem";
constexpr auto kProperties = "org.freedesktop.DBus.Properties";
} // namespace

ItemClient::ItemClient(const QDBusConnection &bus, const ItemKey &key, const Workshop &workshop)
    : m_bus(bus), m_key(key), m_address{key.owner, key.path, QString::fromLatin1(kItemInterface)}, m_workshop(workshop),
      m_refresh(workshop.dispatch(), [this] { fetch(); }), m_life(bus, key.owner, workshop.dispatch()),
      m_press(bus, m_address, m_life, workshop.dispatch())
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
    callAsync(m_bus, properties, QStringLiteral("GetAll"), {m_address.interface}, this,
              [this](const BusReply &reply) { receive(reply); });
}

void ItemClient::receive(const BusReply &reply)
{
    if (!reply) {
        say(QStringLiteral("it does not tell its properties: %1").arg(reply.error().text));
        m_refresh.failed();
        return;
    }
    const auto parsed = parseItem(reply->value(0).toMap());
    if (!parsed.complaints.isEmpty())
        say(parsed.complaints.first());
    m_workshop.run([item = parsed.item](Workshop::Tools &tools) { return tools.icons.itemImage(item); },
                   m_lifetime.guard([this, item = parsed.item](const platform::Image &image) {
                       take(item, image);
                       m_refresh.finished();
                   }));
}

void ItemClient::take(const TrayItem &item, const platform::Image &image)
{
    // Some programs draw a new picture into the file that they named before.
    if (m_item == item && m_image.bitmap() == image.bitmap())
        return;
    m_item = item;
    m_image = image;
    updateMenu();
    Q_EMIT changed();
}

void ItemClient::updateMenu()
{
    if (m_item->menuPath == (m_menu ? m_menu->path() : QString())) {
        if (m_menu)
            m_menu->setIconThemePath(m_item->iconThemePath);
        return;
    }
    m_menu.reset();
    if (m_item->menuPath.isEmpty())
        return;
    m_menu = std::make_unique<MenuClient>(m_bus, m_key.owner, m_item->menuPath, m_workshop, m_life);
    m_menu->setIconThemePath(m_item->iconThemePath);
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
