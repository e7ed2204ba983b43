#include "PanelScene.h"
#include "platform/KeyCodes.h"

#include <QKeyEvent>

namespace brimshade::panel {

using namespace platform;

class ShortcutCard : public testing::Test, protected PanelScene {
protected:
    ShortcutCard() : PanelScene(3, 2)
    {
        recorder.onAssign = [this](const model::ItemShortcut &shortcut) -> model::ShortcutRecorder::Assigned {
            if (shortcut.keys.keyCode == kVK_ANSI_T)
                return std::unexpected(u"⌃T is taken."_s);
            model.itemShortcuts().set(shortcut);
            return {};
        };
        recorder.onRemove = [this](const QString &item) { model.itemShortcuts().remove(item); };
        open();
        recorder.begin(u"clip"_s, u"Clip"_s, {});
        finishMotion();
    }
    ~ShortcutCard() override { dispatch.stop(); }

    QString text(const QString &objectName) const { return scene.find(objectName)->property("text").toString(); }
    bool isShown(const QString &objectName) const
    {
        const QQuickItem *item = scene.find(objectName);
        return item && item->isVisible();
    }
    void press(std::uint16_t key)
    {
        recorder.handle({keyDown, kControlFlag, key, {}});
        finishMotion();
    }
    void click(const QString &objectName)
    {
        scene.click(frame(objectName).center());
        finishMotion();
    }
};

TEST_F(ShortcutCard, StandsInThePlaceOfTheTilesAndFitsThere)
{
    EXPECT_FALSE(isShown(u"sections"_s));
    EXPECT_FALSE(isShown(u"footer"_s));
    EXPECT_EQ(text(u"recorderTitle"_s), u"Shortcut for Clip"_s);
    EXPECT_EQ(text(u"recorderKeys"_s), u"Press the keys"_s);
    EXPECT_TRUE(frame(u"interior"_s).contains(frame(u"shortcutCard"_s)));
    EXPECT_FALSE(isShown(u"removeShortcut"_s));
    click(u"endRecording"_s);
    EXPECT_TRUE(isShown(u"sections"_s));
    EXPECT_FALSE(scene.find(u"shortcutCard"_s));
    EXPECT_EQ(journal.count(u"dismiss"_s), 0);
}

TEST_F(ShortcutCard, ShowsWhatWasWrongAndWhatWasRecorded)
{
    press(kVK_ANSI_T);
    EXPECT_EQ(text(u"recorderSentence"_s), u"⌃T is taken."_s);
    EXPECT_EQ(text(u"recorderKeys"_s), u"Press the keys"_s) << "the item has none yet";
    press(kVK_ANSI_K);
    EXPECT_EQ(text(u"recorderKeys"_s), u"⌃K"_s);
    EXPECT_FALSE(isShown(u"removeShortcut"_s));
    dispatch.advance(1);
    finishMotion();
    EXPECT_TRUE(isShown(u"sections"_s));
    recorder.begin(u"clip"_s, u"Clip"_s, {});
    finishMotion();
    EXPECT_EQ(text(u"recorderKeys"_s), u"⌃K"_s);
    click(u"removeShortcut"_s);
    EXPECT_TRUE(model.itemShortcuts().all().empty());
    EXPECT_TRUE(isShown(u"sections"_s));
}

TEST_F(ShortcutCard, HasRoomForALongAdviceInsteadOfKeys)
{
    recorder.begin(u"clip"_s, u"A program with a rather long name"_s,
                   u"Here no program may take a shortcut by itself. Bind a key to “brimshade --open 'A program with a "
                   "rather long name'”; in sway:\nbindsym Mod4+m exec brimshade --open 'A program with a rather long "
                   "name'"_s);
    finishMotion();
    EXPECT_FALSE(isShown(u"recorderKeys"_s));
    EXPECT_TRUE(frame(u"interior"_s).contains(frame(u"shortcutCard"_s)));
}

TEST(TileMenu, OpensByKeysWhereItsTileIs)
{
    for (const auto &[key, modifiers] : {std::pair(Qt::Key_Menu, Qt::NoModifier), {Qt::Key_F10, Qt::ShiftModifier}}) {
        PanelScene panel(12, 9);
        panel.open();
        panel.scene.find(u"panel"_s)->forceActiveFocus();
        QKeyEvent nothing(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(panel.scene.window(), &nothing);
        EXPECT_EQ(panel.journal, QStringList()) << "no tile is selected";
        panel.model.setSelectedID(u"juniper"_s);
        panel.finishMotion();
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(panel.scene.window(), &press);
        EXPECT_EQ(panel.journal, QStringList(u"menu Open,Show in Menu Bar"_s));
        ASSERT_TRUE(panel.menus.corner);
        EXPECT_TRUE(panel.scene.frameOf(panel.tile(u"Juniper"_s)).contains(*panel.menus.corner));
    }
}

} // namespace brimshade::panel
