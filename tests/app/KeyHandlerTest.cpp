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

    // Whether the key was taken.
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
    const std::tuple<QString, std::uint64_t, bool> cases[] = {
        {u"a"_s, 0, true},
        {u"A"_s, platform::kShiftFlag, true},
        {u"å"_s, platform::kOptionFlag, true},
        {u"e\u0301"_s, 0, true},
        {u"٣"_s, 0, true},
        {u"½"_s, 0, true},
        {u"\U00010400"_s, 0, true}, // a letter beyond the basic plane
        {u"-"_s, 0, true},
        {u"…"_s, 0, true},
        {u" "_s, 0, true},
        {u"\u3000"_s, 0, true},
        {u"\t"_s, 0, true},
        {u"\n"_s, 0, false},
        {u"\u2028"_s, 0, false},
        {u"a\n"_s, 0, false}, // all of it or nothing
        {u"+"_s, 0, false},
        {u"€"_s, 0, false},
        {u"😀"_s, 0, false},
        {u"\uF704"_s, 0, false}, // a function key
        {QString(QChar(0xD800)), 0, false},
        {u""_s, 0, false},
        {u"f"_s, platform::kCommandFlag, false},
        {u"a"_s, platform::kControlFlag, false},
        {u"a"_s, platform::kCommandFlag | platform::kShiftFlag, false},
    };
    for (const auto &[characters, flags, isTaken] : cases) {
        model.setQuery(u"x"_s);
        EXPECT_EQ(press(0, characters, flags), isTaken) << characters.toStdString();
        EXPECT_EQ(model.query(), isTaken ? u"x"_s + characters : u"x"_s);
    }
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

} // namespace brimshade::app::tests
