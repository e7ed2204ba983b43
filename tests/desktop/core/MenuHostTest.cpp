#include "World.h"
#include "platform/Menu.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

class Source : public MenuSource {
public:
    explicit Source(QStringList &heard) : m_heard(heard) { }
    const std::vector<MenuEntry> &entries() const override { return m_entries; }
    void choose(int id) override { m_heard << u"chose %1"_s.arg(id); }
    void closed() override { m_heard << u"closed"_s; }
    void set(std::vector<MenuEntry> entries)
    {
        m_entries = std::move(entries);
        Q_EMIT changed();
    }

private:
    QStringList &m_heard;
    std::vector<MenuEntry> m_entries;
};

MenuEntry entry(int id, const QString &title)
{
    MenuEntry entry;
    entry.id = id;
    entry.title = title;
    return entry;
}

class MenuHostTest : public World {
protected:
    MenuHostTest()
    {
        auto submenu = entry(2, u"More"_s);
        submenu.hasSubmenu = true;
        submenu.submenu = {entry(3, u"Deep"_s)};
        auto disabled = entry(4, u"Disabled"_s);
        disabled.isEnabled = false;
        auto disabledMenu = submenu;
        disabledMenu.id = 5;
        disabledMenu.isEnabled = false;
        disabledMenu.submenu = {entry(6, u"Unreachable"_s)};
        source->set({entry(1, u"First"_s), submenu, disabled, disabledMenu});
    }
    void open()
    {
        desktop.menus().open(source, QRectF(1, 2, 3, 4),
                             [this] { heard << (desktop.menus().openMenu() ? u"still open"_s : u"dismissed"_s); });
    }
    QString takeHeard() { return std::exchange(heard, {}).join(u", "_s); }

    QStringList heard;
    std::shared_ptr<Source> source = std::make_shared<Source>(heard);
};

TEST_F(MenuHostTest, ChoosesEnabledLeavesAnywhereAndEndsEachOpeningOnce)
{
    open();
    for (const QString &refused : {u"More"_s, u"Disabled"_s, u"Unreachable"_s, u"Nothing"_s})
        EXPECT_FALSE(desktop.menus().choose(refused)) << refused.toStdString();
    desktop.menus().choose(4);
    EXPECT_EQ(takeHeard(), QString());
    EXPECT_TRUE(desktop.menus().choose(u"Deep"_s));
    EXPECT_EQ(takeHeard(), u"chose 3, closed, dismissed"_s);
    desktop.menus().dismiss();
    EXPECT_EQ(takeHeard(), QString());
    open();
    open();
    EXPECT_EQ(takeHeard(), u"closed, dismissed"_s) << "a menu that is opened dismisses the one before";
    desktop.menus().dismiss();
    EXPECT_EQ(takeHeard(), u"closed, dismissed"_s);
}

TEST_F(MenuHostTest, ClosesAMenuThatHasOrComesToHaveNoEntries)
{
    int changes = 0;
    QObject::connect(&desktop.menus(), &MenuHost::changed, [&] { ++changes; });
    open();
    source->set({entry(1, u"Only"_s)});
    EXPECT_EQ(changes, 2) << "opened, changed";
    EXPECT_EQ(desktop.menus().titles(), QStringList(u"Only"_s));
    source->set({});
    EXPECT_EQ(takeHeard(), u"closed, dismissed"_s);
    changes = 0;
    source->set({entry(1, u"Again"_s)});
    EXPECT_EQ(changes, 0) << "a closed menu is not listened to";
    source->set({});
    open();
    EXPECT_EQ(takeHeard(), u"closed, dismissed"_s);
}

TEST_F(MenuHostTest, AnActionMayOpenTheNextMenu)
{
    Menu next{{{.title = u"Next"_s, .keyEquivalent = {}, .action = {}}}};
    Menu menu{{MenuItem::separator(), {.title = u"Go"_s, .keyEquivalent = u"r"_s, .action = {}}}};
    menu.items[1].action = [&] { platform.menus.popUpContextMenu(next, [this] { heard << u"next gone"_s; }); };
    moveTo({40, 50});
    platform.menus.popUpContextMenu(menu, [this] { heard << u"first gone"_s; });
    EXPECT_EQ(desktop.menus().anchor(), QRectF(40, 50, 0, 0));
    EXPECT_EQ(desktop.menus().titles(), QStringList({u"-"_s, u"Go"_s}));
    EXPECT_EQ(desktop.menus().openMenu()->entries().at(1).shortcut, u"⌘R"_s);
    EXPECT_TRUE(desktop.menus().choose(u"Go"_s));
    EXPECT_EQ(takeHeard(), u"first gone"_s);
    EXPECT_EQ(desktop.menus().titles(), QStringList(u"Next"_s));
}

} // namespace brimshade::desktop
