#pragma once

namespace brimshade::desktop {

// How time passes for a script. Main thread.
class ScriptClock {
public:
    virtual ~ScriptClock() = default;
    virtual void settle() = 0; // everything due at the present instant runs
    virtual void advance(double seconds) = 0; // time passes; everything that falls due runs, in order
    virtual double now() const = 0; // seconds since the script began
};

} // namespace brimshade::desktop
