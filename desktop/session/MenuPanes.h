#pragma once
#include "Pane.h"
#include "desktop/session/surface/ShellBackend.h"

#include <vector>

class QQmlEngine;

namespace brimshade::desktop::session {

class SessionScreens;

// The open menu: a window over everything for each of its lists; the first one takes the keys. Main thread.
class MenuPanes : public QObject {
    Q_OBJECT
public:
    struct Parts {
        MenuController &menu;
        SessionScreens &screens;
        ShellBackend &shell;
        QQmlEngine &engine;
        InputRouter &router;
    };
    explicit MenuPanes(const Parts &parts);
    ~MenuPanes() override;

    std::vector<Pane *> panes() const; // the deepest list last

private:
    class List;
    void add(int first, int last);
    void truncate(int count);

    const Parts m_parts;
    std::vector<std::unique_ptr<List>> m_lists;
    std::vector<std::unique_ptr<List>> m_leaving; // closed, but perhaps still handling an event
};

} // namespace brimshade::desktop::session
