#include "Brimshade.h"
#include "desktop/core/Inspection.h"

namespace brimshade::features {

desktop::DesktopDescription withHungApplications(desktop::DesktopDescription desktop, int count)
{
    for (int pid = 900; pid < 900 + count; ++pid)
        desktop.applications.push_back(hung(application(pid, u"Hung%1"_s.arg(pid))));
    return desktop;
}

// Counts the results that reach the list.
class Deliveries {
public:
    explicit Deliveries(model::NotchModel &model)
        : m_connection(QObject::connect(&model, &model::NotchModel::extrasChanged, [this] { ++count; }))
    {
    }
    ~Deliveries() { QObject::disconnect(m_connection); }

    int count = 0;

private:
    const QMetaObject::Connection m_connection;
};

constexpr double kScan = 0.25; // on a desktop with applications that hang

TEST(Scans, ThatHaveNotBegunAreOne)
{
    Brimshade brimshade(withHungApplications(dividedDesktop(), 8));
    brimshade.open();
    brimshade.wait(1);
    brimshade.clickStatusItem();
    Deliveries deliveries(brimshade.model());
    for (int i = 0; i < 6; ++i) {
        brimshade.clickStatusItem();
        brimshade.clickStatusItem();
    }
    brimshade.show(u"Vault"_s);
    brimshade.wait(2 * kScan);
    EXPECT_EQ(deliveries.count, 2) << "the one that ran, and one for the other five";
    // Once the queue is free, the move looks where the item is, lets the bar settle, and begins its drag.
    const double begin = 2 * kScan + kScan + 0.45 + kScan + 0.04;
    brimshade.wait(begin - 2 * kScan - 0.001);
    EXPECT_EQ(brimshade.dragCount(), 0);
    brimshade.wait(0.001);
    EXPECT_EQ(brimshade.dragCount(), 1);
}

TEST(Scans, ThatWaitTogetherUseWhatHoldsAtTheLastOfThem)
{
    auto desktop = withHungApplications(notchedDesktop(), 1);
    desktop.applications.push_back(application(820, u"Wide"_s, 300)); // from 914 to 1214
    Brimshade brimshade(desktop);
    brimshade.model().onRefresh();
    brimshade.wait(0); // the scan is under way
    brimshade.model().onRefresh();
    brimshade.desktop().setScreens({notchedScreen(950)});
    brimshade.model().onRefresh();
    brimshade.wait(kScan);
    EXPECT_FALSE(brimshade.item(u"Wide"_s).isHidden);
    brimshade.wait(kScan);
    EXPECT_TRUE(brimshade.item(u"Wide"_s).isHidden);
}

desktop::ScreenDescription notchedScreenAt(double x)
{
    auto screen = notchedScreen();
    screen.frame.moveLeft(x);
    return screen;
}

TEST(Scans, OfAFirstRunUseTheNotchedScreenThoughAnotherIsTheMainOne)
{
    auto desktop = notchedDesktop();
    desktop.defaults.clear();
    desktop.screens = {plainScreen({0, 0, 1920, 1080}), notchedScreenAt(1920)};
    desktop.applications.push_back(application(820, u"Wide"_s, 500)); // reaches behind the notch
    Brimshade brimshade(desktop);
    ASSERT_TRUE(brimshade.isOnScreen(u"setup"_s));
    EXPECT_EQ(brimshade.hiddenItems(), u"Wide"_s);
}

TEST(Scans, UseTheScreenAsItIsNow)
{
    const std::pair<const char *, std::function<void(Brimshade &)>> callers[] = {
        {"Refresh", [](Brimshade &b) { b.model().onRefresh(); }},
        {"settings", [](Brimshade &b) { b.model().onOpenSettings(); }},
        {"setup", [](Brimshade &b) { b.model().onShowOnboarding(); }},
    };
    auto desktop = notchedDesktop();
    desktop.applications.push_back(application(820, u"Wide"_s, 300)); // from 914 to 1214
    for (const auto &[name, scan] : callers) {
        Brimshade brimshade(desktop);
        brimshade.open();
        brimshade.clickStatusItem();
        EXPECT_FALSE(brimshade.item(u"Wide"_s).isHidden) << name;
        brimshade.desktop().setScreens({notchedScreen(950)});
        brimshade.wait(1);
        scan(brimshade);
        brimshade.wait(0);
        EXPECT_TRUE(brimshade.item(u"Wide"_s).isHidden) << name;
    }
}

TEST(Scans, OfABulkMoveUseTheScreenAsItIsNow)
{
    auto desktop = notchedDesktop();
    desktop.applications.push_back(application(820, u"Wide"_s, 300)); // from 914 to 1214
    desktop.applications.push_back(application(821, u"Lost"_s, 200)); // from 714: behind the notch
    Brimshade brimshade(desktop);
    brimshade.finishSetup({{u"Lost"_s, false}});
    brimshade.wait(1);
    brimshade.desktop().setScreens({notchedScreen(700)});
    brimshade.wait(0.2);
    EXPECT_EQ(brimshade.model().movingID(), QString()) << "it is in view already: there is nothing to move";
}

TEST(Scans, SelectTheFirstMatchForWhoTypedBeforeTheResult)
{
    Brimshade brimshade(withHungApplications(notchedDesktop(), 1));
    brimshade.clickStatusItem();
    brimshade.type(u"vau"_s);
    brimshade.press(returnKey);
    EXPECT_TRUE(brimshade.delegate().shown()) << "there is nothing to open yet";
    brimshade.wait(kScan);
    brimshade.press(returnKey);
    brimshade.wait(1);
    EXPECT_EQ(brimshade.pressedItems(), QStringList(u"vault.main"_s));
}

TEST(Scans, TakeTheCardAwayOnceThePermissionIsGiven)
{
    Brimshade brimshade;
    brimshade.desktop().setTrusted(false);
    brimshade.open();
    EXPECT_FALSE(brimshade.model().trusted());
    brimshade.desktop().setTrusted(true);
    brimshade.rightClickStatusItem();
    brimshade.chooseFromMenu(u"Refresh"_s);
    EXPECT_TRUE(brimshade.delegate().shown());
    EXPECT_TRUE(brimshade.model().trusted());
    EXPECT_EQ(brimshade.model().extras().size(), 5u);
}

} // namespace brimshade::features
