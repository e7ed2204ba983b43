#pragma once
#include "WindowPane.h"
#include "desktop/core/WindowStack.h"
#include "desktop/views/HostedContent.h"

namespace brimshade::desktop::session {

// A window with a title: an ordinary window, which the session decorates, places and stacks.
class TitledPane : public WindowPane {
    Q_OBJECT
public:
    struct Parts {
        WindowStack &stack;
        QQmlEngine &engine;
        InputRouter &router;
        MenuController &menu;
    };
    TitledPane(DesktopWindow &window, const Parts &parts);
    ~TitledPane() override;

    Pane &pane() override { return m_pane; }
    QQuickItem *content() const override { return m_content->view(); }
    bool isShown() const override { return m_window.isVisible(); }
    bool isOverlay() const override { return false; }
    bool takesInput() const override { return isShown(); }
    bool takesKeyboard() const override { return false; }
    void setKey(bool key) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();
    void activationChanged();

    DesktopWindow &m_window;
    const Parts m_parts;
    Pane m_pane;
    QQuickItem m_holder;
    std::unique_ptr<HostedContent> m_content;
};

} // namespace brimshade::desktop::session
