#pragma once
#include "desktop/core/Desktop.h"
#include "desktop/time/VirtualDispatch.h"
#include "menubar/MenuBarAccess.h"
#include "platform/Symbol.h"

#include <functional>
#include <memory>

namespace brimshade::menubar::tests {

using namespace Qt::StringLiterals;
using desktop::ApplicationDescription;
using desktop::ExtraDescription;

// A movable item, laid out by the bar.
ExtraDescription item(const QString &identifier, double width = 30);
ExtraDescription itemAt(const QString &identifier, const QRectF &frame);
ExtraDescription group(std::vector<ExtraDescription> children);
ExtraDescription button(const QRectF &frame);

ApplicationDescription application(int pid, const QString &name, std::vector<ExtraDescription> extras);
ApplicationDescription systemAgent(std::vector<ExtraDescription> extras);
ApplicationDescription hung(ApplicationDescription application);

// 1512 × 982 points, a bar of 37, a notch from 663 to 849.
desktop::DesktopDescription notchedDesktop(std::vector<ApplicationDescription> applications);

// A desktop in virtual time with a scan queue, and the shortest way to what tests ask.
class MenuBarContext {
public:
    explicit MenuBarContext(const desktop::DesktopDescription &description);
    ~MenuBarContext();

    // Runs work on the scan queue and answers how many seconds it took there.
    double onScanQueue(const platform::Work &work);

    ExtraList scan(std::optional<QRectF> dividerFrame = std::nullopt);
    double secondsOfLastScan() const { return m_seconds; }
    MenuExtra found(const QString &identifier); // by a scan; fails the test when there is none

private:
    class NoSymbols;
    std::unique_ptr<NoSymbols> m_symbols;
    double m_seconds = 0;

public:
    desktop::VirtualDispatch dispatch;
    desktop::Desktop desktop;
    const platform::Platform platform;
    const std::shared_ptr<MenuBarAccess> access;
};

QStringList ids(const ExtraList &extras);
QStringList names(const ExtraList &extras);

} // namespace brimshade::menubar::tests
