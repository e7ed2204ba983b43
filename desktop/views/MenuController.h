#pragma once
#include "MenuLevel.h"
#include "desktop/core/MenuHost.h"
#include "platform/Application.h"
#include "ui/binding/ListModel.h"

#include <functional>
#include <memory>

namespace brimshade::desktop {

// What pointer and keys do to the open menu: the lists that are open, from the menu itself to the deepest submenu.
// Points are in display space. Main thread. The base class is spelled out in full because the QML type registrar looks
// it up by its spelling.
class MenuController : public brimshade::ui::ListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a scene")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    enum Role { LevelRole = Qt::UserRole + 1 };
    using ScreenAt = std::function<QRectF(QPointF)>; // the frame of the screen that shows a menu of that point

    MenuController(MenuHost &host, ScreenAt screenAt);
    ~MenuController() override;

    bool isOpen() const { return !m_levels.empty(); }
    MenuLevel &level(int depth) const { return *m_levels[depth]; }

    void pointerMoved(QPointF to);
    void pressed(QPointF at); // outside of every list it dismisses the menu
    void released(QPointF at);
    void wheel(QPointF at, double points);
    void key(const platform::Event &event);

    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void isOpenChanged();

protected:
    int count() const override { return int(m_levels.size()); }
    QVariant value(int row, int role) const override;

private:
    int depthAt(QPointF point) const; // -1 outside of every list
    void hostChanged();
    void reopen();
    void refresh();
    void place(int depth);
    void openSubmenu(int depth); // of the chosen row at that depth
    void truncate(int depth); // closes all but that many lists
    void select(int depth, int row);
    void step(int by);
    void choose(); // the chosen row of the deepest list
    void enterSubmenu();

    MenuHost &m_host;
    const ScreenAt m_screenAt;
    MenuSource *m_source = nullptr; // the one whose lists are open
    std::vector<std::unique_ptr<MenuLevel>> m_levels;
};

} // namespace brimshade::desktop
