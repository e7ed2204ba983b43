#include "desktop/core/KeptOrder.h"
#include "Brimshade.h"

namespace brimshade::features {

namespace {

// A program that comes and goes with one item, both with that name.
desktop::ApplicationSpec program(int pid, const QString &name, const QString &id = u"main"_s)
{
    const QString identifier = name.toLower() + u'.' + id;
    return {.description = brimshade::application(pid, name, {extra(identifier, 34, {u"About"_s})}),
            .items = {{identifier, {.origin = desktop::ItemOrigin{QString::number(pid), name, id}}}}};
}

class Bar : public Brimshade {
public:
    explicit Bar(const QVariantMap &defaults = {}) : Brimshade(described(defaults)) { }

    void launch(const QString &name) { desktop().launch(program(++m_lastPid, name)); }
    void launchAll(const QStringList &names)
    {
        for (const QString &name : names)
            launch(name);
        wait(2); // the divider has measured anew
    }
    void putAside(const QString &name)
    {
        hiddenItems(); // scans
        hide(name);
        wait(5);
    }
    void putBack(const QString &name)
    {
        hiddenItems();
        show(name);
        wait(5);
    }
    bool isDrawn(const QString &name)
    {
        const auto items = desktop().menuBar().items();
        return std::ranges::any_of(items, [&](const desktop::BarItem &item) {
            return item.drawn && item.identifier.startsWith(name.toLower() + u'.');
        });
    }
    bool isOwnDrawn()
    {
        const auto items = desktop().menuBar().items();
        return std::ranges::find(items, true, &desktop::BarItem::isOwn)->drawn;
    }
    int lastPid() const { return m_lastPid; }

private:
    static desktop::DesktopDescription described(const QVariantMap &defaults)
    {
        auto description = notchedDesktop(defaults);
        description.applications = {systemAgent()};
        return description;
    }

    int m_lastPid = 900;
};

QStringList many(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(u"n%1"_s.arg(i, 2, 10, QChar(u'0')));
    return names;
}

} // namespace

TEST(KeptOrder, TheFirstHideTucksAwayOneItemAndNotAll)
{
    Bar bar;
    bar.launchAll({u"Relay"_s, u"Vault"_s, u"Quill"_s});
    EXPECT_EQ(bar.bar(), u"| quill vault relay"_s);
    EXPECT_EQ(bar.hiddenItems(), u""_s);
    bar.putAside(u"Vault"_s);
    EXPECT_EQ(bar.bar(), u"vault | quill relay"_s);
    EXPECT_EQ(bar.hiddenItems(), u"Vault"_s);
    EXPECT_EQ(bar.dragCount(), 1);
    bar.launchAll({u"Pigment"_s});
    EXPECT_EQ(bar.bar(), u"vault | pigment quill relay"_s);
    EXPECT_TRUE(bar.isDrawn(u"Pigment"_s));
    EXPECT_EQ(bar.hiddenItems(), u"Vault"_s);
}

TEST(KeptOrder, WhatWasTuckedAwayIsSoAgainWhoeverComesFirst)
{
    const QStringList names{u"Relay"_s, u"Vault"_s, u"Quill"_s};
    Bar before;
    before.launchAll(names);
    before.putAside(u"Vault"_s);
    QStringList order = names;
    std::ranges::sort(order);
    int early = 0; // how many have come when the order becomes known
    do {
        Bar bar({{u"dividerEnabled"_s, true}});
        for (const QString &name : order.first(early))
            bar.launch(name);
        bar.desktop().menuBar().restore(before.desktop().menuBar().keptOrder());
        bar.launchAll(order.sliced(early));
        EXPECT_EQ(bar.bar(), u"vault | quill relay"_s);
        EXPECT_EQ(bar.hiddenItems(), u"Vault"_s);
        bar.desktop().quit(bar.lastPid());
        bar.launchAll(order.last(1)); // only the program was restarted
        EXPECT_EQ(bar.bar(), u"vault | quill relay"_s);
        EXPECT_EQ(bar.hiddenItems(), u"Vault"_s);
        early = (early + 1) % 4;
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(KeptOrder, TheOwnItemShowsHoweverManyThereAre)
{
    for (const bool divided : {false, true}) {
        Bar bar({{u"dividerEnabled"_s, divided}});
        bar.launchAll(many(20));
        EXPECT_TRUE(bar.isOwnDrawn());
        // 483 points right of the notch: 13 items of 34 points and the icon.
        EXPECT_EQ(bar.bar().section(u'|', 1), u" n12 n11 n10 n09 n08 n07 n06 n05 n04 n03 n02 n01 n00"_s);
        EXPECT_EQ(bar.hiddenItems().split(u' ').size(), 7);
        bar.desktop().quit(bar.lastPid() - 19);
        bar.desktop().quit(bar.lastPid() - 18);
        bar.wait(2);
        EXPECT_TRUE(bar.isDrawn(u"n13"_s) && bar.isDrawn(u"n14"_s)) << "as soon as there is room";
        EXPECT_FALSE(bar.isDrawn(u"n15"_s));
        EXPECT_TRUE(bar.isOwnDrawn());
    }
}

TEST(KeptOrder, OneThatIsShownInAFullBarMakesAnotherGiveWay)
{
    Bar bar;
    bar.launchAll(many(15));
    EXPECT_EQ(bar.hiddenItems().split(u' ').size(), 2);
    bar.putBack(u"n14"_s);
    EXPECT_EQ(bar.model().message(), QString());
    EXPECT_TRUE(bar.isDrawn(u"n14"_s) && bar.isOwnDrawn());
    EXPECT_FALSE(bar.isDrawn(u"n12"_s) || bar.isDrawn(u"n13"_s));
    bar.putAside(u"n05"_s);
    EXPECT_EQ(bar.model().message(), QString());
    EXPECT_FALSE(bar.isDrawn(u"n05"_s));
    EXPECT_TRUE(bar.isDrawn(u"n12"_s)) << "there is room for it now";
}

TEST(KeptOrder, TheWidenedIconGivesWayToAnItemThatARunningProgramAdds)
{
    Bar bar({{u"dividerEnabled"_s, true}});
    bar.launchAll({u"Relay"_s});
    auto relay = program(bar.lastPid(), u"Relay"_s);
    const auto second = program(bar.lastPid(), u"Relay"_s, u"second"_s);
    relay.description.extras->push_back(second.description.extras->front());
    relay.items[u"relay.second"_s].origin = {u"another"_s, u"Relay"_s, u"second"_s};
    bar.desktop().change(bar.lastPid(), relay);
    bar.wait(1);
    EXPECT_EQ(bar.bar(), u"| relay relay"_s);
    EXPECT_EQ(bar.hiddenItems(), QString());
    EXPECT_TRUE(bar.isOwnDrawn());
}

TEST(KeptOrder, AnItemThatTellsItsNameLateKeepsItsPlace)
{
    Bar bar;
    bar.launchAll({u"Relay"_s, u"Vault"_s, u"Quill"_s});
    bar.putAside(u"Vault"_s);
    const int vault = bar.lastPid() - 1;
    auto renamed = program(vault, u"Vault"_s, u"late"_s);
    bar.desktop().change(vault, renamed);
    bar.wait(1);
    EXPECT_EQ(bar.bar(), u"vault | quill relay"_s);
    EXPECT_EQ(bar.hiddenItems(), u"Vault"_s) << "its new element has the place of the old one";

    bar.desktop().quit(vault);
    bar.desktop().launch(program(vault, u"Vault"_s, u"early"_s));
    bar.wait(2);
    EXPECT_EQ(bar.bar(), u"| vault quill relay"_s);
    bar.desktop().change(vault, renamed);
    bar.wait(1);
    EXPECT_EQ(bar.bar(), u"vault | quill relay"_s) << "it is the one that was tucked away";
}

TEST(KeptOrder, TheOwnItemKeepsItsDistanceAmongListedItemsWithoutThoseThatComeAndGo)
{
    const auto key = u"NSStatusItem Preferred Position BrimshadeButton"_s;
    auto description = notchedDesktop();
    for (const int places : {0, 1, 2}) {
        Brimshade brimshade(description); // "quill vault relay |"
        brimshade.desktop().launch(program(901, u"Pigment"_s));
        brimshade.wait(2);
        const QRectF own = brimshade.statusItem();
        brimshade.drag(own.center(), own.center() - QPointF(30 * places + 5, 0), platform::kCommandFlag);
        const QStringList expected{u"quill vault relay | pigment"_s, u"quill vault | relay pigment"_s,
                                   u"quill | vault relay pigment"_s};
        EXPECT_EQ(brimshade.bar(), expected[places]);
        const QVariant points = brimshade.desktop().platform().userDefaults.objectForKey(key);
        EXPECT_EQ(points.toInt(), places == 0 ? 5 : 180 + 30 * places);

        auto again = description;
        again.defaults.insert(key, points);
        Brimshade restarted(again);
        restarted.desktop().launch(program(901, u"Pigment"_s));
        restarted.wait(2);
        EXPECT_EQ(restarted.bar(), QString(expected[places]).remove(u" pigment"_s).replace(u"|"_s, u"| pigment"_s));
    }
}

} // namespace brimshade::features
