#include "PanelGeometry.h"
#include "model/PanelMetrics.h"
#include "ui/binding/Follow.h"

#include <algorithm>
#include <optional>

namespace brimshade::panel {

using model::NotchModel;
using Metrics = model::PanelMetrics;

namespace {

std::optional<int> placeOf(const QString &id, const NotchModel &model, const NotchModel::Matches &matches)
{
    const auto found =
        std::ranges::find_if(matches, [&](int index) { return model.extras()[std::size_t(index)].id == id; });
    if (found == matches.end())
        return {};
    return int(found - matches.begin());
}

} // namespace

void PanelGeometry::setSource(NotchModel *source)
{
    if (!ui::follow(*this, m_source, source))
        return;
    if (source) {
        for (const auto signal :
             {&NotchModel::panelSizeChanged, &NotchModel::matchesChanged, &NotchModel::notchChanged})
            connect(source, signal, this, &PanelGeometry::changed);
    }
    Q_EMIT sourceChanged();
    Q_EMIT changed();
}

QSizeF PanelGeometry::closedSize() const
{
    return m_source ? m_source->notch() + QSizeF(2 * Metrics::closedFlare, 0) : QSizeF();
}

QSizeF PanelGeometry::openSize() const
{
    return m_source ? m_source->panelSize().boundedTo(QSizeF(m_source->panelSize().width(), m_limit)) : QSizeF();
}

double PanelGeometry::gridLeft() const
{
    return Metrics::openFlare + Metrics::sidePadding - openSize().width() / 2;
}

double PanelGeometry::hiddenSectionY() const
{
    return Metrics::topPadding;
}

double PanelGeometry::visibleSectionY() const
{
    const int hidden = m_source ? m_source->hiddenMatchCount() : 0;
    return Metrics::topPadding + (hidden > 0 ? m_source->gridHeight(hidden) + Metrics::spacing : 0);
}

double PanelGeometry::contentHeight() const
{
    if (!m_source)
        return 0;
    const int hidden = m_source->hiddenMatchCount();
    const int visible = m_source->visibleMatchCount();
    if (hidden + visible == 0)
        return Metrics::topPadding + Metrics::sentenceHeight;
    return visible > 0 ? visibleSectionY() + m_source->gridHeight(visible)
                       : Metrics::topPadding + m_source->gridHeight(hidden);
}

double PanelGeometry::viewportHeight() const
{
    if (!m_source)
        return 0;
    const double room = openSize().height() - m_source->notch().height() - Metrics::spacing - Metrics::footerHeight
        - Metrics::bottomMargin;
    return std::clamp(room, 0.0, contentHeight());
}

double PanelGeometry::footerY() const
{
    return viewportHeight() + Metrics::spacing;
}

double PanelGeometry::clampedScroll(double scroll) const
{
    return std::clamp(scroll, 0.0, contentHeight() - viewportHeight());
}

double PanelGeometry::scrollShowing(const QString &id, double scroll) const
{
    const auto cell = cellOf(id);
    if (!cell)
        return clampedScroll(scroll);
    const double top = cell->row == 0 ? cell->sectionY - Metrics::topPadding : cell->y() - Metrics::tileSpacing;
    const double bottom = cell->y() + Metrics::tileHeight + Metrics::tileSpacing;
    return clampedScroll(std::min(top, std::max(scroll, bottom - viewportHeight())));
}

QPointF PanelGeometry::faceCentre(const QString &id) const
{
    const auto cell = cellOf(id);
    return cell ? QPointF(gridLeft() + cell->column * Metrics::columnPitch + Metrics::tileWidth / 2,
                          cell->y() + Metrics::faceSide / 2)
                : QPointF();
}

double PanelGeometry::Cell::y() const
{
    return sectionY + Metrics::sectionTitleHeight + row * Metrics::rowPitch;
}

std::optional<PanelGeometry::Cell> PanelGeometry::cellOf(const QString &id) const
{
    if (!m_source || id.isEmpty())
        return {};
    double sectionY = hiddenSectionY();
    std::optional<int> place = placeOf(id, *m_source, m_source->hiddenMatches());
    if (!place) {
        sectionY = visibleSectionY();
        place = placeOf(id, *m_source, m_source->visibleMatches());
    }
    if (!place)
        return {};
    return Cell{*place % m_source->columns(), *place / m_source->columns(), sectionY};
}

} // namespace brimshade::panel
