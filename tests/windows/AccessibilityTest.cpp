#include "Context.h"

#include <QAccessible>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace brimshade::windows {

// What an assistive program is told, in reading order.
class Accessibility : public testing::Test, protected Context {
protected:
    void SetUp() override { QAccessible::setActive(true); }
    void TearDown() override { QAccessible::setActive(false); }

    static bool isShown(const QQuickItem *item)
    {
        for (; item; item = item->parentItem())
            if (!item->isVisible() || item->opacity() < 0.01)
                return false;
        return true;
    }
    void collect(QAccessibleInterface *element, QList<QAccessibleInterface *> &into)
    {
        const auto *item = qobject_cast<QQuickItem *>(element->object());
        if (item && !isShown(item))
            return;
        if (item && !element->text(QAccessible::Name).isEmpty())
            into << element;
        for (int i = 0; i < element->childCount(); ++i)
            collect(element->child(i), into);
    }
    QList<QAccessibleInterface *> elements()
    {
        QList<QAccessibleInterface *> found;
        collect(QAccessible::queryAccessibleInterface(scene().window()), found);
        return found;
    }
    static int switchesOffered(const QAccessibleInterface *element)
    {
        int count = element->role() == QAccessible::CheckBox;
        for (int i = 0; i < element->childCount(); ++i)
            count += switchesOffered(element->child(i));
        return count;
    }
    // "CheckBox Launch at login" and whatever else is told.
    QStringList told()
    {
        QStringList lines;
        for (QAccessibleInterface *element : elements()) {
            const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(element->role());
            QString line = QString::fromLatin1(role) + u' ' + element->text(QAccessible::Name);
            const QString description = element->text(QAccessible::Description);
            if (!description.isEmpty())
                line += u" ("_s + description + u')';
            if (element->state().checkable)
                line += element->state().checked ? u" on"_s : u" off"_s;
            // The toolkit does not report items as disabled; a switch says instead that it cannot be changed.
            if (element->state().checkable && element->state().readOnly)
                line += u" disabled"_s;
            lines << line;
        }
        return lines;
    }
    static std::string joined(const QStringList &lines) { return lines.join(u'\n').toStdString(); }
};

TEST_F(Accessibility, TellsTheSettingsInReadingOrder)
{
    setExtras(someExtras());
    model.setMovingID(u"wi-fi"_s);
    model.setMessage(u"Relay: no."_s);
    model.setShortcut(model::Shortcut::optionCommandN);
    showSettings();
    EXPECT_EQ(switchesOffered(QAccessible::queryAccessibleInterface(scene().window())), 7)
        << "whether seen or not, but without the one under the spinner";
    EXPECT_EQ(
        joined(told()),
        joined({
            u"StaticText Relay: no."_s,
            u"Button Dismiss"_s,
            u"Heading Menu bar items"_s,
            u"CheckBox Tuck away items left of Brimshade off"_s,
            u"StaticText Ledger"_s,
            u"CheckBox Visible (Ledger) off disabled"_s,
            u"StaticText Relay"_s,
            u"StaticText Relay: 3 messages"_s,
            u"CheckBox Visible (Relay) on disabled"_s,
            u"StaticText Wi-Fi"_s,
            u"ProgressBar Working"_s,
            u"StaticText Clock"_s,
            u"StaticText Pinned by macOS"_s,
            u"StaticText When on, the Brimshade icon widens up to the notch and everything to its left is tucked away into the notch. Switching an item does a quick Cmd-drag across the Brimshade icon for you, so the pointer jumps for a moment. You can also Cmd-drag items across it yourself."_s,
            u"Heading Opening"_s,
            u"CheckBox Open when the pointer rests on the notch off"_s,
            u"ComboBox Keyboard shortcut (⌥⌘N)"_s,
            u"Heading Panel"_s,
            u"CheckBox Also show items already in the menu bar on"_s,
            u"Heading General"_s,
            u"CheckBox Launch at login off"_s,
            u"Button Run Setup Again…"_s,
        }));
}

TEST_F(Accessibility, TellsEachStepOfTheSetupAndNothingOfTheOthers)
{
    const Language language{QLocale(u"en"_s)};
    model.setTrusted(false);
    setExtras(someExtras());
    showSetup();
    const QList<QStringList> steps{
        {u"Heading Your whole menu bar, one click away"_s,
         u"StaticText The notch hides menu bar items when there's no room.\nBrimshade opens the notch and shows every one of them."_s,
         u"Indicator Step 1 of 5"_s, u"Button Get started"_s},
        {u"Heading Allow Accessibility"_s,
         u"StaticText Brimshade reads your menu bar items and opens them through Accessibility.\nNothing leaves your Mac."_s,
         u"StaticText Waiting for access…"_s, u"Button Open Accessibility Settings"_s,
         u"StaticText Already listed but this doesn't turn green? Select Brimshade, remove it with –, then allow it again."_s,
         u"Indicator Step 2 of 5"_s, u"Button Back"_s, u"Button Skip for now"_s},
        {u"Heading What stays in the menu bar?"_s,
         u"StaticText Lit items stay in the menu bar. Dimmed ones are tucked into the notch, one click away."_s,
         u"Button Ledger (Tucked into the notch. Click to keep it in the menu bar.)"_s,
         u"Button Relay (In the menu bar. Click to tuck it away.)"_s,
         u"Button Wi-Fi (In the menu bar. Click to tuck it away.)"_s, u"Button Clock (Pinned by macOS)"_s,
         u"StaticText 3 in the menu bar  ·  1 in the notch"_s, u"Indicator Step 3 of 5"_s, u"Button Back"_s,
         u"Button Continue"_s},
        {u"Heading How do you want to open it?"_s,
         u"StaticText The icon right of the notch always works. Add a shortcut or a hover if you like."_s,
         u"CheckBox Hover the notch (Rest the pointer on the notch to open Brimshade) off"_s,
         u"ComboBox Keyboard shortcut (None. Open from anywhere)"_s, u"Indicator Step 4 of 5"_s, u"Button Back"_s,
         u"Button Continue"_s},
        {u"Heading Almost there"_s, u"StaticText A couple of last details."_s,
         u"CheckBox Launch at login (Start Brimshade with your Mac) off"_s,
         u"CheckBox Show every item in the panel (Not only the hidden ones) on"_s,
         u"StaticText Finishing moves 1 item for you. Your pointer will jump for a few seconds, so hands off the mouse."_s,
         u"Indicator Step 5 of 5"_s, u"Button Back"_s, u"Button Finish"_s},
    };
    for (int step = 0; step < steps.size(); ++step) {
        goTo(step);
        if (step == 4)
            flow.toggle(u"relay"_s);
        EXPECT_EQ(joined(told()), joined(steps[step])) << step;
    }
}

// Without an event, nobody would learn that a switch has changed.
TEST_F(Accessibility, AnnouncesTheNewValueOfASwitch)
{
    static QStringList announced;
    announced.clear();
    showSettings();
    told();
    // Events are sent only if the platform says that somebody is listening.
    auto *platform = QGuiApplicationPrivate::platformIntegration()->accessibility();
    platform->setActive(true);
    QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
        if (event->type() == QAccessible::StateChanged
            && static_cast<QAccessibleStateChangeEvent *>(event)->changedStates().checked)
            announced << event->object()->objectName();
    });
    model.setHoverToOpen(true);
    scene().settle();
    QAccessible::installUpdateHandler(nullptr);
    platform->setActive(false);
    EXPECT_EQ(announced, QStringList{u"hoverSwitch"_s});
}

} // namespace brimshade::windows
