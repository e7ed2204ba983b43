#pragma once
#include "desktop/core/Desktop.h"
#include "desktop/core/DesktopDescription.h"

#include <deque>

namespace brimshade::soak {

inline constexpr int kHanging = 10; // of the applications never answer

// The screens and the other programs around Brimshade, and how they come, change and go. What it goes through repeats
// itself, so that one stretch of time is like another.
class World {
public:
    desktop::DesktopDescription description(); // as it is at first

    void replaceAnApplication(desktop::Desktop &desktop); // the oldest quits, another one launches
    void renameAnItem(desktop::Desktop &desktop); // of the newest application
    void setNewestHangs(desktop::Desktop &desktop, bool hangs);
    void changeScreens(desktop::Desktop &desktop); // back at the first after four

private:
    desktop::ApplicationDescription next();
    void change(desktop::Desktop &desktop);

    std::deque<desktop::ApplicationDescription> m_running; // without those that never answer; oldest first
    int m_launched = 0;
    int m_renamed = 0;
    int m_arrangement = 0;
};

} // namespace brimshade::soak
