// One move of an item across the divider, shown and hidden in turn, from the request to the model's all-clear, in real
// time and with a window that draws every jump of the pointer. The reference sleeps for the move's prescribed pauses,
// one by one, since no move can be faster.
#include "Paired.h"
#include "SixtyApplications.h"
#include "app/AppDelegate.h"
#include "composition/Session.h"
#include "model/NotchModel.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <thread>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr int kDragSteps = 40;

desktop::DesktopDescription dividedDesktop()
{
    // Wide enough for all items right of the notch, so that each can be hidden and shown.
    auto description =
        bench::sixtyApplications({u"Built-in Display"_s, QRectF(0, 0, 5120, 1440), 37, 37, std::pair(2467.0, 2653.0)});
    description.defaults.insert(u"dividerEnabled"_s, true);
    return description;
}

void pass(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void waitUntil(model::NotchModel &model, void (model::NotchModel::*changed)(), const std::function<bool()> &holds)
{
    QEventLoop loop;
    QObject::connect(&model, changed, &loop, [&] {
        if (holds())
            loop.quit();
    });
    if (!holds())
        loop.exec();
}

void sleepPrescribedPauses()
{
    const auto sleep = [](double seconds) { std::this_thread::sleep_for(std::chrono::duration<double>(seconds)); };
    for (const double seconds : {0.35, 0.45, 0.04, 0.35}) // the panel's closing, the collapse, the first two events
        sleep(seconds);
    for (int i = 0; i < kDragSteps; ++i)
        sleep(0.02);
    for (const double seconds : {0.3, 0.4}) // before the release, after it
        sleep(seconds);
}

class Mover {
public:
    explicit Mover(benchmark::State &state)
        : m_state(state),
          m_session({.description = dividedDesktop(), .defaults = {}, .hasWindow = true, .isRealTime = true}),
          m_model(m_session.delegate().model())
    {
        pass(2000);
        m_model.onRefresh();
        waitUntil(m_model, &model::NotchModel::scannedChanged, [&] { return m_model.scanned(); });
    }

    void move()
    {
        const menubar::MenuExtra extra = itemOfLastTurn();
        m_model.onSetHidden(extra, !extra.isHidden);
        waitUntil(m_model, &model::NotchModel::movingIDChanged, [&] { return m_model.movingID().isEmpty(); });
        if (!m_model.message().isEmpty())
            m_state.SkipWithError(qPrintable(m_model.message()));
    }

private:
    menubar::MenuExtra itemOfLastTurn()
    {
        for (const menubar::MenuExtra &extra : m_model.extras())
            if (m_id == extra.id || (m_id.isEmpty() && extra.canMove)) {
                m_id = extra.id;
                return extra;
            }
        m_state.SkipWithError("no item can be moved");
        return {};
    }

    benchmark::State &m_state;
    composition::Session m_session;
    model::NotchModel &m_model;
    QString m_id;
};

// On a thread of its own, like the mover's pauses; meanwhile the desktop settles for the next move.
void reference()
{
    QEventLoop loop;
    std::jthread sleeper([&] {
        sleepPrescribedPauses();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
}

void moveAcrossDivider(benchmark::State &state)
{
    Mover mover(state);
    bench::runPaired(
        state, [&](int) { mover.move(); }, [](int) { reference(); });
}
BENCHMARK(moveAcrossDivider)->UseManualTime()->Iterations(6)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
