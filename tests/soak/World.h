#pragma once
#include "desktop/core/Desktop.h"
#include "desktop/core/DesktopDescription.h"

#include <deque>

namespace brimshade::soak {

inline constexpr int kHanging = 10; // applications that never answer

// The screens and the other programs around Brimshade, and how they come, change and go. Its changes repeat, so that
// one stretch of time is like another.
class World {
public:
    desktop::DesktopDescription description(); // the initial one

    void replaceAnApplication(desktop::Desktop &desktop); // the oldest quits, another one launches
    void renameAnItem(desktop::Desktop &desktop); // the newest application's
    void setNewestHangs(desktop::Desktop &desktop, bool hangs);
    void changeScreens(desktop::Desktop &desktop); // after four changes it is back at the first

private:
    desktop::ApplicationDescription next();
    void change(desktop::Desktop &desktop);

    std::deque<desktop::ApplicationDescription> m_running; // without those that never answer; oldest first
    int m_launched = 0;
    int m_renamed = 0;
    int m_arrangement = 0;
};

} // namespace brimshade::soak
