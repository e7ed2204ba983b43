#pragma once
#include "SharedState.h"

namespace brimshade::desktop {

// Any thread.
class ScreensService : public platform::Screens {
public:
    explicit ScreensService(const SharedState &state) : m_state(state) { }

    std::vector<platform::Screen> screens() const override
    {
        return m_state.read([](const DisplayState &state) { return state.screens; });
    }
    std::optional<platform::Screen> mainScreen() const override
    {
        return m_state.read([](const DisplayState &state) {
            if (state.keyScreen || state.screens.empty())
                return state.keyScreen;
            return std::optional(state.screens.front());
        });
    }

private:
    const SharedState &m_state;
};

} // namespace brimshade::desktop
