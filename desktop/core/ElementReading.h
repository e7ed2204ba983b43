#pragma once
#include "SharedState.h"

// How an element answers a request. Everything here runs under the SharedState's lock.
namespace brimshade::desktop {

// Whether a request reaches the application, and how long its answer takes.
struct Admission {
    platform::AXError error = platform::kAXErrorSuccess; // what the request ends with instead of an answer
    double wait = 0; // seconds until then

    std::expected<platform::AXAttributeValue, platform::AXError>
    answer(const DisplayState &state, const Element &element, const QString &attribute) const;
    platform::AXError answer(const Element &element, const QString &action) const;
};

Admission admit(const DisplayState &state, const Element &element);
// After the wait: the earlier admission still holds, unless the application quit or the permission was revoked
// meanwhile.
Admission admitted(const Admission &then, const DisplayState &state, const Element &element);

} // namespace brimshade::desktop
