#include "PanelLayout.h"

#include <algorithm>

namespace brimshade::model {

namespace {

constexpr int kFewestColumns = 4;
constexpr int kMostColumns = 9;
constexpr double kTileWidth = 64;
constexpr double kTileHeight = 74;
constexpr double kTileGap = 10;
constexpr double kSectionTitle = 24;
constexpr double kSectionGap = 14;
constexpr double kSidePadding = 44;
constexpr double kNotchSides = 260; // both sides of the notch together, for the header row
constexpr double kOuterCurves = 28; // both top corners together
constexpr double kPermissionCard = 168;
constexpr double kWithoutItems = 72;
constexpr double kSentence = 88; // in place of the tiles when none matches
constexpr double kFooter = 36;

double heightBelowNotch(const PanelContent &content)
{
    if (!content.trusted)
        return kPermissionCard;
    if (!content.hasItems)
        return kWithoutItems;
    const int columns = columnCount(content);
    const bool noTiles = content.hiddenTiles == 0 && content.visibleTiles == 0;
    const bool bothSections = content.hiddenTiles > 0 && content.visibleTiles > 0;
    return (noTiles ? kSentence : 0) + (bothSections ? kSectionGap : 0) + gridHeight(content.hiddenTiles, columns)
        + kTileGap + gridHeight(content.visibleTiles, columns) + kFooter;
}

} // namespace

int columnCount(const PanelContent &content)
{
    return std::clamp(std::max(content.hiddenTiles, content.visibleTiles), kFewestColumns, kMostColumns);
}

double gridHeight(int tiles, int columns)
{
    if (tiles < 1)
        return 0;
    const int rows = (tiles - 1) / columns + 1;
    return rows * kTileHeight + kSectionTitle + (rows - 1) * kTileGap;
}

QSizeF panelSize(const PanelContent &content, QSizeF notch)
{
    const int columns = columnCount(content);
    const double tiles = columns * kTileWidth + (columns - 1) * kTileGap + kSidePadding;
    return {std::max(tiles, notch.width() + kNotchSides) + kOuterCurves, heightBelowNotch(content) + notch.height()};
}

} // namespace brimshade::model
