#pragma once
#include "platform/Screens.h"

namespace brimshade::platform {
class Application;
}

namespace brimshade::app {

// The screen that the panel opens on, and where on it. Main thread; screen space.
class PanelPlacement {
public:
    PanelPlacement(const platform::Screens &screens, const platform::Application &application);

    // The screen of the last opening, as it was then; before the first one, the main screen.
    const platform::Screen &screen() const { return m_screen; }
    // The screen that an opening would use now: the notched screen, else the one under the pointer, else the main one,
    // else the one used last time.
    platform::Screen currentScreen() const;
    void chooseScreen() { m_screen = currentScreen(); }

    QSizeF notchSize() const; // a stand-in where the screen has no notch
    QRectF panelFrame() const; // hangs from the top of the screen, centred on the notch

private:
    std::optional<platform::Screen> screenUnderPointer() const;

    const platform::Screens &m_screens;
    const platform::Application &m_application;
    platform::Screen m_screen;
};

} // namespace brimshade::app
