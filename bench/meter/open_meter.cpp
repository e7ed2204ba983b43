// Measures how long it takes until a launcher or a panel is seen on a display, $WAYLAND_DISPLAY or else $DISPLAY. Reads
// one command per line and answers with milliseconds, or with "never":
//     call ACTION      asks the Brimshade of the session's message bus
//     exec WORDS…      starts a program, with the file $METER_INPUT as its standard input, and ends it once it is seen
// The time starts once the display has been still for a while, and ends with the first frame that changes a sizeable
// part: one that shows next to nothing does not count.
#include "Frames.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dbus/dbus.h>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace brimshade::bench;

namespace {

constexpr double kStill = 0.4; // seconds
constexpr double kPatience = 5;
constexpr long kSeen = 20'000; // pixels: 200 × 100

void call(DBusConnection *bus, const char *action)
{
    DBusMessage *message = dbus_message_new_method_call("org.brimshade.Brimshade", "/org/brimshade/Brimshade",
                                                        "org.freedesktop.Application", "ActivateAction");
    DBusMessageIter iterator, array;
    dbus_message_iter_init_append(message, &iterator);
    dbus_message_iter_append_basic(&iterator, DBUS_TYPE_STRING, &action);
    for (const char *type : {"v", "{sv}"}) {
        dbus_message_iter_open_container(&iterator, DBUS_TYPE_ARRAY, type, &array);
        dbus_message_iter_close_container(&iterator, &array);
    }
    dbus_message_set_no_reply(message, TRUE);
    dbus_connection_send(bus, message, nullptr);
    dbus_connection_flush(bus);
    dbus_message_unref(message);
}

pid_t start(const std::string &line)
{
    std::istringstream stream(line);
    std::vector<std::string> words(std::istream_iterator<std::string>(stream), {});
    const pid_t child = fork();
    if (child)
        return child;
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const char *input = std::getenv("METER_INPUT");
    // Hides the program's warnings about what a bare session lacks.
    if (std::freopen(input ? input : "/dev/null", "r", stdin) && std::freopen("/dev/null", "w", stderr))
        execvp(arguments[0], arguments.data());
    _exit(127);
}

double untilSeen(Frames &frames, std::chrono::steady_clock::time_point from)
{
    while (const long area = frames.next(kPatience)) {
        if (area >= kSeen)
            return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - from).count();
    }
    return -1;
}

} // namespace

int main()
{
    auto frames = std::getenv("WAYLAND_DISPLAY") ? waylandFrames() : x11Frames();
    DBusConnection *bus = dbus_bus_get_private(DBUS_BUS_SESSION, nullptr);
    if (!frames || !bus) {
        std::cerr << "no display that reports its frames, or no message bus\n";
        return 1;
    }
    for (std::string line; std::getline(std::cin, line);) {
        pid_t child = 0;
        while (frames->next(kStill)) { }
        const auto from = std::chrono::steady_clock::now();
        if (line.starts_with("call "))
            call(bus, line.c_str() + 5);
        else
            child = start(line.substr(5));
        const double taken = untilSeen(*frames, from);
        if (taken < 0)
            std::cout << "never" << std::endl;
        else
            std::cout << taken << std::endl;
        if (child > 0) {
            kill(child, SIGTERM);
            waitpid(child, nullptr, 0);
        }
    }
}
