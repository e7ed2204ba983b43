#pragma once
#include "desktop/core/DesktopDescription.h"

#include <QRect>
#include <QString>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

// Which screen of the session has the bar, and which notch. Pure; lengths in points.
namespace brimshade::desktop::session {

// The notch that the person asked for.
struct NotchChoice {
    enum class Kind {
        machine, // the machine's own if known, else drawn
        drawn, // a black tab in the middle of the bar
        none, // items stop at the focused application's name instead
        given, // lower to upper, from the screen's left edge
        centred, // like drawn, with a given width: upper
    };
    Kind kind = Kind::machine;
    double lower = 0;
    double upper = 0;

    bool operator==(const NotchChoice &) const = default;
};

// "drawn", "none", "machine", "LOWER,UPPER" with 0 ≤ LOWER < UPPER, or "WIDTH"; absent for any other text.
std::optional<NotchChoice> parseNotchChoice(const QString &text);
QString toText(const NotchChoice &choice);

// A camera housing of a known machine, in pixels of its built-in screen.
struct MachineNotch {
    int left = 0;
    int right = 0;
    int height = 0;
    int screenWidth = 0;
};

// compatible: the device tree's list of names, most exact first.
std::optional<MachineNotch> machineNotch(const QList<QByteArray> &compatible);

struct ScreenFacts {
    QString name; // of its connector, "eDP-1"
    QRect geometry; // in the toolkit's global space

    bool operator==(const ScreenFacts &) const = default;
};

struct ScreenChoice {
    QString name; // empty: the one with a notch, else the built-in one, else the first
    NotchChoice notch;
    std::optional<MachineNotch> machine;
};

struct ArrangedScreen {
    std::size_t index = 0; // among the facts
    ScreenDescription description;
};

// The screen with the bar comes first and is the origin of display space; no other has a bar.
std::vector<ArrangedScreen> arrangeScreens(const std::vector<ScreenFacts> &screens, const ScreenChoice &choice);

} // namespace brimshade::desktop::session
