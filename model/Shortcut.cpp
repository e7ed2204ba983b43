#include "Shortcut.h"
#include "platform/HotkeyCenter.h"

#include <algorithm>

namespace brimshade::model {

namespace {

using namespace Qt::StringLiterals;
using platform::kCarbonCommand;
using platform::kCarbonControl;
using platform::kCarbonOption;

// Layout-independent virtual key codes of the ANSI keyboard.
constexpr std::uint32_t kKeyN = 45;
constexpr std::uint32_t kKeyM = 46;
constexpr std::uint32_t kKeySpace = 49;

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
    switch (shortcut) {
    case Shortcut::none:
        break;
    case Shortcut::optionCommandN:
        return u"⌥⌘N"_s;
    case Shortcut::controlOptionSpace:
        return u"⌃⌥Space"_s;
    case Shortcut::controlOptionCommandM:
        return u"⌃⌥⌘M"_s;
    }
    return u"None"_s;
}

std::optional<KeyCombination> keyCombination(Shortcut shortcut)
{
    switch (shortcut) {
    case Shortcut::none:
        break;
    case Shortcut::optionCommandN:
        return KeyCombination{kKeyN, kCarbonCommand | kCarbonOption};
    case Shortcut::controlOptionSpace:
        return KeyCombination{kKeySpace, kCarbonOption | kCarbonControl};
    case Shortcut::controlOptionCommandM:
        return KeyCombination{kKeyM, kCarbonCommand | kCarbonOption | kCarbonControl};
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
