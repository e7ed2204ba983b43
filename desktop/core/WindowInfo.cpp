#include "WindowInfo.h"
#include "SharedState.h"
#include "platform/Window.h"

#include <algorithm>

using namespace brimshade::platform;
using namespace Qt::StringLiterals;

namespace brimshade::desktop {

QVariantMap windowInfo(int level, const QRectF &bounds)
{
    const QVariantMap rect{
        {u"X"_s, bounds.x()}, {u"Y"_s, bounds.y()}, {u"Width"_s, bounds.width()}, {u"Height"_s, bounds.height()}};
    return {{QLatin1StringView(kCGWindowLayer), level}, {QLatin1StringView(kCGWindowBounds), rect}};
}

std::vector<QVariantMap> WindowInfoService::copyWindowInfo() const
{
    return m_state.read([](const DisplayState &state) {
        std::vector<QVariantMap> list = state.windowInfo;
        const auto below = std::ranges::find_if(list, [](const QVariantMap &info) {
            return info.value(QLatin1StringView(kCGWindowLayer)).toInt() < kMainMenuWindowLevel;
        });
        list.insert(below, state.menuBarInfo.begin(), state.menuBarInfo.end());
        return list;
    });
}

int WindowInfoService::levelForKey(int key) const
{
    return key == kCGMainMenuWindowLevelKey ? kMainMenuWindowLevel : kNormalWindowLevel;
}

} // namespace brimshade::desktop
