#pragma once
#include "platform/LoginItems.h"
#include "platform/Menu.h"
#include "platform/UserDefaults.h"

#include <QStringList>
#include <QVariantMap>
#include <optional>

// Services that write down what was asked of them, in one journal so that its order shows.
namespace brimshade::model::tests {

class JournalDefaults : public platform::UserDefaults {
public:
    explicit JournalDefaults(QStringList &journal) : m_journal(journal) { }
    QVariantMap stored;

    QVariant objectForKey(const QString &key) const override { return read(key); }
    bool boolForKey(const QString &key) const override { return read(key).toBool(); }
    QString stringForKey(const QString &key) const override
    {
        const QVariant value = read(key);
        return value.typeId() == QMetaType::QString ? value.toString() : QString();
    }
    void setBool(bool value, const QString &key) override { write(key, value); }
    void setInteger(qlonglong value, const QString &key) override { write(key, value); }
    void setObject(const QString &value, const QString &key) override { write(key, value); }

private:
    QVariant read(const QString &key) const
    {
        m_journal.append(QStringLiteral("read ") + key);
        return stored.value(key);
    }
    void write(const QString &key, const QVariant &value)
    {
        m_journal.append(QStringLiteral("store %1 %2").arg(key, value.toString()));
        stored.insert(key, value);
    }

    QStringList &m_journal;
};

class JournalLoginItems : public platform::LoginItems {
public:
    explicit JournalLoginItems(QStringList &journal) : m_journal(journal) { }
    platform::LoginItemStatus now = platform::LoginItemStatus::notRegistered;
    platform::LoginItemStatus afterRegistering = platform::LoginItemStatus::enabled;
    std::optional<QString> failure;

    platform::LoginItemStatus status() const override
    {
        m_journal.append(QStringLiteral("status"));
        return now;
    }
    std::expected<void, QString> registerMainApp() override
    {
        return change(QStringLiteral("register"), afterRegistering);
    }
    std::expected<void, QString> unregisterMainApp() override
    {
        return change(QStringLiteral("unregister"), platform::LoginItemStatus::notRegistered);
    }

private:
    std::expected<void, QString> change(const QString &what, platform::LoginItemStatus status)
    {
        m_journal.append(what);
        if (failure)
            return std::unexpected(*failure);
        now = status;
        return {};
    }

    QStringList &m_journal;
};

class OpenMenu : public platform::Menus {
public:
    platform::Menu menu;
    void popUpContextMenu(const platform::Menu &opened, platform::Work) override { menu = opened; }
};

} // namespace brimshade::model::tests
