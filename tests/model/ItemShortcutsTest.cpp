#include "ModelContext.h"
#include "desktop/time/VirtualDispatch.h"
#include "model/ShortcutRecorder.h"
#include "platform/KeyCodes.h"

namespace brimshade::model::tests {

using namespace platform;

constexpr std::uint32_t kHeld = kCarbonControl | kCarbonOption;
constexpr KeyCombination kK{kVK_ANSI_K, kHeld}, kV{kVK_ANSI_V, kHeld};

TEST(KeyCombinations, AreReadAsTheyAreHeldAndTakenOnlyWhereNobodyTypesThem)
{
    const std::tuple<KeyCombination, QString, bool> cases[] = {
        {kK, u"⌃⌥K"_s, true},
        {{kVK_Space, kCarbonCommand | kCarbonShift | kCarbonOption | kCarbonControl}, u"⌃⌥⇧⌘Space"_s, true},
        {{kVK_ANSI_Backslash, kCarbonCommand}, u"⌘\\"_s, true},
        {{kVK_F5, 0}, u"F5"_s, true},
        {{kVK_F12, kCarbonShift}, u"⇧F12"_s, true},
        {{kVK_ANSI_F, 0}, u"F"_s, false},
        {{kVK_ANSI_K, kCarbonShift}, u"⇧K"_s, false},
        {{kVK_Return, 0}, u"↩"_s, false},
        {{0x7f, kHeld}, u"⌃⌥"_s, false}, // a key that none of our keyboards has
    };
    for (const auto &[keys, title, allowed] : cases) {
        EXPECT_EQ(displayTitle(keys), title);
        EXPECT_EQ(canBeGlobal(keys), allowed) << qPrintable(title);
    }
}

TEST(ItemShortcutsKept, ComeBackAsTheyWereSet)
{
    ModelContext context;
    ItemShortcuts &shortcuts = context.model().itemShortcuts();
    shortcuts.set({u"clip\nmain"_s, u"Clip"_s, kK});
    shortcuts.set({u"vault"_s, u"Vault"_s, kV});
    shortcuts.set({u"clip\nmain"_s, u"Clipboard"_s, {kVK_F5, 0}});
    shortcuts.remove(u"nobody"_s);
    const ItemShortcuts again(context.defaults);
    ASSERT_EQ(again.all().size(), 2u);
    ASSERT_TRUE(again.of(u"clip\nmain"_s));
    EXPECT_EQ(again.of(u"clip\nmain"_s)->keys, KeyCombination(kVK_F5, 0));
    EXPECT_EQ(again.of(u"clip\nmain"_s)->name, u"Clipboard"_s);
    EXPECT_EQ(again.with(kV)->item, u"vault"_s);
    EXPECT_FALSE(again.with(kK));
    shortcuts.remove(u"clip\nmain"_s);
    EXPECT_FALSE(ItemShortcuts(context.defaults).of(u"clip\nmain"_s));
}

TEST(ItemShortcutsKept, TakeNothingFromAFileThatTheyWouldNotWrite)
{
    const auto kept = [](const QString &item, const QVariant &keyCode, const QVariant &modifiers) {
        return QVariantMap{
            {u"item"_s, item}, {u"name"_s, u"x"_s}, {u"keyCode"_s, keyCode}, {u"modifiers"_s, modifiers}};
    };
    const QVariantList good{kept(u"a"_s, kVK_ANSI_K, kHeld)};
    const QVariantList bad{u"text"_s,
                           QVariantMap(),
                           kept(u"a"_s, kVK_ANSI_V, kHeld), // a second shortcut of a
                           kept(u"b"_s, kVK_ANSI_K, kHeld), // the same keys
                           kept({}, kVK_ANSI_V, kHeld),
                           kept(QString(301, u'x'), kVK_ANSI_V, kHeld),
                           kept(u"c"_s, -1, kHeld),
                           kept(u"c"_s, 1e300, kHeld),
                           kept(u"c"_s, kVK_ANSI_V, 0),
                           QVariantMap{{u"item"_s, u"c"_s}, {u"modifiers"_s, kHeld}}};
    ModelContext context;
    context.defaults.stored[u"itemShortcuts"_s] = QVariantList(good + bad);
    ASSERT_EQ(context.model().itemShortcuts().all().size(), 1u);
    EXPECT_EQ(context.model().itemShortcuts().all()[0].item, u"a"_s);
    context.defaults.stored[u"itemShortcuts"_s] = u"text"_s;
    EXPECT_TRUE(ItemShortcuts(context.defaults).all().empty());
}

// What only other systems do, and none of our desktops: the rest is in tests/features.
TEST(Recorder, SaysWhatToDoWhereNothingCanBeRecorded)
{
    ModelContext context;
    desktop::VirtualDispatch dispatch;
    ShortcutRecorder recorder(context.model(), context.hotkeys, dispatch);
    recorder.onAssign = [](const ItemShortcut &) -> ShortcutRecorder::Assigned {
        ADD_FAILURE();
        return {};
    };
    recorder.begin(u"clip"_s, u"Clip"_s, u"Bind a key to it."_s);
    recorder.handle({keyDown, kControlFlag, kVK_ANSI_K, {}});
    EXPECT_EQ(recorder.state(), ShortcutRecorder::Impossible);
    EXPECT_EQ(recorder.sentence(), u"Bind a key to it."_s);
    recorder.handle({keyDown, 0, kVK_Escape, {}});
    EXPECT_EQ(recorder.state(), ShortcutRecorder::Off);
    EXPECT_FALSE(context.model().isRecording());
    dispatch.stop();
}

} // namespace brimshade::model::tests
