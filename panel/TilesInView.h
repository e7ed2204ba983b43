#pragma once
#include "model/PanelMetrics.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brimshade::panel {

// The first tile, and the one after the last, of the grid rows that a view from top to bottom touches and of one row
// beyond on either side. Points from the top of the first grid row.
inline std::pair<int, int> tilesInView(double top, double bottom, int columns, int count)
{
    const int rows = (count + columns - 1) / columns;
    const auto rowAt = [&](double y) {
        return int(std::clamp(std::floor(y / model::PanelMetrics::rowPitch), -9.0, rows + 9.0));
    };
    const int first = std::clamp(rowAt(top) - 1, 0, rows);
    const int end = std::clamp(rowAt(bottom) + 2, first, rows);
    return {std::min(first * columns, count), std::min(end * columns, count)};
}

} // namespace brimshade::panel
