#include "MenuBarContext.h"
#include "desktop/core/InputRouter.h"
#include "desktop/core/MenuBar.h"
#include "menubar/MenuBarMover.h"
#include "platform/StatusBar.h"

namespace brimshade::menubar::tests {

using enum MenuBarMover::Failure;

constexpr auto kPositionKey = "NSStatusItem Preferred Position BrimshadeButton";
constexpr QPointF kPointer{300, 600};

// The program's own item without the divider's measuring.
class PlainDivider : public DividerControl {
public:
    explicit PlainDivider(const platform::Platform &platform)
        : m_item(platform.statusBar.createStatusItem(28)), m_screens(platform.screens)
    {
        m_item->setAutosaveName(u"BrimshadeButton"_s);
    }

    QRectF axFrame() const override
    {
        const platform::Window *window = m_item->button()->window();
        return window ? platform::flipped(window->frame(), m_screens.screens().front().frame.height()) : QRectF();
    }
    void collapse() override
    {
        ++collapses;
        m_item->setLength(28);
    }
    void reanchor() override { ++reanchorings; }
    bool isWindowVisible() const override { return m_item->button()->window()->occlusionStateVisible(); }

    int collapses = 0;
    int reanchorings = 0;

private:
    std::shared_ptr<platform::StatusItem> m_item;
    platform::Screens &m_screens;
};

// Left to right: two items behind the divider, the divider, one item right of it, the clock.
desktop::DesktopDescription someBar()
{
    auto description = notchedDesktop(
        {systemAgent({extra(u"x.clock"_s, 132)}), application(1, u"Right"_s, {extra(u"right"_s, 40)}),
         application(2, u"Near"_s, {extra(u"near"_s, 40)}), application(3, u"Far"_s, {extra(u"far"_s, 16)})});
    description.defaults.insert(QString::fromLatin1(kPositionKey), 8 + 132 + 40);
    description.pointer = kPointer;
    return description;
}

struct MoverContext : MenuBarContext {
    std::shared_ptr<PlainDivider> divider;
    MenuBarMover mover{platform, access};
    double seconds = 0;

    explicit MoverContext(const desktop::DesktopDescription &description = someBar())
        : MenuBarContext(description), divider(std::make_shared<PlainDivider>(platform))
    {
        dispatch.advance(0.2);
    }

    MenuBarMover::Result move(const MenuExtra &extra, bool hide)
    {
        MenuBarMover::Result result;
        seconds = onScanQueue([&] { result = mover.move(extra, hide, divider); });
        return result;
    }
    MenuBarMover::Result move(const QString &identifier, bool hide) { return move(found(identifier), hide); }

    QStringList order()
    {
        QStringList list;
        for (const desktop::BarItem &item : desktop.menuBar().items())
            list.append(item.isOwn ? u"|"_s : item.identifier);
        return list;
    }
};

MenuBarMover::Result failure(MenuBarMover::Failure reason)
{
    return std::unexpected(reason);
}

// The bar takes a drag for what it is only when it comes like a hand's.
TEST(Mover, DragsAsAHandWould)
{
    MoverContext bar;
    const MenuExtra extra = bar.found(u"right"_s);
    const double start = bar.dispatch.now();
    ASSERT_EQ(bar.move(extra, true), MenuBarMover::Result());
    EXPECT_DOUBLE_EQ(bar.seconds, 0.45 + 0.04 + 0.35 + 40 * 0.02 + 0.3 + 0.4);

    const auto events = bar.desktop.inspection().takeEvents();
    ASSERT_EQ(events.size(), 43);
    const QPointF from(1352, 18.5); // the item's centre, at 1332 to 1372
    const QPointF to(1304 - 6, 18.5); // inside "near", which ends at the divider's left edge
    const auto expect = [&](std::size_t i, platform::CGEventType type, QPointF at, int clickState, double time) {
        const auto &[event, when] = events[i];
        EXPECT_EQ(event.type, type) << i;
        EXPECT_NEAR(event.location.x(), at.x(), 1e-9) << i;
        EXPECT_NEAR(event.location.y(), at.y(), 1e-9) << i;
        EXPECT_EQ(event.clickState, clickState) << i;
        EXPECT_EQ(event.flags, 0x100000) << i;
        EXPECT_NEAR(when - start, 0.45 + time, 1e-6) << i;
    };
    expect(0, platform::kCGEventMouseMoved, from, 0, 0);
    expect(1, platform::kCGEventLeftMouseDown, from, 1, 0.04);
    for (int i = 1; i <= 40; ++i)
        expect(1 + i, platform::kCGEventLeftMouseDragged, from + (to - from) * i / 40, 1, 0.39 + (i - 1) * 0.02);
    expect(42, platform::kCGEventLeftMouseUp, to, 1, 0.39 + 40 * 0.02 + 0.3);
}

TEST(Mover, SaysWhyAMoveFailedAndLetsTheDividerGrowAgain)
{
    struct {
        const char *what;
        std::function<void(MoverContext &)> before;
        QString identifier;
        bool hide;
        MenuBarMover::Failure failure;
        std::size_t events;
    } const cases[] = {
        {"another program fills the screen", [](MoverContext &bar) { bar.desktop.setMenuBarShowing(false); },
         u"right"_s, true, menuBarHidden, 0},
        {"the application quit", [](MoverContext &bar) { bar.desktop.quit(2); }, u"near"_s, false, noRoom, 0},
        {"the bar refuses", [](MoverContext &bar) { bar.desktop.setMovesAccepted(false); }, u"right"_s, true,
         didNotMove, 43},
        {"the bar refuses to show", [](MoverContext &bar) { bar.desktop.setMovesAccepted(false); }, u"far"_s, false,
         didNotMove, 43},
    };
    for (const auto &each : cases) {
        MoverContext bar;
        const MenuExtra extra = bar.found(each.identifier);
        each.before(bar);
        EXPECT_EQ(bar.move(extra, each.hide), failure(each.failure)) << each.what;
        bar.dispatch.runDue();
        EXPECT_EQ(bar.divider->collapses, 1) << each.what;
        EXPECT_EQ(bar.divider->reanchorings, 1) << each.what;
        EXPECT_EQ(bar.desktop.inspection().takeEvents().size(), each.events) << each.what;
        EXPECT_EQ(bar.desktop.input().pointer(), kPointer) << each.what;
    }
}

TEST(Mover, DoesNotNeedANeighbour)
{
    auto description = someBar();
    description.applications = {application(1, u"Right"_s, {extra(u"right"_s)})};
    description.defaults.insert(QString::fromLatin1(kPositionKey), 8 + 30);
    MoverContext bar(description);
    ASSERT_EQ(bar.order(), (QStringList{u"|"_s, u"right"_s}));
    const double left = bar.divider->axFrame().x();
    EXPECT_EQ(bar.move(u"right"_s, true), MenuBarMover::Result());
    EXPECT_EQ(bar.desktop.inspection().takeEvents().back().event.location.x(), left - 4);
    bar.dispatch.advance(0.2);
    const double right = platform::maxX(bar.divider->axFrame());
    EXPECT_EQ(bar.move(u"right"_s, false), MenuBarMover::Result());
    EXPECT_EQ(bar.desktop.inspection().takeEvents().back().event.location.x(), right + 4);
}

// The coordinator may go at any time; a move that runs then comes to an end by itself.
TEST(Mover, OutlivesTheDivider)
{
    MoverContext bar;
    const MenuExtra extra = bar.found(u"right"_s);
    bar.dispatch.mainAfter(1, [&] { bar.divider.reset(); });
    const std::weak_ptr<DividerControl> divider = bar.divider;
    MenuBarMover::Result result;
    bar.onScanQueue([&] { result = bar.mover.move(extra, true, divider); });
    EXPECT_EQ(result, failure(didNotMove));
    bar.onScanQueue([&] { result = bar.mover.move(extra, true, divider); });
    EXPECT_EQ(result, failure(menuBarHidden));
    bar.dispatch.runDue();
}

} // namespace brimshade::menubar::tests
