#pragma once
#include "platform/Application.h"

namespace brimshade::model {
class NotchModel;
}

namespace brimshade::app {

// What a key does in the open panel: search text, selection moves, choosing and closing. Main thread.
class KeyHandler {
public:
    using Close = std::function<void()>;

    // The model outlives the handler.
    KeyHandler(model::NotchModel &model, Close close);

    // Returns the event if it is for others, nothing if it was handled here.
    std::optional<platform::Event> handle(const platform::Event &event) const;

private:
    bool command(std::uint16_t keyCode) const; // false when the key is not a command
    bool type(const platform::Event &event) const;
    void escape() const;
    void choose() const;
    void deleteBackward() const;

    model::NotchModel &m_model;
    const Close m_close;
};

} // namespace brimshade::app
