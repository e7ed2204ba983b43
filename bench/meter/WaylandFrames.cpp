#include "Frames.h"

#include <chrono>
#include <cstdint>
#include <poll.h>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>
#include <wlr-screencopy-unstable-v1-client.h>

namespace brimshade::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t kCopyWithDamageVersion = 2;

class WaylandFrames : public Frames {
public:
    bool connect();
    long next(double seconds) override;

private:
    void bind(wl_registry *registry, std::uint32_t name, std::string_view interface);
    void ask();
    void copy(zwlr_screencopy_frame_v1 *frame, std::uint32_t format, int width, int height, int stride);

    wl_display *m_display = nullptr;
    wl_shm *m_shm = nullptr;
    wl_output *m_output = nullptr;
    zwlr_screencopy_manager_v1 *m_manager = nullptr;
    wl_buffer *m_buffer = nullptr;
    bool m_isAsked = false; // the compositor will answer with the next frame that differs
    bool m_hasCome = false;
    long m_area = 0;
};

bool WaylandFrames::connect()
{
    m_display = wl_display_connect(nullptr);
    if (!m_display)
        return false;
    static constexpr wl_registry_listener kListener{
        [](void *self, wl_registry *registry, std::uint32_t name, const char *interface, std::uint32_t) {
            static_cast<WaylandFrames *>(self)->bind(registry, name, interface);
        },
        [](void *, wl_registry *, std::uint32_t) {}};
    wl_registry_add_listener(wl_display_get_registry(m_display), &kListener, this);
    wl_display_roundtrip(m_display);
    return m_shm && m_output && m_manager;
}

void WaylandFrames::bind(wl_registry *registry, std::uint32_t name, std::string_view interface)
{
    if (interface == wl_shm_interface.name)
        m_shm = static_cast<wl_shm *>(wl_registry_bind(registry, name, &wl_shm_interface, 1));
    else if (interface == wl_output_interface.name && !m_output)
        m_output = static_cast<wl_output *>(wl_registry_bind(registry, name, &wl_output_interface, 1));
    else if (interface == zwlr_screencopy_manager_v1_interface.name)
        m_manager = static_cast<zwlr_screencopy_manager_v1 *>(
            wl_registry_bind(registry, name, &zwlr_screencopy_manager_v1_interface, kCopyWithDamageVersion));
}

void WaylandFrames::copy(zwlr_screencopy_frame_v1 *frame, std::uint32_t format, int width, int height, int stride)
{
    if (!m_buffer) {
        const int file = memfd_create("frame", MFD_CLOEXEC);
        if (ftruncate(file, off_t(stride) * height) != 0)
            return;
        wl_shm_pool *pool = wl_shm_create_pool(m_shm, file, stride * height);
        m_buffer = wl_shm_pool_create_buffer(pool, 0, width, height, stride, format);
        wl_shm_pool_destroy(pool);
        close(file);
    }
    zwlr_screencopy_frame_v1_copy_with_damage(frame, m_buffer);
}

void WaylandFrames::ask()
{
    static constexpr zwlr_screencopy_frame_v1_listener kListener{
        [](void *self, zwlr_screencopy_frame_v1 *frame, std::uint32_t format, std::uint32_t width, std::uint32_t height,
           std::uint32_t stride) {
            static_cast<WaylandFrames *>(self)->copy(frame, format, int(width), int(height), int(stride));
        },
        [](void *, zwlr_screencopy_frame_v1 *, std::uint32_t) {},
        [](void *self, zwlr_screencopy_frame_v1 *frame, std::uint32_t, std::uint32_t, std::uint32_t) {
            static_cast<WaylandFrames *>(self)->m_hasCome = true;
            zwlr_screencopy_frame_v1_destroy(frame);
        },
        [](void *self, zwlr_screencopy_frame_v1 *frame) { // failed, as the output changed meanwhile: a frame
            static_cast<WaylandFrames *>(self)->m_hasCome = true;
            zwlr_screencopy_frame_v1_destroy(frame);
        },
        [](void *self, zwlr_screencopy_frame_v1 *, std::uint32_t, std::uint32_t, std::uint32_t width,
           std::uint32_t height) { static_cast<WaylandFrames *>(self)->m_area = long(width) * long(height); },
        [](void *, zwlr_screencopy_frame_v1 *, std::uint32_t, std::uint32_t, std::uint32_t) {},
        [](void *, zwlr_screencopy_frame_v1 *) {}};
    m_isAsked = true;
    m_hasCome = false;
    m_area = 0;
    zwlr_screencopy_frame_v1_add_listener(zwlr_screencopy_manager_v1_capture_output(m_manager, 0, m_output), &kListener,
                                          this);
    wl_display_roundtrip(m_display); // the buffer's size has come and the copy has been requested
    wl_display_roundtrip(m_display);
}

long WaylandFrames::next(double seconds)
{
    if (!m_isAsked)
        ask();
    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    while (!m_hasCome) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd watched{wl_display_get_fd(m_display), POLLIN, 0};
        wl_display_flush(m_display);
        if (left < 0 || poll(&watched, 1, int(left) + 1) <= 0)
            return 0;
        wl_display_dispatch(m_display);
    }
    m_isAsked = false;
    return m_area;
}

} // namespace

std::unique_ptr<Frames> waylandFrames()
{
    auto frames = std::make_unique<WaylandFrames>();
    return frames->connect() ? std::move(frames) : nullptr;
}

} // namespace brimshade::bench
