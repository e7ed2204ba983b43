#pragma once
#include "platform/Window.h"

#include <QObject>
#include <vector>

namespace brimshade::desktop {

class WindowStack;

// One of the program's windows. The scene shows its content; the stack keeps its order, level and key state.
class DesktopWindow : public QObject, public platform::Window
{
    Q_OBJECT
public:
    const platform::WindowAttributes &attributes() const;
    const platform::ContentView &content() const;
    QRectF displayFrame() const; // frame() in display space, title bar included
    double titleBarHeight() const; // above the content; 0 with a full-size content view or without a title bar
    void setContentSize(QSizeF size); // the scene: what a hosted view measures, where it sizes the window

Q_SIGNALS:
    void changed(); // frame, visibility or key state
};

// The program's windows by level, then by order. Main thread.
class WindowStack : public QObject, public platform::Windows
{
    Q_OBJECT
public:
    std::vector<DesktopWindow *> windows() const; // all, in the order of creation
    std::vector<DesktopWindow *> onScreen() const; // back to front
    DesktopWindow *windowAt(QPointF displayPoint) const; // the frontmost that takes clicks there, or null
    DesktopWindow *keyWindow() const; // null: another application has the keys
    DesktopWindow *named(const QString &name) const;
    void makeKey(DesktopWindow *window); // null gives the keys to another application

Q_SIGNALS:
    void windowAdded(DesktopWindow *window);
    void windowRemoved(DesktopWindow *window); // about to go; its content must be dropped now
    void orderChanged();
};

} // namespace brimshade::desktop
