// From the click on the icon to the first frame that has the tiles of 60 items in it, in a real window. It does not
// wait for the tiles' own entrance, which by design begins 0.07 s after the opening: the frame that counts is the one
// in which all of them are laid out and drawn in their first state. Prints milliseconds, one line per opening, the
// first one after the launch first.
#include "SixtyApplications.h"
#include "app/AppDelegate.h"
#include "composition/Session.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/MenuBar.h"
#include "desktop/stage/scene/SceneHost.h"
#include "model/NotchModel.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr int kItems = 60;

desktop::DesktopDescription sixtyItems()
{
    return bench::sixtyApplications({u"Built-in Display"_s, QRectF(0, 0, 1512, 982), 37, 37, std::pair(663.0, 849.0)});
}

int tilesIn(const QQuickItem &item)
{
    int count = item.objectName() == "tile"_L1 && item.isVisible();
    for (const QQuickItem *child : item.childItems())
        count += tilesIn(*child);
    return count;
}

void waitFor(QObject *sender, const char *signal)
{
    QEventLoop loop;
    QObject::connect(sender, signal, &loop, SLOT(quit()));
    loop.exec();
}

void pass(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

class Bench {
public:
    explicit Bench(composition::Session &session) : m_session(session), m_window(*session.scene().quickWindow()) { }

    double openOnce()
    {
        QElapsedTimer timer;
        m_session.scene().movePointer(icon());
        timer.start();
        click();
        do
            waitFor(&m_window, SIGNAL(frameSwapped()));
        while (tilesIn(*m_window.contentItem()) < kItems);
        const double taken = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        pass(900);
        click();
        pass(700);
        return taken;
    }

private:
    QPointF icon() const
    {
        for (const desktop::BarItem &item : m_session.desktop().menuBar().items()) {
            if (item.isOwn)
                return item.frame.center();
        }
        return {};
    }
    void click()
    {
        m_session.scene().press(desktop::MouseButton::left);
        m_session.scene().release(desktop::MouseButton::left);
    }

    composition::Session &m_session;
    QQuickWindow &m_window;
};

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const int openings = argc > 2 ? QString::fromLatin1(argv[2]).toInt() : 20;
    composition::Session session({.description = sixtyItems(), .defaults = {}, .hasWindow = true, .isRealTime = true});
    session.scene().quickWindow()->show();
    pass(1500);
    Bench bench(session);
    for (int i = 0; i <= openings; ++i)
        std::printf("%.3f\n", bench.openOnce());
    return 0;
}
