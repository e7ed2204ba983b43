#include "RowSteps.h"

#include <QSet>

namespace brimshade::ui {

namespace {

using Steps = std::vector<RowStep>;

// Backwards, so that later steps still find their rows at the same numbers.
void removeUnwanted(QStringList &shown, const QStringList &wanted, Steps &steps)
{
    const QSet<QString> keys(wanted.begin(), wanted.end());
    for (int end = int(shown.size()); end > 0;) {
        int first = end;
        while (first > 0 && !keys.contains(shown[first - 1]))
            --first;
        if (first < end) {
            steps.push_back({.kind = RowStep::Kind::remove, .row = first, .count = end - first});
            shown.remove(first, end - first);
        }
        end = first - 1;
    }
}

// The wanted key is there, or further down, or new together with those that follow it.
void place(int row, QStringList &shown, const QStringList &wanted, Steps &steps)
{
    const auto from = int(shown.indexOf(wanted[row], row));
    if (from == row)
        return;
    if (from > row) {
        steps.push_back({.kind = RowStep::Kind::move, .row = row, .from = from});
        shown.move(from, row);
        return;
    }
    int end = row + 1;
    while (end < wanted.size() && !shown.contains(wanted[end]))
        ++end;
    steps.push_back({.kind = RowStep::Kind::insert, .row = row, .count = end - row});
    for (int i = row; i < end; ++i)
        shown.insert(i, wanted[i]);
}

} // namespace

std::vector<RowStep> rowSteps(QStringList shown, const QStringList &wanted)
{
    Steps steps;
    removeUnwanted(shown, wanted, steps);
    for (int row = 0; row < wanted.size(); ++row)
        place(row, shown, wanted, steps);
    if (const int rest = int(shown.size() - wanted.size()); rest > 0) // from repeated keys
        steps.push_back({.kind = RowStep::Kind::remove, .row = int(wanted.size()), .count = rest});
    return steps;
}

} // namespace brimshade::ui
