#pragma once
#include "StatusBarService.h"

#include <optional>

namespace brimshade::desktop {

// Stands where the item stands, in its settled frame. The bar orders and places it.
class StatusItemWindow : public platform::Window {
public:
    StatusItemWindow(const SharedState &state, const MenuBar &bar, const BarEntry &entry)
        : m_state(state), m_bar(bar), m_entry(entry)
    {
    }
    QRectF frame() const override;
    void setFrame(const QRectF &) override { }
    void center() override { }
    std::optional<platform::Screen> screen() const override;
    void orderFrontRegardless() override { }
    void makeKeyAndOrderFront() override { }
    void orderOut() override { }
    void close() override { }
    bool isVisible() const override { return m_entry.frame.has_value(); }
    bool isKeyWindow() const override { return false; }
    bool occlusionStateVisible() const override;

private:
    const SharedState &m_state;
    const MenuBar &m_bar;
    const BarEntry &m_entry;
};

// One of the program's status items and its button. Main thread.
class OwnStatusItem : public platform::StatusItem, public platform::StatusBarButton {
public:
    OwnStatusItem(StatusBarService &bar, double length);
    ~OwnStatusItem() override;

    double length() const override { return m_length; }
    void setLength(double length) override;
    void setAutosaveName(const QString &name) override;
    platform::StatusBarButton *button() override { return this; }
    void setMenu(std::optional<platform::Menu> menu) override { m_menu = std::move(menu); }

    platform::Image image() const override { return m_entry->image; }
    void setImage(const platform::Image &image) override;
    void setAccessibilityLabel(const QString &label) override;
    void setAction(platform::EventMask sendOn, platform::Work action) override;
    platform::Window *window() override { return m_entry->frame ? &m_window : nullptr; }
    void performClick(platform::Work dismissed) override;

    const BarEntryPointer &entry() const { return m_entry; }
    void pressed(platform::NSEventType type);
    void released(platform::NSEventType type, bool isInside);
    void takeWidth(); // from its length and the bar's height
    void barSettled();
    void storePlace(); // after a drag
    void forgetBar() { m_bar = nullptr; }

private:
    QString placeKey() const;
    void openMenu(platform::Work dismissed);
    void send(platform::NSEventType type);

    StatusBarService *m_bar; // null once the desktop is gone
    const BarEntryPointer m_entry;
    StatusItemWindow m_window;
    double m_length;
    QString m_autosaveName;
    std::optional<platform::Menu> m_menu;
    platform::EventMask m_sendOn = 0;
    platform::Work m_action;
    // When the bar last settled:
    std::optional<QString> m_screen; // by name, the one the window was on
    bool m_isDrawn = false;
    bool m_isCrowded = false; // as shown, it keeps out items that belong right of it
};

} // namespace brimshade::desktop
