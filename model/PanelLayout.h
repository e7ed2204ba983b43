#pragma once
#include <QSizeF>

// The sizes of the panel's content, in points.
namespace brimshade::model {

struct PanelContent {
    bool trusted = true;
    bool hasItems = false; // any at all, even if none matches
    int hiddenTiles = 0;
    int visibleTiles = 0;
    bool isRecording = false; // the shortcut recorder is shown instead of the tiles
};

int columnCount(const PanelContent &content);
double gridHeight(int tiles, int columns);
QSizeF panelSize(const PanelContent &content, QSizeF notch);

} // namespace brimshade::model
