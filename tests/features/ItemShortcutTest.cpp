#include "Brimshade.h"
#include "desktop/services/HotkeyRegistry.h"
#include "platform/KeyCodes.h"

namespace brimshade::features {

using namespace platform;

constexpr std::uint64_t kHeld = kControlFlag | kOptionFlag;

// A person who gives shortcuts to items, and the messages they get.
class ItemShortcut : public testing::Test {
protected:
    void start(const desktop::DesktopDescription &description = notchedDesktop())
    {
        brimshade.emplace(description);
        QObject::connect(&brimshade->desktop(), &desktop::Desktop::notified,
                         [this](const QString &title, const QString &body) { told << title + u": "_s + body; });
    }
    void restart()
    {
        desktop::DesktopDescription description = notchedDesktop(brimshade->desktop().defaults().all());
        brimshade.reset();
        start(description);
    }
    void beginToRecord(const QString &item)
    {
        if (!brimshade->delegate().shown())
            brimshade->open();
        brimshade->model().onRecordShortcut(brimshade->item(item));
        ASSERT_TRUE(brimshade->model().isRecording());
    }
    // Returns once everything that follows has happened and the panel is closed.
    void record(const QString &item, int key)
    {
        beginToRecord(item);
        press(key);
        brimshade->wait(1.5);
        ASSERT_FALSE(brimshade->model().isRecording()) << qPrintable(sentence());
        brimshade->press(kVK_Escape);
        brimshade->wait(1);
        ASSERT_FALSE(brimshade->delegate().shown());
    }
    void press(int key) { brimshade->press(key, {}, kHeld); }
    // The items that were pressed since the last call, once the panel has had time to close.
    QStringList opened()
    {
        brimshade->wait(1);
        const QStringList pressed = brimshade->pressedItems();
        brimshade->desktop().menus().dismiss();
        return pressed;
    }
    QString sentence()
    {
        const auto &view = std::get<HostedView>(brimshade->desktop().windows().named(u"panel"_s)->content());
        return view.properties.value(u"recorder"_s).value<model::ShortcutRecorder *>()->sentence();
    }

    std::optional<Brimshade> brimshade;
    QStringList told;
};

TEST_F(ItemShortcut, OpensTheItemsMenuFromAnywhere)
{
    start();
    record(u"Relay"_s, kVK_ANSI_K);
    record(u"Vault"_s, kVK_ANSI_V);
    brimshade->clickElsewhere();
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList(u"relay.main"_s));
    press(kVK_ANSI_V);
    EXPECT_EQ(opened(), QStringList(u"vault.main"_s));
    EXPECT_FALSE(brimshade->delegate().shown());
    EXPECT_EQ(told, QStringList());
}

TEST_F(ItemShortcut, OpensThatOfAHiddenItemAndClosesThePanelFirst)
{
    start(dividedDesktop());
    record(u"Quill"_s, kVK_ANSI_K);
    ASSERT_FALSE(brimshade->isDrawn(u"quill.main"_s));
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList(u"quill.main"_s));
    brimshade->open();
    brimshade->type(u"rel"_s);
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList(u"quill.main"_s));
    EXPECT_FALSE(brimshade->delegate().shown());
}

TEST_F(ItemShortcut, StaysWithWhatTheItemIsAcrossRestartsOfBrimshadeAndOfTheProgram)
{
    start();
    record(u"Relay"_s, kVK_ANSI_K);
    restart();
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList(u"relay.main"_s));
    brimshade->desktop().quit(811);
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList());
    EXPECT_EQ(told, QStringList(u"Relay: It is not running."_s));
    brimshade->desktop().launch({.description = application(977, u"Relay"_s)});
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList(u"relay.main"_s));
    EXPECT_EQ(told.size(), 1);
}

TEST_F(ItemShortcut, ACombinationThatIsTakenIsRefusedWithTheOneWhoHasIt)
{
    struct Taken : desktop::GlobalKeyGrabber {
        void setPressed(std::function<void(desktop::HotkeyCombination)>) override { }
        bool grab(desktop::HotkeyCombination keys, const desktop::KeyUse &) override
        {
            return keys.keyCode != kVK_ANSI_T;
        }
        void release(desktop::HotkeyCombination) override { }
    };
    start();
    brimshade->desktop().hotkeys().setGrabber(std::make_unique<Taken>());
    brimshade->model().setShortcut(model::Shortcut::controlOptionSpace);
    record(u"Relay"_s, kVK_ANSI_K);
    beginToRecord(u"Vault"_s);
    for (const auto &[key, why] : {std::pair(int(kVK_Space), u"⌃⌥Space already opens Brimshade."_s),
                                   {kVK_ANSI_K, u"⌃⌥K already opens the menu of Relay."_s},
                                   {kVK_ANSI_T, u"⌃⌥T already belongs to another program."_s}}) {
        press(key);
        EXPECT_EQ(sentence(), why);
        EXPECT_TRUE(brimshade->model().isRecording());
    }
    EXPECT_TRUE(brimshade->delegate().shown()) << "Brimshade's own did not close it";
    press(kVK_ANSI_V);
    brimshade->wait(1.5);
    EXPECT_FALSE(brimshade->model().isRecording());
    brimshade->clickElsewhere();
    press(kVK_ANSI_V);
    EXPECT_EQ(opened(), QStringList(u"vault.main"_s));
}

TEST_F(ItemShortcut, ARefusalLeavesTheOneThatTheItemHad)
{
    start();
    record(u"Relay"_s, kVK_ANSI_K);
    record(u"Vault"_s, kVK_ANSI_V);
    beginToRecord(u"Vault"_s);
    press(kVK_ANSI_K);
    brimshade->press(kVK_Escape);
    EXPECT_FALSE(brimshade->model().isRecording());
    EXPECT_TRUE(brimshade->delegate().shown()) << "Escape takes back one thing at a time";
    brimshade->clickElsewhere();
    press(kVK_ANSI_V);
    EXPECT_EQ(opened(), QStringList(u"vault.main"_s));
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList(u"relay.main"_s));
}

TEST_F(ItemShortcut, IsReplacedByAnotherAndTakenAwayByDeleteOrTheMenu)
{
    start();
    record(u"Relay"_s, kVK_ANSI_K);
    record(u"Relay"_s, kVK_ANSI_J);
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList());
    press(kVK_ANSI_J);
    EXPECT_EQ(opened(), QStringList(u"relay.main"_s));
    beginToRecord(u"Relay"_s);
    brimshade->press(kVK_Delete);
    EXPECT_FALSE(brimshade->model().isRecording());
    press(kVK_ANSI_J);
    EXPECT_EQ(opened(), QStringList());
    brimshade->clickElsewhere();
    record(u"Relay"_s, kVK_ANSI_J);
    brimshade->model().onRemoveShortcut(brimshade->item(u"Relay"_s));
    press(kVK_ANSI_J);
    EXPECT_EQ(opened(), QStringList());
    restart();
    press(kVK_ANSI_J);
    EXPECT_EQ(opened(), QStringList());
}

TEST_F(ItemShortcut, RecordingEndsWithThePanelAndHotkeysWorkAgain)
{
    start();
    brimshade->model().setShortcut(model::Shortcut::controlOptionSpace);
    beginToRecord(u"Relay"_s);
    brimshade->type(u"x"_s);
    EXPECT_EQ(brimshade->model().query(), QString()) << "nothing is searched meanwhile";
    brimshade->clickElsewhere();
    EXPECT_FALSE(brimshade->model().isRecording());
    brimshade->wait(1);
    brimshade->pressShortcut();
    EXPECT_TRUE(brimshade->delegate().shown());
}

TEST_F(ItemShortcut, HeldDownWhileItIsRecordedItDoesNotPressYet)
{
    start();
    beginToRecord(u"Relay"_s);
    press(kVK_ANSI_K);
    for (int i = 0; i < 30; ++i) {
        brimshade->wait(0.1);
        brimshade->desktop().input().keyDown({keyDown, kHeld, kVK_ANSI_K, {}, true});
    }
    EXPECT_EQ(opened(), QStringList());
    EXPECT_FALSE(brimshade->model().isRecording());
    press(kVK_ANSI_K);
    EXPECT_EQ(opened(), QStringList(u"relay.main"_s));
}

TEST_F(ItemShortcut, IsNotTakenByThePanelsOwnWhichSaysWhoHasIt)
{
    start();
    record(u"Relay"_s, kVK_Space);
    brimshade->model().setShortcut(model::Shortcut::controlOptionSpace);
    EXPECT_EQ(brimshade->model().message(), u"⌃⌥Space already opens the menu of Relay."_s);
    brimshade->model().setMessage({});
    brimshade->model().setHoverToOpen(true);
    EXPECT_EQ(brimshade->model().message(), QString()) << "it is told only once";
    press(kVK_Space);
    EXPECT_EQ(opened(), QStringList(u"relay.main"_s));
    EXPECT_FALSE(brimshade->delegate().shown());
}

TEST_F(ItemShortcut, WithoutThePermissionThePanelAsksForIt)
{
    start();
    record(u"Relay"_s, kVK_ANSI_K);
    brimshade->desktop().setTrusted(false);
    press(kVK_ANSI_K);
    brimshade->wait(1);
    EXPECT_TRUE(brimshade->delegate().shown());
    EXPECT_EQ(told, QStringList());
}

} // namespace brimshade::features
