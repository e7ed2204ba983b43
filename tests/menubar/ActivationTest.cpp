#include "menubar/Activation.h"
#include "MenuBarContext.h"
#include "desktop/services/LogWriter.h"

namespace brimshade::menubar::tests {

using Attempt = std::pair<QString, int>;

std::vector<Attempt> attempts(MenuBarContext &bar)
{
    std::vector<Attempt> list;
    for (const desktop::PerformedAction &action : bar.desktop.inspection().takeActions())
        list.emplace_back(action.action, action.result);
    return list;
}

QStringList errors(MenuBarContext &bar)
{
    QStringList list;
    for (const desktop::LogEntry &entry : bar.desktop.log().take()) {
        EXPECT_EQ(entry.level, platform::LogLevel::error);
        list.append(entry.text);
    }
    return list;
}

TEST(Activation, PressesOrElseShowsTheMenuAndLogsWhatFailed)
{
    const std::tuple<const char *, QStringList, std::optional<int>, std::vector<Attempt>, QStringList> cases[] = {
        {"can be pressed", {u"AXPress"_s, u"AXShowMenu"_s}, {}, {{u"AXPress"_s, 0}}, {}},
        {"only has a menu", {u"AXShowMenu"_s}, {}, {{u"AXPress"_s, -25206}, {u"AXShowMenu"_s, 0}}, {}},
        {"can nothing",
         {},
         {},
         {{u"AXPress"_s, -25206}, {u"AXShowMenu"_s, -25206}},
         {u"press failed for Relay: AXError -25206"_s}},
        {"is busy with its menu", {u"AXPress"_s}, -25204, {{u"AXPress"_s, -25204}}, {}},
        {"fails", {u"AXPress"_s}, -25200, {{u"AXPress"_s, -25200}}, {u"press failed for Relay: AXError -25200"_s}},
    };
    for (const auto &[what, actions, pressError, expected, log] : cases) {
        ExtraDescription item = extra(u"x"_s);
        item.actions = actions;
        item.pressError = pressError;
        MenuBarContext bar({application(1, u"Relay"_s, {item})});
        bar.access->activate(bar.found(u"x"_s));
        EXPECT_TRUE(attempts(bar).empty()) << "pressed on the calling thread";
        bar.dispatch.runDue();
        EXPECT_EQ(attempts(bar), expected) << what;
        EXPECT_EQ(errors(bar), log) << what;
    }
}

TEST(Activation, OfAnApplicationThatHasQuitIsLogged)
{
    MenuBarContext bar({application(1, u"Relay"_s, {extra(u"x"_s)})});
    const MenuExtra found = bar.found(u"x"_s);
    bar.desktop.quit(1);
    bar.access->activate(found);
    bar.dispatch.runDue();
    EXPECT_EQ(errors(bar), QStringList{u"press failed for Relay: AXError -25202"_s});
}

TEST(Activation, WaitsHalfASecondForAnApplicationThatHangs)
{
    MenuBarContext bar({application(1, u"Relay"_s, {extra(u"x"_s)})});
    const MenuExtra found = bar.found(u"x"_s);
    desktop::ApplicationSpec given;
    given.description = hung(application(1, u"Relay"_s, {extra(u"x"_s)}));
    ASSERT_TRUE(bar.desktop.change(1, given));
    EXPECT_DOUBLE_EQ(bar.onScanQueue([&] { pressItem(bar.platform.accessibility, bar.platform.log, found); }), 0.5);
    EXPECT_TRUE(errors(bar).isEmpty());
}

} // namespace brimshade::menubar::tests
