#pragma once
#include "support/Platform.h"

namespace brimshade::contract {

struct ItemOfAnother {
    QString identifier;
    QStringList actions{u"AXPress"_s};
    QStringList menu{u"Entry"_s};
};

// Stands for everything outside the program: the person, the other applications, the passing of time. Each
// implementation of the platform provides its own; the suite knows the platform only through its interfaces and this.
// The initial desktop has a screen, trusts the program and shows its menu bar.
class Driver {
public:
    virtual ~Driver() = default;
    virtual platform::Platform platform() = 0;

    virtual void runDue() = 0; // runs everything that is due now
    virtual void advance(double seconds) = 0;
    virtual void settleMenuBar() = 0; // until items stand where they belong

    virtual void movePointer(QPointF at) = 0; // display space
    virtual void click(QPointF at, bool right = false) = 0;
    virtual void drag(QPointF from, QPointF to) = 0;
    virtual void key(std::uint16_t code, std::uint64_t modifierFlags) = 0;
    virtual QStringList openMenu() = 0; // titles; empty when none is open
    virtual QPointF menuCorner() = 0; // the point at which the open menu was requested; display space
    virtual void choose(const QString &title) = 0;
    virtual void dismissMenu() = 0;

    virtual int launch(const std::vector<ItemOfAnother> &items) = 0; // the new process identifier
    virtual void quit(int pid) = 0;
    virtual void hang(int pid) = 0; // from now on it does not answer anything
    virtual void setTrusted(bool trusted) = 0;
    virtual void changeScreens() = 0; // some other arrangement
    virtual QStringList told() = 0; // what the person was told since the last call: "Title: Body"
};

// The driver of the implementation that the suite is linked with.
std::unique_ptr<Driver> makeDriver();

class Contract : public testing::Test {
protected:
    // Runs work on another thread while up to limit seconds pass.
    void onWorker(const platform::Work &work, double limit = 10);
    std::unique_ptr<platform::Window> makeWindow(const QRectF &rect, bool canBecomeKey = true);
    // The children of an application's extras menu bar; none when it cannot be read.
    std::vector<platform::AXUIElement> items(int pid);
    QPointF toDisplay(QPointF inScreenSpace) const;
    QPointF emptySpot() const; // on the first screen, far from its menu bar; display space

    std::unique_ptr<Driver> driver = makeDriver();
    platform::Platform platform = driver->platform();
};

} // namespace brimshade::contract
