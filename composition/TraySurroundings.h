#pragma once
#include "desktop/session/activation/ActivationTokens.h"
#include "desktop/tray/Surroundings.h"

namespace brimshade::composition {

// tokens may be null; if not, it outlives the result.
inline desktop::tray::Surroundings surroundings(std::function<QPoint(QPointF display)> toScreen,
                                                desktop::session::ActivationTokens *tokens)
{
    desktop::tray::Surroundings made{.toScreen = std::move(toScreen)};
    if (tokens)
        made.requestToken = std::bind_front(&desktop::session::ActivationTokens::request, tokens);
    return made;
}

} // namespace brimshade::composition
