#pragma once
#include <QStringList>
#include <vector>

namespace brimshade::ui {

// One step in turning the rows of a list into others. By then the wanted rows before `row` are in place.
struct RowStep {
    enum class Kind { remove, move, insert };

    Kind kind = Kind::remove;
    int row = 0; // the first that is removed or inserted; where the one that moves goes
    int count = 1;
    int from = 0; // where the one that moves is
};

// The steps that turn the keys `shown` into `wanted`: what is in both stays or moves. Neighbours come and go in one
// step. Keys may repeat.
std::vector<RowStep> rowSteps(QStringList shown, const QStringList &wanted);

} // namespace brimshade::ui
