#include "Inspection.h"
#include "SharedState.h"

namespace brimshade::desktop {

namespace {

template <typename List, typename Entry> List taken(std::deque<Entry> &entries)
{
    List list(entries.begin(), entries.end());
    entries.clear();
    return list;
}

} // namespace

std::vector<SyntheticEvent> Inspection::takeEvents()
{
    return m_state.write([](DisplayState &state) { return taken<std::vector<SyntheticEvent>>(state.events); });
}

std::vector<PerformedAction> Inspection::takeActions()
{
    return m_state.write([](DisplayState &state) { return taken<std::vector<PerformedAction>>(state.actions); });
}

QStringList Inspection::takeOpenedURLs()
{
    return m_state.write([](DisplayState &state) { return taken<QStringList>(state.openedURLs); });
}

QStringList Inspection::takeMessages()
{
    return m_state.write([](DisplayState &state) { return taken<QStringList>(state.messages); });
}

int Inspection::promptCount() const
{
    return m_state.read([](const DisplayState &state) { return state.promptCount; });
}

std::uint64_t Inspection::requestCount() const
{
    return m_state.read([](const DisplayState &state) { return state.attributeReads; });
}

} // namespace brimshade::desktop
