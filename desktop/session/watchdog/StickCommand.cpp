#include "StickCommand.h"

#include "desktop/script/ScriptRunner.h"

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr double kLongest = 60; // seconds

ScriptRunner::Result stick(Arguments &arguments)
{
    const double seconds = arguments.number(u"seconds"_s);
    if (seconds < 0 || seconds > kLongest)
        arguments.fail(u"seconds"_s, u"0 to %1"_s.arg(kLongest));
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    return {};
}

} // namespace

void addStickCommand(ScriptRunner &script)
{
    script.add(u"stick"_s, stick);
}

} // namespace brimshade::desktop::session
