#include "MoveMessages.h"

#include "menubar/Text.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::app {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(MoveMessages)
};

QString sentence(menubar::MenuBarMover::Failure failure)
{
    using enum menubar::MenuBarMover::Failure;
    switch (failure) {
    case menuBarHidden:
        return Text::tr("the menu bar isn't showing on this display (a full-screen app, or the active menu bar is on "
                        "another screen). Try again from the desktop.");
    case noRoom:
        return Text::tr("there's no room for it next to the notch. Hide another item first.");
    case didNotMove:
        return Text::tr("macOS didn't accept the move. Try again, or Cmd-drag it across the divider.");
    }
    return {};
}

} // namespace

QString failureMessage(const menubar::MenuExtra &extra, menubar::MenuBarMover::Failure failure)
{
    return extra.name + u": "_s + sentence(failure);
}

QString failureSummary(const MoveMessages &messages)
{
    QStringList sorted = messages.values();
    std::ranges::sort(sorted, menubar::isOrderedBefore);
    return Text::tr("Some items didn't move.") + u' ' + sorted.join(u' ');
}

} // namespace brimshade::app
