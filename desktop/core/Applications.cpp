#include "Applications.h"
#include "AppIcons.h"
#include "ApplicationChange.h"
#include "DescribedMenu.h"
#include "MenuBar.h"
#include "MenuHost.h"

#include <algorithm>

using namespace brimshade::platform;
using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

bool isPinned(const ApplicationDescription &application, const ExtraDescription &extra)
{
    const QString identifier = extra.identifier.value_or(QString());
    return application.bundleIdentifier == u"com.apple.MenuBarAgent"_s
        && (identifier.endsWith(".clock"_L1) || identifier.endsWith(".controlcenter"_L1));
}

ItemSpec specOf(const ApplicationSpec &application, const ExtraDescription &extra)
{
    const auto found = application.items.find(extra.identifier.value_or(QString()));
    return found == application.items.end() ? ItemSpec() : found->second;
}

BarEntry::Place placeOf(const ApplicationSpec &application, const ExtraDescription &extra)
{
    if (extra.frameKind == ExtraDescription::Frame::fixed)
        return BarEntry::Place::fixed;
    const bool isListed =
        !specOf(application, extra).origin; // no program gets a pinned item by taking a pinned one's name
    return isListed && isPinned(application.description, extra) ? BarEntry::Place::pinned : BarEntry::Place::movable;
}

// Each part on a line of its own, so that no identity runs into another one.
QString identityOf(const KeptItem &kept)
{
    const QString item = kept.program + u'\n' + kept.id;
    return kept.ordinal == 0 ? item : item + u'\n' + QString::number(kept.ordinal);
}

KeptItem itemOf(const ApplicationDescription &application, const ExtraDescription &extra)
{
    const QString name = application.name.value_or(QString());
    return {.program = application.bundleIdentifier.value_or(name),
            .id = extra.identifier.value_or(extra.title.value_or(extra.description.value_or(QString())))};
}

RunningApplication running(const ApplicationDescription &application, const Image &icon)
{
    return {application.pid, application.bundleIdentifier, application.bundlePath, application.name, icon};
}

} // namespace

Applications::Applications(SharedState &state, MenuBar &menuBar, MenuHost &menus)
    : m_state(state), m_menuBar(menuBar), m_menus(menus)
{
}

Applications::~Applications() = default;

bool Applications::isRunning(int pid) const
{
    return m_hosted.contains(pid);
}

bool Applications::launch(const ApplicationSpec &application)
{
    const int pid = application.description.pid;
    if (pid <= 0 || isRunning(pid))
        return false;
    host(m_hosted.emplace(pid, Hosted{application, {}, {}}).first->second);
    if (application.isLive)
        Q_EMIT itemsChanged();
    return true;
}

bool Applications::change(int pid, const ApplicationSpec &application)
{
    const auto hosted = m_hosted.find(pid);
    if (hosted == m_hosted.end() || application.description.pid != pid)
        return false;
    const bool hasSameIcon =
        application.icon.isNull() && application.description.icon == hosted->second.given.description.icon;
    const ApplicationSpec before = std::exchange(hosted->second.given, application);
    if (!hasSameIcon)
        hosted->second.icon = {};
    host(hosted->second);
    if (!offerTheSame(before, application))
        Q_EMIT offersChanged();
    if (application.isLive && !listTheSame(before, application))
        Q_EMIT itemsChanged();
    return true;
}

bool Applications::quit(int pid)
{
    auto hosted = m_hosted.extract(pid);
    if (hosted.empty())
        return false;
    m_state.write([pid](DisplayState &state) {
        std::erase_if(state.applications,
                      [pid](const auto &application) { return application.processIdentifier == pid; });
        const auto process = state.processes.extract(pid);
        process.mapped().responsiveness->isRunning = false;
        if (process.mapped().extrasMenuBar)
            killChildren(*process.mapped().extrasMenuBar);
    });
    m_menuBar.update([&] {
        for (const Item &item : hosted.mapped().items) {
            if (item.entry)
                m_menuBar.remove(item.entry);
        }
    });
    dismissOrphanedMenu();
    if (hosted.mapped().given.isLive)
        Q_EMIT itemsChanged();
    return true;
}

void Applications::dismissOrphanedMenu()
{
    const auto *menu = qobject_cast<DescribedMenu *>(m_menus.openMenu());
    if (menu && !menu->element()->isAlive)
        m_menus.dismiss();
}

// Brings the bar and Accessibility in line with what the application says it is, whether new or changed.
void Applications::host(Hosted &hosted)
{
    if (hosted.icon.isNull())
        hosted.icon = hosted.given.icon.isNull() ? makeIcon(hosted.given.description) : hosted.given.icon;
    const auto extras = publish(hosted);
    auto before = std::exchange(hosted.items, {});
    m_menuBar.update([&] {
        for (const DescribedExtra &extra : extras) {
            const auto origin = specOf(hosted.given, extra.description).origin;
            Item item{extra, nullptr, origin ? origin->instance : QString()};
            item.entry = makeEntry(hosted, extra, takeEntry(before, item));
            hosted.items.push_back(std::move(item));
        }
        for (const Item &gone : before) {
            if (gone.entry)
                m_menuBar.remove(gone.entry);
        }
        m_menuBar.widthChanged();
        m_menuBar.lookChanged();
    });
    dismissOrphanedMenu();
}

// The entry that it had before: that of the same instance, or else of the same element.
BarEntryPointer Applications::takeEntry(std::vector<Item> &before, const Item &item)
{
    const auto found = std::ranges::find_if(before, [&item](const Item &earlier) {
        return item.instance.isEmpty() ? earlier.extra.element == item.extra.element
                                       : earlier.instance == item.instance;
    });
    return found == before.end() ? nullptr : std::exchange(found->entry, nullptr);
}

std::vector<DescribedExtra> Applications::publish(Hosted &hosted)
{
    const ApplicationDescription &description = hosted.given.description;
    return m_state.write([&](DisplayState &state) {
        const auto known =
            std::ranges::find(state.applications, description.pid, &RunningApplication::processIdentifier);
        if (known != state.applications.end())
            *known = running(description, hosted.icon);
        else
            state.applications.push_back(running(description, hosted.icon));
        if (description.bundlePath && !hosted.icon.isNull())
            state.bundleIcons.insert_or_assign(*description.bundlePath, hosted.icon);

        AccessibleProcess &process = state.processes[description.pid];
        if (!process.responsiveness)
            process.responsiveness = std::make_shared<Responsiveness>();
        process.responsiveness->hangs = description.hangs;
        process.responsiveness->latency = description.latency;
        if (!process.extrasMenuBar) {
            process.extrasMenuBar = std::make_shared<Element>(Element::Kind::extrasMenuBar, description.pid);
            process.extrasMenuBar->process = process.responsiveness;
            process.extrasMenuBar->role = u"AXMenuBar"_s;
        }
        auto extras =
            describeChildren(*process.extrasMenuBar, description.extras.value_or(std::vector<ExtraDescription>()));
        for (const DescribedExtra &extra : extras)
            extra.element->owner = hosted.given.isLive ? description.name.value_or(QString()) : QString();
        if (!description.extras) {
            process.extrasMenuBar->isAlive = false;
            process.extrasMenuBar = nullptr;
        }
        return extras;
    });
}

BarEntryPointer Applications::makeEntry(const Hosted &hosted, const DescribedExtra &extra, BarEntryPointer before)
{
    const bool isInBar = extra.description.frameKind != ExtraDescription::Frame::unreadable;
    const auto place = placeOf(hosted.given, extra.description);
    const auto origin = specOf(hosted.given, extra.description).origin;
    if (before && (!isInBar || before->place != place || before->kept.has_value() != origin.has_value()))
        m_menuBar.remove(std::exchange(before, nullptr));
    if (!isInBar)
        return nullptr;
    auto entry = before ? before : std::make_shared<BarEntry>();
    entry->place = place;
    describe(*entry, hosted, extra);
    if (before && origin)
        m_menuBar.rename(entry, {origin->program, origin->id});
    if (before)
        return entry;
    if (origin)
        entry->kept = {origin->program, origin->id};
    m_menuBar.add(entry);
    return entry;
}

void Applications::describe(BarEntry &entry, const Hosted &hosted, const DescribedExtra &extra)
{
    const ExtraDescription &description = extra.description;
    entry.pid = hosted.given.description.pid;
    entry.width = description.width;
    if (entry.place == BarEntry::Place::fixed)
        entry.frame = description.frame;
    attach(entry, extra.element);
    entry.handler = [this, pid = entry.pid, element = extra.element.get()](ItemGesture gesture) {
        carryOut(gesture, pid, element);
    };
    entry.identifier = description.identifier.value_or(QString());
    entry.title = description.title.value_or(QString());
    entry.description = description.description.value_or(QString());
    entry.symbol = description.symbol;
    const ItemSpec spec = specOf(hosted.given, description);
    entry.scroller = spec.scroller;
    entry.label = spec.label;
    entry.toolTip = spec.offer.toolTip;
    entry.wantsAttention = spec.offer.wantsAttention;
    entry.isAway = spec.isAway;
    entry.image = spec.image;
    if (spec.image.isNull() && description.role == "AXMenuBarItem"_L1)
        entry.image = hosted.icon;
}

// An item under a new name has a new element, in the place of the old one.
void Applications::attach(BarEntry &entry, const ElementPointer &element)
{
    if (std::exchange(entry.element, element) != element && entry.frame)
        m_state.write([&](DisplayState &) { element->frame = entry.frame; });
}

void Applications::asked(ItemGesture gesture, const ElementPointer &element)
{
    if (!element)
        return;
    Q_EMIT acted();
    carryOut(gesture, element->pid, element.get());
}

void Applications::askedInVain(const ElementPointer &element)
{
    const QString owner = m_state.read([&](const DisplayState &) { return element->owner; });
    if (!owner.isEmpty())
        Q_EMIT notified(owner, tr("It is no longer there."));
}

ItemSpec Applications::itemSpec(const ElementPointer &element) const
{
    if (!element)
        return {};
    const auto [hosted, item] = find(element->pid, element.get());
    return item ? specOf(hosted->given, item->extra.description) : ItemSpec();
}

QString Applications::identity(const ElementPointer &element) const
{
    const auto [hosted, item] = element ? find(element->pid, element.get()) : decltype(find(0, nullptr))();
    if (!item)
        return {};
    if (item->entry && item->entry->kept)
        return identityOf(*item->entry->kept);
    const ApplicationDescription &application = hosted->given.description;
    KeptItem listed = itemOf(application, item->extra.description);
    for (const Item *other = hosted->items.data(); other != item; ++other)
        listed.ordinal += itemOf(application, other->extra.description).isSame(listed);
    return identityOf(listed);
}

std::pair<const Applications::Hosted *, const Applications::Item *> Applications::find(int pid,
                                                                                       const Element *element) const
{
    const auto hosted = m_hosted.find(pid);
    if (hosted == m_hosted.end())
        return {};
    const auto &items = hosted->second.items;
    const auto item =
        std::ranges::find_if(items, [element](const Item &item) { return item.extra.element.get() == element; });
    return {&hosted->second, item == items.end() ? nullptr : &*item};
}

void Applications::carryOut(ItemGesture gesture, int pid, const Element *element)
{
    if (const auto [hosted, item] = find(pid, element); item) // otherwise it went away between the press and its effect
        carryOut(gesture, *hosted, *item);
}

void Applications::carryOut(ItemGesture gesture, const Hosted &hosted, const Item &item)
{
    const ExtraDescription &extra = item.extra.description;
    const QRectF frame = item.entry ? item.entry->frame.value_or(QRectF()) : QRectF();
    if (const ItemHandler handler = specOf(hosted.given, extra).handler) {
        handler(gesture, frame);
        return;
    }
    if (gesture == ItemGesture::secondary || gesture == ItemGesture::activate)
        return;
    const ApplicationDescription &application = hosted.given.description;
    const QString name = application.name.value_or(application.bundleIdentifier.value_or(QString()));
    if (extra.menu.isEmpty()) {
        Q_EMIT notified(name, extra.title.value_or(extra.description.value_or(name)));
        return;
    }
    m_menus.open(std::make_shared<DescribedMenu>(item.extra.element, extra.menu,
                                                 [this, name](const QString &title) { Q_EMIT notified(name, title); }),
                 frame);
}

} // namespace brimshade::desktop
