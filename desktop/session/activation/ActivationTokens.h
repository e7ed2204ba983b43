#pragma once
#include <QString>
#include <functional>
#include <memory>

namespace brimshade::desktop::session {

// Tokens with which another program may bring its windows to the front, because a person has just asked for that here.
// Main thread; destroyed before the application object.
class ActivationTokens {
public:
    using Give = std::function<void(const QString &token)>;

    // Create the application object first; null if the session has no such tokens.
    static std::unique_ptr<ActivationTokens> create();
    virtual ~ActivationTokens() = default;

    virtual void request(Give give) = 0; // calls give now or later, with an empty token if there is none
};

} // namespace brimshade::desktop::session
