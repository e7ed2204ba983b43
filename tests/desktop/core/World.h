#pragma once
#include "support/TestDesktop.h"

namespace brimshade::desktop {

inline ApplicationDescription application(int pid, const std::vector<ExtraDescription> &extras)
{
    return brimshade::application(pid, u"Number%1"_s.arg(pid), extras);
}

// A clock of 132 points, pinned, and three items of 30: "a.one", "b.two", "b.three" of the applications 11 and 12.
DesktopDescription someDesktop();

// Shortcuts to what tests ask of a desktop.
class World : public testing::Test, protected TestDesktop {
protected:
    explicit World(const DesktopDescription &description = someDesktop()) : TestDesktop(description) { }

    platform::Accessibility &accessibility() { return platform.accessibility; }
    platform::AXUIElement bar(int pid); // its extras menu bar; null when that cannot be read
    platform::AXUIElement item(int pid, std::size_t index);
    std::vector<platform::AXUIElement> children(const platform::AXUIElement &element);
    // How a read ended: kAXErrorSuccess if with a value.
    platform::AXError errorOf(const platform::AXUIElement &element, const QString &attribute);
    QString text(const platform::AXUIElement &element, const QString &attribute);
    QRectF axFrame(const platform::AXUIElement &element); // empty if it cannot be read

    QString barOrder(); // identifiers left to right, our own item by its autosave name
    QRectF barFrame(const QString &identifier);
    void settle() { dispatch.advance(0.1); } // lets the bar lay itself out
};

} // namespace brimshade::desktop
