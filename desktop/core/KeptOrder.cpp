#include "KeptOrder.h"

#include <QDateTime>
#include <algorithm>

namespace brimshade::desktop {

namespace {

// Never ends in the middle of a character.
QString shortened(const QString &text)
{
    const QString start = text.first(std::min<qsizetype>(text.size(), KeptOrder::kLongestText));
    return !start.isEmpty() && start.back().isHighSurrogate() ? start.chopped(1) : start;
}

} // namespace

KeptOrder::KeptOrder(Today today)
    : m_today(std::move(today)), m_records{{.slot = {}, .seen = {}, .isPresent = true}} { }

QDate KeptOrder::currentDay()
{
    return QDateTime::currentDateTimeUtc().date();
}

// Setting the clock back makes nothing older.
QDate KeptOrder::lastSeen(const Record &record) const
{
    return record.isPresent ? std::max(record.seen, m_today()) : record.seen;
}

std::vector<KeptOrder::Record>::iterator KeptOrder::find(const Slot &slot)
{
    return std::ranges::find(m_records, slot, &Record::slot);
}

KeptItem KeptOrder::numbered(KeptItem who)
{
    who.program = shortened(who.program);
    who.id = shortened(who.id);
    const auto isTaken = [&] {
        const auto found = find(who);
        return found != m_records.end() && found->isPresent;
    };
    for (who.ordinal = 0; isTaken(); ++who.ordinal) { }
    return who;
}

void KeptOrder::enter(const KeptItem &item)
{
    if (const auto known = find(item); known != m_records.end())
        known->isPresent = true;
    else
        m_records.insert(find({}), {.slot = item, .seen = {}, .isPresent = true});
}

KeptItem KeptOrder::arrive(const KeptItem &who)
{
    KeptItem item = numbered(who);
    enter(item);
    forget();
    return item;
}

void KeptOrder::leave(const KeptItem &item)
{
    if (const auto found = find(item); found != m_records.end()) {
        found->seen = lastSeen(*found);
        found->isPresent = false;
    }
}

KeptItem KeptOrder::rename(const KeptItem &item, const KeptItem &who)
{
    KeptItem renamed = numbered(who);
    if (item.isSame(renamed))
        return item;
    if (find(renamed) == m_records.end()) {
        find(item)->slot = renamed;
    } else {
        m_records.erase(find(item));
        enter(renamed);
    }
    return renamed;
}

void KeptOrder::move(const Slot &moved, const std::vector<Slot> &present)
{
    const auto at = std::ranges::find(present, moved);
    const auto from = find(moved);
    if (at == present.end() || from == m_records.end())
        return;
    const Record record = *from;
    const auto before = from - m_records.begin();
    m_records.erase(from);
    const auto first = at == present.begin() ? m_records.begin() : std::next(find(*std::prev(at)));
    const auto last = std::next(at) == present.end() ? m_records.end() : find(*std::next(at));
    const auto to = std::clamp(before, first - m_records.begin(), std::max(first, last) - m_records.begin());
    m_records.insert(m_records.begin() + to, record);
}

void KeptOrder::append(const Slot &slot, QDate seen)
{
    if (const auto own = find(slot); !slot)
        std::rotate(own, std::next(own), m_records.end());
    else if (own == m_records.end())
        m_records.push_back({.slot = slot, .seen = seen});
}

void KeptOrder::restore(KeptOrder before)
{
    for (Record &record : before.m_records) {
        if (record.slot)
            before.leave(*record.slot);
    }
    for (const Record &record : m_records) {
        if (record.slot && record.isPresent)
            before.enter(*record.slot);
    }
    m_records = std::move(before.m_records);
    forget();
}

void KeptOrder::forget()
{
    std::erase_if(m_records, [today = m_today()](const Record &record) {
        return !record.isPresent && record.seen.addDays(kDaysKept) < today;
    });
    while (m_records.size() > kMost + 1) {
        const auto age = [](const Record &record) { return std::pair(record.isPresent, record.seen); };
        const auto oldest = std::ranges::min_element(m_records, {}, age);
        if (oldest->isPresent)
            return; // more are present at once than are kept
        m_records.erase(oldest);
    }
}

} // namespace brimshade::desktop
