#include "MenuBarContext.h"

namespace brimshade::menubar::tests {

constexpr QRectF kSomewhere{900, 0, 30, 37};

ExtraDescription textItem(const std::optional<QString> &title, const std::optional<QString> &description)
{
    ExtraDescription item = extraAt(u"x"_s, kSomewhere);
    item.title = title;
    item.description = description;
    return item;
}

TEST(Scan, OrdersItemsByTheirLeftEdgeAndEqualOnesByName)
{
    MenuBarContext bar(notchedDesktop(
        {application(1, u"Zebra"_s, {extraAt(u"z"_s, {900, 0, 30, 37})}),
         application(2, u"Relay"_s, {extraAt(u"r2"_s, {1000, 0, 30, 37}), extraAt(u"r1"_s, {860, 0, 30, 37})}),
         application(3, u"Apple"_s, {extraAt(u"a1"_s, {900, 0, 20, 37}), extraAt(u"a2"_s, {900, 0, 30, 37})})}));
    EXPECT_EQ(ids(bar.scan()), (QStringList{u"2-1-r1"_s, u"3-0-a1"_s, u"3-1-a2"_s, u"1-0-z"_s, u"2-0-r2"_s}));
}

TEST(Scan, FindsItemsInGroupsAtAnyDepthAndNumbersThemInOrder)
{
    ExtraDescription other = extraAt(u"other"_s, {940, 0, 30, 37});
    other.role = u"AXImage"_s;
    ExtraDescription nameless = extraAt({}, {950, 0, 30, 37});
    nameless.identifier.reset();
    MenuBarContext bar(notchedDesktop(
        {application(7, u"Relay"_s,
                     {extraAt(u"a"_s, {900, 0, 30, 37}),
                      group({extraAt(u"b"_s, {910, 0, 30, 37}), group({group({}), extraAt(u"c"_s, {920, 0, 30, 37})})}),
                      other, button({930, 0, 1, 37}), nameless})}));
    EXPECT_EQ(ids(bar.scan()), (QStringList{u"7-0-a"_s, u"7-1-b"_s, u"7-2-c"_s, u"7-3-"_s}));
}

TEST(Scan, LeavesOutThisProgramAndASecondInstanceOfIt)
{
    MenuBarContext bar(notchedDesktop(
        {application(7, u"Relay"_s, {extra(u"relay"_s)}), application(8, u"Brimshade"_s, {extra(u"second"_s)})}));
    desktop::ApplicationSpec second;
    second.description = application(8, u"Brimshade"_s, {extra(u"second"_s)});
    second.description.bundleIdentifier = bar.platform.workspace.bundleIdentifier();
    ASSERT_TRUE(bar.desktop.change(8, second));
    EXPECT_EQ(ids(bar.scan()), QStringList{u"7-0-relay"_s});
}

// A button hides what ends left of it, whichever application it belongs to and whenever it is encountered.
TEST(Scan, HidesByTheLastButtonMetOverAllApplications)
{
    const auto one = application(1, u"One"_s, {extraAt(u"left"_s, {900, 0, 30, 37}), button({1100, 0, 20, 37})});
    const auto two =
        application(2, u"Two"_s, {group({button({940, 0, 20, 37})}), extraAt(u"right"_s, {1000, 0, 30, 37})});
    const auto none = application(3, u"None"_s, {});
    const auto hiddenAmong = [](const std::vector<ApplicationDescription> &applications) {
        MenuBarContext bar(applications);
        QStringList hidden;
        for (const MenuExtra &extra : bar.scan())
            if (extra.isHidden)
                hidden.append(extra.id);
        return hidden;
    };
    EXPECT_EQ(hiddenAmong({one, two, none}), QStringList{u"1-0-left"_s});
    EXPECT_EQ(hiddenAmong({two, one, none}), (QStringList{u"1-0-left"_s, u"2-0-right"_s}));
}

TEST(Scan, LabelsItemsOfOrdinaryApplications)
{
    const std::tuple<std::optional<QString>, std::optional<QString>, QString> cases[] = {
        {u"  3 new\t"_s, u"ignored"_s, u"3 new"_s},
        {u" \t "_s, u" Mail "_s, u"Mail"_s},
        {{}, u"Mail"_s, u"Mail"_s},
        {u"  "_s, {}, u"Relay"_s},
        {{}, {}, u"Relay"_s},
        {u"\nA"_s, {}, u"\nA"_s},
    };
    for (const auto &[title, description, detail] : cases) {
        MenuBarContext bar({application(1, u"Relay"_s, {textItem(title, description)})});
        const MenuExtra extra = bar.found(u"x"_s);
        EXPECT_EQ(extra.name, u"Relay"_s);
        EXPECT_EQ(extra.detail, detail);
        EXPECT_FALSE(extra.symbol || extra.icon.isNull());
        EXPECT_EQ(extra.icon.size(), QSizeF(128, 128));
        EXPECT_TRUE(extra.canMove);
    }
}

TEST(Scan, LabelsItemsOfTheSystemsAgent)
{
    const std::tuple<std::optional<QString>, std::optional<QString>, QString, QString> cases[] = {
        {u"Time"_s, u"Clock"_s, u"Clock"_s, u"Time"_s},
        {{}, u"  "_s, u"  "_s, u"Control Center"_s}, // only an absent or empty description falls back
        {u"Wi-Fi"_s, u""_s, u"System"_s, u"Wi-Fi"_s},
        {{}, {}, u"System"_s, u"Control Center"_s},
    };
    for (const auto &[title, description, name, detail] : cases) {
        MenuBarContext bar({systemAgent({textItem(title, description)})});
        const MenuExtra extra = bar.found(u"x"_s);
        EXPECT_EQ(extra.name, name);
        EXPECT_EQ(extra.detail, detail);
        EXPECT_EQ(extra.symbol, u"circle.grid.2x2.fill"_s);
        EXPECT_TRUE(extra.icon.isNull());
        EXPECT_EQ(extra.tint.name(), u"#bfbfbf"_s);
    }
    MenuBarContext bar({systemAgent({extra(u"x.clock"_s), extra(u"x.wifi"_s)})});
    EXPECT_FALSE(bar.found(u"x.clock"_s).canMove);
    EXPECT_TRUE(bar.found(u"x.wifi"_s).canMove);
}

TEST(Scan, NamesAnAuxiliaryApplicationAfterTheOneThatHoldsIt)
{
    auto inner = application(1, u"Inner"_s, {extra(u"x"_s)});
    inner.bundlePath = u"/Applications/Outer.app/Contents/Library/LoginItems/Inner.app"_s;
    auto outer = application(2, u"Outer"_s, {extra(u"y"_s)});
    auto nameless = application(3, u"Tool"_s, {extra(u"z"_s)});
    nameless.name.reset();
    nameless.bundlePath.reset();
    auto description = notchedDesktop({inner, outer, nameless});
    description.displayNames[u"/Applications/Outer.app"_s] = u"Outer Suite.app"_s;
    MenuBarContext bar(description);
    EXPECT_EQ(bar.found(u"x"_s).name, u"Outer Suite"_s);
    EXPECT_EQ(bar.found(u"y"_s).name, u"Outer"_s);
    EXPECT_EQ(bar.found(u"z"_s).name, u"App"_s);
    EXPECT_TRUE(bar.found(u"x"_s).icon.isSameObject(bar.found(u"y"_s).icon)); // the outer one's, made once
}

ApplicationDescription slow(ApplicationDescription application, double latency)
{
    application.latency = latency;
    return application;
}

TEST(Scan, TakesAsLongAsTheSlowestApplication)
{
    const auto sluggish = [](int pid) {
        return slow(application(pid, u"Sluggish"_s, {extra(u"a"_s), extra(u"b"_s), extra(u"c"_s)}), 0.1);
    };
    std::vector<ApplicationDescription> hanging;
    for (int pid = 1; pid <= 8; ++pid)
        hanging.push_back(hung(application(pid, u"Hung"_s, {extra(u"x"_s)})));
    hanging.push_back(application(9, u"Well"_s, {extra(u"y"_s)}));
    const std::tuple<std::vector<ApplicationDescription>, double, std::uint64_t, std::size_t> cases[] = {
        {hanging, 0.25, 8 + 2 + 1 + 5, 1},
        {{sluggish(1)}, 2, 2 + 3 + 15, 3}, // a tenth of a second for each read
        {{sluggish(1), sluggish(2), sluggish(3), sluggish(4)}, 2, 4 * 20, 12},
    };
    for (const auto &[applications, seconds, reads, items] : cases) {
        MenuBarContext bar(applications);
        EXPECT_EQ(bar.scan().size(), items);
        EXPECT_DOUBLE_EQ(bar.secondsOfLastScan, seconds);
        EXPECT_EQ(bar.desktop.inspection().requestCount(), reads);
    }
}

TEST(Scan, AsksNoMoreOfAnApplicationThatHangsInTheMiddle)
{
    // Its thirteenth read, the size of its first item, begins at 0.24 s.
    auto sluggish =
        slow(application(1, u"Sluggish"_s, {extra(u"a"_s), extra(u"b"_s), extra(u"c"_s), button(kSomewhere)}), 0.02);
    MenuBarContext bar({sluggish, application(2, u"Well"_s, {extra(u"y"_s)})});
    bar.dispatch.mainAfter(0.23, [&] {
        sluggish.hangs = true;
        bar.desktop.change(1, {.description = sluggish});
    });
    EXPECT_EQ(ids(bar.scan()), (QStringList{u"1-1-"_s, u"1-2-"_s, u"2-0-y"_s, u"1-0-a"_s}));
    EXPECT_DOUBLE_EQ(bar.secondsOfLastScan, 0.24 + 0.25);
}

// No matter who answers first, the workspace's order decides between items that look alike, and which button is the
// last.
TEST(Scan, MergesInTheOrderOfTheWorkspace)
{
    const auto each = [](int pid, double edge, double latency) {
        return slow(application(pid, u"Twin"_s, {extraAt(u"x"_s, kSomewhere), button({edge - 20, 0, 20, 37})}),
                    latency);
    };
    for (const auto &[first, second] : {std::pair(0.1, 0.), std::pair(0., 0.1), std::pair(0.1, 0.1)}) {
        MenuBarContext bar({each(1, 1100, first), each(2, 900, second)});
        const ExtraList extras = bar.scan();
        EXPECT_EQ(ids(extras), (QStringList{u"1-0-x"_s, u"2-0-x"_s})) << first << second;
        EXPECT_FALSE(extras.at(0).isHidden) << first << second;
    }
}

TEST(Scan, ReadsEachAttributeOnce)
{
    auto without = application(1, u"One"_s, {});
    without.extras.reset();
    MenuBarContext bar(
        {without, application(2, u"Two"_s, {extra(u"a"_s), group({extra(u"b"_s)}), button(kSomewhere)})});
    const auto before = bar.desktop.inspection().requestCount();
    bar.scan();
    // The bars of both; the children of the bar and of the group; four roles; texts and frames of two items; the
    // frame of the button.
    EXPECT_EQ(bar.desktop.inspection().requestCount() - before, 2 + 2 + 4 + 2 * 5 + 2);
}

TEST(Scan, FindsNothingWithoutThePermission)
{
    MenuBarContext bar({systemAgent({extra(u"a"_s), button(kSomewhere)})});
    bar.desktop.setTrusted(false);
    EXPECT_TRUE(bar.scan().empty());
    EXPECT_EQ(bar.access->firstSystemButtonFrame(), std::nullopt);
}

TEST(FirstSystemButton, IsTheFirstDirectlyInTheAgentsBar)
{
    const QRectF first(880, 0, 20, 37);
    const std::tuple<const char *, std::vector<ApplicationDescription>, std::optional<QRectF>, double> cases[] = {
        {"two buttons", {systemAgent({extra(u"a"_s), button(first), button(kSomewhere)})}, first, 0},
        {"one in a group", {systemAgent({group({button(kSomewhere)}), button(first)})}, first, 0},
        {"another application's", {application(1, u"One"_s, {button(first)}), systemAgent({extra(u"a"_s)})}, {}, 0},
        {"no agent", {application(1, u"One"_s, {button(first)})}, {}, 0},
        {"an agent that hangs", {hung(systemAgent({button(first)}))}, {}, 0.2},
    };
    for (const auto &[what, applications, expected, seconds] : cases) {
        MenuBarContext bar(applications);
        std::optional<QRectF> frame;
        EXPECT_DOUBLE_EQ(bar.onScanQueue([&] { frame = bar.access->firstSystemButtonFrame(); }), seconds) << what;
        EXPECT_EQ(frame, expected) << what;
    }
}

} // namespace brimshade::menubar::tests
