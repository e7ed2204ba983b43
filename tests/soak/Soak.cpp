// soak_test [HOURS]: that many hours of use in virtual time, where a day is 10,000 openings of the panel and 1,000
// moves. Prints what the process holds after each tenth. Fails if something did not turn out as it should, or if
// anything had grown since the first tenth and stayed that way through the last three.
#include "Gauges.h"
#include "Person.h"
#include "World.h"
#include "desktop/stage/scene/SceneHost.h"
#include "desktop/time/VirtualDispatch.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QThreadPool>
#include <cstdio>
#include <cstdlib>

namespace brimshade::soak {

namespace {

constexpr double kSecondsARound = 24 * 3600. / 10'000; // one opening each
constexpr double kShort = 4; // the default, in hours: takes less than a minute
constexpr int kRoundsACycle = 40; // after these everything has happened, and starts over
constexpr int kTenths = 10;

// A picture that is being read on another thread takes memory for a while and then frees it; a leak never does.
constexpr int kLasting = 3; // tenths

// Caches fill and are emptied, and the allocator keeps some pages for itself.
constexpr double kHeapTolerance = 0.02;
constexpr double kResidentTolerance = 0.1;

class Soak {
public:
    explicit Soak(int cycles) : m_cycles(cycles) { m_wallClock.start(); }

    bool run()
    {
        for (int tenth = 0; tenth < kTenths; ++tenth) {
            for (int cycle = m_cycles * tenth / kTenths; cycle < m_cycles * (tenth + 1) / kTenths; ++cycle)
                runCycle();
            report(tenth, read());
        }
        return m_person.faults() == 0 && m_grownTenths < kLasting;
    }

private:
    void runCycle()
    {
        for (int round = 0; round < kRoundsACycle; ++round) {
            const double end = clock().now() + kSecondsARound;
            runRound(round);
            m_person.wait(std::max(0., end - clock().now()));
        }
    }

    void runRound(int round)
    {
        desktop::Desktop &desktop = m_session.desktop();
        if (round % 10 == 5)
            m_world.changeScreens(desktop);
        if (round % 5 == 2)
            m_world.replaceAnApplication(desktop);
        if (round % 10 == 7)
            m_world.renameAnItem(desktop);
        if (round == 20 || round == 21)
            m_world.setNewestHangs(desktop, round == 20);
        m_person.openAndClose(round % 4);
        if (round % 10 == 3)
            m_person.moveAnItem();
        if (round == 14)
            m_person.lookIntoSettings();
        if (round == 34)
            m_person.lookIntoSetup();
    }

    // Pictures are blurred, and frames drawn, in real time: wait until they are, however busy the machine is.
    Gauges read()
    {
        m_session.scene().engine().collectGarbage();
        QThreadPool::globalInstance()->waitForDone();
        m_person.wait(0);
        m_session.scene().picture();
        return Gauges::read(clock().queueLength());
    }

    void report(int tenth, const Gauges &now)
    {
        if (tenth == 0) {
            std::printf("%6s %9s %6s %10s %12s %8s %6s %7s %9s\n", "hour", "openings", "moves", "heap kB",
                        "resident kB", "threads", "files", "queued", "took s");
            m_first = now;
        }
        const bool isFlat = now.heap <= m_first.heap * (1 + kHeapTolerance)
            && now.resident <= m_first.resident * (1 + kResidentTolerance) && now.threads <= m_first.threads
            && now.files <= m_first.files && now.queued <= m_first.queued;
        m_grownTenths = isFlat ? 0 : m_grownTenths + 1;
        std::printf("%6.2f %9d %6d %10zu %12zu %8zu %6zu %7zu %9.1f%s\n", clock().now() / 3600, m_person.openings(),
                    m_person.moves(), now.heap / 1024, now.resident / 1024, now.threads, now.files, now.queued,
                    m_wallClock.elapsed() / 1000., isFlat ? "" : "  has grown");
        std::fflush(stdout);
    }

    desktop::VirtualDispatch &clock() { return *m_session.virtualTime(); }

    const int m_cycles;
    World m_world;
    composition::Session m_session{{.description = m_world.description(), .defaults = {}}};
    Person m_person{m_session};
    QElapsedTimer m_wallClock;
    Gauges m_first;
    int m_grownTenths = 0; // in a row, up to the latest
};

} // namespace

} // namespace brimshade::soak

int main(int argc, char **argv)
{
    using namespace brimshade::soak;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    const double hours = argc > 1 ? std::atof(argv[1]) : kShort;
    const double cycles = hours * 3600 / kSecondsARound / kRoundsACycle;
    return Soak(std::max(kTenths, static_cast<int>(cycles + 0.5))).run() ? 0 : 1;
}
