#include "Workshop.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

Workshop::Workshop(platform::Dispatch &dispatch)
    : m_dispatch(dispatch), m_queue(dispatch.makeSerialQueue(u"brimshade.tray"_s, platform::QualityOfService::utility)),
      m_tools(new Tools{{sessionThemePlaces(), [&dispatch] { return dispatch.now(); }},
                        ProgramFinder([&dispatch] { return dispatch.now(); })})
{
}

} // namespace brimshade::desktop::tray
