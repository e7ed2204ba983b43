#include "Shortcut.h"
#include "platform/HotkeyCenter.h"
#include "platform/KeyCodes.h"

#include <algorithm>

namespace brimshade::model {

namespace {

using namespace Qt::StringLiterals;
using platform::kCarbonCommand;
using platform::kCarbonControl;
using platform::kCarbonOption;

} // namespace

QString rawValue(Shortcut shortcut)
{
    switch (shortcut) {
    case Shortcut::none:
        break;
    case Shortcut::optionCommandN:
        return u"optionCommandN"_s;
    case Shortcut::controlOptionSpace:
        return u"controlOptionSpace"_s;
    case Shortcut::controlOptionCommandM:
        return u"controlOptionCommandM"_s;
    }
    return u"none"_s;
}

QString displayTitle(Shortcut shortcut)
{
    const auto keys = keyCombination(shortcut);
    return keys ? displayTitle(*keys) : u"None"_s;
}

std::optional<KeyCombination> keyCombination(Shortcut shortcut)
{
    switch (shortcut) {
    case Shortcut::none:
        break;
    case Shortcut::optionCommandN:
        return KeyCombination{platform::kVK_ANSI_N, kCarbonCommand | kCarbonOption};
    case Shortcut::controlOptionSpace:
        return KeyCombination{platform::kVK_Space, kCarbonOption | kCarbonControl};
    case Shortcut::controlOptionCommandM:
        return KeyCombination{platform::kVK_ANSI_M, kCarbonCommand | kCarbonOption | kCarbonControl};
    }
    return std::nullopt;
}

std::optional<Shortcut> shortcutFromRawValue(const QString &raw)
{
    const auto found = std::ranges::find_if(allShortcuts, [&](Shortcut shortcut) { return rawValue(shortcut) == raw; });
    if (found == allShortcuts.end())
        return std::nullopt;
    return *found;
}

} // namespace brimshade::model
