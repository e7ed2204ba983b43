#include "Brimshade.h"

namespace brimshade::features {

constexpr double kAtOnce = 0.15; // the bar has settled by then

desktop::ApplicationSpec live(int pid, const QString &name)
{
    return {.description = application(pid, name), .isLive = true};
}

QStringList listed(Brimshade &brimshade)
{
    QStringList names;
    for (const auto &extra : brimshade.model().extras()) {
        if (extra.canMove)
            names.append(extra.name);
    }
    return names;
}

TEST(LiveItems, ComeChangeAndGoInAnOpenPanelWhichKeepsSearchAndSelection)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.type(u"l"_s);
    brimshade.model().moveSelection(1);
    const QString selected = brimshade.model().selectedID();
    const auto expect = [&](const QStringList &names) {
        brimshade.wait(kAtOnce);
        EXPECT_EQ(listed(brimshade), names);
        EXPECT_EQ(brimshade.model().query(), u"l"_s);
        EXPECT_EQ(brimshade.model().selectedID(), selected);
    };
    brimshade.desktop().launch(live(901, u"Clip"_s));
    expect({u"Clip"_s, u"Quill"_s, u"Vault"_s, u"Relay"_s});
    brimshade.desktop().change(901, live(901, u"Clipboard"_s));
    expect({u"Clipboard"_s, u"Quill"_s, u"Vault"_s, u"Relay"_s});
    brimshade.desktop().quit(901);
    expect({u"Quill"_s, u"Vault"_s, u"Relay"_s});
}

TEST(LiveItems, TakeTheirOpenMenuWithThem)
{
    const std::pair<const char *, std::function<void(desktop::Desktop &)>> ends[] = {
        {"the application quits", [](desktop::Desktop &d) { d.quit(811); }},
        {"it takes its item back",
         [](desktop::Desktop &d) { d.change(811, {.description = brimshade::application(811, u"Relay"_s, {})}); }},
    };
    for (const auto &[name, end] : ends) {
        Brimshade brimshade;
        brimshade.open();
        brimshade.model().onSelect(brimshade.item(u"Relay"_s));
        brimshade.wait(1);
        EXPECT_EQ(brimshade.desktop().menus().titles(), QStringList{u"About"_s}) << name;
        brimshade.desktop().quit(812);
        EXPECT_TRUE(brimshade.desktop().menus().openMenu()) << "it belongs to another application";
        end(brimshade.desktop());
        EXPECT_FALSE(brimshade.desktop().menus().openMenu()) << name;
    }
}

TEST(LiveItems, AreReadAgainOnlyWhileSomebodyLooksAndOnceForABurst)
{
    Brimshade brimshade;
    int deliveries = 0;
    QObject::connect(&brimshade.model(), &model::NotchModel::extrasChanged, [&] { ++deliveries; });
    brimshade.desktop().launch(live(901, u"Clip"_s));
    brimshade.wait(1);
    EXPECT_EQ(deliveries, 0);
    brimshade.open();
    deliveries = 0;
    for (int i = 0; i < 10; ++i)
        brimshade.desktop().change(901, live(901, u"Clip %1"_s.arg(i)));
    brimshade.desktop().change(901, live(901, u"Clip 9"_s)); // nothing new
    brimshade.desktop().launch({.description = application(902, u"Other"_s)}); // found when the panel opens again
    brimshade.wait(1);
    EXPECT_EQ(deliveries, 1);
}

TEST(LiveItems, ThatAreGoneWhenTheyAreToOpenAreToldOf)
{
    Brimshade brimshade;
    QStringList told;
    QObject::connect(&brimshade.desktop(), &desktop::Desktop::notified,
                     [&](const QString &application, const QString &what) { told << application + u": "_s + what; });
    brimshade.desktop().launch(live(901, u"Clip"_s));
    brimshade.wait(1);
    for (const auto &[chosen, pid] : {std::pair(u"Clip"_s, 901), std::pair(u"Relay"_s, 811)}) {
        brimshade.open();
        brimshade.model().onSelect(brimshade.item(chosen));
        brimshade.desktop().quit(pid);
        brimshade.wait(1);
    }
    EXPECT_EQ(told, QStringList{u"Clip: It is no longer there."_s});
}

} // namespace brimshade::features
