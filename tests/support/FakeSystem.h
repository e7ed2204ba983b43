#pragma once
#include "Platform.h"

#include <set>

namespace brimshade {

class Picture : public platform::ImageSource {
public:
    explicit Picture(const QImage &image) : m_image(image) { }
    void draw(QPainter &painter, const QRectF &rect) const override { painter.drawImage(rect, m_image); }
    QImage bitmap() const override { return m_image; }

private:
    QImage m_image;
};

inline platform::Image picture(const QImage &image)
{
    return {std::make_shared<Picture>(image), QSizeF(image.size())};
}

// A square with a margin, like the icons of applications.
inline platform::Image icon(const QColor &colour)
{
    QImage image = filled(128, 128, Qt::transparent);
    QPainter(&image).fillRect(8, 8, 112, 112, colour);
    return picture(image);
}

// Every symbol is empty, and as large as it was asked for.
class FakeSymbols : public platform::Symbols {
public:
    platform::Image symbolImage(const QString &, const QString &, const platform::SymbolConfiguration &wanted) override
    {
        return {std::make_shared<Picture>(QImage()), {wanted.pointSize, wanted.pointSize}, true};
    }
};

class FakeDefaults : public platform::UserDefaults {
public:
    QVariantMap stored;

    QVariant objectForKey(const QString &key) const override { return stored.value(key); }
    bool boolForKey(const QString &key) const override { return stored.value(key).toBool(); }
    QString stringForKey(const QString &key) const override
    {
        const QVariant value = stored.value(key);
        return value.typeId() == QMetaType::QString ? value.toString() : QString();
    }
    void setBool(bool value, const QString &key) override { stored.insert(key, value); }
    void setInteger(qlonglong value, const QString &key) override { stored.insert(key, value); }
    void setObject(const QString &value, const QString &key) override { stored.insert(key, value); }
    void setArray(const QVariantList &value, const QString &key) override { stored.insert(key, value); }
};

class FakeLoginItems : public platform::LoginItems {
public:
    explicit FakeLoginItems(QStringList &journal) : m_journal(journal) { }
    platform::LoginItemStatus now = platform::LoginItemStatus::notRegistered;
    std::optional<QString> failure;

    platform::LoginItemStatus status() const override { return now; }
    std::expected<void, QString> registerMainApp() override
    {
        return change(u"register"_s, platform::LoginItemStatus::enabled);
    }
    std::expected<void, QString> unregisterMainApp() override
    {
        return change(u"unregister"_s, platform::LoginItemStatus::notRegistered);
    }

private:
    std::expected<void, QString> change(const QString &what, platform::LoginItemStatus status)
    {
        m_journal << what;
        if (failure)
            return std::unexpected(*failure);
        now = status;
        return {};
    }

    QStringList &m_journal;
};

class FakeMenus : public platform::Menus {
public:
    explicit FakeMenus(QStringList &journal) : m_journal(journal) { }
    platform::Menu menu; // the latest
    std::optional<QPointF> corner; // that menu's; absent: at the pointer

    void popUpContextMenu(const platform::Menu &opened, std::optional<QPointF> at, platform::Work dismissed) override
    {
        menu = opened;
        corner = at;
        QStringList titles;
        for (const platform::MenuItem &item : menu.items)
            titles << (item.isEnabled ? item.title : u'-' + item.title);
        m_journal << u"menu "_s + titles.join(u',');
        dismissed();
    }

private:
    QStringList &m_journal;
};

// Refuses the combinations that another has.
class FakeHotkeys : public platform::HotkeyCenter {
public:
    explicit FakeHotkeys(QStringList &journal) : m_journal(journal) { }
    Handler handler;
    std::set<std::uint32_t> refusedKeyCodes;

    void installEventHandler(Handler installed) override { handler = std::move(installed); }
    std::expected<platform::EventHotKeyRef, int>
    registerEventHotKey(std::uint32_t keyCode, std::uint32_t, platform::EventHotKeyID id, const QString &) override
    {
        m_journal << u"register %1 of %2"_s.arg(keyCode).arg(id.number);
        if (refusedKeyCodes.contains(keyCode))
            return std::unexpected(-9878);
        return ++m_latest;
    }
    void unregisterEventHotKey(platform::EventHotKeyRef) override { m_journal << u"unregister"_s; }
    void pushSymbolicHotKeyMode() override { m_journal << u"hotkeys off"_s; }
    void popSymbolicHotKeyMode() override { m_journal << u"hotkeys on"_s; }

private:
    QStringList &m_journal;
    platform::EventHotKeyRef m_latest = 0;
};

class FakeItemServices : public platform::ItemServices {
public:
    explicit FakeItemServices(QStringList &journal) : m_journal(journal) { }
    platform::ItemOffer offered; // what every item offers
    QString known; // every item's identity

    QString identity(const platform::AXUIElement &) const override { return known; }

    platform::ItemOffer offer(const platform::AXUIElement &) const override { return offered; }
    void activate(const platform::AXUIElement &) override { m_journal << u"activate"_s; }
    void activateSecondary(const platform::AXUIElement &) override { m_journal << u"secondary"_s; }
    void observeOffers(platform::Work changed) override { offersChanged = std::move(changed); }
    void observeItems(platform::Work) override { }
    platform::Work offersChanged = [] {};
    void scroll(const platform::AXUIElement &, QPoint by) override
    {
        m_journal << u"scroll %1 %2"_s.arg(by.x()).arg(by.y());
    }

private:
    QStringList &m_journal;
};

class FakeAccessibility : public platform::Accessibility {
public:
    explicit FakeAccessibility(QStringList &journal) : m_journal(journal) { }
    bool trusted = false;
    int questions = 0;

    platform::AXUIElement createApplication(int) override { return {}; }
    platform::AXError setMessagingTimeout(const platform::AXUIElement &, double) override { return kFailure; }
    std::expected<platform::AXAttributeValue, platform::AXError> copyAttributeValue(const platform::AXUIElement &,
                                                                                    const QString &) override
    {
        return std::unexpected(kFailure);
    }
    platform::AXError performAction(const platform::AXUIElement &, const QString &) override { return kFailure; }
    bool isProcessTrusted() override
    {
        ++questions;
        return trusted;
    }
    bool isProcessTrustedWithOptions(bool prompt) override
    {
        if (prompt)
            m_journal << u"prompt"_s;
        return trusted;
    }

private:
    static constexpr auto kFailure = platform::kAXErrorFailure;
    QStringList &m_journal;
};

class FakeWorkspace : public platform::Workspace, private platform::NotificationCenter {
public:
    explicit FakeWorkspace(QStringList &journal) : m_journal(journal) { }

    std::vector<platform::RunningApplication> runningApplications() const override { return {}; }
    int processIdentifier() const override { return 1; }
    std::optional<QString> bundleIdentifier() const override { return {}; }
    QString displayNameAtPath(const QString &path) const override { return path; }
    platform::Image iconForFile(const QString &) const override { return {}; }
    bool openURL(const QString &url) override
    {
        m_journal << u"open "_s + url;
        return true;
    }
    platform::NotificationCenter &notificationCenter() override { return *this; }

private:
    void addObserver(const QString &, const void *, platform::Work) override { }

    QStringList &m_journal;
};

// What models and views ask of the system, in memory, with a single journal so that the order shows: "register", "menu
// Open,-Hide from Menu Bar" ("-" marks a disabled entry), "open x-apple…".
struct FakeSystem {
    QStringList journal;
    FakeDefaults defaults;
    FakeLoginItems loginItems{journal};
    FakeMenus menus{journal};
    FakeItemServices itemServices{journal};
    FakeHotkeys hotkeys{journal};
    FakeAccessibility accessibility{journal};
    FakeWorkspace workspace{journal};
};

} // namespace brimshade
