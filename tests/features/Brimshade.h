#pragma once
#include "app/AppDelegate.h"
#include "controls/Divider.h"
#include "model/NotchModel.h"
#include "model/ShortcutRecorder.h"
#include "support/TestDesktop.h"

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace brimshade::features {

// A running application with one item, 30 points wide.
desktop::ApplicationDescription application(int pid, const QString &name, double width = 30);
// The system's agent: the clock from 1372 to 1504, the control centre left of it from 1332.
desktop::ApplicationDescription systemAgent();
// The agent with a plain button at a fixed place, where its other items seem to begin.
desktop::ApplicationDescription agentWithButton(const QRectF &frame);

// The notched screen, the agent, Brimshade's item left of it, then Relay, Vault and Quill leftwards from 1304. The
// setup flow is done, the permission given.
desktop::DesktopDescription notchedDesktop(const QVariantMap &defaults = {});
// The same with divider mode on: all three are tucked away.
desktop::DesktopDescription dividedDesktop();
// And with Relay and Vault right of Brimshade's item: only Quill is tucked away.
desktop::DesktopDescription sharedDesktop();

enum Key { returnKey = 36, escape = 53, enter = 76 };

inline constexpr QPointF kEmptySpot(100, 800); // of the display, top-left origin: no window of the program is there
inline constexpr QPointF kOnNotch(756, 10);

// One running Brimshade, with the hands and eyes of the person who uses it. Calls that views would make are made on the
// model directly. Positions have their origin at the top left.
class Brimshade {
public:
    explicit Brimshade(const desktop::DesktopDescription &description = notchedDesktop());
    ~Brimshade();

    void wait(double seconds) { m_on.dispatch.advance(seconds); }
    void movePointer(QPointF to);
    void click(QPointF at, desktop::MouseButton button);
    void drag(QPointF from, QPointF to, std::uint64_t flags) { m_on.drag(from, to, flags), wait(1); }
    void clickStatusItem() { click(symbol(), desktop::MouseButton::left); }
    void clickStatusItemNow() { m_on.click(symbol()); } // without running what is due
    void rightClickStatusItem() { click(symbol(), desktop::MouseButton::right); }
    void clickElsewhere() { click(kEmptySpot, desktop::MouseButton::left); }
    void open(); // with a click, until the views are open and the list is there
    void press(int keyCode, const QString &characters = {}, std::uint64_t flags = 0);
    void type(const QString &text);
    void pressShortcut() { press(49, u" "_s, platform::kControlFlag | platform::kOptionFlag); } // ⌃⌥Space
    void chooseFromMenu(const QString &title);
    void move(const QString &name, bool hide); // as a tile's menu does
    void hide(const QString &name) { move(name, true); }
    void show(const QString &name) { move(name, false); }
    void finishSetup(const QHash<QString, bool> &hiddenByName);
    void vanish() { m_delegate.reset(); } // destroys the coordinator, whatever is under way

    model::NotchModel &model() { return m_delegate->model(); }
    app::AppDelegate &delegate() { return *m_delegate; }
    desktop::Desktop &desktop() { return m_on.desktop; }
    const controls::Divider &divider() { return *m_delegate->divider(); }
    const menubar::MenuExtra &item(const QString &name); // from the last scan

    bool isOnScreen(const QString &window) { return frameOf(window).has_value(); }
    bool hasKeys(const QString &window);
    std::optional<QRectF> frameOf(const QString &window); // screen space; absent while it is not on screen
    int windowCount(const QString &name);
    QRectF statusItem();
    bool isDrawn(const QString &identifier); // by an item's identifier; Brimshade's own by its autosave name
    QString bar(); // left to right, without the system's items; Brimshade's own is "|"
    QString hiddenItems(); // listed by a new scan
    int dragCount(); // since last asked
    QStringList pressedItems(); // since last asked
    QStringList log(); // since last asked

private:
    QPointF symbol(); // at the right end of the status item, where one clicks it

    TestDesktop m_on;
    std::shared_ptr<app::AppDelegate> m_delegate;
};

} // namespace brimshade::features
