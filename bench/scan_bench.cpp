// A scan of a full menu bar. The reference is the bare attribute reads that a scan cannot do without, in the same
// order, one application after the other, with their results unused. With applications that hang or are slow, a scan
// should take as long as one of them does, which is its limit.
#include "Paired.h"
#include "desktop/core/Desktop.h"
#include "desktop/time/RealDispatch.h"
#include "desktop/time/VirtualDispatch.h"
#include "menubar/MenuBarAccess.h"
#include "platform/Accessibility.h"
#include "platform/Dispatch.h"
#include "platform/Screens.h"
#include "platform/Symbol.h"
#include "platform/Workspace.h"

#include <QGuiApplication>
#include <thread>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr int kApplications = 60;
constexpr int kItemsEach = 2;

class NoSymbols : public platform::Symbols {
    platform::Image symbolImage(const QString &, const QString &, const platform::SymbolConfiguration &) override
    {
        return {};
    }
};

desktop::ApplicationDescription application(int number, int items = kItemsEach)
{
    desktop::ApplicationDescription application;
    application.pid = 1000 + number;
    application.name = u"Application %1"_s.arg(number);
    application.bundleIdentifier = u"app.number%1"_s.arg(number);
    application.bundlePath = u"/Applications/Application%1.app"_s.arg(number);
    application.icon = u"#3b82f6"_s;
    application.extras.emplace();
    for (int i = 0; i < items; ++i) {
        desktop::ExtraDescription extra;
        extra.role = u"AXMenuBarItem"_s;
        extra.title = u"Status %1"_s.arg(i);
        extra.description = u"Item of the application"_s;
        extra.identifier = u"app.number%1.item%2"_s.arg(number).arg(i);
        application.extras->push_back(extra);
    }
    return application;
}

desktop::DesktopDescription notchedDesktop()
{
    desktop::DesktopDescription description;
    description.screens = {{u"Built-in Display"_s, QRectF(0, 0, 1512, 982), 37, 37, std::pair(663.0, 849.0)}};
    return description;
}

desktop::DesktopDescription fullBar(double latency)
{
    desktop::DesktopDescription description = notchedDesktop();
    for (int i = 0; i < kApplications; ++i) {
        description.applications.push_back(application(i));
        description.applications.back().latency = latency;
    }
    return description;
}

// The reads of a scan in a scan's order, and nothing else.
class BareReads {
public:
    explicit BareReads(const platform::Platform &platform) : m_platform(platform) { }

    int run()
    {
        m_answers = 0;
        for (const auto &application : m_platform.workspace.runningApplications()) {
            if (application.processIdentifier == m_platform.workspace.processIdentifier())
                continue;
            const auto element = m_platform.accessibility.createApplication(application.processIdentifier);
            m_platform.accessibility.setMessagingTimeout(element, 0.25);
            if (const auto bar = read(element, m_extrasMenuBar))
                readItems(std::get<platform::AXUIElement>(*bar));
        }
        return m_answers;
    }

private:
    std::expected<platform::AXAttributeValue, platform::AXError> read(const platform::AXUIElement &element,
                                                                      const QString &attribute)
    {
        auto value = m_platform.accessibility.copyAttributeValue(element, attribute);
        m_answers += value.has_value();
        return value;
    }

    void readItems(const platform::AXUIElement &bar)
    {
        const auto children = read(bar, m_children);
        if (!children)
            return;
        const auto &items = std::get<std::vector<platform::AXUIElement>>(*children);
        for (const auto &item : items)
            benchmark::DoNotOptimize(read(item, m_role));
        for (const auto &item : items)
            for (const QString &attribute : m_attributes)
                benchmark::DoNotOptimize(read(item, attribute));
    }

    const platform::Platform m_platform;
    const QString m_extrasMenuBar = u"AXExtrasMenuBar"_s;
    const QString m_children = u"AXChildren"_s;
    const QString m_role = u"AXRole"_s;
    const QStringList m_attributes{u"AXTitle"_s, u"AXDescription"_s, u"AXIdentifier"_s, u"AXPosition"_s, u"AXSize"_s};
    int m_answers = 0;
};

void check(benchmark::State &state, std::size_t found, std::size_t expected)
{
    if (found != expected)
        state.SkipWithError("the scan did not find every item");
}

// latency is the extra time of each read, in seconds: without any, the scan's own work shows; with a tenth of a
// millisecond, how it compares with reads that cross to another process.
void scan(benchmark::State &state, double latency)
{
    desktop::RealDispatch dispatch;
    NoSymbols symbols;
    desktop::Desktop desktop({dispatch, symbols, nullptr, nullptr}, fullBar(latency));
    const platform::Platform platform = desktop.platform();
    menubar::MenuBarAccess access(platform);
    BareReads reads(platform);
    const platform::Screen screen = platform.screens.screens().front();
    // Off the main thread, whose reads never wait for an answer.
    std::jthread([&] {
        check(state, access.scan(screen, std::nullopt).size(), kApplications * kItemsEach); // and fills the icon cache
        bench::runPaired(
            state, [&](int) { benchmark::DoNotOptimize(access.scan(screen, std::nullopt)); },
            [&](int) { benchmark::DoNotOptimize(reads.run()); });
    }).join();
}
BENCHMARK_CAPTURE(scan, memory, 0)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scan, process, 0.0001)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

struct Trouble {
    desktop::DesktopDescription desktop;
    double limit; // seconds
    std::size_t items; // found nevertheless
};

Trouble eightThatHang()
{
    Trouble trouble{fullBar(0), 0.25, (kApplications - 8) * kItemsEach};
    for (int i = 0; i < 8; ++i)
        trouble.desktop.applications[i].hangs = true;
    return trouble;
}

// A tenth of a second for each read: the bar, its children, and six per item.
Trouble fourThatAreSlow()
{
    Trouble trouble{notchedDesktop(), 2, 12};
    for (int i = 0; i < 4; ++i) {
        trouble.desktop.applications.push_back(application(i, 3));
        trouble.desktop.applications.back().latency = 0.1;
    }
    return trouble;
}

// Runs a scan off the main thread, and calls turn until it is done to run the main thread and the clock. Returns the
// seconds by the dispatch's own clock.
template <typename Turn>
double scanTroubled(benchmark::State &state, platform::Dispatch &dispatch, const Trouble &trouble, const Turn &turn)
{
    NoSymbols symbols;
    desktop::Desktop desktop({dispatch, symbols, nullptr, nullptr}, trouble.desktop);
    const platform::Platform platform = desktop.platform();
    menubar::MenuBarAccess access(platform);
    const platform::Screen screen = platform.screens.screens().front();
    const auto queue = dispatch.makeSerialQueue(u"brimshade.scan"_s, platform::QualityOfService::userInitiated);
    bool isDone = false;
    std::size_t found = 0;
    double seconds = 0;
    queue->async([&] {
        const double start = dispatch.now();
        found = access.scan(screen, std::nullopt).size();
        seconds = dispatch.now() - start;
        dispatch.mainAsync([&] { isDone = true; });
    });
    while (!isDone)
        turn();
    check(state, found, trouble.items);
    return seconds;
}

void report(benchmark::State &state, double seconds, double limit)
{
    state.SetIterationTime(seconds);
    state.counters["limit_ms"] = limit * 1000;
    state.counters["ratio"] = seconds / limit;
}

void virtualTime(benchmark::State &state, const Trouble &trouble)
{
    for ([[maybe_unused]] auto _ : state) {
        desktop::VirtualDispatch dispatch;
        report(state, scanTroubled(state, dispatch, trouble, [&] { dispatch.advance(0.25); }), trouble.limit);
    }
}
BENCHMARK_CAPTURE(virtualTime, hanging, eightThatHang())->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(virtualTime, slow, fourThatAreSlow())->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

void realTime(benchmark::State &state, const Trouble &trouble)
{
    for ([[maybe_unused]] auto _ : state) {
        desktop::RealDispatch dispatch;
        const auto turn = [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); };
        report(state, scanTroubled(state, dispatch, trouble, turn), trouble.limit);
    }
}
BENCHMARK_CAPTURE(realTime, hanging, eightThatHang())->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(realTime, slow, fourThatAreSlow())->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
