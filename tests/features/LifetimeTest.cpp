#include "Brimshade.h"

namespace brimshade::features {

// Whatever was under way when the coordinator was destroyed has no effect and does no harm.
TEST(Lifetime, NothingHappensOnceTheCoordinatorIsGone)
{
    auto desktop = dividedDesktop();
    desktop.defaults.insert(u"hoverToOpen"_s, true);
    desktop.defaults.insert(u"shortcut"_s, u"controlOptionSpace"_s);
    const std::function<void(Brimshade &)> beginnings[] = {
        [](Brimshade &b) { b.clickStatusItemNow(); },
        [](Brimshade &b) { b.open(); },
        [](Brimshade &b) { b.movePointer(kOnNotch); },
        [](Brimshade &b) { b.movePointer(kOnNotch), b.wait(1); },
        [](Brimshade &b) { b.rightClickStatusItem(); },
        [](Brimshade &b) { b.model().onOpenSettings(); },
        [](Brimshade &b) { b.model().onShowOnboarding(); },
        [](Brimshade &b) { b.open(), b.model().onSelect(b.item(u"Relay"_s)); },
        [](Brimshade &b) { b.open(), b.show(u"Relay"_s); },
        [](Brimshade &b) { b.open(), b.show(u"Relay"_s), b.wait(1.5); },
        [](Brimshade &b) {
            b.finishSetup({{u"Relay"_s, false}, {u"Vault"_s, false}}), b.wait(4);
        },
        [](Brimshade &b) { b.desktop().launch({application(900, u"Late"_s)}); },
    };
    for (const auto &begin : beginnings) {
        Brimshade brimshade(desktop);
        begin(brimshade);
        brimshade.vanish();
        brimshade.wait(30);
        EXPECT_TRUE(brimshade.desktop().windows().windows().empty());
        EXPECT_TRUE(brimshade.statusItem().isNull());
        brimshade.pressShortcut();
        brimshade.clickElsewhere();
        brimshade.movePointer(kOnNotch);
        brimshade.desktop().setScreens({notchedScreen(800)});
        brimshade.wait(30);
        EXPECT_LE(brimshade.dragCount(), 1); // the one under way is finished, and no other is begun
    }
}

// The one step of an opening that keeps what it needs alive, so that no open panel is left with closed views.
TEST(Lifetime, AnOpeningIsFinishedByItsNextTurn)
{
    Brimshade brimshade;
    bool isOpen = false;
    model::NotchModel &model = brimshade.model();
    QObject::connect(&model, &model::NotchModel::isOpenChanged, [&] { isOpen = model.isOpen(); });
    brimshade.clickStatusItemNow();
    brimshade.vanish();
    brimshade.wait(0);
    EXPECT_TRUE(isOpen);
    EXPECT_TRUE(brimshade.desktop().windows().windows().empty());
}

} // namespace brimshade::features
