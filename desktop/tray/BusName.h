#pragma once
#include <QString>
#include <optional>
#include <tuple>

namespace brimshade::desktop::tray {

// Whether a text is a name by the bus's own rules; one that breaks them is never used in a call.
bool isBusName(const QString &text); // unique or well-known
bool isUniqueName(const QString &text);
bool isObjectPath(const QString &text);

// One item: the connection that owns it and where on that connection it is.
struct ItemKey {
    QString owner; // a unique name
    QString path;

    QString text() const { return owner + path; }
    bool operator==(const ItemKey &) const = default;
    bool operator<(const ItemKey &other) const { return std::tie(owner, path) < std::tie(other.owner, other.path); }
};

// What a registration refers to; the service may still be a well-known name.
struct Registration {
    QString service;
    QString path;

    bool operator==(const Registration &) const = default;
};

// Programs register with a path, a well-known name, a unique name (their own or another connection's) or a name
// followed by a path; sender is the connection that called. Nothing if the argument is none of these.
std::optional<Registration> parseRegistration(const QString &argument, const QString &sender);

} // namespace brimshade::desktop::tray
