#pragma once
#include "desktop/core/Desktop.h"
#include "desktop/core/Inspection.h"
#include "desktop/time/VirtualDispatch.h"
#include "menubar/MenuBarAccess.h"
#include "platform/Screens.h"
#include "support/Descriptions.h"
#include "support/FakeSystem.h"

namespace brimshade::menubar::tests {

using desktop::ApplicationDescription;
using desktop::ExtraDescription;

// A desktop in virtual time with a scan queue, and the shortest way to what tests ask.
class MenuBarContext {
public:
    explicit MenuBarContext(std::vector<ApplicationDescription> applications)
        : MenuBarContext(notchedDesktop(std::move(applications)))
    {
    }
    explicit MenuBarContext(const desktop::DesktopDescription &description)
        : desktop({dispatch, m_symbols, nullptr, nullptr}, description), platform(desktop.platform()),
          access(std::make_shared<MenuBarAccess>(platform))
    {
    }

    // Runs work on the scan queue and answers how many seconds it took there.
    double onScanQueue(const platform::Work &work);

    ExtraList scan(std::optional<QRectF> dividerFrame = std::nullopt);
    double secondsOfLastScan() const { return m_seconds; }
    MenuExtra found(const QString &identifier); // by a scan; fails the test when there is none

private:
    FakeSymbols m_symbols;
    double m_seconds = 0;

public:
    desktop::VirtualDispatch dispatch;
    desktop::Desktop desktop;
    const platform::Platform platform;
    const std::shared_ptr<MenuBarAccess> access;
};

QStringList ids(const ExtraList &extras);

} // namespace brimshade::menubar::tests
