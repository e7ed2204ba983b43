#include "PanelState.h"
#include "ui/binding/Follow.h"

namespace brimshade::panel {

using model::NotchModel;

void PanelState::setSource(NotchModel *source)
{
    if (!ui::follow(*this, m_source, source))
        return;
    if (source) {
        for (const auto signal : {&NotchModel::trustedChanged, &NotchModel::isRecordingChanged,
                                  &NotchModel::scannedChanged, &NotchModel::extrasChanged, &NotchModel::matchesChanged,
                                  &NotchModel::queryChanged, &NotchModel::isOpenChanged})
            connect(source, signal, this, &PanelState::bodyChanged);
        for (const auto signal :
             {&NotchModel::hoveredIDChanged, &NotchModel::selectedIDChanged, &NotchModel::extrasChanged})
            connect(source, signal, this, &PanelState::focusChanged);
    }
    Q_EMIT sourceChanged();
    Q_EMIT bodyChanged();
    Q_EMIT focusChanged();
}

PanelState::Body PanelState::body() const
{
    if (!m_source)
        return Waiting;
    if (!m_source->trusted())
        return Permission;
    if (m_source->isRecording())
        return Recorder;
    if (m_source->itemCount() == 0)
        return m_source->scanned() ? NoItems : Waiting;
    return Tiles;
}

bool PanelState::hasHeader() const
{
    return m_source && m_source->isOpen() && body() == Tiles;
}

QString PanelState::sentence() const
{
    return sentenceNaming(m_source ? m_source->query() : QString());
}

QString PanelState::sentenceNaming(const QString &query) const
{
    switch (body()) {
    case Permission:
    case Recorder:
    case Waiting:
        return {};
    case NoItems:
        return tr("No menu bar items found. If you just allowed Accessibility, quit and reopen Brimshade.");
    case Tiles:
        break;
    }
    if (m_source->hiddenMatchCount() + m_source->visibleMatchCount() > 0)
        return {};
    if (m_source->query().isEmpty())
        return tr("Nothing is hidden. Everything fits in your menu bar.");
    return tr("No matches for “%1”").arg(query);
}

QString PanelState::highlightedID() const
{
    if (!m_source)
        return {};
    return m_source->hoveredID().isEmpty() ? m_source->selectedID() : m_source->hoveredID();
}

const model::MenuExtra *PanelState::focused() const
{
    const QString id = highlightedID();
    return id.isEmpty() ? nullptr : m_source->extraWithID(id);
}

QString PanelState::focusID() const
{
    const model::MenuExtra *extra = focused();
    return extra ? extra->id : QString();
}

QString PanelState::focusText() const
{
    if (const model::MenuExtra *extra = focused())
        return extra->detail;
    return hint();
}

QString PanelState::hint() const
{
    return tr("Type to search  ·  ↩ to open  ·  right-click to hide or show  ·  esc to close");
}

QString PanelState::briefHint() const
{
    return tr("Type to search  ·  ↩ to open  ·  esc to close");
}

void PanelState::dismiss()
{
    if (m_source)
        m_source->onDismiss();
}

void PanelState::openSettings()
{
    if (m_source)
        m_source->onOpenSettings();
}

} // namespace brimshade::panel
