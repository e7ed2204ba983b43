#include "WaylandForeground.h"

#include "ShellBackend.h"
#include "WaylandGlobals.h"

#include <QScreen>
#include <algorithm>
#include <span>
#include <wlr-foreign-toplevel-management-unstable-v1-client.h>

namespace brimshade::desktop::session {

namespace {

constexpr int kLongestId = 256; // bytes; a name in the bar, not a document

} // namespace

class WaylandForeground::Toplevel {
public:
    Toplevel(WaylandForeground &owner, zwlr_foreign_toplevel_handle_v1 *handle);
    ~Toplevel() { zwlr_foreign_toplevel_handle_v1_destroy(m_handle); }
    Q_DISABLE_COPY_MOVE(Toplevel)

    const QString &id() const { return m_id; }
    bool isActive() const { return m_isActive; }
    bool isFullScreen() const { return m_isFullScreen; }
    std::uint64_t activation() const { return m_activation; } // higher is later; 0 for never
    bool isOn(const wl_output *output) const { return std::ranges::find(m_outputs, output) != m_outputs.end(); }

private:
    static const zwlr_foreign_toplevel_handle_v1_listener &listener();
    void setStates(std::span<const std::uint32_t> states);

    WaylandForeground &m_owner;
    zwlr_foreign_toplevel_handle_v1 *const m_handle;
    QString m_id;
    std::vector<const wl_output *> m_outputs;
    bool m_isActive = false;
    bool m_isFullScreen = false;
    std::uint64_t m_activation = 0;
};

WaylandForeground::Toplevel::Toplevel(WaylandForeground &owner, zwlr_foreign_toplevel_handle_v1 *handle)
    : m_owner(owner), m_handle(handle)
{
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &listener(), this);
}

const zwlr_foreign_toplevel_handle_v1_listener &WaylandForeground::Toplevel::listener()
{
    using Handle = zwlr_foreign_toplevel_handle_v1;
    static constexpr zwlr_foreign_toplevel_handle_v1_listener kListener{
        [](void *, Handle *, const char *) {}, // the title
        [](void *self, Handle *, const char *id) {
            static_cast<Toplevel *>(self)->m_id = QString::fromUtf8(id, qsizetype(qstrnlen(id, kLongestId)));
        },
        [](void *self, Handle *, wl_output *output) { static_cast<Toplevel *>(self)->m_outputs.push_back(output); },
        [](void *self, Handle *, wl_output *output) { std::erase(static_cast<Toplevel *>(self)->m_outputs, output); },
        [](void *self, Handle *, wl_array *states) {
            static_cast<Toplevel *>(self)->setStates(
                {static_cast<const std::uint32_t *>(states->data), states->size / sizeof(std::uint32_t)});
        },
        [](void *self, Handle *) { static_cast<Toplevel *>(self)->m_owner.update(); },
        [](void *self, Handle *) {
            const auto *closed = static_cast<const Toplevel *>(self);
            closed->m_owner.remove(closed);
        },
        [](void *, Handle *, Handle *) {}, // the parent
    };
    return kListener;
}

void WaylandForeground::Toplevel::setStates(std::span<const std::uint32_t> states)
{
    const auto has = [states](std::uint32_t state) { return std::ranges::find(states, state) != states.end(); };
    m_isFullScreen = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_FULLSCREEN);
    const bool wasActive = std::exchange(m_isActive, has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED));
    if (m_isActive && !wasActive)
        m_activation = ++m_owner.m_activations;
}

WaylandForeground::WaylandForeground(const WaylandGlobals &globals, const ShownSurfaces &shown)
    : m_shown(shown), m_manager(globals.bindToplevelManager())
{
    static constexpr zwlr_foreign_toplevel_manager_v1_listener kListener{
        [](void *self, zwlr_foreign_toplevel_manager_v1 *, zwlr_foreign_toplevel_handle_v1 *handle) {
            static_cast<WaylandForeground *>(self)->add(handle);
        },
        [](void *, zwlr_foreign_toplevel_manager_v1 *) {}};
    if (m_manager)
        zwlr_foreign_toplevel_manager_v1_add_listener(m_manager, &kListener, this);
}

WaylandForeground::~WaylandForeground()
{
    m_toplevels.clear();
    if (m_manager)
        zwlr_foreign_toplevel_manager_v1_destroy(m_manager);
}

void WaylandForeground::add(zwlr_foreign_toplevel_handle_v1 *handle)
{
    m_toplevels.push_back(std::make_unique<Toplevel>(*this, handle));
}

void WaylandForeground::remove(const Toplevel *toplevel)
{
    std::erase_if(m_toplevels, [toplevel](const auto &known) { return known.get() == toplevel; });
    update();
}

void WaylandForeground::update()
{
    const auto active = std::ranges::find_if(m_toplevels, [](const auto &toplevel) { return toplevel->isActive(); });
    if (active == m_toplevels.end() && m_shown.haveKeyboard())
        return;
    QSet<const QScreen *> covered;
    for (QScreen *screen : ShellBackend::screens()) {
        const Toplevel *last = nullptr;
        for (const auto &toplevel : m_toplevels) {
            if (toplevel->isOn(outputOf(screen)) && toplevel->activation() > (last ? last->activation() : 0))
                last = toplevel.get();
        }
        if (active != m_toplevels.end() && last && last->isFullScreen())
            covered.insert(screen);
    }
    setCoveredScreens(covered);
    setApplication(active != m_toplevels.end() ? (*active)->id() : QString());
}

} // namespace brimshade::desktop::session
