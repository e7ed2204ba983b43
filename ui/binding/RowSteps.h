#pragma once
#include <QStringList>
#include <vector>

namespace brimshade::ui {

// One step from the rows of a list to others. The wanted list's rows before `row` are in place by then.
struct RowStep {
    enum class Kind { remove, move, insert };

    Kind kind = Kind::remove;
    int row = 0; // the first that is removed or inserted; where the one that moves goes
    int count = 1;
    int from = 0; // where the one that moves is
};

// The steps that make the keys `shown` those that are `wanted`: what is in both stays or moves. Neighbours come and go
// in one step. Keys may repeat.
std::vector<RowStep> rowSteps(QStringList shown, const QStringList &wanted);

} // namespace brimshade::ui
