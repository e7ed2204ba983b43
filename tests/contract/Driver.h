#pragma once
#include "support/Platform.h"

namespace brimshade::contract {

struct ItemOfAnother {
    QString identifier;
    QStringList actions{u"AXPress"_s};
    QStringList menu{u"Entry"_s};
};

// Stands for what is outside of the program: the person, the other applications, the passing of time. Each
// implementation of the platform brings its own; the suite knows the platform only through its interfaces and this.
// The desktop it starts with has a screen, trusts the program and shows its menu bar.
class Driver {
public:
    virtual ~Driver() = default;
    virtual platform::Platform platform() = 0;

    virtual void runDue() = 0; // everything due at the present instant
    virtual void advance(double seconds) = 0;
    virtual void settleMenuBar() = 0; // until items stand where they belong

    virtual void movePointer(QPointF at) = 0; // display space
    virtual void click(QPointF at, bool right = false) = 0;
    virtual void drag(QPointF from, QPointF to) = 0;
    virtual void key(std::uint16_t code, std::uint64_t modifierFlags) = 0;
    virtual QStringList openMenu() = 0; // titles; empty when none is open
    virtual QPointF menuCorner() = 0; // the point that the open one was asked for at; display space
    virtual void choose(const QString &title) = 0;
    virtual void dismissMenu() = 0;

    virtual int launch(const std::vector<ItemOfAnother> &items) = 0; // the new process identifier
    virtual void quit(int pid) = 0;
    virtual void hang(int pid) = 0; // it answers nothing from now on
    virtual void setTrusted(bool trusted) = 0;
    virtual void changeScreens() = 0; // some other arrangement
    virtual QStringList told() = 0; // to the person, since last asked: "Title: Body"
};

// Of the implementation that the suite is linked with.
std::unique_ptr<Driver> makeDriver();

class Contract : public testing::Test {
protected:
    // Runs work on another thread while up to so many seconds pass.
    void onWorker(const platform::Work &work, double limit = 10);
    std::unique_ptr<platform::Window> makeWindow(const QRectF &rect, bool canBecomeKey = true);
    // The children of an application's extras menu bar; none when it cannot be read.
    std::vector<platform::AXUIElement> items(int pid);
    QPointF toDisplay(QPointF inScreenSpace) const;
    QPointF emptySpot() const; // of the first screen, far from its menu bar; display space

    std::unique_ptr<Driver> driver = makeDriver();
    platform::Platform platform = driver->platform();
};

} // namespace brimshade::contract
