#include "MoveMessages.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::app {

namespace {

QString sentence(menubar::MenuBarMover::Failure failure)
{
    using enum menubar::MenuBarMover::Failure;
    switch (failure) {
    case menuBarHidden:
        return u"the menu bar isn't showing on this display (a full-screen app, or the active menu bar is on another "
               "screen). Try again from the desktop."_s;
    case noRoom:
        return u"there's no room for it next to the notch. Hide another item first."_s;
    case didNotMove:
        return u"macOS didn't accept the move. Try again, or Cmd-drag it across the divider."_s;
    }
    return {};
}

// By code points, where QString's own order would put the astral ones before the end of the basic plane.
bool comesBefore(const QString &a, const QString &b)
{
    return std::ranges::lexicographical_compare(a.toUcs4(), b.toUcs4());
}

} // namespace

QString failureMessage(const menubar::MenuExtra &extra, menubar::MenuBarMover::Failure failure)
{
    return extra.name + u": "_s + sentence(failure);
}

QString failureSummary(const MoveMessages &messages)
{
    QStringList sorted = messages.values();
    std::ranges::sort(sorted, comesBefore);
    return u"Some items didn't move. "_s + sorted.join(u' ');
}

} // namespace brimshade::app
