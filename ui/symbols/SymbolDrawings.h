#pragma once
#include <QPainterPath>

// The symbols that the icon font lacks. They are designed on its grid, a square of side 24 with y down and two units
// of margin, and returned kFineGrid times as large.
namespace brimshade::ui {

inline constexpr double kFineGrid = 20;

QPainterPath drawAccessibility();
QPainterPath drawAirplayAudio();
QPainterPath drawBattery75();
QPainterPath drawCheckmarkSeal();
QPainterPath drawChevronUpDown();
QPainterPath drawCircle();
QPainterPath drawCircleGrid();
QPainterPath drawClock();
QPainterPath drawCursorMotionLines();
QPainterPath drawHandRaised();
QPainterPath drawLockShield();
QPainterPath drawMoon();
QPainterPath drawRectangleOnRectangle();
QPainterPath drawRectangleTopThird();
QPainterPath drawSquareGrid();
QPainterPath drawSwitches();
QPainterPath drawWaveform();
QPainterPath drawWaves();

} // namespace brimshade::ui
