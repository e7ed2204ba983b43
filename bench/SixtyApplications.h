#pragma once
#include "desktop/core/DesktopDescription.h"

namespace brimshade::bench {

// Sixty applications with one item each; onboarding is done.
inline desktop::DesktopDescription sixtyApplications(const desktop::ScreenDescription &screen)
{
    using namespace Qt::StringLiterals;
    desktop::DesktopDescription description;
    description.screens = {screen};
    description.defaults.insert(u"onboardingDone"_s, true);
    for (int i = 0; i < 60; ++i) {
        desktop::ExtraDescription extra;
        extra.role = u"AXMenuBarItem"_s;
        extra.identifier = u"item%1"_s.arg(i);
        extra.actions = {u"AXPress"_s};
        desktop::ApplicationDescription application;
        application.pid = 1000 + i;
        application.name = u"Application %1"_s.arg(i);
        application.bundlePath = u"/Applications/Application%1.app"_s.arg(i);
        application.icon = u"#3b82f6"_s;
        application.extras = std::vector{extra};
        description.applications.push_back(application);
    }
    return description;
}

} // namespace brimshade::bench
