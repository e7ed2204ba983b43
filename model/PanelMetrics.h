#pragma once
#include <QObject>

namespace brimshade::model {

// The measures of the panel's content, in points, which the views read in QML. The panel's size follows from them.
class PanelMetrics : public QObject {
    Q_OBJECT
    Q_PROPERTY(double tileWidth MEMBER tileWidth CONSTANT)
    Q_PROPERTY(double tileHeight MEMBER tileHeight CONSTANT)
    Q_PROPERTY(double faceSide MEMBER faceSide CONSTANT)
    Q_PROPERTY(double faceSpacing MEMBER faceSpacing CONSTANT)
    Q_PROPERTY(double columnPitch MEMBER columnPitch CONSTANT)
    Q_PROPERTY(double rowPitch MEMBER rowPitch CONSTANT)
    Q_PROPERTY(double sectionTitleHeight MEMBER sectionTitleHeight CONSTANT)
    Q_PROPERTY(double sentenceHeight MEMBER sentenceHeight CONSTANT)
    Q_PROPERTY(double waitingHeight MEMBER waitingHeight CONSTANT)
    Q_PROPERTY(double footerHeight MEMBER footerHeight CONSTANT)
    Q_PROPERTY(double bottomMargin MEMBER bottomMargin CONSTANT)
    Q_PROPERTY(double sidePadding MEMBER sidePadding CONSTANT)
    Q_PROPERTY(double notchClearance MEMBER notchClearance CONSTANT)
    Q_PROPERTY(double closedFlare MEMBER closedFlare CONSTANT)
    Q_PROPERTY(double openFlare MEMBER openFlare CONSTANT)
    Q_PROPERTY(double openCorner MEMBER openCorner CONSTANT)

public:
    static constexpr double tileWidth = 64;
    static constexpr double tileHeight = 74;
    static constexpr double tileSpacing = 10; // between columns and between rows
    static constexpr double columnPitch = tileWidth + tileSpacing;
    static constexpr double rowPitch = tileHeight + tileSpacing;
    static constexpr double faceSide = 54;
    static constexpr double faceSpacing = 7; // from the face to the name under it

    static constexpr double topPadding = 10; // under the header
    static constexpr double spacing = 14; // between sections, sentence and footer
    static constexpr double sectionTitleHeight = 24;
    static constexpr double sentenceHeight = 74; // shown instead of the sections
    static constexpr double waitingHeight = 60; // of the spinner or the sentence while there are no items
    static constexpr double footerHeight = 18;
    static constexpr double bottomMargin = 4; // under the footer

    static constexpr double sidePadding = 22; // of the content in the body
    static constexpr double notchClearance = 24; // that the header leaves free beside the notch, both sides together

    // The outline's radii: of the flares at the screen's edge, one on either side of the body, and of the lower
    // corners.
    static constexpr double openFlare = 14;
    static constexpr double openCorner = 32;
    static constexpr double closedFlare = 6;
    static constexpr double closedCorner = 10;
};

} // namespace brimshade::model
