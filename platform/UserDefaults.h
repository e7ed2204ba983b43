#pragma once
#include <QString>
#include <QVariant>
#include <QVariantList>

namespace brimshade::platform {

// The per-user store of flat key-value pairs. Main thread. Values are bool, qlonglong, double or QString,
// or a list of maps of these.
// A write is visible to reads at once and to the next launch; it is not checked and never fails loudly.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;
    virtual QVariant objectForKey(const QString &key) const = 0; // invalid when absent
    virtual bool boolForKey(const QString &key) const = 0; // false when absent or not readable as a Bool
    virtual QString stringForKey(const QString &key) const = 0; // empty when absent or not a string
    virtual void setBool(bool value, const QString &key) = 0;
    virtual void setInteger(qlonglong value, const QString &key) = 0;
    virtual void setObject(const QString &value, const QString &key) = 0;
    virtual void setArray(const QVariantList &value, const QString &key) = 0;
};

} // namespace brimshade::platform
