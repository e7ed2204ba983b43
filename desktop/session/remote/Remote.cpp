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

Message makeCall(const char *interface, const char *method)
{
    Message call(dbus_message_new_method_call(kService, kPath, interface, method));
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

std::expected<Message, std::string> ask(const Message &call)
{
    Error error;
    // A private connection: the shared one ends the process when the bus goes.
    const Connection bus(dbus_bus_get_private(DBUS_BUS_SESSION, &error));
    if (!bus)
        return Fault(std::string("no message bus: ") + error.message);
    dbus_connection_set_exit_on_disconnect(bus.get(), FALSE);
    Message reply(dbus_connection_send_with_reply_and_block(bus.get(), call.get(), kTimeLimitMilliseconds, &error));
    if (!reply)
        return Fault(describe(error));
    return reply;
}

std::expected<void, std::string> send(const Message &call)
{
    const auto reply = ask(call);
    return reply ? std::expected<void, std::string>() : Fault(reply.error());
}

Item readItem(DBusMessageIter &array)
{
    DBusMessageIter fields;
    dbus_message_iter_recurse(&array, &fields);
    const char *name = nullptr, *program = nullptr;
    dbus_bool_t isHidden = FALSE;
    dbus_message_iter_get_basic(&fields, &name);
    dbus_message_iter_next(&fields);
    dbus_message_iter_get_basic(&fields, &program);
    dbus_message_iter_next(&fields);
    dbus_message_iter_get_basic(&fields, &isHidden);
    return {name, program, isHidden == TRUE};
}

} // namespace

std::expected<void, std::string> activate()
{
    const Message call = makeCall(kInterface, "Activate");
    DBusMessageIter arguments;
    dbus_message_iter_init_append(call.get(), &arguments);
    appendEmptyArray(arguments, "{sv}"); // platform data
    return send(call);
}

std::expected<void, std::string> activateAction(const char *action)
{
    const Message call = makeCall(kInterface, "ActivateAction");
    DBusMessageIter arguments;
    dbus_message_iter_init_append(call.get(), &arguments);
    dbus_message_iter_append_basic(&arguments, DBUS_TYPE_STRING, &action);
    appendEmptyArray(arguments, "v"); // parameters
    appendEmptyArray(arguments, "{sv}"); // platform data
    return send(call);
}

std::expected<std::vector<Item>, std::string> listItems()
{
    const auto reply = ask(makeCall(kItemsInterface, "List"));
    if (!reply)
        return Fault(reply.error());
    if (!dbus_message_has_signature(reply->get(), "a(ssb)"))
        return Fault("the one that runs in this session answers with something other than a list");
    DBusMessageIter answer, array;
    dbus_message_iter_init(reply->get(), &answer);
    dbus_message_iter_recurse(&answer, &array);
    std::vector<Item> items;
    for (; dbus_message_iter_get_arg_type(&array) != DBUS_TYPE_INVALID; dbus_message_iter_next(&array))
        items.push_back(readItem(array));
    return items;
}

std::expected<void, std::string> openItem(const char *name)
{
    if (!dbus_validate_utf8(name, nullptr)) // libdbus aborts a program that sends anything else
        return Fault("the name is not UTF-8");
    const Message call = makeCall(kItemsInterface, "Open");
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID);
    return send(call);
}

} // namespace brimshade::desktop::session::remote
