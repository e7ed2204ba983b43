// A Wayland compositor with the bare minimum on which Qt starts, and without layer-shell. Prints its socket's name.
#include <cstdint>
#include <cstdio>
#include <wayland-server.h>

int main()
{
    wl_display *display = wl_display_create();
    wl_display_init_shm(display);
    const auto bind = [](wl_client *client, void *, std::uint32_t version, std::uint32_t id) {
        wl_resource_create(client, &wl_compositor_interface, int(version), id);
    };
    wl_global_create(display, &wl_compositor_interface, 4, nullptr, bind);
    // Without a screen Qt complains.
    const auto bindOutput = [](wl_client *client, void *, std::uint32_t version, std::uint32_t id) {
        wl_resource *output = wl_resource_create(client, &wl_output_interface, int(version), id);
        wl_output_send_geometry(output, 0, 0, 300, 200, WL_OUTPUT_SUBPIXEL_UNKNOWN, "", "", WL_OUTPUT_TRANSFORM_NORMAL);
        wl_output_send_mode(output, WL_OUTPUT_MODE_CURRENT, 1512, 982, 60'000);
        wl_output_send_done(output);
    };
    wl_global_create(display, &wl_output_interface, 2, nullptr, bindOutput);
    const char *socket = wl_display_add_socket_auto(display);
    if (!socket)
        return 1;
    std::puts(socket);
    std::fflush(stdout);
    wl_display_run(display);
    return 0;
}
