#include "Person.h"
#include "app/AppDelegate.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/DesktopWindow.h"
#include "desktop/core/MenuBar.h"
#include "desktop/core/WindowStack.h"
#include "desktop/stage/scene/SceneHost.h"
#include "desktop/time/VirtualDispatch.h"
#include "menubar/NotchGeometry.h"
#include "model/NotchModel.h"
#include "platform/Screens.h"

#include <QJsonArray>
#include <cstdio>

namespace brimshade::soak {

using namespace Qt::StringLiterals;

namespace {

constexpr int kEscape = 53;
constexpr int kReturn = 36;
constexpr int kRightArrow = 124;
constexpr int kSpace = 49;
constexpr double kScan = 0.3; // with applications that hang, and some that are slow
constexpr double kAnimation = 0.6;
constexpr double kMove = 5; // including what the divider does afterwards
constexpr int kMostShown = 6; // there is room for more than that beside the notch

} // namespace

Person::Person(composition::Session &session) : m_session(session), m_model(session.delegate().model())
{
    m_model.setShortcut(model::Shortcut::controlOptionSpace);
    wait(2);
}

QJsonObject Person::run(const QString &command, QJsonObject arguments)
{
    arguments.insert(u"do"_s, command);
    const QJsonObject answer = m_session.run(arguments);
    if (!answer.value(u"ok"_s).toBool()) {
        std::printf("%s: %s\n", qPrintable(command), qPrintable(answer.value(u"error"_s).toString()));
        ++m_faults;
    }
    return answer;
}

void Person::expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::printf("%.2f s, opening %d, move %d: expected %s. %s\n", m_session.virtualTime()->now(), m_openings, m_moves,
                what, qPrintable(m_model.message()));
    ++m_faults;
}

void Person::wait(double seconds)
{
    run(u"advance"_s, {{u"seconds"_s, seconds}});
}

void Person::click(QPointF at)
{
    run(u"click"_s, {{u"at"_s, QJsonArray{at.x(), at.y()}}});
}

void Person::key(int code, const QString &characters, const QStringList &modifiers)
{
    run(u"key"_s,
        {{u"code"_s, code}, {u"characters"_s, characters}, {u"modifiers"_s, QJsonArray::fromStringList(modifiers)}});
}

QPointF Person::icon()
{
    for (const desktop::BarItem &item : m_session.desktop().menuBar().items())
        if (item.isOwn)
            return {platform::maxX(item.frame) - 14, platform::midY(item.frame)};
    return {};
}

void Person::openAndClose(int way)
{
    const QStringList modifiers{u"control"_s, u"option"_s};
    switch (way) {
    case 0:
        click(icon());
        break;
    case 1:
        key(kSpace, u" "_s, modifiers);
        break;
    case 2:
        click(icon());
        run(u"type"_s, {{u"text"_s, u"program"_s}}); // before there is a list
        break;
    default:
        hover();
    }
    opened();
    if (way == 2)
        chooseFirstMatch();
    else
        key(kRightArrow, {});
    closeAndCheck();
}

// Without a notch there is nothing to rest the pointer on.
void Person::hover()
{
    const auto screens = m_session.desktop().platform().screens.screens();
    const auto screen = menubar::notchedScreen(screens);
    if (!screen) {
        click(icon());
        return;
    }
    const auto notch = *menubar::notchExtent(*screen);
    const double x = platform::minX(screen->frame) + (notch.lower + notch.upper) / 2;
    const double y = platform::maxY(screens.front().frame) - platform::maxY(screen->frame) + 10;
    run(u"move"_s, {{u"to"_s, QJsonArray{x, y}}});
    wait(0.2);
}

void Person::opened()
{
    ++m_openings;
    expect(m_session.delegate().shown() && m_model.isOpen(), "an open panel");
    wait(kScan + kAnimation);
    expect(m_model.itemCount() > 10, "the items");
    if (m_openings % 10 == 0)
        m_session.scene().picture();
    run(u"state"_s); // which also empties the records
}

void Person::chooseFirstMatch()
{
    expect(m_model.selectedMatch(), "a selected match");
    key(kReturn, u"\r"_s);
    wait(kAnimation + 0.6); // it may belong to one that hangs by now
    if (!run(u"state"_s).value(u"menu"_s).isNull())
        run(u"choose"_s, {{u"title"_s, u"About"_s}});
}

void Person::closeAndCheck()
{
    if (m_session.delegate().shown() && !m_model.query().isEmpty())
        key(kEscape, {});
    if (m_session.delegate().shown())
        m_model.onDismiss();
    run(u"move"_s, {{u"to"_s, QJsonArray{300, 600}}});
    wait(kAnimation);
    const desktop::DesktopWindow *panel = m_session.desktop().windows().named(u"panel"_s);
    expect(!m_session.delegate().shown() && panel && !panel->isVisible(), "a closed panel");
}

const menubar::MenuExtra *Person::itemToMove()
{
    std::vector<const menubar::MenuExtra *> hidden, shown;
    for (const menubar::MenuExtra &extra : m_model.extras())
        if (extra.canMove && !extra.symbol)
            (extra.isHidden ? hidden : shown).push_back(&extra);
    const auto &choice = int(shown.size()) > kMostShown || hidden.empty() || m_random() % 2 ? shown : hidden;
    if (choice.empty())
        return hidden.empty() ? nullptr : hidden.front();
    return choice[m_random() % choice.size()];
}

void Person::moveAnItem()
{
    m_model.onRefresh(); // items that came since the last opening may stand elsewhere
    wait(kScan);
    const menubar::MenuExtra *item = itemToMove();
    expect(item, "an item to move");
    if (!item)
        return;
    const QString id = item->id;
    const bool hide = !item->isHidden;
    m_model.onSetHidden(*item, hide);
    wait(kMove);
    ++m_moves;
    const menubar::MenuExtra *moved = m_model.extraWithID(id);
    expect(m_model.movingID().isEmpty() && m_model.message().isEmpty() && moved && moved->isHidden == hide,
           "the item on the other side");
}

void Person::lookIntoSettings()
{
    m_model.onOpenSettings();
    wait(1);
    closeWindow(u"settings"_s);
}

void Person::lookIntoSetup()
{
    m_model.onShowOnboarding();
    wait(1);
    closeWindow(u"setup"_s);
}

void Person::closeWindow(const QString &name)
{
    desktop::DesktopWindow *window = m_session.desktop().windows().named(name);
    expect(window && window->isVisible(), "the window");
    if (window)
        window->close();
    wait(0.5);
}

} // namespace brimshade::soak
