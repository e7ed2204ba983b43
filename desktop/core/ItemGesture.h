#pragma once

namespace brimshade::desktop {

// What a person does to an item of the bar.
enum class ItemGesture {
    click, // with the left button
    menu, // with the right button, or with Control: opens its menu, whatever else it can do
    secondary, // with the middle button
    press, // through Accessibility, as the panel does
    activate, // what it does besides showing its menu
};

} // namespace brimshade::desktop
