// Frames of the panel's opening on the software renderer, beside a scene of plain moving rectangles and text of the
// same number and size: what the toolkit itself takes.
#include "OffscreenScene.h"
#include "PanelScene.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace brimshade;

namespace {

constexpr int kFrames = 72; // of a 60th of a second: every spring of the opening has ended by then
constexpr int kRounds = 12;

using Times = std::vector<double>; // milliseconds

double percentile(Times times, double share)
{
    std::ranges::sort(times);
    return times[std::min(times.size() - 1, std::size_t(share * double(times.size())))];
}

// Advances the clock by one frame, then evaluates, synchronises and renders it; all of that is timed.
Times renderFrames(ui::OffscreenScene &scene)
{
    Times times;
    for (int frame = 1; frame <= kFrames; ++frame) {
        const auto begin = std::chrono::steady_clock::now();
        scene.renderFrame(frame % 3 == 0 ? 16 : 17);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
        times.push_back(taken.count());
    }
    return times;
}

Times openings(double scale)
{
    panel::PanelScene panel(18, 9, scale);
    panel.setWallpaper(true);
    Times times;
    for (int round = 0; round < kRounds; ++round) {
        panel.scene.picture();
        panel.model.setIsOpen(true);
        const Times frames = renderFrames(panel.scene);
        if (round > 0) // the first draws every picture once
            times.insert(times.end(), frames.begin(), frames.end());
        panel.model.setIsOpen(false);
        panel.finishMotion();
    }
    return times;
}

Times reference(double scale)
{
    ui::OffscreenScene scene({1000, 720}, scale);
    scene.load(R"(
        import QtQuick
        Item {
            id: root
            property bool open: false
            Rectangle {
                anchors.fill: parent
                gradient: Gradient {
                    orientation: Gradient.Horizontal
                    GradientStop { position: 0; color: "#6f8fc9" }
                    GradientStop { position: 1; color: "#e8c49c" }
                }
            }
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
            times.insert(times.end(), frames.begin(), frames.end());
    }
    return times;
}

void print(const char *name, double scale, const Times &times)
{
    std::printf("%-28s scale %.0f  median %6.2f ms  95th percentile %6.2f ms  (%zu frames)\n", name, scale,
                percentile(times, 0.5), percentile(times, 0.95), times.size());
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.rhi.*=false\nqt.scenegraph.*=false"));
    QGuiApplication application(argc, argv);
    for (const double scale : {1.0, 2.0}) {
        print("plain rectangles (reference)", scale, reference(scale));
        print("panel opening, 27 tiles", scale, openings(scale));
    }
}
