#include "Context.h"

namespace brimshade::windows {

class MenuBar : public platform::MenuBarPreferences {
public:
    platform::NotchStyle style = platform::NotchStyle::machine;

    QStringList screenNames() const override { return {u"eDP-1"_s, u"HEADLESS-1"_s}; }
    QString screenName() const override { return u"HEADLESS-1"_s; }
    void setScreenName(const QString &) override { }
    bool isMachineKnown() const override { return true; }
    platform::NotchStyle notchStyle() const override { return style; }
    double notchWidth() const override { return 180; }
    void setNotch(platform::NotchStyle, double) override { }
    QString advice() const override { return {}; }
    QString shortcutAdvice() const override { return u"bindsym Mod4+n exec brimshade --toggle"_s; }
    QString itemShortcutAdvice(const QString &) const override { return {}; }
    void setOnChange(std::function<void()>) override { }
};

// Every readable text in either window has enough room, in every language: it is not elided, does not stick out of the
// window and does not overlap another one. Names of items may be elided.
class Texts : public testing::TestWithParam<std::tuple<const char *, bool>> {
protected:
    const Language language{QLocale(QString::fromLatin1(std::get<0>(GetParam()))), std::get<1>(GetParam())};
    Context context;

    struct Shown {
        QString text;
        QRectF frame; // what is drawn, in the window
    };

    static bool isItemName(const QQuickItem *item)
    {
        return QStringList{u"itemName"_s, u"itemDetail"_s, u"choiceName"_s}.contains(item->objectName());
    }

    QList<Shown> shown()
    {
        QList<Shown> texts;
        for (const QQuickItem *item : context.visibleItems()) {
            if (!item->inherits("QQuickText") || item->property("text").toString().isEmpty())
                continue;
            const QSizeF content(item->property("contentWidth").toDouble(), item->property("contentHeight").toDouble());
            const QString text = item->property("text").toString();
            EXPECT_TRUE(isItemName(item) || !item->property("truncated").toBool()) << qPrintable(text);
            EXPECT_LE(content.width(), item->width() + 0.5) << qPrintable(text);
            EXPECT_LE(content.height(), item->height() + 0.5) << qPrintable(text);
            texts << Shown{text, context.scene().frameOf(item)};
        }
        return texts;
    }

    void expectRoom(const QString &where)
    {
        const QList<Shown> texts = shown();
        EXPECT_GE(texts.size(), 3) << qPrintable(where);
        const double width = context.scene().root()->width();
        for (const Shown &text : texts) {
            EXPECT_GE(text.frame.left(), 0) << qPrintable(where + u": "_s + text.text);
            EXPECT_LE(text.frame.right(), width) << qPrintable(where + u": "_s + text.text);
            for (const Shown &other : texts)
                EXPECT_TRUE(&text == &other || !text.frame.adjusted(1, 1, -1, -1).intersects(other.frame))
                    << qPrintable(where + u": "_s + text.text + u" / "_s + other.text);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, Texts, testing::Combine(testing::Values("en", "de"), testing::Bool()));

TEST_P(Texts, HaveRoomInTheSetup)
{
    context.model.setTrusted(false);
    context.showSetup();
    for (const bool trusted : {false, true}) {
        context.model.setTrusted(trusted);
        for (int step = 0; step < 5; ++step) {
            context.setExtras({});
            context.goTo(step);
            expectRoom(u"step %1, no items"_s.arg(step));
            context.setExtras(someExtras());
            context.flow.toggle(u"relay"_s);
            context.scene().advance(500);
            expectRoom(u"step %1"_s.arg(step));
        }
        context.goTo(0);
    }
}

TEST_P(Texts, HaveRoomInTheSettings)
{
    context.model.setMessage(u"Relay: macOS didn't accept the move. Try again, or Cmd-drag it across the divider."_s);
    context.showSettings();
    expectRoom(u"reading"_s);
    context.model.setTrusted(false);
    context.scene().advance(100);
    expectRoom(u"untrusted"_s);
    context.setExtras(someExtras());
    expectRoom(u"items"_s);
    context.model.setMovingID(u"relay"_s);
    context.scene().advance(100);
    expectRoom(u"moving"_s);
    context.model.setMovingID({});
    context.click(u"shortcutPicker"_s);
    ASSERT_TRUE(context.item(u"shortcutPickerList"_s));
}

TEST_P(Texts, HaveRoomInTheSettingsOfASessionsMenuBar)
{
    using platform::NotchStyle;
    for (const NotchStyle style : {NotchStyle::machine, NotchStyle::drawn, NotchStyle::none, NotchStyle::given}) {
        MenuBar menuBar;
        menuBar.style = style;
        MenuBarChoices choices(menuBar);
        context.showSettings(1, &choices);
        ASSERT_TRUE(context.item(u"notchPicker"_s));
        expectRoom(u"notch %1"_s.arg(int(style)));
        context.showSettings(); // which drops the choices
    }
}

TEST(PendingLabel, CountsInTheLanguageOfTheUser)
{
    const std::tuple<const char *, int, QString> cases[]{
        {"en", 1,
         u"Finishing moves 1 item for you. Your pointer will jump for a few seconds, so hands off the mouse."_s},
        {"en", 2,
         u"Finishing moves 2 items for you. Your pointer will jump for a few seconds, so hands off the mouse."_s},
        {"ja", 1,
         u"Finishing moves 1 item for you. Your pointer will jump for a few seconds, so hands off the mouse."_s},
        {"de", 1,
         u"Zum Abschluss wird 1 Objekt für dich verschoben. Der Zeiger springt dabei einige Sekunden lang, also Hände "
         u"weg von der Maus."_s},
        {"de_AT", 2,
         u"Zum Abschluss werden 2 Objekte für dich verschoben. Der Zeiger springt dabei einige Sekunden lang, also "
         u"Hände weg von der Maus."_s},
    };
    for (const auto &[name, pending, text] : cases) {
        const Language language{QLocale(QString::fromLatin1(name))};
        Context context;
        context.setExtras(someExtras());
        context.showSetup();
        context.goTo(4);
        EXPECT_FALSE(context.item(u"pendingLabel"_s)->isVisible());
        context.flow.toggle(u"relay"_s);
        if (pending == 2)
            context.flow.toggle(u"ledger"_s);
        context.scene().settle();
        EXPECT_TRUE(context.item(u"pendingLabel"_s)->isVisible());
        EXPECT_EQ(context.property(u"pendingLabel"_s, "text"), text) << name;
    }
}

} // namespace brimshade::windows
