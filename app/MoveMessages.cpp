#include "MoveMessages.h"

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
    return Text::tr("Some items didn't move.") + u' ' + sorted.join(u' ');
}

} // namespace brimshade::app
