#include "Permission.h"
#include "SharedState.h"

namespace brimshade::desktop {

namespace {

constexpr QSizeF kPromptSize{420, 196};
constexpr QSizeF kPageSize{400, 320};
constexpr double kPageMargin = 16; // to the screen's right and lower edge, clear of a window in the middle

} // namespace

bool Permission::isTrusted() const
{
    return m_state.read([](const DisplayState &state) { return state.isTrusted; });
}

void Permission::setTrusted(bool trusted)
{
    if (trusted == isTrusted())
        return;
    m_state.write([trusted](DisplayState &state) { state.isTrusted = trusted; });
    if (trusted)
        m_isPromptOpen = false;
    Q_EMIT changed();
}

void Permission::openPrompt()
{
    set(m_isPromptOpen, true);
}

void Permission::closePrompt()
{
    set(m_isPromptOpen, false);
}

void Permission::openSettingsFromPrompt()
{
    m_isPromptOpen = false;
    m_isPageOpen = true;
    Q_EMIT changed();
}

void Permission::openPage()
{
    set(m_isPageOpen, true);
}

void Permission::closePage()
{
    set(m_isPageOpen, false);
}

void Permission::set(bool &flag, bool value)
{
    if (std::exchange(flag, value) != value)
        Q_EMIT changed();
}

QRectF Permission::promptFrame() const
{
    return m_state.read([](const DisplayState &state) {
        const QSizeF screen = state.screens.empty() ? kPromptSize : state.screens.front().frame.size();
        const QPointF middle((screen.width() - kPromptSize.width()) / 2, (screen.height() - kPromptSize.height()) / 3);
        return QRectF(middle, kPromptSize);
    });
}

QRectF Permission::pageFrame() const
{
    return m_state.read([](const DisplayState &state) {
        const QSizeF screen = state.screens.empty() ? kPageSize : state.screens.front().frame.size();
        return QRectF(QPointF(screen.width() - kPageSize.width() - kPageMargin,
                              screen.height() - kPageSize.height() - kPageMargin),
                      kPageSize);
    });
}

bool Permission::takesPoint(QPointF displayPoint) const
{
    return (m_isPromptOpen && platform::containsPoint(promptFrame(), displayPoint))
        || (m_isPageOpen && platform::containsPoint(pageFrame(), displayPoint));
}

} // namespace brimshade::desktop
