#include "FakeProgram.h"

#include <QDBusObjectPath>
#include <cstdio>

// A tray program in a process of its own; its only argument is the bus's address. It prints what it is asked to do, one
// line each. It owns the name "test.Sleeper"; its item answers "Change" with a signal that its menu has changed.
int main(int argc, char **argv)
{
    using namespace brimshade;
    using namespace brimshade::desktop::tray;
    QCoreApplication application(argc, argv);
    auto bus = QDBusConnection::connectToBus(application.arguments().at(1), u"program"_s);
    FakeProgram program(bus);
    program.properties = {{u"Id"_s, u"sleeper"_s},
                          {u"Title"_s, u"Sleeper"_s},
                          {u"Menu"_s, QVariant::fromValue(QDBusObjectPath(u"/Menu"_s))},
                          {u"ItemIsMenu"_s, false}};
    program.menu.children = {labelled(1, u"Open"_s), labelled(2, u"Quit"_s)};
    QObject::connect(&program, &FakeProgram::called, [&](const QString &what) {
        std::puts(qPrintable(what));
        std::fflush(stdout);
        if (what == u"Change")
            program.signalLayout(0);
    });
    bus.registerService(u"test.Sleeper"_s);
    program.registerItem(u"/StatusNotifierItem"_s);
    return application.exec();
}
