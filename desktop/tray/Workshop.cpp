#include "Workshop.h"

namespace brimshade::desktop::tray {

Workshop::Workshop(platform::Dispatch &dispatch)
    : m_dispatch(dispatch),
      m_queue(dispatch.makeSerialQueue(QStringLiteral("brimshade.tray"), platform::QualityOfService::utility)),
      m_tools(new Tools{{sessionThemePlaces(), [&dispatch] { return dispatch.now(); }},
                        ProgramFinder([&dispatch] { return dispatch.now(); })})
{
}

} // namespace brimshade::desktop::tray
