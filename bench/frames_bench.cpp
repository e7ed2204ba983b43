// Frames of the panel's opening and closing on the software renderer, compared with a scene of as many plain moving
// rectangles and texts of the same size: what the toolkit itself costs.
#include "OffscreenScene.h"
#include "PanelScene.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr int kFrames = 72; // of 1/60 s each: by then every spring of the opening has ended
constexpr int kClosingFrames = 24; // the same
constexpr int kRounds = 12;

struct Canvas {
    const char *name; // on the command line
    QSize size; // points
    double scale;
};

// The panel's own window at both scales, and one as large as a screen of 3840 by 2160 pixels.
constexpr Canvas kCanvases[] = {{"1", {1000, 720}, 1}, {"2", {1000, 720}, 2}, {"4k", {1920, 1080}, 2}};

// Milliseconds of each frame: by the clock, and of this process's processor time, which hardly depends on how busy the
// machine is.
struct Times {
    std::vector<double> clock;
    std::vector<double> processor;

    void append(const Times &other)
    {
        clock.insert(clock.end(), other.clock.begin(), other.clock.end());
        processor.insert(processor.end(), other.processor.begin(), other.processor.end());
    }
};

double processorTime()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double percentile(std::vector<double> times, double share)
{
    std::ranges::sort(times);
    return times[std::min(times.size() - 1, std::size_t(share * double(times.size())))];
}

// Advances the clock by one frame, then evaluates, synchronises and renders it; times all of that.
Times renderFrames(ui::OffscreenScene &scene, int frames = kFrames)
{
    Times times;
    for (int frame = 1; frame <= frames; ++frame) {
        const auto begin = std::chrono::steady_clock::now();
        const double processorBegin = processorTime();
        scene.renderFrame(frame % 3 == 0 ? 16 : 17);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
        times.clock.push_back(taken.count());
        times.processor.push_back(processorTime() - processorBegin);
    }
    return times;
}

struct Motions {
    Times opening, closing;
};

Motions motions(const Canvas &canvas)
{
    panel::PanelScene panel(18, 9, canvas.scale, canvas.size);
    Motions motions;
    for (int round = 0; round < kRounds; ++round) {
        panel.scene.picture();
        panel.model.setIsOpen(true);
        const Times opening = renderFrames(panel.scene);
        panel.finishMotion();
        panel.scene.picture();
        panel.model.setIsOpen(false);
        const Times closing = renderFrames(panel.scene, kClosingFrames);
        panel.finishMotion();
        if (round == 0) // which draws every picture once
            continue;
        motions.opening.append(opening);
        motions.closing.append(closing);
    }
    return motions;
}

Times reference(const Canvas &canvas)
{
    ui::OffscreenScene scene(canvas.size, canvas.scale);
    scene.load(R"(
        import QtQuick
        Item {
            id: root
            property bool open: false
            Rectangle {
                color: "black"
                width: root.open ? 728 : 212
                height: root.open ? 420 : 32
                Behavior on width { NumberAnimation { duration: 1200 } }
                Behavior on height { NumberAnimation { duration: 1200 } }
            }
            Repeater {
                model: 27
                Rectangle {
                    required property int index
                    x: 30 + (index % 9) * 74
                    y: (root.open ? 60 : 40) + Math.floor(index / 9) * 84
                    width: 54; height: 54; radius: 16; color: "#333333"
                    opacity: root.open ? 1 : 0.1
                    scale: root.open ? 1 : 0.5
                    Behavior on y { NumberAnimation { duration: 1200 } }
                    Behavior on scale { NumberAnimation { duration: 1200 } }
                    Behavior on opacity { NumberAnimation { duration: 1200 } }
                    Text { y: 61; text: "Tile"; color: "white"; font.family: "Inter"; font.pixelSize: 10 }
                }
            }
        })");
    Times times;
    for (int round = 0; round < kRounds; ++round) {
        scene.picture();
        scene.root()->setProperty("open", round % 2 == 0);
        const Times frames = renderFrames(scene);
        if (round > 0)
            times.append(frames);
    }
    return times;
}

void print(const char *name, const Canvas &canvas, const Times &times)
{
    std::printf("%-28s %4dx%d  median %6.2f ms  95th percentile %6.2f ms  processor %6.2f and %6.2f ms\n", name,
                int(canvas.size.width() * canvas.scale), int(canvas.size.height() * canvas.scale),
                percentile(times.clock, 0.5), percentile(times.clock, 0.95), percentile(times.processor, 0.5),
                percentile(times.processor, 0.95));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QLoggingCategory::setFilterRules(u"qt.rhi.*=false\nqt.scenegraph.*=false"_s);
    QGuiApplication application(argc, argv);
    const QStringList wanted = QGuiApplication::arguments().mid(1); // none: all
    for (const Canvas &canvas : kCanvases) {
        if (!wanted.isEmpty() && !wanted.contains(QLatin1String(canvas.name)))
            continue;
        print("plain rectangles (reference)", canvas, reference(canvas));
        const Motions panel = motions(canvas);
        print("panel opening, 27 tiles", canvas, panel.opening);
        print("panel closing, 27 tiles", canvas, panel.closing);
    }
}
