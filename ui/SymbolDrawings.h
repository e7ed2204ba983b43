#pragma once
#include <QPainterPath>

// The symbols that the icon font lacks, on its grid: a square of side 24, y down, two units of margin.
namespace brimshade::ui {

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
