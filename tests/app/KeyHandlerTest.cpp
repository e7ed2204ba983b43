#include "app/KeyHandler.h"
#include "model/NotchModel.h"
#include "support/FakeSystem.h"

namespace brimshade::app::tests {

class Keys : public testing::Test {
protected:
    FakeSystem system;
    model::NotchModel model{system.defaults, system.loginItems};
    int closings = 0;
    KeyHandler keys{model, [this] { ++closings; }};

    // Returns whether the key was taken.
    bool press(std::uint16_t code, const QString &characters = {}, std::uint64_t flags = 0)
    {
        return !keys.handle({platform::keyDown, flags, code, characters}).has_value();
    }
    void list(int hidden, int visible)
    {
        menubar::ExtraList extras(hidden + visible);
        for (int i = 0; i < hidden + visible; ++i) {
            extras[i].id = QString::number(i);
            extras[i].name = u"Item"_s;
            extras[i].isHidden = i < hidden;
        }
        model.setExtras(extras);
    }
};

TEST_F(Keys, TypesLettersMarksNumbersPunctuationAndBlanks)
{
    // Including a letter beyond the basic plane.
    const QStringList taken{u"a"_s, u"e\u0301"_s, u"٣"_s, u"½"_s,      u"\U00010400"_s,
                            u"-"_s, u"…"_s,       u" "_s, u"\u3000"_s, u"\t"_s};
    // A function key and half a character; a text is taken as a whole or not at all.
    const QStringList refused{
        u"\n"_s, u"\u2028"_s, u"a\n"_s, u"+"_s, u"€"_s, u"😀"_s, u"\uF704"_s, QString(QChar(0xD800)), u""_s};
    const auto expect = [&](const QString &characters, std::uint64_t flags, bool isTaken) {
        model.setQuery(u"x"_s);
        EXPECT_EQ(press(0, characters, flags), isTaken) << characters.toStdString();
        EXPECT_EQ(model.query(), isTaken ? u"x"_s + characters : u"x"_s);
    };
    for (const QString &characters : taken)
        expect(characters, 0, true);
    for (const QString &characters : refused)
        expect(characters, 0, false);
    for (const auto flags :
         {platform::kCommandFlag, platform::kControlFlag, platform::kCommandFlag | platform::kShiftFlag})
        expect(u"a"_s, flags, false);
    for (const auto flags : {platform::kShiftFlag, platform::kOptionFlag})
        expect(u"å"_s, flags, true);
}

TEST_F(Keys, DeleteTakesWhatAPersonSeesAsOneCharacter)
{
    for (const QString &last :
         {u"b"_s, u"e\u0301"_s, u"👩‍👩‍👧"_s, u"🇩🇪"_s, u"각"_s, u"नि"_s, u"\U00010400"_s}) {
        model.setQuery(u"a"_s + last);
        EXPECT_TRUE(press(51));
        EXPECT_EQ(model.query(), u"a"_s) << last.toStdString();
    }
    model.setQuery({});
    EXPECT_TRUE(press(51));
    EXPECT_EQ(model.query(), QString());
    EXPECT_EQ(closings, 0);
}

TEST_F(Keys, EscapeClearsBeforeItCloses)
{
    model.setQuery(u" "_s);
    EXPECT_TRUE(press(53));
    EXPECT_EQ(model.query(), QString());
    EXPECT_EQ(closings, 0);
    EXPECT_TRUE(press(53));
    EXPECT_EQ(closings, 1);
}

TEST_F(Keys, ArrowsGoByOneAndByAsManyAsThereAreColumns)
{
    struct Case {
        int hidden, visible;
        QString afterDown;
    };
    for (const auto &[hidden, visible, afterDown] : {Case{3, 2, u"4"_s}, Case{12, 3, u"9"_s}, Case{6, 7, u"7"_s}}) {
        list(hidden, visible);
        model.setSelectedID(u"0"_s);
        EXPECT_TRUE(press(125));
        EXPECT_EQ(model.selectedID(), afterDown);
        EXPECT_TRUE(press(126));
        EXPECT_EQ(model.selectedID(), u"0"_s);
    }
    EXPECT_TRUE(press(124));
    EXPECT_EQ(model.selectedID(), u"1"_s);
    EXPECT_TRUE(press(123));
    EXPECT_EQ(model.selectedID(), u"0"_s);
}

TEST_F(Keys, ReturnChoosesWhatIsSelectedAndListed)
{
    QStringList chosen;
    model.onSelect = [&](const model::MenuExtra &extra) { chosen.append(extra.id); };
    list(1, 2);
    EXPECT_TRUE(press(36)); // nothing selected
    model.setSelectedID(u"gone"_s);
    EXPECT_TRUE(press(76));
    model.setSelectedID(u"2"_s);
    EXPECT_TRUE(press(76));
    model.setShowVisible(false); // what is not listed cannot be chosen
    EXPECT_TRUE(press(36));
    EXPECT_EQ(chosen, QStringList(u"2"_s));
}

TEST_F(Keys, WhatWasChosenOutlivesTheList)
{
    list(0, 2);
    model.setSelectedID(u"1"_s);
    model.onSelect = [&](const model::MenuExtra &extra) {
        list(3, 0);
        EXPECT_EQ(extra.id, u"1"_s);
        EXPECT_FALSE(extra.isHidden);
    };
    EXPECT_TRUE(press(36));
}

} // namespace brimshade::app::tests
