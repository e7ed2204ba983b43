#include "PanelLayout.h"
#include "PanelMetrics.h"

#include <algorithm>

namespace brimshade::model {

namespace {

using Metrics = PanelMetrics;

constexpr int kFewestColumns = 4;
constexpr int kMostColumns = 9;
constexpr double kNotchSides = 260; // both sides of the notch together, for the header row
constexpr double kPermissionCard = 168;
constexpr double kRecorder = 150;
constexpr double kWithoutItems = 72;
constexpr double kSentence = Metrics::sentenceHeight + Metrics::spacing; // in place of the tiles when none matches
constexpr double kFooter = Metrics::spacing + Metrics::footerHeight + Metrics::bottomMargin;

double heightBelowNotch(const PanelContent &content)
{
    if (!content.trusted)
        return kPermissionCard;
    if (content.isRecording)
        return kRecorder;
    if (!content.hasItems)
        return kWithoutItems;
    const int columns = columnCount(content);
    const bool noTiles = content.hiddenTiles == 0 && content.visibleTiles == 0;
    const bool bothSections = content.hiddenTiles > 0 && content.visibleTiles > 0;
    return (noTiles ? kSentence : 0) + (bothSections ? Metrics::spacing : 0) + gridHeight(content.hiddenTiles, columns)
        + Metrics::topPadding + gridHeight(content.visibleTiles, columns) + kFooter;
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
    return rows * Metrics::tileHeight + Metrics::sectionTitleHeight + (rows - 1) * Metrics::tileSpacing;
}

QSizeF panelSize(const PanelContent &content, QSizeF notch)
{
    const int columns = columnCount(content);
    const double tiles = columns * Metrics::tileWidth + (columns - 1) * Metrics::tileSpacing + 2 * Metrics::sidePadding;
    return {std::max(tiles, notch.width() + kNotchSides) + 2 * Metrics::openFlare,
            heightBelowNotch(content) + notch.height()};
}

} // namespace brimshade::model
