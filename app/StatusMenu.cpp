#include "StatusMenu.h"

#include "PanelPresenter.h"
#include "ScanScheduler.h"
#include "SecondaryWindows.h"
#include "model/NotchModel.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StatusBar.h"
#include "platform/Weakly.h"

using namespace Qt::StringLiterals;

namespace brimshade::app {

using platform::weakly;

namespace {

platform::MenuItem entry(const QString &title, const QString &keyEquivalent, platform::Work action)
{
    platform::MenuItem item;
    item.title = title;
    item.keyEquivalent = keyEquivalent;
    item.action = std::move(action);
    return item;
}

} // namespace

StatusMenu::StatusMenu(const platform::Platform &platform, Parts parts)
    : m_application(platform.application), m_log(platform.log), m_parts(std::move(parts))
{
}

StatusMenu::~StatusMenu() = default;

void StatusMenu::clicked()
{
    const std::optional<platform::NSEventType> event = m_application.currentEventType();
    const QString moving = m_parts.model->movingID();
    m_log.write(platform::LogLevel::info, "status item clicked, event %lu, shown %{bool}d, moving %{public}s",
                {static_cast<unsigned long>(event.value_or(platform::NSEventType(0))), m_parts.panel->shown(),
                 moving.isEmpty() ? u"-"_s : moving});
    if (event == platform::rightMouseUp)
        popUp();
    else
        m_parts.panel->toggle();
}

void StatusMenu::popUp()
{
    platform::StatusBarButton *button = m_parts.item->button();
    if (!button)
        return;
    // Attached only while it is open, so that the next left click comes here again.
    m_parts.item->setMenu(menu());
    button->performClick(weakly(weak_from_this(), &StatusMenu::detach));
}

void StatusMenu::detach()
{
    m_parts.item->setMenu({});
}

platform::Menu StatusMenu::menu() const
{
    const std::weak_ptr windows = m_parts.windows;
    return {{entry(tr("Settings…"), u","_s, weakly(windows, &SecondaryWindows::openSettings)),
             entry(tr("Setup Guide…"), {}, weakly(windows, &SecondaryWindows::showOnboarding)),
             entry(tr("Refresh"), u"r"_s, weakly(std::weak_ptr(m_parts.scans), &ScanScheduler::scan)),
             platform::MenuItem::separator(),
             entry(tr("Quit Brimshade"), u"q"_s, [&application = m_application] { application.terminate(); })}};
}

} // namespace brimshade::app
