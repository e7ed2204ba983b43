#include "FooterText.h"
#include "ui/binding/Follow.h"

#include <utility>

namespace brimshade::panel {

void FooterText::setState(PanelState *state)
{
    if (!ui::follow(*this, m_state, state))
        return;
    if (state)
        connect(state, &PanelState::focusChanged, this, &FooterText::update);
    update();
    Q_EMIT stateChanged();
}

void FooterText::update()
{
    if (!m_state)
        return;
    Line next{m_state->focusID(), m_state->focusText()};
    const bool isOther = next.id != m_line.id;
    if (!isOther && next.text == m_line.text)
        return;
    if (isOther)
        m_leaving = std::exchange(m_line, std::move(next));
    else
        m_line = std::move(next);
    Q_EMIT changed();
    if (isOther)
        Q_EMIT replaced();
}

} // namespace brimshade::panel
