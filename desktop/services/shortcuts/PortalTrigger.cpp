#include "PortalTrigger.h"

#include "desktop/services/Keysyms.h"
#include "platform/HotkeyCenter.h"

#include <array>
#include <utility>
#include <xkbcommon/xkbcommon.h>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr std::array<std::pair<std::uint32_t, const char *>, 4> kModifiers{{{platform::kCarbonControl, "CTRL+"},
                                                                            {platform::kCarbonOption, "ALT+"},
                                                                            {platform::kCarbonShift, "SHIFT+"},
                                                                            {platform::kCarbonCommand, "LOGO+"}}};

} // namespace

QString portalTrigger(HotkeyCombination combination)
{
    std::array<char, 64> key{};
    const std::uint32_t keysym = keysymOf(combination.keyCode);
    if (!keysym || xkb_keysym_get_name(keysym, key.data(), key.size()) <= 0)
        return {};
    QString trigger;
    for (const auto &[carbon, name] : kModifiers) {
        if (combination.modifiers & carbon)
            trigger += QLatin1String(name);
    }
    return trigger + QLatin1String(key.data());
}

} // namespace brimshade::desktop
