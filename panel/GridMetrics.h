#pragma once
#include <algorithm>
#include <cmath>
#include <utility>

// Sizes of the panel's content, in points. The panel's own size, computed by the model, counts on them.
namespace brimshade::panel {

inline constexpr double kTileWidth = 64;
inline constexpr double kTileHeight = 74;
inline constexpr double kTileSpacing = 10; // between columns and between rows
inline constexpr double kSectionTitleHeight = 24;

inline constexpr double kColumnPitch = kTileWidth + kTileSpacing;
inline constexpr double kRowPitch = kTileHeight + kTileSpacing;

// The first tile, and the one after the last, of the grid rows that a view from top to bottom touches and of one row
// beyond on either side. Points from the top of the first grid row.
inline std::pair<int, int> tilesInView(double top, double bottom, int columns, int count)
{
    const int rows = (count + columns - 1) / columns;
    const auto rowAt = [&](double y) { return int(std::clamp(std::floor(y / kRowPitch), -9.0, rows + 9.0)); };
    const int first = std::clamp(rowAt(top) - 1, 0, rows);
    const int end = std::clamp(rowAt(bottom) + 2, first, rows);
    return {std::min(first * columns, count), std::min(end * columns, count)};
}

} // namespace brimshade::panel
