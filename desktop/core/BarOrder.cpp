#include "BarOrder.h"

#include <algorithm>

namespace brimshade::desktop {

using Place = BarEntry::Place;

std::size_t BarOrder::pinnedCount() const
{
    return std::ranges::count(m_laidOut, Place::pinned, &BarEntry::place);
}

void BarOrder::add(const BarEntryPointer &entry)
{
    if (entry->place == Place::fixed)
        m_fixed.push_back(entry);
    else if (entry->place == Place::movable)
        m_laidOut.push_back(entry);
    else
        m_laidOut.insert(m_laidOut.begin() + static_cast<std::ptrdiff_t>(pinnedCount()), entry);
}

void BarOrder::remove(const BarEntryPointer &entry)
{
    std::erase(m_laidOut, entry);
    std::erase(m_fixed, entry);
}

std::vector<double> BarOrder::widths(Place place) const
{
    std::vector<double> widths;
    for (const auto &entry : m_laidOut) {
        if (entry->place == place)
            widths.push_back(entry->isAway ? 0 : entry->width);
    }
    return widths;
}

bool BarOrder::moveTo(const BarEntryPointer &entry, std::size_t index)
{
    const auto at = std::ranges::find(m_laidOut, entry);
    if (at == m_laidOut.end() || entry->place == Place::pinned)
        return false;
    const auto from = static_cast<std::size_t>(at - m_laidOut.begin());
    const std::size_t to = std::clamp(index, pinnedCount(), m_laidOut.size() - 1);
    if (from == to)
        return false;
    m_laidOut.erase(at);
    m_laidOut.insert(m_laidOut.begin() + static_cast<std::ptrdiff_t>(to), entry);
    return true;
}

} // namespace brimshade::desktop
