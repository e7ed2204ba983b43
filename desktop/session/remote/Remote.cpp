#include "Remote.h"

#include <dbus/dbus.h>
#include <memory>

namespace brimshade::desktop::session::remote {

namespace {

constexpr int kTimeLimitMilliseconds = 5000;

using Fault = std::unexpected<std::string>;

struct Error : DBusError {
    Error() { dbus_error_init(this); }
    ~Error() { dbus_error_free(this); }
    Error(const Error &) = delete;
    Error &operator=(const Error &) = delete;
};

struct Closer {
    void operator()(DBusConnection *connection) const
    {
        dbus_connection_close(connection);
        dbus_connection_unref(connection);
    }
    void operator()(DBusMessage *message) const { dbus_message_unref(message); }
};
using Connection = std::unique_ptr<DBusConnection, Closer>;
using Message = std::unique_ptr<DBusMessage, Closer>;

Message makeCall(const char *method)
{
    Message call(dbus_message_new_method_call(kService, kPath, kInterface, method));
    dbus_message_set_auto_start(call.get(), FALSE);
    return call;
}

void appendEmptyArray(DBusMessageIter &to, const char *elementType)
{
    DBusMessageIter array;
    dbus_message_iter_open_container(&to, DBUS_TYPE_ARRAY, elementType, &array);
    dbus_message_iter_close_container(&to, &array);
}

std::string describe(const Error &error)
{
    if (dbus_error_has_name(&error, DBUS_ERROR_SERVICE_UNKNOWN)
        || dbus_error_has_name(&error, DBUS_ERROR_NAME_HAS_NO_OWNER))
        return "none runs in this session; start one with: brimshade --session";
    if (dbus_error_has_name(&error, DBUS_ERROR_NO_REPLY))
        return "the one that runs in this session does not answer";
    return error.message;
}

std::expected<void, std::string> send(const Message &call)
{
    Error error;
    // A connection of its own, not one that others in this process share and that ends the process with the bus.
    const Connection bus(dbus_bus_get_private(DBUS_BUS_SESSION, &error));
    if (!bus)
        return Fault(std::string("no message bus: ") + error.message);
    dbus_connection_set_exit_on_disconnect(bus.get(), FALSE);
    const Message reply(
        dbus_connection_send_with_reply_and_block(bus.get(), call.get(), kTimeLimitMilliseconds, &error));
    return reply ? std::expected<void, std::string>() : Fault(describe(error));
}

} // namespace

std::expected<void, std::string> activate()
{
    const Message call = makeCall("Activate");
    DBusMessageIter arguments;
    dbus_message_iter_init_append(call.get(), &arguments);
    appendEmptyArray(arguments, "{sv}"); // platform data
    return send(call);
}

std::expected<void, std::string> activateAction(const char *action)
{
    const Message call = makeCall("ActivateAction");
    DBusMessageIter arguments;
    dbus_message_iter_init_append(call.get(), &arguments);
    dbus_message_iter_append_basic(&arguments, DBUS_TYPE_STRING, &action);
    appendEmptyArray(arguments, "v"); // parameters
    appendEmptyArray(arguments, "{sv}"); // platform data
    return send(call);
}

} // namespace brimshade::desktop::session::remote
