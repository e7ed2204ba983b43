#pragma once
#include "menubar/MenuBarAccess.h"
#include "support/TestDesktop.h"

namespace brimshade::menubar::tests {

using desktop::ApplicationDescription;
using desktop::ExtraDescription;

// A desktop in virtual time with a scan queue, and shortcuts to what tests ask for.
class MenuBarContext : public TestDesktop {
public:
    explicit MenuBarContext(std::vector<ApplicationDescription> applications)
        : MenuBarContext(notchedDesktop(std::move(applications)))
    {
    }
    explicit MenuBarContext(const desktop::DesktopDescription &description)
        : TestDesktop(description), access(std::make_shared<MenuBarAccess>(platform))
    {
    }

    // Runs work on the scan queue and returns how many seconds it took there.
    double onScanQueue(const platform::Work &work);

    ExtraList scan(std::optional<QRectF> dividerFrame = std::nullopt);
    double secondsOfLastScan = 0;
    MenuExtra found(const QString &identifier); // by a scan; fails the test if there is none

    const std::shared_ptr<MenuBarAccess> access;
};

QStringList ids(const ExtraList &extras);

} // namespace brimshade::menubar::tests
