#pragma once
#include <QObject>
#include <qqml.h>

namespace brimshade::desktop {

// The measurements of an open menu, in points, for C++ and QML.
class MenuMetrics : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(double padding MEMBER padding CONSTANT)
    Q_PROPERTY(double rowHeight MEMBER rowHeight CONSTANT)
    Q_PROPERTY(double separatorHeight MEMBER separatorHeight CONSTANT)
    Q_PROPERTY(double sideInset MEMBER sideInset CONSTANT)
    Q_PROPERTY(double textInset MEMBER textInset CONSTANT)
    Q_PROPERTY(double textSize MEMBER textSize CONSTANT)
    Q_PROPERTY(double iconSize MEMBER iconSize CONSTANT)

public:
    static constexpr double padding = 5; // above the first row and below the last
    static constexpr double rowHeight = 22;
    static constexpr double separatorHeight = 11;
    static constexpr double sideInset = 5; // of a row in its menu
    static constexpr double textInset = 10; // of what stands in a row
    static constexpr double textSize = 13;
    static constexpr double iconSize = 16;
};

} // namespace brimshade::desktop
