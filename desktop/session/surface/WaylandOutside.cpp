#include "WaylandOutside.h"

#include "NativePixels.h"
#include "ShellBackend.h"
#include "WaylandGlobals.h"
#include "WaylandSurface.h"

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>
#include <viewporter-client.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client.h>

namespace brimshade::desktop::session {

namespace {

constexpr auto kOutsideNamespace = "brimshade-outside";
constexpr std::uint32_t kAllEdges = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM
    | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
constexpr int kPixelBytes = 4;

// A fresh file is all zeros: transparent. Null when the system is out of files.
wl_buffer *transparentPixel(wl_shm *shm)
{
    const int file = memfd_create("pixel", MFD_CLOEXEC);
    wl_buffer *buffer = nullptr;
    if (ftruncate(file, kPixelBytes) == 0) {
        wl_shm_pool *pool = wl_shm_create_pool(shm, file, kPixelBytes);
        buffer = wl_shm_pool_create_buffer(pool, 0, 1, 1, kPixelBytes, WL_SHM_FORMAT_ARGB8888);
        wl_shm_pool_destroy(pool);
    }
    close(file);
    return buffer;
}

} // namespace

class WaylandOutside::Sheet {
public:
    Sheet(const WaylandOutside &owner, QScreen *screen);
    ~Sheet();
    Q_DISABLE_COPY_MOVE(Sheet)

    const QScreen *screen() const { return m_screen; }
    const wl_surface *surface() const { return m_surface; }
    bool isConfigured() const { return !m_size.isEmpty(); }
    void cutHoles();

private:
    void configure(std::uint32_t serial, const QSize &size);

    const WaylandOutside &m_owner;
    QScreen *const m_screen;
    wl_surface *const m_surface;
    wp_viewport *const m_viewport;
    zwlr_layer_surface_v1 *const m_role;
    QSize m_size; // native; empty until configured
};

WaylandOutside::Sheet::Sheet(const WaylandOutside &owner, QScreen *screen)
    : m_owner(owner), m_screen(screen), m_surface(wl_compositor_create_surface(owner.m_globals.compositor())),
      m_viewport(wp_viewporter_get_viewport(owner.m_globals.viewporter(), m_surface)),
      m_role(zwlr_layer_shell_v1_get_layer_surface(owner.m_globals.layerShell(), m_surface, outputOf(screen),
                                                   ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, kOutsideNamespace))
{
    static constexpr zwlr_layer_surface_v1_listener kListener{
        [](void *self, zwlr_layer_surface_v1 *, std::uint32_t serial, std::uint32_t width, std::uint32_t height) {
            static_cast<Sheet *>(self)->configure(serial, QSize(int(width), int(height)));
        },
        // Its screen is going, and Qt says so next.
        [](void *, zwlr_layer_surface_v1 *) {}};
    zwlr_layer_surface_v1_add_listener(m_role, &kListener, this);
    zwlr_layer_surface_v1_set_anchor(m_role, kAllEdges);
    zwlr_layer_surface_v1_set_exclusive_zone(m_role, kIgnoresZones);
    wl_surface_commit(m_surface);
}

WaylandOutside::Sheet::~Sheet()
{
    zwlr_layer_surface_v1_destroy(m_role);
    wp_viewport_destroy(m_viewport);
    wl_surface_destroy(m_surface);
}

void WaylandOutside::Sheet::configure(std::uint32_t serial, const QSize &size)
{
    zwlr_layer_surface_v1_ack_configure(m_role, serial);
    if (m_size == size)
        return wl_surface_commit(m_surface);
    m_size = size;
    wp_viewport_set_destination(m_viewport, size.width(), size.height());
    wl_surface_attach(m_surface, m_owner.m_pixel, 0, 0);
    wl_surface_damage(m_surface, 0, 0, size.width(), size.height());
    cutHoles();
}

void WaylandOutside::Sheet::cutHoles()
{
    if (!isConfigured())
        return;
    wl_region *region = wl_compositor_create_region(m_owner.m_globals.compositor());
    for (const QRect &part : QRegion(QRect({}, m_size)) - toNative(m_owner.m_shown.inputRegion(m_screen), m_screen))
        wl_region_add(region, part.x(), part.y(), part.width(), part.height());
    wl_surface_set_input_region(m_surface, region);
    wl_region_destroy(region);
    wl_surface_commit(m_surface);
    wl_display_flush(m_owner.m_globals.display());
}

WaylandOutside::WaylandOutside(const WaylandGlobals &globals, const ShownSurfaces &shown)
    : m_globals(globals), m_shown(shown)
{
    connect(&shown, &ShownSurfaces::changed, this, &WaylandOutside::follow);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        if (m_isOn && ShellBackend::screens().contains(screen))
            cover(screen);
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](const QScreen *screen) {
        std::erase_if(m_sheets, [screen](const auto &sheet) { return sheet->screen() == screen; });
    });
}

WaylandOutside::~WaylandOutside()
{
    m_sheets.clear();
    if (m_pixel)
        wl_buffer_destroy(m_pixel);
}

void WaylandOutside::watch(bool on)
{
    if (std::exchange(m_isOn, on) != on)
        follow();
}

bool WaylandOutside::hears() const
{
    return !m_sheets.empty() && std::ranges::all_of(m_sheets, &Sheet::isConfigured);
}

void WaylandOutside::follow()
{
    if (!m_isOn)
        return m_sheets.clear();
    if (!m_sheets.empty())
        return cutHoles();
    const auto isUnseen = [](const ShellSurface *surface) {
        return surface->kind() == ShellSurface::Kind::Overlay
            && !static_cast<const WaylandSurface *>(surface)->isSeen();
    };
    if (std::ranges::any_of(m_shown.inOrder(), isUnseen))
        return;
    for (QScreen *screen : ShellBackend::screens())
        cover(screen);
}

bool WaylandOutside::isOf(const wl_surface *surface) const
{
    return std::ranges::any_of(m_sheets, [surface](const auto &sheet) { return sheet->surface() == surface; });
}

void WaylandOutside::cover(QScreen *screen)
{
    if (!m_pixel)
        m_pixel = transparentPixel(m_globals.shm());
    m_sheets.push_back(std::make_unique<Sheet>(*this, screen));
    wl_display_flush(m_globals.display());
}

void WaylandOutside::cutHoles()
{
    for (const auto &sheet : m_sheets)
        sheet->cutHoles();
}

} // namespace brimshade::desktop::session
