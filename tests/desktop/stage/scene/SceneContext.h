#pragma once
#include "desktop/services/SymbolService.h"
#include "desktop/stage/scene/SceneHost.h"
#include "support/TestDesktop.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace brimshade::desktop {

// Records what a probe view reports, in order.
class Recorder : public QObject {
    Q_OBJECT
public:
    Q_INVOKABLE void note(const QString &what) { m_notes << what; }
    QStringList take() { return std::exchange(m_notes, {}); }

private:
    QStringList m_notes;
};

// A menu whose choices are recorded.
class ScriptedMenu : public MenuSource {
    Q_OBJECT
public:
    explicit ScriptedMenu(std::vector<MenuEntry> entries) : m_entries(std::move(entries)) { }

    const std::vector<MenuEntry> &entries() const override { return m_entries; }
    void aboutToShow(int id) override { shown.push_back(id); }
    void choose(int id) override { chosen.push_back(id); }
    void replace(std::vector<MenuEntry> entries)
    {
        m_entries = std::move(entries);
        Q_EMIT changed();
    }

    std::vector<int> chosen, shown;

private:
    std::vector<MenuEntry> m_entries;
};

MenuEntry entry(int id, const QString &title);
MenuEntry separator(int id);

// One desktop of 1000 × 700 points with a bar of 30, its scene, and a virtual clock. The scene can be remade.
class SceneContext {
public:
    explicit SceneContext(const DesktopDescription &description = smallDesktop(), double scale = 1);

    static DesktopDescription smallDesktop();

    SceneHost &scene() { return *m_scene; }
    Desktop &desktop() { return *m_desktop; }
    VirtualDispatch &clock() { return m_clock; }
    Recorder &recorder() { return m_recorder; }
    void remakeScene();

    // frame: the content's, in display space.
    std::unique_ptr<platform::Window> probe(const QString &name, const QRectF &frame,
                                            platform::WindowAttributes attributes = {});
    DesktopWindow *window(const QString &name) { return m_desktop->windows().named(name); }

    void move(QPointF to);
    void click(QPointF at, MouseButton button = MouseButton::left);
    void key(std::uint16_t code, const QString &characters = {}, std::uint64_t flags = 0);
    void advance(double seconds);
    void settle();
    QList<QQuickItem *> findAll(const QString &objectName);

private:
    const double m_scale;
    VirtualDispatch m_clock;
    SymbolService m_symbols;
    Recorder m_recorder;
    std::unique_ptr<Desktop> m_desktop;
    std::unique_ptr<SceneHost> m_scene;
};

} // namespace brimshade::desktop
