#include "ItemClient.h"

#include "MenuClient.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {
constexpr auto kItemInterface = "org.kde.StatusNotifierItem";
constexpr auto kProperties = "org.freedesktop.DBus.Properties";
} // namespace

ItemClient::ItemClient(const QDBusConnection &bus, const ItemKey &key, const Workshop &workshop,
                       const Surroundings &surroundings)
    : m_bus(bus), m_key(key), m_address{key.owner, key.path, QString::fromLatin1(kItemInterface)}, m_workshop(workshop),
      m_surroundings(surroundings), m_refresh(workshop.dispatch(), [this] { fetch(); }),
      m_life(bus, key.owner, workshop.dispatch()), m_activation(bus, m_address, surroundings, workshop.dispatch()),
      m_press(bus, m_address, m_life, m_activation, workshop.dispatch())
{
    connect(&m_press, &ItemPress::menuReady, this, &ItemClient::menuReady);
    connect(&m_press, &ItemPress::message, this, &ItemClient::say);
    connect(&m_press, &ItemPress::learned, this, &ItemClient::changed);
    connect(&m_life, &LifeSign::heard, this, &ItemClient::sendScroll);
    connect(&m_life, &LifeSign::silent, this, [this] {
        m_scrolled = {};
        if (!m_press.isProgramBusy())
            Q_EMIT unanswered();
    });
    // No signal name: this receives every signal of the interface.
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
    callAsync(m_bus, properties, u"GetAll"_s, {m_address.interface}, this,
              [this](const BusReply &reply) { receive(reply); });
}

void ItemClient::receive(const BusReply &reply)
{
    if (!reply) {
        if (m_item && reply.error().isUnknown()) {
            Q_EMIT gone();
            return;
        }
        say(u"its properties cannot be read: %1"_s.arg(reply.error().text));
        m_refresh.failed();
        return;
    }
    const auto parsed = parseItem(reply->value(0).toMap());
    if (!parsed.complaints.isEmpty())
        say(parsed.complaints.first());
    m_workshop.run([item = parsed.item](Workshop::Tools &tools) { return tools.icons.itemPictures(item); },
                   m_lifetime.guard([this, item = parsed.item](const ItemPictures &pictures) {
                       take(item, pictures);
                       m_refresh.finished();
                   }));
}

void ItemClient::take(const TrayItem &item, const ItemPictures &pictures)
{
    // Some programs redraw the file that they named before, so compare the pixels. A picture that looks the same is
    // kept.
    const bool isSameOverlay = m_pictures.overlay.bitmap() == pictures.overlay.bitmap();
    if (m_item == item && m_pictures.whole.bitmap() == pictures.whole.bitmap() && isSameOverlay)
        return;
    m_item = item;
    m_pictures.whole = pictures.whole;
    if (!isSameOverlay)
        m_pictures.overlay = pictures.overlay;
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
    m_menu = std::make_unique<MenuClient>(m_bus, m_key.owner, m_item->menuPath, m_workshop, m_life, m_activation);
    m_menu->setIconThemePath(m_item->iconThemePath);
    connect(m_menu.get(), &MenuClient::ready, &m_press, &ItemPress::menuIsReady);
    connect(m_menu.get(), &MenuClient::unusable, &m_press, &ItemPress::tryNext);
    connect(m_menu.get(), &MenuClient::message, this, &ItemClient::say);
}

void ItemClient::press(ItemGesture gesture, const QRectF &frame)
{
    if (!m_item)
        return;
    const auto corner = frame.bottomLeft();
    m_press.start(pressOrder(*m_item, gesture), m_menu.get(), frame,
                  m_surroundings.toScreen ? m_surroundings.toScreen(corner) : corner.toPoint());
}

void ItemClient::lapse()
{
    m_press.lapse();
}

// Scrolling that comes while the program is being asked for a sign of life is sent as one request.
void ItemClient::scroll(QPoint by)
{
    m_scrolled += by;
    m_life.ask();
}

void ItemClient::sendScroll()
{
    if (!m_item)
        return;
    const auto by = takeScroll(*m_item, m_scrolled);
    if (by.y() != 0)
        notify(m_bus, m_address, u"Scroll"_s, {by.y(), u"vertical"_s});
    if (by.x() != 0)
        notify(m_bus, m_address, u"Scroll"_s, {by.x(), u"horizontal"_s});
}

bool ItemClient::canBeActivated() const
{
    return m_item && m_item->itemIsMenu == false && m_press.canActivate();
}

void ItemClient::say(const QString &text)
{
    if (text == std::exchange(m_lastMessage, text))
        return;
    const auto name = m_item && !m_item->nameForPeople().isEmpty() ? m_item->nameForPeople() : m_key.text();
    Q_EMIT message(u"Tray item %1: %2"_s.arg(name, text).simplified().left(500));
}

} // namespace brimshade::desktop::tray
