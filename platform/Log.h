#pragma once
#include <QString>
#include <initializer_list>
#include <variant>

namespace brimshade::platform {

enum class LogLevel { info, error };

using LogArgument = std::variant<QString, bool, int, unsigned long>;

// The unified log: one logger for the program, subsystem its bundle identifier, category "app".
// Formats are those of os_log: %{public}s prints a text, %s prints <private>, %{bool}d prints true or false,
// %d, %lu and %hu print numbers. Arguments are taken in order. Any thread.
class Log {
public:
    virtual ~Log() = default;
    virtual void write(LogLevel level, const char *format, std::initializer_list<LogArgument> arguments) = 0;
};

} // namespace brimshade::platform
