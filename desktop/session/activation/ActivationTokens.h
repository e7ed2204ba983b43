#pragma once
#include <QString>
#include <functional>
#include <memory>

namespace brimshade::desktop::session {

// Tokens with which another program may bring its windows to the front, because a person has just asked for that here.
// Main thread; goes before the application object.
class ActivationTokens {
public:
    using Give = std::function<void(const QString &token)>;

    // After the application object; null where the session has no such thing.
    static std::unique_ptr<ActivationTokens> create();
    virtual ~ActivationTokens() = default;

    virtual void request(Give give) = 0; // now or later; an empty one where there is none
};

} // namespace brimshade::desktop::session
