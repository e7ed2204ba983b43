#pragma once
#include "platform/UserDefaults.h"

namespace brimshade::desktop {

// A store that ends with the process. Reads convert as on the Mac: numbers and some strings can be read as a Bool;
// numbers, but not Bools, as a string.
class MemoryDefaults : public platform::UserDefaults {
public:
    explicit MemoryDefaults(QVariantMap values = {});

    QVariant objectForKey(const QString &key) const override;
    bool boolForKey(const QString &key) const override;
    QString stringForKey(const QString &key) const override;
    void setBool(bool value, const QString &key) override;
    void setInteger(qlonglong value, const QString &key) override;
    void setObject(const QString &value, const QString &key) override;
    void setArray(const QVariantList &value, const QString &key) override;

    void fill(const QVariantMap &values); // sets only keys that are absent
    QVariantMap all() const; // every stored key

protected:
    virtual void changed() { } // a stored value has changed

private:
    void set(const QVariant &value, const QString &key);

    QVariantMap m_values;
};

} // namespace brimshade::desktop
